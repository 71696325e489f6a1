// The eight text arrows, through the factories and directly, and the tile
// grid of the Urban reveal.
#include "support/CalloutChecks.h"
#include "support/LoggingContext.h"

#include "callouts/arrows/TextArrowGeometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>

using namespace Vantrel;
using VantrelTest::expectBoundsMatchInk;

namespace {

Rect const kBox(-50, -10, 50, 10);
using VantrelTest::kFill;
using VantrelTest::kInk;

using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                 double, std::string const &, Rect const &, double, TextCalloutProperties const &,
                                 TextAttributeList const &);
struct Arrow {
    char const *name;
    Factory factory;
    Presets::Theme theme;
};
Arrow const kAll[] = {
    {"AbstractTextArrow", Presets::createTextArrow, Presets::ThemeAbstract},
    {"AbstractTextArrowTwo", Presets::createTextArrowTwo, Presets::ThemeAbstract},
    {"BasicTextArrow", Presets::createTextArrow, Presets::ThemeBasic},
    {"BasicTextArrowTwo", Presets::createTextArrowTwo, Presets::ThemeBasic},
    {"BoldTextArrow", Presets::createTextArrow, Presets::ThemeBold},
    {"BoldTextArrowTwo", Presets::createTextArrowTwo, Presets::ThemeBold},
    {"UrbanTextArrow", Presets::createTextArrow, Presets::ThemeUrban},
    {"UrbanTextArrowTwo", Presets::createTextArrowTwo, Presets::ThemeUrban},
};

std::unique_ptr<BaseCallout> make(Arrow const &a, double strokeWidth = 0, Rect box = kBox, double progress = 1.0,
                                  std::string const &text = "") {
    VantrelTest::CalloutText const t = VantrelTest::calloutText(text, box, 12);
    return std::unique_ptr<BaseCallout>(a.factory(a.theme, kFill, "solid", Point(0, 1), kInk, strokeWidth, "solid", box,
                                                  progress, t.properties, t.attributes));
}

using VantrelTest::drawingCalls;

using VantrelTest::outlineBounds;

} // namespace

TEST(TextArrows, FactoriesPassTheProgressToUrbanOnly) {
    std::unique_ptr<BaseCallout> made[8];
    for (int i = 0; i < 8; ++i)
        made[i] = make(kAll[i], 0, kBox, 1.0, "go");
    for (int i = 0; i < 8; ++i) {
        SCOPED_TRACE(kAll[i].name);
        // Only the Urban arrows draw differently at another progress.
        bool const urban = kAll[i].theme == Presets::ThemeUrban;
        EXPECT_EQ(drawingCalls(*make(kAll[i], 0, kBox, 0.3, "go")) != drawingCalls(*made[i]), urban && i == 6);
        EXPECT_EQ(made[i]->pathAsPolygons(Rect()).polygons.back()->points ==
                      make(kAll[i], 0, kBox, 0.05)->pathAsPolygons(Rect()).polygons.back()->points,
                  !urban);
    }
}

TEST(TextArrows, WhatEachDesignPaints) {
    struct Row {
        size_t arrow;
        double width;
        BaseCallout::DrawOptions options;
        std::vector<std::string> calls;
    } const rows[] = {
        // The Abstract pair stroke also at width 0; the others do not.
        {0, 0, BaseCallout::DrawOptionAll, {"fill colour n=1", "stroke solid n=1", "text"}},
        {1, 0, BaseCallout::DrawOptionAll, {"fill colour n=1", "stroke solid n=1", "text"}},
        {4, 0, BaseCallout::DrawOptionAll, {"fill colour n=1", "text"}},
        {5, 2, BaseCallout::DrawOptionAll, {"fill colour n=1", "stroke solid n=1", "text"}},
        {7, 0, BaseCallout::DrawOptionAll, {"fill colour n=1", "text"}},
        // The Basic pair draw the text alone without the body bit.
        {2, 2, BaseCallout::DrawOptionText, {"text"}},
        {3, 2, BaseCallout::DrawOptionText, {"text"}},
        {2, 2, BaseCallout::DrawOptionAll, {"fill colour n=1", "stroke solid n=1", "text"}},
        // The Urban arrows skip the text without bit 1.
        {7, 2, BaseCallout::DrawOptionBody, {"fill colour n=1", "stroke solid n=1"}},
    };
    for (Row const &row : rows) {
        SCOPED_TRACE(std::string(kAll[row.arrow].name) + " width " + std::to_string(row.width));
        EXPECT_EQ(drawingCalls(*make(kAll[row.arrow], row.width, kBox, 1.0, "go"), row.options), row.calls);
    }
    // Empty text is not drawn.
    EXPECT_EQ(drawingCalls(*make(kAll[4])), std::vector<std::string>{"fill colour n=1"});
    // The Basic pair restore the context when a drawing call throws.
    for (size_t i : {2, 3}) {
        VantrelTest::ThrowingContext context;
        EXPECT_THROW(make(kAll[i], 2)->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr),
                     std::runtime_error);
        EXPECT_EQ(context.saves, 1);
        EXPECT_EQ(context.restores, 1);
    }
}

TEST(TextArrows, OutlinesFollowTheirConstructions) {
    // The Bold points exactly.
    EXPECT_EQ(make(kAll[4])->pathAsPolygons(Rect()).polygons[0]->points,
              (std::vector<Point>{Point(-50 - 44 * 0.33, -22), Point(50, -22), Point(50 + 44 * 0.33, 0), Point(50, 22),
                                  Point(-50 - 44 * 0.33, 22), Point(-50, 0)}));
    double const w = 124;
    EXPECT_EQ(make(kAll[5])->pathAsPolygons(Rect()).polygons[0]->points,
              (std::vector<Point>{Point(-62, -22), Point(62, -22), Point(62, -44), Point(-62 + 1.37 * w, 0),
                                  Point(62, 44), Point(62, 22), Point(-62, 22)}));

    // The Basic pair: the body is the arrow, the tail query nothing.
    for (size_t i : {2, 3}) {
        SCOPED_TRACE(kAll[i].name);
        std::unique_ptr<BaseCallout> basic = make(kAll[i]);
        EXPECT_EQ(basic->bodyPathAsPolygons(Rect()).polygons.size(), 1u);
        EXPECT_TRUE(basic->tailPathAsPolygons(-1, Rect()).polygons.empty());
    }
    // A narrow reference shrinks the arrow about its own middle v, its
    // length to the reference's width; a low one shrinks the head's height k.
    Rect const box(0, -10, 100, 10);
    double const W = 112, H = 44, k = H * 1.8461538461538463, q = (k - H) * 0.1875, L = k * 0.75;
    double const total = W - q + L + H * 0.5;
    double const v = 56 + (-W * 0.5 - H * 0.5 + (W * 0.5 - q + L)) * 0.5; // the shaft is not grown on the left
    std::unique_ptr<BaseCallout> basic = make(kAll[2], 0, box);
    Rect const whole = outlineBounds(basic->bodyPathAsPolygons(Rect()));
    Rect const narrow = outlineBounds(basic->bodyPathAsPolygons(Rect(0, 0, 90, 0)));
    Rect const low = outlineBounds(basic->bodyPathAsPolygons(Rect(0, 0, 0, 50)));
    double const sx = 90 / total;
    EXPECT_NEAR(narrow.Center().x - v, (whole.Center().x - v) * sx, 1e-6);
    EXPECT_NEAR(narrow.Width(), whole.Width() * sx, 1e-6);
    EXPECT_NEAR(low.Height(), whole.Height() * 50 / k, 1e-6);
    EXPECT_EQ(outlineBounds(basic->bodyPathAsPolygons(Rect(0, 0, total, k))), whole); // both limits strict
}

TEST(TextArrows, TheRevealGridAtItsLandmarks) {
    Rect const shaft = shaftAroundText(kBox); // 100 by 44: tiles of 22, 7 columns
    RevealGrid const start = revealGrid(shaft, 0.0);
    ASSERT_EQ(start.cols, 7);
    EXPECT_EQ(start.n, 14);
    for (int i = 0; i < start.n; ++i)
        EXPECT_EQ(start.alpha(i), 0.0) << i;
    EXPECT_EQ(start.first, 0);
    EXPECT_EQ(start.cut, start.tile(0).Right());
    EXPECT_EQ(start.tile(0).Right(), shaft.Right()); // the first column is cut at the shaft's end
    EXPECT_EQ(start.tile(13).Left(), shaft.Left() - 2 * 22);

    RevealGrid const end = revealGrid(shaft, 1.0);
    EXPECT_EQ(end.first, end.n - 4);
    EXPECT_EQ(end.cut, shaft.Left());
    EXPECT_EQ(end.alpha(end.n - 4), double(0.8f));
    EXPECT_EQ(end.alpha(end.n - 1), 0.0);

    RevealGrid const oneTile = revealGrid(shaftAroundText(Rect(0, -10, 20, 10)), 1.0);
    EXPECT_EQ(oneTile.cols, 3);
    EXPECT_EQ(oneTile.n, 6);
    EXPECT_EQ(oneTile.first, 2);

    // The head: wings on the centre line at 0, open from 0.125.
    for (double progress : {0.0, 0.125}) {
        Polygons const p = make(kAll[7], 0, kBox, progress)->pathAsPolygons(Rect());
        auto const &points = p.polygons.back()->points;
        ASSERT_EQ(points.size(), 7u);
        EXPECT_EQ(points[2].y, progress == 0 ? 0.0 : -44 * 1.8 * 0.5);
        EXPECT_EQ(points[4].y, progress == 0 ? 0.0 : 44 * 1.8 * 0.5);
    }

    // A long, low box gets wider tiles, at most kMaxRevealColumns of them.
    RevealGrid const longLow = revealGrid(shaftAroundText(Rect(0, -10, 1e9, 10)), 0.5);
    EXPECT_EQ(longLow.cols, kMaxRevealColumns);
    EXPECT_NEAR(longLow.width * (kMaxRevealColumns - 2), 1e9, 1.0);
    EXPECT_EQ(longLow.height, 22);
    // No grid without height: the body is solid.
    RevealGrid const flat = revealGrid(shaftAroundText(Rect(0, 12, 100, -12)), 0.5);
    EXPECT_EQ(flat.n, 0);
    EXPECT_EQ(flat.cut, 0);
}

TEST(TextArrows, UrbanTilesAreFilledAtTheirStrength) {
    std::unique_ptr<BaseCallout> arrow = make(kAll[6], 0, kBox, 0.4);
    VantrelTest::Canvas canvas(400, 200);
    canvas.context.Translate(Point(200, 100));
    arrow->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    RevealGrid const grid = revealGrid(shaftAroundText(kBox), 0.4);
    int probed = 0;
    for (int i = 2 * (grid.first / 2); i < grid.n; ++i) {
        Rect const tile = grid.tile(i);
        if (tile.Right() > grid.cut)
            continue; // under the solid body
        Point const c = tile.Center() + Point(200, 100);
        double const expected = 255 * double(float(grid.alpha(i)));
        EXPECT_NEAR(double(canvas.at(int(c.x), int(c.y)) >> 24), expected, 1.0) << "tile " << i;
        ++probed;
    }
    EXPECT_GE(probed, 4);
}

TEST(TextArrows, BoundsMatchTheInkOfAllEight) {
    for (Arrow const &a : kAll)
        for (Rect box : {kBox, Rect(20, 10, 90, 40)})
            for (double width : {0.0, 3.0}) {
                std::unique_ptr<BaseCallout> arrow = make(a, width, box);
                expectBoundsMatchInk(*arrow, a.name, 500, 300);
                // The Basic pair track about the box's centre, the others by their bounds.
                if (a.theme == Presets::ThemeBasic)
                    EXPECT_EQ(arrow->trackingRect().Center(), box.Center()) << a.name;
                else
                    EXPECT_EQ(arrow->trackingRect(), arrow->boundingRect()) << a.name;
            }
    // The Urban bounds are those of the finished arrow at any progress, and
    // measured at each call.
    for (size_t i : {6, 7}) {
        Rect const finished = make(kAll[i], 2)->boundingRect();
        for (double progress : {0.0, 0.3, -5.0, std::numeric_limits<double>::quiet_NaN()})
            EXPECT_EQ(make(kAll[i], 2, kBox, progress)->boundingRect(), finished) << kAll[i].name;
        std::unique_ptr<BaseCallout> arrow = make(kAll[i], 2);
        auto *text = dynamic_cast<TextCallout *>(arrow.get());
        TextCalloutProperties far;
        far.text = "far";
        far.textRect = Rect(300, 300, 340, 320);
        text->setTextCalloutProperties(far);
        EXPECT_EQ(arrow->boundingRect().Right(), 340);
    }
}

TEST(TextArrows, HostileInputStaysBounded) {
    double const nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    VantrelTest::Canvas canvas(64, 64);
    for (Arrow const &a : kAll)
        for (Rect box : {Rect(), Rect(10, 10, -10, -10), Rect(0, -10, 1e9, 10), Rect(0, 0, nan, 5)})
            for (double progress : {nan, inf, -inf, -5.0, 7.0}) {
                SCOPED_TRACE(a.name);
                std::unique_ptr<BaseCallout> arrow = make(a, 2, box, progress, "text");
                arrow->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(0, 0, 10, 10), -1, nullptr);
                arrow->pathAsPolygons(Rect());
                std::unique_ptr<TextCallout> copy(dynamic_cast<TextCallout &>(*arrow).clone());
                copy->boundingRect();
            }
    // NaN draws the finished arrow.
    for (size_t i : {6, 7})
        EXPECT_EQ(make(kAll[i], 2, kBox, nan)->pathAsPolygons(Rect()).polygons.size(),
                  make(kAll[i], 2, kBox, 1.0)->pathAsPolygons(Rect()).polygons.size());
    canvas.context.Clear(Color());
    canvas.context.Fill(kInk, Polygon(Rect(0, 0, 64, 64)));
    EXPECT_EQ(canvas.at(32, 32) >> 24, 255u);
}
