#include "support/PixelProbe.h"
#include "values/Pi.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

using namespace Vantrel;
using VantrelTest::Canvas;
using VantrelTest::pixel;

namespace {

Color const kRed(1, 0, 0);
uint32_t const kOpaqueRed = 0xFFFF0000u;

std::vector<double> dashOf(DrawingContext &c) {
    cairo_t *cr = c.Get();
    std::vector<double> dashes(cairo_get_dash_count(cr));
    cairo_get_dash(cr, dashes.data(), nullptr);
    return dashes;
}

// Every byte within 20 of the other's.
bool near(uint32_t a, uint32_t b) {
    for (int shift = 0; shift < 32; shift += 8)
        if (std::abs(int((a >> shift) & 0xFF) - int((b >> shift) & 0xFF)) > 20)
            return false;
    return true;
}

void strokeLine(DrawingContext &c, double width, std::string const &style) {
    c.StartPath();
    c.MoveToPointInCurrentPath(Point(0, 10));
    c.AddLineToCurrentPath(Point(100, 10));
    c.StrokeCurrentPath(Color(0, 0, 0), width, style, LineCapButt, LineJoinMiter, false);
}

} // namespace

TEST(CairoContext, StrokeStylesSetTheirDashAndUnknownWordsKeepIt) {
    Canvas canvas(100, 20);
    DrawingContext &c = canvas.context;
    strokeLine(c, 4, "dashdot");
    EXPECT_EQ(dashOf(c), (std::vector<double>{12, 8, 1, 8}));
    strokeLine(c, 4, "DASH"); // wrong case: previous dash stays
    EXPECT_EQ(dashOf(c), (std::vector<double>{12, 8, 1, 8}));
    strokeLine(c, 4, "wavy");
    EXPECT_EQ(dashOf(c), (std::vector<double>{12, 8, 1, 8}));
    strokeLine(c, 2, "dot");
    EXPECT_EQ(dashOf(c), (std::vector<double>{1, 4}));
    strokeLine(c, 1, "dashdotdot");
    EXPECT_EQ(dashOf(c), (std::vector<double>{3, 2, 1, 2, 1, 2}));
    strokeLine(c, 3, "dash");
    EXPECT_EQ(dashOf(c), (std::vector<double>{9, 6}));
    // DrawLine and DrawRectangle inherit the dash the last styled stroke left.
    c.DrawLine(Point(0, 0), Point(10, 0), kRed, 1, false);
    c.DrawRectangle(kRed, Rect(0, 0, 5, 5));
    EXPECT_EQ(dashOf(c), (std::vector<double>{9, 6}));
    strokeLine(c, 3, "");
    EXPECT_TRUE(dashOf(c).empty());
    strokeLine(c, 3, "dash");
    strokeLine(c, 3, "solid");
    EXPECT_TRUE(dashOf(c).empty());
    // A dash at width 0 would be all zeros; the context must keep drawing.
    strokeLine(c, 0, "dash");
    EXPECT_EQ(cairo_status(c.Get()), CAIRO_STATUS_SUCCESS);
}

TEST(CairoContext, DashPatternsShowInPixels) {
    Canvas canvas(100, 20);
    strokeLine(canvas.context, 4, "dash"); // 12 on, 8 off, from x = 0
    for (int x : {2, 10, 22, 30, 45})
        EXPECT_EQ(canvas.at(x, 10) >> 24, 255u) << x;
    for (int x : {14, 18, 34, 38})
        EXPECT_EQ(canvas.at(x, 10), 0u) << x;
    EXPECT_EQ(canvas.at(5, 7), 0u); // 4 wide: y 8 to 12
    EXPECT_EQ(canvas.at(5, 8) >> 24, 255u);

    Canvas dots(100, 20);
    strokeLine(dots.context, 4, "dot"); // 1 on, 8 off, butt caps
    EXPECT_EQ(dots.at(0, 10) >> 24, 255u);
    EXPECT_EQ(dots.at(4, 10), 0u);
    EXPECT_EQ(dots.at(9, 10) >> 24, 255u);
}

TEST(CairoContext, PolygonFillsSkipShortPolygonsAndNeverMakeHoles) {
    Canvas canvas(60, 60);
    DrawingContext &c = canvas.context;
    c.Fill(kRed, Polygon({Point(0, 0), Point(50, 50)}));
    EXPECT_EQ(VantrelTest::inkBounds(canvas.bitmap), Rect());

    Polygons mixed;
    mixed.Add(Polygon({Point(0, 0), Point(50, 50)}));
    mixed.Add(Polygon({Point(0, 0), Point(40, 0), Point(0, 40)}));
    c.Fill(kRed, mixed);
    EXPECT_EQ(canvas.at(5, 5), kOpaqueRed);
    EXPECT_EQ(canvas.at(35, 35), 0u);

    // An inner square, either way round, is filled with the outer one.
    for (bool reverseInner : {false, true}) {
        for (bool reverseOuter : {false, true}) {
            Canvas nested(60, 60);
            Polygon outer(Rect(10, 10, 50, 50)), inner(Rect(20, 20, 40, 40));
            Polygons both;
            both.Add(reverseOuter ? outer.Reversed() : outer);
            both.Add(reverseInner ? inner.Reversed() : inner);
            nested.context.Fill(kRed, both);
            EXPECT_EQ(nested.at(30, 30), kOpaqueRed);
            EXPECT_EQ(nested.at(15, 15), kOpaqueRed);
            EXPECT_EQ(nested.at(55, 55), 0u);
        }
    }
}

TEST(CairoContext, FillsAndStrokesOfNothingLeaveThePathAlone) {
    Canvas canvas(20, 20);
    DrawingContext &c = canvas.context;
    c.StartPath();
    EXPECT_EQ(c.CurrentPointInPath(), Point(0, 0));
    c.MoveToPointInCurrentPath(Point(3, 4));
    c.Fill(makeGradientPattern(kRed, Rect(0, 0, 10, 10), Point(0, 1)), Polygons());
    c.Fill(kRed, Polygons());
    c.Stroke(kRed, 2, "solid", Polygons());
    c.Fill(kRed, Polygon({Point(1, 1)}));
    EXPECT_EQ(c.CurrentPointInPath(), Point(3, 4));
    c.AddLineToCurrentPath(Point(7, 4));
    EXPECT_EQ(c.CurrentPointInPath(), Point(7, 4));
}

TEST(CairoContext, StrokedPolygonsUseTheWideMiterLimit) {
    // A 3 degree corner: its miter reaches 1/sin(1.5 deg) = 38 half-widths out,
    // far beyond cairo's default limit of 10.
    Canvas canvas(200, 60);
    double const half = 3.0 * kPi / 180.0 / 2.0;
    Point tip(40, 30.5);
    Polygon sharp({Point(150, 30.5 - 110 * std::tan(half)), tip, Point(150, 30.5 + 110 * std::tan(half))});
    canvas.context.Stroke(kRed, 2, "solid", sharp);
    // The miter reaches x = 40 - 1/sin(1.5 deg), about 1.8; a bevel would stop near 40.
    EXPECT_GT(canvas.at(25, 30) >> 24, 200u);
    EXPECT_GT(canvas.at(8, 30) >> 24, 0u);
    EXPECT_EQ(canvas.at(0, 30), 0u);
}

TEST(CairoContext, EllipsesArcsAndFlattening) {
    Canvas canvas(100, 100);
    DrawingContext &c = canvas.context;
    c.FillEllipse(kRed, Rect(20, 40, 80, 60));
    EXPECT_EQ(canvas.at(75, 50), kOpaqueRed);
    EXPECT_EQ(canvas.at(50, 58), kOpaqueRed);
    EXPECT_EQ(canvas.at(23, 42), 0u); // corner of the rect, outside the ellipse

    // A rotated ellipse through the axis form of an arc.
    Canvas rotated(100, 100);
    DrawingContext &r = rotated.context;
    r.StartPath();
    r.AddArcToCurrentPath(Point(50, 50), Point(30, 30), Point(-5, 5), 0, 2 * kPi);
    r.FillCurrentPath(kRed);
    EXPECT_EQ(rotated.at(75, 75), kOpaqueRed);
    EXPECT_EQ(rotated.at(75, 25), 0u);

    // Flattening gives every point of every subpath and keeps the path.
    r.StartPath();
    r.MoveToPointInCurrentPath(Point(0, 0));
    r.AddLineToCurrentPath(Point(10, 0));
    r.AddLineToCurrentPath(Point(10, 5));
    r.MoveToPointInCurrentPath(Point(20, 20));
    r.AddLineToCurrentPath(Point(30, 20));
    Polygon flat = r.FlattenedPath();
    EXPECT_EQ(flat.points, (std::vector<Point>{Point(0, 0), Point(10, 0), Point(10, 5), Point(20, 20), Point(30, 20)}));
    EXPECT_EQ(r.CurrentPointInPath(), Point(30, 20));
    r.StartPath();
    r.AddArcToCurrentPath(Point(0, 0), 10, 10, 0, kPi);
    Polygon arc = r.FlattenedPath();
    ASSERT_GT(arc.points.size(), 4u);
    EXPECT_NEAR(arc.points.front().x, 10, 1e-9);
    EXPECT_NEAR(arc.points.back().x, -10, 1e-9);
    for (Point const &p : arc.points)
        EXPECT_NEAR(p.Length(), 10, 0.1);
}

TEST(CairoContext, RectanglesAndLines) {
    Canvas canvas(60, 60);
    DrawingContext &c = canvas.context;
    c.SetLineSettings(kRed, 9, LineJoinRound, LineCapRound);
    c.DrawRectangle(kRed, Rect(10.5, 10.5, 50.5, 50.5));
    EXPECT_EQ(canvas.at(10, 30), kOpaqueRed);
    EXPECT_EQ(canvas.at(9, 30), 0u); // the line is 1 wide whatever was set before
    EXPECT_EQ(canvas.at(11, 30), 0u);
    EXPECT_EQ(canvas.at(30, 30), 0u); // no fill

    Canvas lines(60, 40);
    lines.context.DrawLine(Point(10, 10), Point(50, 10), kRed, 6, false);
    lines.context.DrawLine(Point(10, 30), Point(50, 30), kRed, 6, true);
    EXPECT_EQ(lines.at(8, 10), 0u); // butt: nothing before the start
    EXPECT_EQ(lines.at(8, 30), kOpaqueRed);
    EXPECT_EQ(lines.at(11, 10), kOpaqueRed);
}

TEST(CairoContext, ClearReplacesPixelsInsideTheClip) {
    Canvas canvas(40, 40);
    DrawingContext &c = canvas.context;
    c.Clear(kRed);
    c.Save();
    c.SetClip(Rect(10, 10, 30, 30));
    c.Clear(Color(0, 1, 0, 0)); // alpha 0 is not a no-op
    c.Restore();
    EXPECT_EQ(canvas.at(20, 20), 0u);
    EXPECT_EQ(canvas.at(5, 5), kOpaqueRed);
    c.Clear(Color(0, 0, 1, 0.5f));
    EXPECT_EQ(canvas.at(20, 20), 0x80000080u);
}

TEST(CairoContext, GradientFillsFollowTheirLine) {
    Canvas canvas(50, 100);
    GradientPattern g = makeGradientPattern(Color(0, 0, 1), Rect(0, 0, 50, 100), Point(0, 1));
    canvas.context.Fill(g, Polygon(Rect(0, 0, 50, 100)));
    uint32_t top = canvas.at(25, 1), middle = canvas.at(25, 49), bottom = canvas.at(25, 98);
    EXPECT_EQ(middle & 0xFF, 255u);
    EXPECT_GT((top >> 16) & 0xFF, 80u);   // light: red 0.35
    EXPECT_LT((bottom >> 16) & 0xFF, 5u); // dark: red 0
    EXPECT_LT(bottom & 0xFF, 175u);       // dark: blue 0.65
    EXPECT_GT(bottom & 0xFF, 155u);
}

TEST(CairoContext, DrawBitmapPlacesAndScales) {
    Bitmap source(2, 2);
    uint32_t const colours[4] = {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0xFFFFFFFFu};
    for (int i = 0; i < 4; ++i)
        std::memcpy(source.bufAt(i % 2, i / 2), &colours[i], 4);
    Canvas canvas(80, 80);
    canvas.context.DrawBitmap(source, Rect(20, 20, 60, 60), 1.0);
    // Each source pixel's centre lands 10 pixels in; cairo filters between them.
    EXPECT_TRUE(near(canvas.at(30, 30), colours[0]));
    EXPECT_TRUE(near(canvas.at(49, 30), colours[1]));
    EXPECT_TRUE(near(canvas.at(30, 49), colours[2]));
    EXPECT_TRUE(near(canvas.at(49, 49), colours[3]));
    // Filtering spreads up to one source pixel (20 pixels here) beyond the target, no further.
    EXPECT_EQ(canvas.at(0, 0), 0u);
    EXPECT_EQ(canvas.at(79, 40), 0u);

    Canvas shifted(10, 10);
    shifted.context.DrawBitmap(source, Point(3, 4), 0.5);
    EXPECT_EQ(shifted.at(3, 4), 0x80800000u);
    EXPECT_EQ(shifted.at(2, 4), 0u);

    // Nothing to draw, or nowhere to draw it: no effect, and drawing goes on.
    Bitmap empty(0, 0);
    shifted.context.DrawBitmap(empty, Rect(0, 0, 10, 10), 1.0);
    shifted.context.DrawBitmap(source, Rect(0, 0, 0, 10), 1.0);
    shifted.context.DrawBitmap(source, Rect(0, 0, std::nan(""), 10), 1.0);
    EXPECT_EQ(cairo_status(shifted.context.Get()), CAIRO_STATUS_SUCCESS);
}

TEST(CairoContext, BlendWithArithmeticAndSizes) {
    Canvas dst(4, 4), src(4, 4);
    dst.context.Clear(Color(0, 0, 1));
    // (100, 100, 100, 255) over anything at alpha 0.5 gives 50 in each byte.
    uint32_t grey = 0xFF646464u;
    std::memcpy(src.bitmap.bufAt(1, 1), &grey, 4);
    uint32_t half = 0x80400000u; // premultiplied red at half alpha
    std::memcpy(src.bitmap.bufAt(2, 2), &half, 4);
    dst.context.BlendWith(&src.context, 0.5);
    EXPECT_EQ(dst.at(1, 1), 0x80323232u); // alpha: 255 * 0.5 rounds to 128
    EXPECT_EQ(dst.at(0, 0), 0xFF0000FFu); // transparent source pixel: unchanged
    // k = 1 - 128/255: blue 255 * k = 127.0, alpha 64 + 127.0
    EXPECT_EQ(dst.at(2, 2), 0xBF20007Fu);

    // Other sizes: only the pixels both have take part.
    Canvas small(2, 2), large(8, 8);
    small.context.Clear(kRed);
    large.context.Clear(Color(0, 1, 0));
    Canvas target(4, 4);
    target.context.BlendWith(&small.context, 1.0);
    EXPECT_EQ(target.at(1, 1), kOpaqueRed);
    EXPECT_EQ(target.at(3, 3), 0u);
    target.context.BlendWith(&large.context, 1.0);
    EXPECT_EQ(target.at(3, 3), 0xFF00FF00u);
    large.context.BlendWith(&small.context, 1.0);
    EXPECT_EQ(large.at(7, 7), 0xFF00FF00u);

    // A recording context has no pixels to give or take.
    CrossPlatformDrawingContext recording(nullptr);
    target.context.BlendWith(&recording, 1.0);
    recording.BlendWith(&target.context, 1.0);
    EXPECT_EQ(target.at(3, 3), 0xFF00FF00u);
}

TEST(CairoContext, BlankClonesAndRecordingContexts) {
    Canvas canvas(30, 20);
    canvas.context.Clear(kRed);
    std::unique_ptr<DrawingContext> clone(canvas.context.CreateBlankClone());
    auto *built = dynamic_cast<CrossPlatformDrawingContextWithBuiltInBitmap *>(clone.get());
    ASSERT_NE(built, nullptr);
    EXPECT_EQ(built->builtInBitmap()->size(), PointInt(30, 20));
    EXPECT_EQ(pixel(*built->builtInBitmap(), 29, 19), 0u);
    EXPECT_EQ(canvas.context.InkExtents(), Rect());

    CrossPlatformDrawingContext recording(nullptr);
    recording.Fill(kRed, Polygon(Rect(-10, 5, 20, 15)));
    EXPECT_EQ(recording.InkExtents(), Rect(-10, 5, 20, 15));
    std::unique_ptr<DrawingContext> none(recording.CreateBlankClone());
    ASSERT_NE(none, nullptr);
    none->Fill(kRed, Polygon(Rect(0, 0, 10, 10))); // an empty surface: nothing to do, nothing breaks
    EXPECT_EQ(dynamic_cast<CrossPlatformDrawingContext &>(*none).bitmap()->size(), PointInt(0, 0));
}

TEST(CairoContext, BottomUpBitmapsDrawTheVisualTopFirst) {
    std::vector<uint32_t> buffer(10 * 10, 0);
    Bitmap bottomUp(buffer.data(), 10, -10, 40);
    CrossPlatformDrawingContext c(&bottomUp);
    c.Fill(kRed, Polygon(Rect(0, 0, 10, 2)));
    EXPECT_EQ(buffer[9 * 10 + 5], kOpaqueRed); // visual row 0 is the last row in memory
    EXPECT_EQ(buffer[0], 0u);
    EXPECT_EQ(VantrelTest::pixel(bottomUp, 5, 1), kOpaqueRed);
}

TEST(CairoContext, HostileInputKeepsTheContextDrawing) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    Canvas canvas(40, 40);
    DrawingContext &c = canvas.context;
    c.FillEllipse(kRed, Rect(10, 10, 10, 30)); // no width
    c.StrokeEllipse(kRed, 2, "dash", Rect(10, 10, 30, 10));
    c.Scale(Point(0, 2));
    c.Translate(Point(nan, 1));
    c.Scale(Point(inf, 1));
    c.Fill(Color(nan, 0, 0, 1), Polygon(Rect(0, 0, 1, 1)));
    c.Stroke(kRed, nan, "dash", Polygon(Rect(0, 0, 5, 5)));
    c.Stroke(kRed, -3, "dashdot", Polygon(Rect(0, 0, 5, 5)));
    c.Stroke(kRed, 1e300, "dot", Polygon(Rect(0, 0, 5, 5)));
    c.StartPath();
    c.AddArcToCurrentPath(Point(20, 20), Point(10, 0), Point(20, 0), 0, 1e9); // collapsed, many turns
    c.AddArcToCurrentPath(Point(nan, 20), 5, 5, 0, 1);
    c.AddArcToCurrentPath(Point(20, 20), 5, 5, 1e300, -1e300);
    c.StrokeCurrentPath(kRed, 1, "solid", LineCapRound, LineJoinRound, true);
    // Far too many dots for one stroke: drawn continuous, and the dash stays in force.
    c.Stroke(kRed, 1, "dot", Polygon({Point(-1e12, 5), Point(1e12, 5), Point(0, 1e12)}));
    c.Stroke(kRed, 1, "dot", Polygon::Circle(Point(0, 0), 3e6));
    EXPECT_EQ(dashOf(c), (std::vector<double>{1, 2}));
    EXPECT_EQ(cairo_status(c.Get()), CAIRO_STATUS_SUCCESS);
    c.Clear(Color());
    // A polygon is drawn as that of its finite vertices.
    c.Fill(kRed, Polygon({Point(0, 0), Point(nan, 5), Point(40, 0), Point(inf, 9), Point(40, 40)}));
    EXPECT_EQ(canvas.at(30, 10), kOpaqueRed);
    EXPECT_EQ(canvas.at(10, 30), 0u);
    c.Fill(kRed, Polygon(Rect(0, 0, 40, 40)));
    EXPECT_EQ(canvas.at(20, 20), kOpaqueRed);

    // A Bitmap without pixels or with a stride cairo cannot use: drawing is a no-op.
    Bitmap none(nullptr, 10, 10, 40);
    std::vector<uint32_t> buffer(100, 0);
    Bitmap badStride(buffer.data(), 10, 10, 7);
    for (Bitmap *b : {&none, &badStride}) {
        CrossPlatformDrawingContext broken(b);
        broken.Fill(kRed, Polygon(Rect(0, 0, 10, 10)));
        broken.FillEllipse(kRed, Rect(0, 0, 10, 10));
        broken.Clear(kRed);
    }
    EXPECT_EQ(buffer[0], 0u);
}
