#include "support/CalloutChecks.h"
#include "values/Pi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

using namespace Vantrel;
using VantrelTest::Canvas;
using VantrelTest::expectBoundsMatchInk;

namespace {

Color const kFill(0.9f, 0.6f, 0.1f);
Color const kInk(0, 0, 0);

void expectPoint(Point p, double x, double y, double tolerance = 1e-9) {
    EXPECT_NEAR(p.x, x, tolerance);
    EXPECT_NEAR(p.y, y, tolerance);
}

// The polygons a shape draws: the fill's, then the stroke's if it has one.
Polygon firstOutline(BaseCallout const &shape) {
    Polygons all = shape.pathAsPolygons(Rect());
    return all.polygons.empty() ? Polygon() : *all.polygons.front();
}

using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                 double, std::string const &, Rect const &);
Factory const kFactories[] = {Presets::createShapeOval, Presets::createShapeRectangle, Presets::createShapeOctagon,
                              Presets::createShapeTriangle, Presets::createShapeStar};
char const *const kFactoryNames[] = {"oval", "rectangle", "octagon", "triangle", "star"};
Presets::Theme const kThemes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold, Presets::ThemeAbstract};

Color const kBlue(0, 0, 1);
Color const kBlack(0, 0, 0);

void draw(BaseCallout const &callout, Canvas &canvas, Point at) {
    canvas.context.Save();
    canvas.context.Translate(at);
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    canvas.context.Restore();
}

int blueAt(Canvas const &canvas, int x, int y) { return canvas.at(x, y) & 0xFF; }
int redAt(Canvas const &canvas, int x, int y) { return (canvas.at(x, y) >> 16) & 0xFF; }

} // namespace

TEST(OvalShape, FillsAndStrokesItsEllipse) {
    OvalShape oval(kBlue, "solid", Point(0, 1), kBlack, 4, "solid", Rect(-40, -20, 40, 20));
    Canvas canvas(100, 60);
    draw(oval, canvas, Point(50, 30));
    EXPECT_EQ(canvas.at(50, 30), 0xFF0000FFu); // fill
    EXPECT_EQ(canvas.at(10, 30), 0xFF000000u); // stroke on the left end
    EXPECT_EQ(canvas.at(9, 30) >> 24, 255u);   // half the width outside the rect
    EXPECT_EQ(canvas.at(6, 30), 0u);
    EXPECT_EQ(canvas.at(12, 12), 0u); // the rect's corner is outside the ellipse
    EXPECT_EQ(oval.trackingRect(), Rect(-42, -22, 42, 22));

    OvalShape bare(kBlue, "solid", Point(0, 1), kBlack, 0, "dash", Rect(-40, -20, 40, 20));
    Canvas unstroked(100, 60);
    draw(bare, unstroked, Point(50, 30));
    EXPECT_EQ(unstroked.at(12, 30), 0xFF0000FFu); // no outline at width 0
    EXPECT_EQ(unstroked.at(9, 30), 0u);
    EXPECT_EQ(bare.trackingRect(), Rect(-40, -20, 40, 20));
}

TEST(OvalShape, GradientRunsLightToDarkAlongItsDirection) {
    for (Point direction : {Point(0, 1), Point(0, 5)}) {
        OvalShape oval(kBlue, "gradient", direction, kBlack, 0, "solid", Rect(-30, -40, 30, 40));
        Canvas canvas(60, 80);
        draw(oval, canvas, Point(30, 40));
        EXPECT_GT(redAt(canvas, 30, 2), 70); // lighter: red and green lifted towards 0.35
        EXPECT_LT(redAt(canvas, 30, 39), 5); // the colour itself in the middle
        EXPECT_EQ(blueAt(canvas, 30, 39), 255);
        EXPECT_LT(blueAt(canvas, 30, 77), 180); // darker: blue towards 0.65
        EXPECT_GT(blueAt(canvas, 30, 2), blueAt(canvas, 30, 77));
    }
    // Only the exact word "gradient" makes a gradient.
    for (char const *style : {"Gradient", "", "gradient "}) {
        OvalShape oval(kBlue, style, Point(0, 1), kBlack, 0, "solid", Rect(-30, -40, 30, 40));
        Canvas canvas(60, 80);
        draw(oval, canvas, Point(30, 40));
        EXPECT_EQ(canvas.at(30, 5), 0xFF0000FFu) << style;
    }
}

TEST(OvalShape, EveryStrokeStyleDrawsADifferentOutline) {
    std::vector<int> inkCounts;
    for (char const *style : {"solid", "dash", "dot", "dashdot", "dashdotdot"}) {
        OvalShape oval(Color(), "solid", Point(0, 1), kBlack, 4, style, Rect(-40, -30, 40, 30));
        Canvas canvas(100, 80);
        draw(oval, canvas, Point(50, 40));
        int ink = 0;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 100; ++x)
                ink += VantrelTest::alphaAt(canvas.bitmap, x, y);
        inkCounts.push_back(ink);
    }
    // solid > dash > dashdot > dashdotdot > dot: the share of "on" length.
    EXPECT_GT(inkCounts[0], inkCounts[1]);
    EXPECT_GT(inkCounts[1], inkCounts[3]);
    EXPECT_GT(inkCounts[3], inkCounts[4]);
    EXPECT_GT(inkCounts[4], inkCounts[2]);
    EXPECT_GT(inkCounts[2], 0);
}

TEST(Shapes, BoundsMatchTheInkOfEveryShape) {
    for (int f = 0; f < 5; ++f)
        for (Presets::Theme theme : kThemes)
            for (double width : {0.0, 3.0, 10.0})
                for (char const *style : {"solid", "dash", "dotted-unknown"}) {
                    std::unique_ptr<BaseCallout> shape(kFactories[f](theme, kFill, "gradient", Point(1, 2), kInk, width,
                                                                     style, Rect(-90, -60, 80, 70)));
                    ASSERT_NE(shape, nullptr);
                    expectBoundsMatchInk(*shape, std::string(kFactoryNames[f]) + " theme " + std::to_string(theme) +
                                                     " width " + std::to_string(width) + " " + style);
                }
}

TEST(Shapes, RectangleCornersAndTracking) {
    RectangleShape sharp(kFill, "solid", Point(0, 1), kInk, 4, "solid", 0, Rect(-20, -10, 20, 10));
    RectangleShape round(kFill, "solid", Point(0, 1), kInk, 4, "solid", 8, Rect(-20, -10, 20, 10));
    EXPECT_EQ(firstOutline(sharp).points, Polygon(Rect(-20, -10, 20, 10)).points);
    EXPECT_GT(firstOutline(round).points.size(), 8u);
    EXPECT_EQ(sharp.trackingRect(), round.trackingRect());
    EXPECT_EQ(sharp.trackingRect(), Rect(-22, -12, 22, 12));
    // Shapes ignore the options: every query gives the same outlines.
    EXPECT_EQ(round.tailPathAsPolygons(3, Rect()).polygons.size(), 2u);
    EXPECT_EQ(round.bodyPathAsPolygons(Rect()).polygons.size(), 2u);
    RectangleShape unstroked(kFill, "solid", Point(0, 1), kInk, 0, "solid", 0, Rect(-20, -10, 20, 10));
    EXPECT_EQ(unstroked.pathAsPolygons(Rect()).polygons.size(), 1u);
    EXPECT_EQ(unstroked.boundingRect(), Rect(-20, -10, 20, 10));
}

TEST(Shapes, TriangleIsInscribedInItsRect) {
    RegularPolygonShape triangle(kFill, "solid", Point(0, 1), kInk, 0, "solid", 3, 1.234, 0, Rect(10, 10, 110, 60));
    Polygon p = firstOutline(triangle);
    ASSERT_EQ(p.points.size(), 3u);
    expectPoint(p.points[0], 110, 60);
    expectPoint(p.points[1], 60, 10);
    expectPoint(p.points[2], 10, 60);
}

TEST(Shapes, OctagonIsCentredOnTheOriginWithVerticalSides) {
    for (Rect r : {Rect(-50, -50, 50, 50), Rect(100, 100, 200, 200)}) {
        RegularPolygonShape octagon(kFill, "solid", Point(0, 1), kInk, 0, "solid", 8, -kPi / 8, 0, r);
        Polygon p = firstOutline(octagon);
        ASSERT_EQ(p.points.size(), 8u);
        expectPoint(p.points[0], 50, 20.710678118654755);
        EXPECT_NEAR(p.points[0].Length(), 54.11961001461969, 1e-9);
        expectPoint(p.points[1], 50, -20.710678118654755); // counter-clockwise on screen
    }
    // Presets: Basic rounds the octagon, Urban does not.
    std::unique_ptr<BaseCallout> basic(
        Presets::createShapeOctagon(Presets::ThemeBasic, kFill, kInk, 0, "solid", Rect(-50, -50, 50, 50)));
    std::unique_ptr<BaseCallout> urban(
        Presets::createShapeOctagon(Presets::ThemeUrban, kFill, kInk, 0, "solid", Rect(-50, -50, 50, 50)));
    EXPECT_GT(firstOutline(*basic).points.size(), 8u);
    EXPECT_EQ(firstOutline(*urban).points.size(), 8u);
}

TEST(Shapes, StarVertices) {
    StarShape star(kFill, "solid", Point(0, 1), kInk, 0, "solid", 0.5, 0, Rect(-50, -50, 50, 50));
    Polygon p = firstOutline(star);
    ASSERT_EQ(p.points.size(), 10u);
    expectPoint(p.points[0], 0, -50);
    expectPoint(p.points[1], 25 * std::cos(0.7 * kPi), -25 * std::sin(0.7 * kPi));
    expectPoint(p.points[2], 50 * std::cos(0.9 * kPi), -50 * std::sin(0.9 * kPi));
    // Inner and outer vertices alternate: the star runs counter-clockwise on screen.
    for (size_t i = 0; i < 10; ++i)
        EXPECT_NEAR(p.points[i].Length(), i % 2 ? 25 : 50, 1e-9) << i;
    StarShape decagon(kFill, "solid", Point(0, 1), kInk, 0, "solid", 1.0, 0, Rect(-40, -20, 40, 20));
    for (Point const &q : firstOutline(decagon).points)
        EXPECT_NEAR(q.x * q.x / 1600 + q.y * q.y / 400, 1.0, 1e-9);
}

TEST(Shapes, ClonesKeepFieldsAndCachedBounds) {
    StarShape star(kFill, "gradient", Point(0, 1), kInk, 5, "dash", 0.6, 4, Rect(-50, -40, 50, 40));
    Rect bounds = star.boundingRect();
    std::unique_ptr<StarShape> copy(star.clone());
    EXPECT_EQ(copy->boundingRect(), bounds);
    EXPECT_EQ(firstOutline(*copy).points, firstOutline(star).points);
    std::unique_ptr<RectangleShape> rect(
        RectangleShape(kFill, "solid", Point(0, 1), kInk, 2, "dot", 6, Rect(0, 0, 30, 20)).clone());
    EXPECT_EQ(rect->trackingRect(), Rect(-1, -1, 31, 21));
    std::unique_ptr<RegularPolygonShape> hexagon(
        RegularPolygonShape(kFill, "solid", Point(0, 1), kInk, 2, "dot", 6, 0, 0, Rect(-30, -30, 30, 30)).clone());
    EXPECT_EQ(firstOutline(*hexagon).points.size(), 6u);
    // A copy outlives its original.
    std::unique_ptr<OvalShape> oval(
        new OvalShape(kBlue, "gradient", Point(1, 0), kBlack, 3, "dash", Rect(-10, -10, 10, 10)));
    std::unique_ptr<OvalShape> ovalCopy(oval->clone());
    oval.reset();
    EXPECT_EQ(ovalCopy->trackingRect(), Rect(-11.5, -11.5, 11.5, 11.5));
    Canvas canvas(30, 30);
    draw(*ovalCopy, canvas, Point(15, 15));
    EXPECT_EQ(canvas.at(15, 15) >> 24, 255u);
}

TEST(Shapes, OddCountsAndSizesHaveDefinedResults) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    auto vertices = [](double sides, Rect r) {
        RegularPolygonShape shape(kFill, "solid", Point(0, 1), kInk, 0, "solid", sides, 0.1, 0, r);
        return firstOutline(shape).points;
    };
    EXPECT_TRUE(vertices(0, Rect(-10, -10, 10, 10)).empty());
    EXPECT_TRUE(vertices(-4, Rect(-10, -10, 10, 10)).empty());
    EXPECT_TRUE(vertices(nan, Rect(-10, -10, 10, 10)).empty());
    EXPECT_EQ(vertices(4.5, Rect(-10, -10, 10, 10)).size(), 5u); // the last edge is shorter
    EXPECT_EQ(vertices(1e12, Rect(-10, -10, 10, 10)).size(), size_t(RegularPolygonShape::kMaxSides));
    EXPECT_EQ(vertices(std::numeric_limits<double>::infinity(), Rect(-10, -10, 10, 10)).size(),
              size_t(RegularPolygonShape::kMaxSides));
    // Width 0: the polygon lies on the vertical axis with its full height, no NaN.
    std::vector<Point> flat = vertices(6, Rect(0, -10, 0, 10));
    ASSERT_EQ(flat.size(), 6u);
    for (Point const &p : flat) {
        EXPECT_EQ(p.x, 0.0);
        EXPECT_TRUE(std::isfinite(p.y));
    }

    // None of these may crash, hang or break the context for what follows.
    VantrelTest::Canvas canvas(50, 50);
    for (Rect r : {Rect(), Rect(0, 0, nan, 5), Rect(-1e300, -1e300, 1e300, 1e300), Rect(-1e15, 0, 1e15, 1),
                   Rect(5, 5, -5, -5)}) {
        for (double sides : {3.0, 8.0, 0.5, 1e9}) {
            RegularPolygonShape poly(kFill, "gradient", Point(0, 0), kInk, 3, "dot", sides, kPi / 2, 1e15, r);
            poly.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
            poly.boundingRect();
        }
        StarShape star(kFill, "gradient", Point(nan, 0), kInk, 1e300, "dashdot", nan, 5, r);
        star.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        star.boundingRect();
        RectangleShape rect(kFill, "solid", Point(0, 1), kInk, 2, "dash", 1e300, r);
        rect.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        rect.pathAsPolygons(Rect());
    }
    canvas.context.Fill(kInk, Polygon(Rect(0, 0, 50, 50)));
    EXPECT_EQ(canvas.at(25, 25), 0xFF000000u);
}

TEST(Presets, ThemeTable) {
    Rect r(-40, -30, 40, 30);
    for (int f = 0; f < 5; ++f) {
        for (int theme = -1; theme <= 5; ++theme) {
            std::unique_ptr<BaseCallout> shape(
                kFactories[f](Presets::Theme(theme), kFill, "solid", Point(0, 1), kInk, 1, "solid", r));
            bool known = theme == 0 || (theme >= 2 && theme <= 4);
            EXPECT_EQ(shape != nullptr, known || f == 0) << kFactoryNames[f] << " theme " << theme;
        }
    }
    std::unique_ptr<BaseCallout> oval(Presets::createShapeOval(Presets::ThemeModern, kFill, kInk, 2, "dash", r));
    EXPECT_NE(dynamic_cast<OvalShape *>(oval.get()), nullptr);
    std::unique_ptr<BaseCallout> rect(Presets::createShapeRectangle(Presets::ThemeBasic, kFill, kInk, 2, "dash", r));
    EXPECT_NE(dynamic_cast<RectangleShape *>(rect.get()), nullptr);
    EXPECT_GT(firstOutline(*rect).points.size(), 4u); // Basic rounds by 8
    std::unique_ptr<BaseCallout> bold(Presets::createShapeRectangle(Presets::ThemeBold, kFill, kInk, 2, "dash", r));
    EXPECT_EQ(firstOutline(*bold).points.size(), 4u);
    // Bold stars are fatter: inner ratio 0.7.
    std::unique_ptr<BaseCallout> star(
        Presets::createShapeStar(Presets::ThemeBold, kFill, kInk, 0, "solid", Rect(-50, -50, 50, 50)));
    EXPECT_NEAR(firstOutline(*star).points[1].Length(), 35, 1e-9);
    // The short form fills solid with direction (0, 0): a gradient never appears.
    std::unique_ptr<BaseCallout> tri(
        Presets::createShapeTriangle(Presets::ThemeUrban, kFill, kInk, 0, "solid", Rect(-50, -50, 50, 50)));
    VantrelTest::Canvas canvas(100, 100);
    canvas.context.Translate(Point(50, 50));
    tri->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    EXPECT_EQ(canvas.at(50, 20), canvas.at(50, 95));
}

TEST(CustomPath, TextParsing) {
    auto points = CustomPath::parsePoints;
    std::vector<Point> two{Point(0, 0), Point(1, 1)};
    EXPECT_EQ(points("0,0 1,1"), two);
    EXPECT_EQ(points("0 0 1 1"), two);
    EXPECT_EQ(points("0, 0,, 1 1"), two);
    EXPECT_EQ(points("1 2 3"), (std::vector<Point>{Point(1, 2)}));
    EXPECT_TRUE(points("").empty());
    EXPECT_TRUE(points(" ,, ").empty());
    EXPECT_EQ(points("x 2 1e1 -.5"), (std::vector<Point>{Point(0, 2), Point(10, -0.5)}));
    EXPECT_EQ(points("1\t2 3"), (std::vector<Point>{Point(1, 3)})); // a tab does not separate
    EXPECT_EQ(points("1\n2,3"), (std::vector<Point>{Point(1, 3)}));
}

TEST(CustomPath, DrawsScaledAndKeepsItsBounds) {
    CustomPath path("-0.5,-0.5 0.5,0.5", Point(100, 50), Color(1, 0, 0), 2, "solid");
    EXPECT_EQ(path.trackingRect(), Rect(-51.5, -26.5, 51.5, 26.5));
    Rect bounds = path.boundingRect();
    EXPECT_NEAR(bounds.Left(), -51, 0.01);
    EXPECT_NEAR(bounds.Bottom(), 26, 0.01);
    expectBoundsMatchInk(path, "custom path");
    EXPECT_TRUE(path.pathAsPolygons(Rect()).polygons.empty()); // an open stroke has no outline

    path.setPath({Point(0.5, -0.5), Point(0.1, 0)});
    EXPECT_EQ(path.boundingRect(), bounds); // measured once
    VantrelTest::Canvas canvas(120, 80);
    canvas.context.Translate(Point(60, 40));
    path.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    // (0.5, -0.5) draws at (50, -25): the line runs from (110, 15) to (70, 40) on the canvas.
    EXPECT_EQ(canvas.at(90, 27) >> 24, 255u);
    EXPECT_EQ(canvas.at(10, 15), 0u);

    CustomPath empty("", Point(10, 10), Color(1, 0, 0), -5, "bogus");
    EXPECT_EQ(empty.boundingRect(), Rect());
    CustomPath hostile("1e308 1e308 -1e308 nan inf 0 0 0", Point(1e10, 1e10), Color(1, 0, 0), 1e300, "dot");
    hostile.boundingRect();
    hostile.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}
