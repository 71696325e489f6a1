#include "support/PixelProbe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace Vantrel;
using VantrelTest::Canvas;

namespace {

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

TEST(MakeGradientPattern, SpansTheProjectionOfTheRect) {
    GradientPattern g = makeGradientPattern(Color(1, 1, 1, 0.5f), Rect(10, 10, 30, 20), Point(1, 0));
    EXPECT_EQ(g.start, Point(10, 0));
    EXPECT_EQ(g.end, Point(30, 0));
    ASSERT_EQ(g.stops.size(), 3u);
    EXPECT_EQ(g.stops[0].offset, 0.0);
    EXPECT_EQ(g.stops[0].color, Color(1, 1, 1, 0.5f));
    EXPECT_EQ(g.stops[1].color, Color(1, 1, 1, 0.5f));
    EXPECT_EQ(g.stops[2].offset, 1.0);
    EXPECT_EQ(g.stops[2].color, Color(0.65f, 0.65f, 0.65f, 0.5f));
    GradientPattern black = makeGradientPattern(Color(0, 0, 0), Rect(0, 0, 1, 1), Point(0, 1));
    EXPECT_EQ(black.stops[0].color, Color(0.35f, 0.35f, 0.35f));

    GradientPattern diagonal = makeGradientPattern(Color(0, 0, 0), Rect(0, 0, 10, 10), Point(-3, -3));
    EXPECT_NEAR(diagonal.start.x, 10, 1e-12); // the largest projection is at the far corner
    EXPECT_NEAR(diagonal.end.x, 0, 1e-12);

    // Without a direction the gradient runs top to bottom.
    for (Point none : {Point(0, 0), Point(std::nan(""), 1)}) {
        GradientPattern g0 = makeGradientPattern(Color(0, 0, 0), Rect(0, 5, 10, 25), none);
        EXPECT_EQ(g0.start, Point(0, 5));
        EXPECT_EQ(g0.end, Point(0, 25));
    }
}

TEST(OvalShape, ClonesAreIndependentCopies) {
    std::unique_ptr<OvalShape> oval(
        new OvalShape(kBlue, "gradient", Point(1, 0), kBlack, 3, "dash", Rect(-10, -10, 10, 10)));
    std::unique_ptr<OvalShape> copy(oval->clone());
    oval.reset();
    EXPECT_EQ(copy->trackingRect(), Rect(-11.5, -11.5, 11.5, 11.5));
    Canvas canvas(30, 30);
    draw(*copy, canvas, Point(15, 15));
    EXPECT_EQ(canvas.at(15, 15) >> 24, 255u);

    // Drawing a shape with a rect without area or with non-finite corners does nothing harmful.
    Canvas after(30, 30);
    for (Rect r : {Rect(0, 0, 0, 10), Rect(0, 0, std::nan(""), 5), Rect(-1e300, -1e300, 1e300, 1e300)}) {
        OvalShape odd(kBlue, "gradient", Point(0, 0), kBlack, 2, "dot", r);
        draw(odd, after, Point(0, 0));
    }
    draw(*copy, after, Point(15, 15));
    EXPECT_EQ(after.at(15, 15) >> 24, 255u);
}
