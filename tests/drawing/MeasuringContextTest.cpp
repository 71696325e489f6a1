#include "support/PixelProbe.h"

#include "drawing/BoundsFinder.h"
#include "drawing/PolygonsDrawingContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace Vantrel;

namespace {

Color const kInk(0, 0, 0);

std::vector<Point> pointsOf(Polygons const &list, size_t i) { return list.polygons.at(i)->points; }

} // namespace

TEST(PolygonsDrawingContext, OffsetReplacesAndOutlivesRestore) {
    PolygonsDrawingContext c;
    Polygon unit({Point(0, 0), Point(1, 0), Point(1, 1)});
    c.Translate(Point(10, 0));
    c.Translate(Point(0, 5));
    c.Fill(kInk, unit);
    c.Save();
    c.Translate(Point(3, 3));
    c.Restore();
    c.Stroke(kInk, 40, "dash", unit);
    ASSERT_EQ(c.Result().polygons.size(), 2u);
    EXPECT_EQ(pointsOf(c.Result(), 0), (std::vector<Point>{Point(0, 5), Point(1, 5), Point(1, 6)}));
    EXPECT_EQ(pointsOf(c.Result(), 1), (std::vector<Point>{Point(3, 3), Point(4, 3), Point(4, 4)}));
}

TEST(PolygonsDrawingContext, CollectsOnlyFillsAndStrokesAsDrawn) {
    PolygonsDrawingContext c;
    c.StartPath();
    c.AddLineToCurrentPath(Point(0, 0));
    c.AddLineToCurrentPath(Point(5, 5));
    c.FillCurrentPath(kInk);
    c.DrawRectangle(kInk, Rect(0, 0, 5, 5));
    c.DrawLine(Point(0, 0), Point(5, 5), kInk, 2, true);
    c.SetClip(Rect(0, 0, 1, 1));
    EXPECT_TRUE(c.Result().polygons.empty());
    EXPECT_EQ(c.CurrentPointInPath(), Point(0, 0));
    EXPECT_EQ(c.CreateBlankClone(), nullptr);
    EXPECT_EQ(c.Get(), nullptr);

    c.Fill(kInk, Polygon());
    c.Fill(kInk, Polygon({Point(1, 1), Point(2, 2)}));
    Polygons three;
    for (int i = 0; i < 3; ++i)
        three.Add(Polygon({Point(i, 0), Point(i, 1), Point(i + 1, 1)}));
    c.Fill(makeGradientPattern(kInk, Rect(0, 0, 1, 1), Point(0, 1)), three);
    Polygons const &r = c.Result();
    ASSERT_EQ(r.polygons.size(), 5u);
    EXPECT_TRUE(r.polygons[0]->points.empty());
    EXPECT_EQ(r.polygons[1]->points.size(), 2u);
    EXPECT_EQ(r.polygons[4]->points.front(), Point(2, 0));
    // Orientation is kept as drawn.
    Polygon clockwise(Rect(0, 0, 2, 2));
    c.Stroke(kInk, 1, "solid", clockwise.Reversed());
    EXPECT_EQ(r.polygons[5]->points, clockwise.Reversed().points);
}

TEST(PolygonsDrawingContext, EllipsesAndPathsAreFlattened) {
    PolygonsDrawingContext c;
    c.FillEllipse(kInk, Rect(-10, -5, 10, 5));
    c.FillEllipse(makeGradientPattern(kInk, Rect(0, 0, 1, 1), Point(0, 1)), Rect(0, 0, 4, 4));
    Path tri;
    tri.AddPoint(Point(0, 0));
    tri.AddPoint(Point(4, 0));
    tri.AddPoint(Point(0, 3));
    c.Translate(Point(100, 0));
    c.StrokePath(kInk, 3, "dot", tri, LineCapRound, LineJoinRound, true);
    c.StrokeEllipse(kInk, 3, "dot", Rect(0, 0, 2, 2));
    Polygons const &r = c.Result();
    ASSERT_EQ(r.polygons.size(), 4u);
    Rect e = r.polygons[0]->BoundingRect();
    EXPECT_NEAR(e.Left(), -10, 1e-6);
    EXPECT_NEAR(e.Bottom(), 5, 1e-6);
    for (Point const &p : r.polygons[0]->points)
        EXPECT_NEAR(p.x * p.x / 100 + p.y * p.y / 25, 1, 0.03);
    EXPECT_GT(r.polygons[1]->points.size(), 4u); // the gradient fill collects too
    EXPECT_EQ(r.polygons[2]->points, (std::vector<Point>{Point(100, 0), Point(104, 0), Point(100, 3)}));
    EXPECT_NEAR(r.polygons[3]->BoundingRect().Left(), 100, 1e-6);
}

TEST(BoundsFinder, MeasuresInkWithStrokes) {
    BoundsFinder empty;
    EXPECT_EQ(empty.InkExtents(), Rect());

    BoundsFinder line;
    line.StartPath();
    line.MoveToPointInCurrentPath(Point(0, 0));
    line.AddLineToCurrentPath(Point(100, 0));
    line.StrokeCurrentPath(kInk, 10, "solid", LineCapButt, LineJoinMiter, false);
    EXPECT_EQ(line.InkExtents(), Rect(0, -5, 100, 5));

    BoundsFinder capped;
    capped.DrawLine(Point(0, 0), Point(100, 0), kInk, 10, true);
    EXPECT_EQ(capped.InkExtents(), Rect(-5, -5, 105, 5));

    BoundsFinder moved;
    moved.Translate(Point(7, 3));
    moved.Fill(kInk, Polygon(Rect(0, 0, 10, 10)));
    EXPECT_EQ(moved.InkExtents(), Rect(7, 3, 17, 13));
}

// Beyond about 8.4 million device units cairo's fixed-point coordinates
// wrap: its bounds came back inverted or wrapped there. Bounds of such
// callouts hold their ink: the box of their outline, grown by the stroke.
TEST(BoundsFinder, BoundsBeyondCairosRangeHoldTheInk) {
    Vantrel::TextCalloutProperties text;
    Vantrel::TextAttributeList none;
    struct Case {
        char const *name;
        std::unique_ptr<Vantrel::BaseCallout> callout;
        Vantrel::Rect box; // what the bounds must hold
    };
    Case cases[] = {
        {"oval 10 million wide",
         std::unique_ptr<Vantrel::BaseCallout>(Vantrel::Presets::createShapeOval(
             Vantrel::Presets::ThemeBasic, Vantrel::Color(1, 0, 0), "solid", Vantrel::Point(0, 1),
             Vantrel::Color(0, 0, 0), 2, "solid", Vantrel::Rect(0, 0, 1e7, 100))),
         Vantrel::Rect(0, 0, 1e7, 100)},
        {"rectangle 10 million to the left",
         std::unique_ptr<Vantrel::BaseCallout>(Vantrel::Presets::createShapeRectangle(
             Vantrel::Presets::ThemeBasic, Vantrel::Color(1, 0, 0), "solid", Vantrel::Point(0, 1),
             Vantrel::Color(0, 0, 0), 2, "dash", Vantrel::Rect(-1e7, 0, 0, 100))),
         Vantrel::Rect(-1e7, 0, 0, 100)},
        {"bold thought bubble a million wide, dotted",
         std::unique_ptr<Vantrel::BaseCallout>(Vantrel::Presets::createThoughtBubbleTwo(
             Vantrel::Presets::ThemeBold, Vantrel::Color(1, 1, 1), "solid", Vantrel::Point(0, 1),
             Vantrel::Color(0, 0, 0), 3, "dot", Vantrel::Rect(-5e5, -50, 5e5, 50), Vantrel::Point(6e5, 100), text,
             none)),
         Vantrel::Rect(-5e5, -50, 5e5, 50)},
    };
    for (Case const &c : cases) {
        SCOPED_TRACE(c.name);
        Vantrel::Rect const r = c.callout->boundingRect();
        EXPECT_LE(r.Left(), c.box.Left());
        EXPECT_LE(r.Top(), c.box.Top());
        EXPECT_GE(r.Right(), c.box.Right());
        EXPECT_GE(r.Bottom(), c.box.Bottom());
        // Not much more than the design and the stroke reach beyond the box.
        EXPECT_LT(r.Width(), c.box.Width() * 2 + 1000);
    }
}

// Dashed and dotted outlines that reach 1e30: cairo's dash walked a path
// that was not the one given, for tens of seconds a draw (more at smaller
// scales). These draws must end well within the suite's time limit.
TEST(CairoContext, DashedOutlinesFarFromTheOriginDrawInBoundedTime) {
    Vantrel::TextCalloutProperties text;
    Vantrel::TextAttributeList none;
    for (char const *style : {"dot", "dash", "dashdotdot"}) {
        SCOPED_TRACE(style);
        std::unique_ptr<Vantrel::BaseCallout> bubble(Vantrel::Presets::createThoughtBubble(
            Vantrel::Presets::ThemeAbstract, Vantrel::Color(1, 1, 1), "solid", Vantrel::Point(0, 1),
            Vantrel::Color(0, 0, 0), 3, style, Vantrel::Rect(-1e30, -1e30, 100, 50), Vantrel::Point(200, 100), text,
            none));
        for (double scale : {1.0, 0.37, 0.01}) {
            VantrelTest::Canvas canvas(64, 64);
            canvas.context.Translate(Vantrel::Point(32, 32));
            canvas.context.Scale(Vantrel::Point(scale, scale));
            bubble->drawIntoContext(&canvas.context, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
        }
        Vantrel::Rect const r = bubble->boundingRect();
        EXPECT_LE(r.Left(), -1e30);
        EXPECT_GE(r.Right(), 100);
    }
}
