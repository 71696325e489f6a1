// The outline toolbox of the bubbles, against values worked out by hand.
#include "support/LoggingContext.h"

#include "callouts/bubbles/BubbleGeometry.h"
#include "values/Pi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Vantrel;

namespace {

void expectPoint(Point p, double x, double y) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
}

Rect const kBody(0, 0, 100, 40);

} // namespace

TEST(BubbleGeometry, SmallHelpers) {
    EXPECT_EQ(collapseInverted(Rect(10, 5, 0, 9)), Rect(5, 5, 5, 9));
    EXPECT_EQ(collapseInverted(Rect(0, 9, 10, 5)), Rect(0, 7, 10, 7));
    EXPECT_EQ(clampBetween(0, -1, 1), 0);
    EXPECT_EQ(clampBetween(0, 2, 1), 1);
    EXPECT_EQ(clampBetween(2, 1.5, 1), 2); // low wins when the bounds cross
    EXPECT_NEAR(degreesToRadians(180), kPi, 1e-15);
}

TEST(BubbleGeometry, TailBaseWidthGrowsWithDistanceBetweenFloorAndCeiling) {
    double const a = kPi / 6;
    EXPECT_EQ(tailBaseWidth(kBody, Point(50, 20), a, 10), 10);                         // inside
    EXPECT_NEAR(tailBaseWidth(kBody, Point(50, -30), a, 10), std::tan(a) * 30, 1e-12); // straight above
    EXPECT_EQ(tailBaseWidth(kBody, Point(50, -5), a, 10), 10);                         // the floor
    EXPECT_EQ(tailBaseWidth(kBody, Point(50, -500), a, 10), 25);                       // a quarter of the width
    EXPECT_EQ(tailBaseWidth(Rect(0, 0, 20, 20), Point(10, -1), a, 10), 5); // the ceiling wins over the floor
    // Out on both axes: a blend by how far on each.
    double const both = tailBaseWidth(kBody, Point(130, -30), a, 10);
    EXPECT_NEAR(both, 0.5 * std::min(25.0, std::tan(a) * 30) + 0.5 * 10, 1e-12);
}

TEST(BubbleGeometry, RectangleWithTail) {
    // Over the left part of the top edge: seven points, the base from the tip.
    Polygon left = rectangleWithTail(kBody, Point(20, -30), 0, 10, false);
    ASSERT_EQ(left.points.size(), 7u);
    expectPoint(left.points[1], 20, 0);
    expectPoint(left.points[2], 20, -30);
    expectPoint(left.points[3], 30, 0);
    // At exactly 35 % of the edge the base is centred under the tip.
    Polygon at35 = rectangleWithTail(kBody, Point(35, -30), 0, 10, false);
    expectPoint(at35.points[1], 30, 0);
    EXPECT_NEAR(rectangleWithTail(kBody, Point(34.9, -30), 0, 10, false).points[1].x, 34.9, 1e-9);
    // The right half is the mirror image: the same shape, the other way round.
    Polygon right = rectangleWithTail(kBody, Point(80, -30), 0, 10, false);
    ASSERT_EQ(right.points.size(), 7u);
    expectPoint(right.points[1], 80, 0);
    expectPoint(right.points[3], 70, 0);
    EXPECT_LT(right.SignedArea() * left.SignedArea(), 0);
    // Beyond the corner: six points, the corner gone.
    Polygon wrap = rectangleWithTail(kBody, Point(-30, -30), 0, 10, false);
    ASSERT_EQ(wrap.points.size(), 6u);
    for (Point const &p : wrap.points)
        EXPECT_FALSE(p.x == 0 && p.y == 0);
    // A tip inside moves to the top edge's middle, flat.
    Polygon inside = rectangleWithTail(kBody, Point(50, 20), 0, 10, false);
    expectPoint(inside.points[2], 50, 0);
    // The base stays out of the corner radii; the rounded corners add points.
    Polygon rounded = rectangleWithTail(kBody, Point(2, -30), 5, 10, true);
    EXPECT_GT(rounded.points.size(), 7u);
    EXPECT_GE(rounded.BoundingRect().Left(), 0);
}

TEST(BubbleGeometry, TriangularTails) {
    // The pill's tail leaves from the right end of the core for a tip to the right.
    Polygon pill = stadiumTail(Point(200, 10), Rect(-50, -20, 50, 20), Point(140, 40));
    ASSERT_EQ(pill.points.size(), 3u);
    EXPECT_NEAR((pill.points[1].x + pill.points[2].x) / 2, 50, 1e-9);
    // Radial: aimed at the centre; rounded, only the last corner gains points.
    Polygon sharp = radialTail(Point(0, -100), Point(0, 0), 10, Point(100, 40), 0);
    ASSERT_EQ(sharp.points.size(), 3u);
    EXPECT_NEAR((sharp.points[1] - sharp.points[2]).Length(), 20, 1e-9);
    EXPECT_GT(radialTail(Point(0, -100), Point(0, 0), 10, Point(100, 40), 4).points.size(), 3u);
    // Straight sideways the cosine term is infinite and dropped by the minimum.
    Polygon side = radialTail(Point(100, 0), Point(0, 0), 30, Point(100, 40), 0);
    EXPECT_NEAR((side.points[1] - side.points[2]).Length(), 40, 1e-9);
    // Cloud: the tip first and last.
    Polygon cloud = cloudTail(Point(90, 150), Rect(-60, -40, 60, 40), Point(100, 80));
    ASSERT_EQ(cloud.points.size(), 4u);
    EXPECT_EQ(cloud.points.front(), cloud.points.back());
}

TEST(BubbleGeometry, GapsAndTheirArcs) {
    EXPECT_EQ(tailGapHalfAngle(10.01, 10), 0.1);
    double const far = kPi / 6 - 0.13962634015954636;
    EXPECT_NEAR(tailGapHalfAngle(10 * 0.5 / std::sin(0.13962634015954636) * 1.5, 10), far, 1e-12); // asin is NaN
    EXPECT_NEAR(tailGapHalfAngle(1e9, 10), far, 1e-12);
    // A tip outside: the arc the long way round, then the tip; inside: the whole circle.
    VantrelTest::LoggingContext c;
    Path withTail, closed;
    addGappedEllipse(withTail, Point(0, 0), 10, 10, Point(30, 0), 10, Point(30, 0));
    addGappedEllipse(closed, Point(0, 0), 10, 10, Point(5, 0), 10, Point(5, 0));
    Polygon tail = withTail.Flattened(&c), circle = closed.Flattened(&c);
    expectPoint(tail.points.back(), 30, 0);
    EXPECT_LT(tail.points.front().x, 10); // starts at the gap's edge, above the tail
    for (Point const &p : circle.points)
        EXPECT_NEAR(p.Length(), 10, 0.2);
}

TEST(BubbleGeometry, CloudAndArrowHead) {
    VantrelTest::LoggingContext c;
    Path cloud;
    addCloudPath(cloud, Point(0.5, 100)); // below 1: 1 for that axis
    Rect bounds = cloud.Flattened(&c).BoundingRect();
    EXPECT_NEAR(bounds.Bottom(), 41.6667, 0.01); // the flat bottom edge, in cairo's fixed point
    EXPECT_NEAR(bounds.Right(), 0.9485, 0.01);
    // Progress 0: the wings on the centre line, the tip out all the same.
    Polygon head;
    addArrowHead(head, Rect(0, 0, 50, 20), 30, 15, 0);
    ASSERT_EQ(head.points.size(), 5u);
    expectPoint(head.points[1], 50, 10);
    expectPoint(head.points[2], 65, 10);
    Polygon open;
    addArrowHead(open, Rect(0, 0, 50, 20), 30, 15, 0.125);
    expectPoint(open.points[1], 50, -5);
}

TEST(BubbleGeometry, ThoughtCirclesPaintSmallThenBig) {
    VantrelTest::LoggingContext c;
    drawThoughtCircles(Rect(-60, -40, 60, 40), Point(120, 80), Point(100, 100), 1.0, &c, Color(0, 0, 1), Color(), 0,
                       "solid", true, false, Point(0, 1));
    EXPECT_EQ(c.calls, (std::vector<std::string>{"fill ellipse", "fill ellipse"})); // no stroke at width 0
    ASSERT_EQ(c.fillColours.size(), 2u);
    EXPECT_EQ(c.fillColours[0].alpha, 0.6f);
    EXPECT_EQ(c.fillColours[1].alpha, 0.8f);
    VantrelTest::LoggingContext flat;
    drawThoughtCircles(Rect(-60, 0, 60, 0), Point(120, 80), Point(100, 100), 1.0, &flat, Color(0, 0, 1), Color(), 2,
                       "solid", false, true, Point(0, 1));
    EXPECT_TRUE(flat.calls.empty()); // no height: nothing to aim from
    VantrelTest::LoggingContext tails;
    drawThoughtCirclesForTails(Rect(-60, -40, 60, 40), Point(120, 80), {Point(100, 100), Point(-100, 90)}, 1.0, &tails,
                               Color(0, 0, 1), Color(), 1, "dash", false, 1, true, Point(0, 1));
    EXPECT_EQ(tails.calls, (std::vector<std::string>{"fill ellipse gradient", "stroke ellipse", "fill ellipse gradient",
                                                     "stroke ellipse"}));
}
