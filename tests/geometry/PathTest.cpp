#include "support/PixelProbe.h"
#include "values/Pi.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Vantrel;

namespace {

void expectNear(Point a, Point b, double tolerance = 1e-9) {
    EXPECT_NEAR(a.x, b.x, tolerance);
    EXPECT_NEAR(a.y, b.y, tolerance);
}

} // namespace

TEST(Path, RectRunsDownTheLeftSideFirst) {
    CrossPlatformDrawingContext recording(nullptr);
    Path rect(Rect(0, 0, 10, 5));
    EXPECT_EQ(rect.NumSteps(), 4);
    EXPECT_FALSE(rect.IsEmpty());
    Polygon flat = rect.Flattened(&recording);
    EXPECT_EQ(flat.points, (std::vector<Point>{Point(0, 0), Point(0, 5), Point(10, 5), Point(10, 0)}));
    // Flattening leaves the path current; a fill consumes it.
    EXPECT_EQ(recording.CurrentPointInPath(), Point(10, 0));
    rect.Fill(Color(1, 0, 0), &recording);
    EXPECT_EQ(recording.CurrentPointInPath(), Point(0, 0));
    EXPECT_EQ(recording.InkExtents(), Rect(0, 0, 10, 5));

    Path empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_TRUE(empty.Flattened(&recording).points.empty());
}

TEST(Path, StepsReplayInOrderAndArcsJoinWithALine) {
    CrossPlatformDrawingContext recording(nullptr);
    Path p;
    p.AddPoint(Point(0, 0));
    p.AddArc(Point(20, 0), 10, kPi, 2 * kPi); // starts at (10, 0), over the top to (30, 0)
    p.AddCurve(Point(30, 10), Point(0, 10), Point(0, 0));
    EXPECT_EQ(p.NumSteps(), 3);
    Polygon flat = p.Flattened(&recording);
    expectNear(flat.points[0], Point(0, 0));
    expectNear(flat.points[1], Point(10, 0));
    Rect bounds = flat.BoundingRect();
    EXPECT_NEAR(bounds.Top(), -10, 1e-9);
    EXPECT_NEAR(bounds.Right(), 30, 1e-9);
    EXPECT_GT(bounds.Bottom(), 7); // the curve bulges down to 7.5

    Path full;
    full.AddArc(Point(0, 0), 5, 0, 2 * kPi);
    EXPECT_EQ(full.NumSteps(), 1);
    EXPECT_GT(full.Flattened(&recording).points.size(), 8u);

    // Beyond cairo's fixed point (8 million units) a path flattens at scale,
    // into a bounded number of points that lie where they should.
    for (double radius : {1e7, 1e12}) {
        SCOPED_TRACE(radius);
        Path huge;
        huge.AddArc(Point(radius, 0), radius, 0, kPi);
        huge.AddPoint(Point(0, -radius));
        Polygon flat = huge.Flattened(&recording);
        ASSERT_GT(flat.points.size(), 8u);
        EXPECT_LT(flat.points.size(), 10000u);
        for (size_t i = 0; i + 1 < flat.points.size(); ++i)
            EXPECT_NEAR((flat.points[i] - Point(radius, 0)).Length(), radius, radius * 1e-5);
        EXPECT_NEAR(flat.points.back().y, -radius, radius * 1e-8);
    }
}

TEST(Path, TransformCarriesTheLinearPartIntoArcs) {
    CrossPlatformDrawingContext recording(nullptr);
    Path arc;
    arc.AddArc(Point(0, 0), 10, 0, kPi / 2); // (10, 0) to (0, 10)
    Path scaled = arc;
    scaled.Transform(Matrix3x3::Scale(2, 1));
    Polygon s = scaled.Flattened(&recording);
    expectNear(s.points.front(), Point(20, 0));
    expectNear(s.points.back(), Point(0, 10));

    Path moved = arc;
    moved.Transform(Matrix3x3::Translation(Point(5, 7)));
    Polygon m = moved.Flattened(&recording);
    expectNear(m.points.front(), Point(15, 7));
    expectNear(m.points.back(), Point(5, 17));

    // A mirror keeps the angles, so the arc runs the other way on the page.
    Path mirrored = arc;
    mirrored.Transform(Matrix3x3::Scale(1, -1));
    Polygon r = mirrored.Flattened(&recording);
    expectNear(r.points.front(), Point(10, 0));
    expectNear(r.points.back(), Point(0, -10));
    EXPECT_LT(r.points[1].y, 0);

    // A rotation by 90 degrees and a shear.
    Path rotated = arc;
    rotated.Transform(Matrix3x3(0, -1, 0, 1, 0, 0, 0, 0, 1));
    expectNear(rotated.Flattened(&recording).points.front(), Point(0, 10));
    Path sheared = arc;
    sheared.Transform(Matrix3x3(1, 1, 0, 0, 1, 0, 0, 0, 1));
    expectNear(sheared.Flattened(&recording).points.back(), Point(10, 10));

    // The source is untouched by transforms of its copies.
    Polygon original = arc.Flattened(&recording);
    expectNear(original.points.front(), Point(10, 0));
    expectNear(original.points.back(), Point(0, 10));
}

TEST(Path, FillAndStrokeThroughTheContext) {
    VantrelTest::Canvas canvas(40, 40);
    Path square(Rect(5, 5, 35, 35));
    canvas.context.FillPath(Color(1, 0, 0), square);
    EXPECT_EQ(canvas.at(20, 20), 0xFFFF0000u);
    Path line;
    line.AddPoint(Point(0, 2.5));
    line.AddPoint(Point(40, 2.5));
    canvas.context.StrokePath(Color(0, 0, 1), 3, "solid", line, LineCapButt, LineJoinMiter, false);
    EXPECT_EQ(canvas.at(20, 2), 0xFF0000FFu);
    GradientPattern g = makeGradientPattern(Color(0, 1, 0), Rect(0, 0, 40, 40), Point(0, 1));
    canvas.context.FillPath(g, Path(Rect(0, 36, 40, 40)));
    EXPECT_EQ(canvas.at(20, 38) >> 24, 255u);
    // An open stroke closed by the flag reaches back to the start.
    VantrelTest::Canvas closed(40, 40);
    Path corner;
    corner.AddPoint(Point(5, 5));
    corner.AddPoint(Point(35, 5));
    corner.AddPoint(Point(35, 35));
    closed.context.StrokePath(Color(0, 0, 0), 2, "solid", corner, LineCapButt, LineJoinMiter, true);
    EXPECT_GT(closed.at(20, 20) >> 24, 0u); // on the closing diagonal
}
