#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>

#include <climits>

#include <cmath>

using namespace Vantrel;

namespace {

Polygon square(double size) { return Polygon(Rect(0, 0, size, size)); }

double maxDistanceFrom(Polygon const &p, Point c) {
    double d = 0;
    for (Point const &q : p.points)
        d = std::max(d, (q - c).Length());
    return d;
}

} // namespace

TEST(PolygonGeometry, CircleVertexCounts) {
    Polygon c = Polygon::Circle(Point(5, 5), 10);
    ASSERT_EQ(c.points.size(), 22u);
    EXPECT_EQ(c.points[0], Point(15, 5));
    EXPECT_GT(c.points[1].y, 5); // advancing with the angle, y down
    for (Point const &p : c.points)
        EXPECT_NEAR((p - Point(5, 5)).Length(), 10, 1e-9);
    EXPECT_TRUE(Polygon::Circle(Point(), 0).points.empty());
    EXPECT_TRUE(Polygon::Circle(Point(), -3).points.empty());
    EXPECT_TRUE(Polygon::Circle(Point(), std::nan("")).points.empty());
    EXPECT_EQ(Polygon::Circle(Point(), 0.2).points.size(), 3u);
    EXPECT_EQ(Polygon::Circle(Point(), 0.01).points.size(), 3u);
    // Huge radii are capped: 1e15 costs what 1e7 costs.
    EXPECT_EQ(Polygon::Circle(Point(), 1e15).points.size(), size_t(Polygon::kMaxSegmentsPerTurn));
    EXPECT_EQ(Polygon::Circle(Point(), 1e7).points.size(), size_t(Polygon::kMaxSegmentsPerTurn));
    EXPECT_LT(Polygon::Circle(Point(), 1e4).points.size(), size_t(Polygon::kMaxSegmentsPerTurn));
}

TEST(PolygonGeometry, CornerCutsAndArcs) {
    // A right angle: the cut equals the radius.
    EXPECT_NEAR(Polygon::CornerCut(Point(0, 10), Point(0, 0), Point(10, 0), 3), 3, 1e-12);
    EXPECT_EQ(Polygon::CornerCut(Point(0, 10), Point(0, 0), Point(10, 0), 0.005), 0);

    Polygon sharp = Polygon::CornerArc(Point(0, 10), Point(10, 0), 0.09);
    EXPECT_EQ(sharp.points, (std::vector<Point>{Point(0, 0)}));
    Polygon arc = Polygon::RoundedCorner(Point(0, 10), Point(0, 0), Point(10, 0), 4);
    ASSERT_GE(arc.points.size(), 3u);
    EXPECT_NEAR(arc.points.front().x, 0, 1e-9); // tangent on the edge towards previous
    EXPECT_NEAR(arc.points.front().y, 4, 1e-9);
    EXPECT_NEAR(arc.points.back().x, 4, 1e-9);
    EXPECT_NEAR(arc.points.back().y, 0, 1e-9);
    for (Point const &p : arc.points)
        EXPECT_NEAR((p - Point(4, 4)).Length(), 4, 1e-9);
    EXPECT_GE(Polygon::CornerArc(Point(0, 10), Point(10, 0), 0.1).points.size(), 2u);

    // Collinear neighbours: the vertex drops out.
    EXPECT_TRUE(Polygon::CornerArc(Point(-5, 0), Point(5, 0), 2).points.empty());
    EXPECT_TRUE(Polygon::CornerArc(Point(5, 0), Point(5, 0), 2).points.empty());
    EXPECT_TRUE(Polygon::CornerArc(Point(0, 1), Point(1, 0), std::nan("")).points.empty());
    // A huge radius is capped like a circle.
    EXPECT_LE(Polygon::CornerArc(Point(0, 1), Point(1, 0), 1e15).points.size(),
              size_t(Polygon::kMaxSegmentsPerTurn / 4 + 2));
}

TEST(PolygonGeometry, RoundedCornersSmallAndLargeRadii) {
    EXPECT_EQ(square(10).RoundedCorners(0.05).points, square(10).points);
    EXPECT_GT(square(10).RoundedCorners(0.1).points.size(), 4u);

    // Radius 100 on a 10 by 10 square: each edge ratio is 20, so every radius
    // shrinks to 5 and four quarter arcs make a circle.
    Polygon round = square(10).RoundedCorners(100);
    for (Point const &p : round.points)
        EXPECT_NEAR((p - Point(5, 5)).Length(), 5, 1e-9);
    EXPECT_NEAR(round.BoundingRect().Width(), 10, 1e-9);

    // Wrong radius count: unchanged.
    EXPECT_EQ(square(10).RoundedCorners(std::vector<double>{1, 2}).points, square(10).points);
}

TEST(PolygonGeometry, ShrinkRuleTakesTheLargerFactorOfBothEdges) {
    // A 40 by 10 rectangle with radius 8 at both right corners.
    Polygon r(Rect(0, 0, 40, 10));
    Polygon overrun = r.RoundedCorners(std::vector<double>{2, 8, 8, 2});
    // The right edge holds 16 over 10: both right radii shrink to 5, and their arcs meet at (40, 5).
    int onRightEdge = 0;
    for (Point const &p : overrun.points)
        if (std::fabs(p.x - 40) < 1e-9 && std::fabs(p.y - 5) < 1e-9)
            ++onRightEdge;
    EXPECT_EQ(onRightEdge, 2);
    // The left corners keep their radius 2: tangent at (0, 2).
    EXPECT_NEAR(overrun.points.front().x, 0, 1e-9);
    EXPECT_NEAR(overrun.points.front().y, 2, 1e-9);
}

TEST(PolygonGeometry, RoundingDefinedForDegeneratePolygons) {
    // A repeated vertex counts once and leaves the other corners rounded.
    Polygon repeated({Point(0, 0), Point(10, 0), Point(10, 0), Point(10, 10), Point(0, 10), Point(0, 0)});
    Polygon rounded = repeated.RoundedCorners(2);
    Polygon reference = square(10).RoundedCorners(2);
    ASSERT_EQ(rounded.points.size(), reference.points.size());
    for (size_t i = 0; i < rounded.points.size(); ++i)
        EXPECT_TRUE(std::isfinite(rounded.points[i].x) && std::isfinite(rounded.points[i].y));
    EXPECT_EQ(rounded.BoundingRect(), reference.BoundingRect());

    Polygon two({Point(0, 0), Point(5, 5)});
    EXPECT_EQ(two.RoundedCorners(3).points, two.points);
    EXPECT_TRUE(Polygon().RoundedCorners(3).points.empty());

    // A spike (the path turns straight back) must not flatten its neighbours.
    Polygon spike({Point(0, 0), Point(20, 0), Point(10, 0.0), Point(20, 0), Point(20, 20), Point(0, 20)});
    Polygon s = spike.RoundedCorners(3);
    EXPECT_LT(maxDistanceFrom(s, Point(0, 20)), 30);
    for (Point const &p : s.points)
        EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));

    // Non-finite and huge input: defined, bounded results.
    Polygon hostile({Point(0, 0), Point(std::nan(""), 0), Point(1e300, 1e300), Point(0, 1e15)});
    Polygon h = hostile.RoundedCorners(1e15);
    EXPECT_LT(h.points.size(), 4u * Polygon::kMaxSegmentsPerTurn);
}

TEST(PolygonGeometry, NearestEdgeAndEdgeLengths) {
    Polygon r(Rect(0, 0, 10, 10)); // edges: top 0, right 1, bottom 2, left 3
    EXPECT_EQ(r.NearestEdgeIndex(Point(5, -3)), 0);
    EXPECT_EQ(r.NearestEdgeIndex(Point(13, 5)), 1);
    EXPECT_EQ(r.NearestEdgeIndex(Point(5, 12)), 2);
    EXPECT_EQ(r.NearestEdgeIndex(Point(-1, 5)), 3);
    // Equally far from two edges: the earlier one.
    EXPECT_EQ(r.NearestEdgeIndex(Point(12, 12)), 1);
    EXPECT_EQ(r.NearestEdgeIndex(Point(-2, -2)), 0);
    EXPECT_EQ(Polygon().NearestEdgeIndex(Point()), -1);

    EXPECT_EQ(r.EdgeLength(0), 10);
    EXPECT_EQ(r.EdgeLength(3), 10); // the closing edge
    Polygon tri({Point(0, 0), Point(3, 0), Point(3, 4)});
    EXPECT_EQ(tri.EdgeLength(2), 5);
    EXPECT_EQ(tri.EdgeLength(-1), 5);
    EXPECT_EQ(tri.EdgeLength(4), 4); // wraps to edge 1
    EXPECT_EQ(Polygon().EdgeLength(0), 0);
    // Vertex wraps both ways; an empty polygon has only the origin to give.
    EXPECT_EQ(tri.Vertex(-1), Point(3, 4));
    EXPECT_EQ(tri.Vertex(INT_MIN), tri.Vertex(INT_MIN % 3 + 3));
    EXPECT_EQ(Polygon().Vertex(7), Point(0, 0));
}
