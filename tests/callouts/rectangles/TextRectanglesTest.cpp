// The four text rectangles.
#include "support/CalloutChecks.h"
#include "support/LoggingContext.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

using namespace Vantrel;
using VantrelTest::expectBoundsMatchInk;

namespace {

Rect const kBox(-60, -10, 60, 10);
using VantrelTest::kFill;
using VantrelTest::kInk;

struct Kind {
    char const *name;
    Presets::Theme theme;
};
Kind const kAll[] = {{"AbstractTextRectangle", Presets::ThemeAbstract},
                     {"BasicTextRectangle", Presets::ThemeBasic},
                     {"BoldTextRectangle", Presets::ThemeBold},
                     {"UrbanTextRectangle", Presets::ThemeUrban}};

std::unique_ptr<TextCallout> make(Kind const &k, double strokeWidth = 0, Rect box = kBox, std::string const &text = "",
                                  Color fill = kFill) {
    VantrelTest::CalloutText const t = VantrelTest::calloutText(text, box, 12);
    return std::unique_ptr<TextCallout>(dynamic_cast<TextCallout *>(Presets::createTextRectangle(
        k.theme, fill, "solid", Point(0, 1), kInk, strokeWidth, "solid", box, t.properties, t.attributes)));
}

using VantrelTest::drawingCalls;

// Exposes the bounds cache.
class ProbedUrban : public UrbanTextRectangle {
public:
    using UrbanTextRectangle::UrbanTextRectangle;
    bool cached() const { return boundingRectCached; }
};

} // namespace

TEST(TextRectangles, WhatEachPaints) {
    using Calls = std::vector<std::string>;
    struct Row {
        size_t kind;
        BaseCallout::DrawOptions options;
        Calls calls;
    } const rows[] = {
        {0, BaseCallout::DrawOptionAll, {"fill colour n=1", "stroke solid n=1", "text"}}, // stroked at width 0
        {1, BaseCallout::DrawOptionAll, {"fill colour n=1", "text"}},
        {2, BaseCallout::DrawOptionAll, {"fill colour n=1", "text"}},
        {2, BaseCallout::DrawOptionBody, {"fill colour n=1"}},
        {3, BaseCallout::DrawOptionAll, {"fill colour n=1", "fill colour n=1", "text"}},
        {3, BaseCallout::DrawOptionBody, {"fill colour n=1", "fill colour n=1", "text"}}, // options not read
        {3, BaseCallout::DrawOptions(0), {"fill colour n=1", "fill colour n=1", "text"}},
    };
    for (Row const &row : rows) {
        SCOPED_TRACE(std::string(kAll[row.kind].name) + " options " + std::to_string(row.options));
        EXPECT_EQ(drawingCalls(*make(kAll[row.kind], 0, kBox, "words"), row.options), row.calls);
    }
    std::unique_ptr<TextCallout> urban = make(kAll[3], 2);
    EXPECT_EQ(urban->bodyPathAsPolygons(Rect()).polygons.size(), urban->pathAsPolygons(Rect()).polygons.size());
    EXPECT_EQ(drawingCalls(*make(kAll[1], 2), BaseCallout::DrawOptionAll),
              (Calls{"fill colour n=1", "stroke solid n=1"}));
}

TEST(TextRectangles, PanelsStandWhereTheBoxSays) {
    // Bold and Urban exactly: Urban grows by a quarter of the width at the
    // sides and divides at five sixths of that, 60 here.
    auto polygons = [](BaseCallout const &c) {
        std::vector<std::vector<Point>> all;
        for (auto const &p : c.pathAsPolygons(Rect()).polygons)
            all.push_back(p->points);
        return all;
    };
    EXPECT_EQ(polygons(*make(kAll[2], 2)), (std::vector<std::vector<Point>>{Polygon(Rect(-72, -22, 72, 22)).points,
                                                                            Polygon(Rect(-72, -22, 72, 22)).points}));
    EXPECT_EQ(polygons(*make(kAll[3], 2)), (std::vector<std::vector<Point>>{Polygon(Rect(-90, -22, 60, 22)).points,
                                                                            Polygon(Rect(60, -22, 90, 22)).points,
                                                                            Polygon(Rect(-90, -22, 90, 22)).points}));
    VantrelTest::Canvas canvas(200, 100);
    canvas.context.Translate(Point(100, 50));
    make(kAll[3])->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    EXPECT_EQ(canvas.at(100 + 59, 50) >> 24, 255u);
    EXPECT_EQ(canvas.at(100 + 60, 50) >> 24, 204u);

    // An inverted box: Basic normalises, the others grow it as given.
    Rect const inverted(60, 10, -60, -10);
    for (Kind const &k : kAll) {
        SCOPED_TRACE(k.name);
        std::unique_ptr<TextCallout> r = make(k, 0, inverted);
        Rect const b = r->pathAsPolygons(Rect()).polygons[0]->BoundingRect();
        EXPECT_EQ(b.Width() == 144 && b.Height() == 44, k.theme == Presets::ThemeBasic) << b;
    }
}

TEST(TextRectangles, BoundsMatchTheInkAndUrbanMeasuresAtEachCall) {
    for (Kind const &k : kAll)
        for (Rect box : {kBox, Rect(10, 20, 90, 35)})
            for (double width : {0.0, 3.0}) {
                std::unique_ptr<TextCallout> r = make(k, width, box);
                expectBoundsMatchInk(*r, k.name, 300, 200);
                if (k.theme == Presets::ThemeBasic)
                    EXPECT_EQ(r->trackingRect().Center(), box.Center());
                else
                    EXPECT_EQ(r->trackingRect(), r->boundingRect());
            }
    TextCalloutProperties text;
    ProbedUrban urban(kFill, "solid", Point(0, 1), kInk, 2, "solid", kBox, text, TextAttributeList());
    Rect const panel = urban.boundingRect();
    EXPECT_FALSE(urban.cached());
    text.text = "far";
    text.textRect = Rect(200, 0, 240, 20);
    urban.setTextCalloutProperties(text);
    EXPECT_EQ(urban.boundingRect().Right(), 240);
    EXPECT_EQ(urban.boundingRect().Left(), panel.Left());
    EXPECT_FALSE(urban.cached());

    // A clone of a measured Bold rectangle keeps panel and bounds; the panel
    // stays as built when the text moves.
    std::unique_ptr<TextCallout> bold = make(kAll[2], 2);
    Rect const measured = bold->boundingRect();
    std::unique_ptr<TextCallout> copy(bold->clone());
    EXPECT_EQ(copy->boundingRect(), measured);
    copy->setTextCalloutProperties(text);
    EXPECT_EQ(copy->pathAsPolygons(Rect()).polygons[0]->points, Polygon(Rect(-72, -22, 72, 22)).points);
}

TEST(TextRectangles, HostileInputStaysBounded) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    VantrelTest::Canvas canvas(64, 64);
    for (Kind const &k : kAll)
        for (Rect box : {Rect(), Rect(10, 10, -10, -10), Rect(-1e12, -1e12, 1e12, 1e12), Rect(0, 0, nan, 4)})
            for (Color fill : {kFill, Color(float(nan), 0.5f, 0.5f, float(nan))}) {
                SCOPED_TRACE(k.name);
                std::unique_ptr<TextCallout> r = make(k, 2, box, "text", fill);
                r->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                r->boundingRect();
                r->pathAsPolygons(Rect());
            }
    canvas.context.Clear(Color());
    canvas.context.Fill(kInk, Polygon(Rect(0, 0, 64, 64)));
    EXPECT_EQ(canvas.at(32, 32) >> 24, 255u);
}
