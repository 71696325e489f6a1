// The eight thought bubbles, through the factories and directly.
#include "support/CalloutChecks.h"
#include "support/LoggingContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>

using namespace Vantrel;
using VantrelTest::expectBoundsMatchInk;

namespace {

Rect const kBox(-60, -20, 60, 20);
using VantrelTest::kFill;
using VantrelTest::kInk;

CalloutProperties style(double strokeWidth, std::string const &fillStyle = "solid") {
    return CalloutProperties(kFill, fillStyle, Point(0, 1), kInk, strokeWidth, "solid");
}

// Every class by name, made with one tail.
struct Maker {
    char const *name;
    TextCallout *(*make)(Rect const &, CalloutProperties const &, Point const &);
};
Maker const kAll[] = {
    {"AbstractThoughtBubble",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return AbstractThoughtBubble::createWithTextBox(b, p, t);
     }},
    {"AbstractThoughtBubbleTwo",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return AbstractThoughtBubbleTwo::createWithTextBox(b, p, t);
     }},
    {"BasicThoughtBubble",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return BasicThoughtBubble::createWithTextBox(b, p, t, true);
     }},
    {"BasicThoughtBubbleTwo",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return BasicThoughtBubbleTwo::createWithTextBox(b, p, t, true);
     }},
    {"BoldThoughtBubble",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return BoldThoughtBubble::createWithTextBox(b, p, t);
     }},
    {"BoldThoughtBubbleTwo",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return BoldThoughtBubbleTwo::createWithTextBox(b, p, t);
     }},
    {"UrbanThoughtBubble",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return UrbanThoughtBubble::createWithTextBox(b, p, t);
     }},
    {"UrbanThoughtBubbleTwo",
     [](Rect const &b, CalloutProperties const &p, Point const &t) -> TextCallout * {
         return UrbanThoughtBubbleTwo::createWithTextBox(b, p, t);
     }},
};

std::unique_ptr<TextCallout> make(Maker const &m, Point tail, double strokeWidth = 0, Rect box = kBox) {
    return std::unique_ptr<TextCallout>(m.make(box, style(strokeWidth), tail));
}

size_t contours(Polygons const &p) {
    size_t n = 0;
    for (auto const &q : p.polygons)
        n += q->points.empty() ? 0 : 1;
    return n;
}

using VantrelTest::outlineBounds;

} // namespace

TEST(ThoughtBubbles, FactoriesPickTheClassByThemeWithAUniformCloud) {
    using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                     double, std::string const &, Rect const &, Point const &,
                                     TextCalloutProperties const &, TextAttributeList const &);
    struct Row {
        Factory make;
        Presets::Theme theme;
        char const *name;
    } const rows[] = {
        {Presets::createThoughtBubble, Presets::ThemeBasic, "BasicThoughtBubble"},
        {Presets::createThoughtBubble, Presets::ThemeUrban, "UrbanThoughtBubble"},
        {Presets::createThoughtBubble, Presets::ThemeBold, "BoldThoughtBubble"},
        {Presets::createThoughtBubble, Presets::ThemeAbstract, "AbstractThoughtBubble"},
        {Presets::createThoughtBubbleTwo, Presets::ThemeBasic, "BasicThoughtBubbleTwo"},
        {Presets::createThoughtBubbleTwo, Presets::ThemeUrban, "UrbanThoughtBubbleTwo"},
        {Presets::createThoughtBubbleTwo, Presets::ThemeBold, "BoldThoughtBubbleTwo"},
        {Presets::createThoughtBubbleTwo, Presets::ThemeAbstract, "AbstractThoughtBubbleTwo"},
    };
    TextCalloutProperties text;
    text.text = "hm";
    text.textRect = kBox;
    TextAttributeList attributes;
    attributes.addFontSizeAttribute(Range(0, 2), 14);
    Rect const wide(-100, -10, 100, 10);
    for (Row const &row : rows) {
        SCOPED_TRACE(row.name);
        std::unique_ptr<BaseCallout> made(
            row.make(row.theme, kFill, "solid", Point(0, 1), kInk, 0, "solid", wide, Point(90, 80), text, attributes));
        auto *t = dynamic_cast<TextCallout *>(made.get());
        ASSERT_NE(t, nullptr);
        EXPECT_EQ(t->textCalloutProperties().text, "hm");
        EXPECT_EQ(t->textAttributeList().pangoAttributes().size(), 1u);
        EXPECT_EQ(t->bodyRect(), wide);
        EXPECT_EQ(t->trackingRect().Center(), wide.Center());
        for (Maker const &m : kAll)
            if (std::string(m.name) == row.name) {
                std::unique_ptr<TextCallout> direct = make(m, Point(90, 80), 0, wide);
                EXPECT_EQ(typeid(*made), typeid(*direct));
                // The Basic clouds come uniform.
                EXPECT_EQ(outlineBounds(made->pathAsPolygons(Rect())), outlineBounds(direct->pathAsPolygons(Rect())));
            }
    }
    for (Factory f : {Presets::createThoughtBubble, Presets::createThoughtBubbleTwo})
        for (int theme : {int(Presets::ThemeModern), -1, 5})
            EXPECT_EQ(
                f(Presets::Theme(theme), kFill, "solid", Point(), kInk, 0, "solid", kBox, Point(), text, attributes),
                nullptr);
}

TEST(ThoughtBubbles, TrailsPaintSmallThenBigThenBodyAtTheirAlphas) {
    // Which classes paint a trail, and its alphas; none strokes at width 0.
    struct Row {
        size_t maker;
        float small, big;
    } const rows[] = {{0, 0.6f, 0.8f}, {1, 0.6f, 0.8f}, {3, 1.0f, 1.0f},
                      {4, 1.0f, 1.0f}, {6, 0.6f, 0.8f}, {7, 0.6f, 0.8f}};
    for (Row const &row : rows) {
        SCOPED_TRACE(kAll[row.maker].name);
        for (double width : {0.0, 2.0}) {
            VantrelTest::LoggingContext log;
            make(kAll[row.maker], Point(120, 90), width)
                ->drawIntoContext(&log, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
            std::vector<std::string> const trail =
                width > 0 ? std::vector<std::string>{"fill ellipse", "stroke ellipse", "fill ellipse", "stroke ellipse"}
                          : std::vector<std::string>{"fill ellipse", "fill ellipse"};
            ASSERT_GT(log.calls.size(), trail.size());
            EXPECT_EQ(std::vector<std::string>(log.calls.begin(), log.calls.begin() + trail.size()), trail);
            EXPECT_EQ(log.calls.size(), trail.size() + (width > 0 ? 2 : 1)); // the body after
            EXPECT_EQ(log.fillColours[0].alpha, row.small);
            EXPECT_EQ(log.fillColours[1].alpha, row.big);
            for (std::string const &call : log.calls)
                EXPECT_TRUE(width > 0 || call.find("stroke") == std::string::npos) << call;
        }
    }
    // The tail classes paint one outline.
    for (size_t i : {2, 5}) {
        VantrelTest::LoggingContext log;
        make(kAll[i], Point(120, 90), 2)->drawIntoContext(&log, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        EXPECT_EQ(log.calls, (std::vector<std::string>{"fill colour n=1", "stroke solid n=1"})) << kAll[i].name;
    }
}

TEST(ThoughtBubbles, AThrowingCallStillRestoresTheContext) {
    VantrelTest::ThrowingContext context;
    std::unique_ptr<TextCallout> b = make(kAll[0], Point(120, 90), 2);
    EXPECT_THROW(b->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr), std::runtime_error);
    EXPECT_EQ(context.saves, 1);
    EXPECT_EQ(context.restores, 1);
}

TEST(ThoughtBubbles, TheBasicPairKeepCloudAndTailsApart) {
    std::unique_ptr<TextCallout> one = make(kAll[2], Point(80, 70));
    EXPECT_EQ(contours(one->bodyPathAsPolygons(Rect())), 1u);
    EXPECT_EQ(contours(one->tailPathAsPolygons(-1, Rect())), 1u);
    EXPECT_EQ(one->tailPathAsPolygons(-1, Rect()).polygons.back()->points.size(), 4u); // the cloud tail
    EXPECT_EQ(contours(one->pathAsPolygons(Rect())), 1u);                              // one contour, not two
    // Several tails: radial, each alone by its index.
    CalloutProperties const flat = style(0);
    std::vector<Point> const three{Point(-90, -70), Point(100, -60), Point(0, 90)};
    BasicThoughtBubble several(kBox, flat, three, true);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(contours(several.tailPathAsPolygons(i, Rect())), 1u) << i;
    // The second design: two circles per tail and no cloud for the tails alone.
    BasicThoughtBubbleTwo two(kBox, flat, three, true);
    EXPECT_EQ(contours(two.tailPathAsPolygons(0, Rect())), 2u);
    EXPECT_EQ(contours(two.tailPathAsPolygons(-1, Rect())), 6u);
    EXPECT_EQ(contours(two.bodyPathAsPolygons(Rect())), 1u);
    VantrelTest::LoggingContext log;
    two.drawIntoContext(&log, BaseCallout::DrawOptionTail, Rect(), 0, nullptr);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"fill ellipse", "fill ellipse", "fill path"}));
    // A uniform cloud has the same proportions for a wide box and a tall one;
    // a stretched one follows the box.
    auto ratio = [&](bool uniform, Rect const &box) {
        Rect r = outlineBounds(BasicThoughtBubble(box, flat, {}, uniform).bodyPathAsPolygons(Rect()));
        return r.Width() / r.Height();
    };
    Rect const wide(-100, -10, 100, 10), tall(-10, -100, 10, 100);
    EXPECT_NEAR(ratio(true, wide), ratio(true, tall), 1e-4);
    EXPECT_GT(ratio(false, wide), 2 * ratio(false, tall));
}

TEST(ThoughtBubbles, OutlinesFollowTheirConstructions) {
    // The Bold ellipse, painted last, does not depend on the tail.
    std::unique_ptr<TextCallout> inside = make(kAll[4], Point(5, 3)), outside = make(kAll[4], Point(150, 90));
    EXPECT_EQ(inside->pathAsPolygons(Rect()).polygons.back()->points,
              outside->pathAsPolygons(Rect()).polygons.back()->points);
    // AbstractThoughtBubbleTwo is at least 2 to 1: a wide box and a tall box
    // of the same 2 to 1 extent give the same outline.
    Rect const wide(-100, -10, 100, 10), tall(-10, -50, 10, 50);
    Polygons const w = make(kAll[1], Point(5, 3), 1, wide)->pathAsPolygons(Rect());
    Polygons const t = make(kAll[1], Point(5, 3), 1, tall)->pathAsPolygons(Rect());
    EXPECT_EQ(outlineBounds(w), outlineBounds(t));
    EXPECT_NEAR(outlineBounds(w).Width(), 200 * 1.15 + 24 + 2 * 254 / 5.5, 1.0); // rim circles out of the sides
}

TEST(ThoughtBubbles, PixelsOfTheBodies) {
    auto canvasOf = [](BaseCallout const &b) {
        auto canvas = std::make_unique<VantrelTest::Canvas>(400, 300);
        canvas->context.Translate(Point(200, 150));
        b.drawIntoContext(&canvas->context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        return canvas;
    };
    auto alpha = [](VantrelTest::Canvas const &c, Point p) { return c.at(int(200 + p.x), int(150 + p.y)) >> 24; };
    // The Bold ellipse passes through the corners of the box grown by 12.
    auto bold = canvasOf(*make(kAll[4], Point(5, 3)));
    Point const corner(72, 32);
    EXPECT_EQ(alpha(*bold, corner * 0.97), 255u);
    EXPECT_EQ(alpha(*bold, corner * 1.03), 0u);
    // AbstractThoughtBubbleTwo fills its ellipse only: the rim circle at angle
    // 0 (centre x 81, radius 29.5) is unfilled outside the ellipse (x 72.9).
    auto abstract = canvasOf(*make(kAll[1], Point(5, 3)));
    EXPECT_EQ(alpha(*abstract, Point(60, 0)), 255u);
    EXPECT_EQ(alpha(*abstract, Point(95, 0)), 0u);
    // The Urban body covers the near end of the trail: the big circle's
    // outline (centred at y 44, radius 16) is hidden inside the rectangle.
    auto urban = canvasOf(*make(kAll[6], Point(0, 56), 2));
    uint32_t const covered = urban->at(200, 150 + 27), ring = urban->at(200, 150 + 59);
    EXPECT_EQ(covered >> 24, 255u);
    EXPECT_GT((covered >> 16) & 0xff, 60u); // the fill's red, not the ink's
    EXPECT_LT((ring >> 16) & 0xff, 60u);    // the ring below the body is inked
}

TEST(ThoughtBubbles, BoundsMatchTheInkOfAllEight) {
    for (Maker const &m : kAll)
        for (Rect box : {kBox, Rect(10, 20, 90, 50)})
            for (Point tail : {Point(110, 90), Point(-120, -70), Point(5, 3)}) {
                std::unique_ptr<TextCallout> b = make(m, tail, 3, box);
                expectBoundsMatchInk(*b, m.name, 440, 340);
                EXPECT_EQ(b->trackingRect().Center(), box.Center());
            }
}

TEST(ThoughtBubbles, HostileInputStaysBounded) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    VantrelTest::Canvas canvas(64, 64);
    for (Maker const &m : kAll)
        for (Rect box : {Rect(), Rect(10, 10, -10, -10), Rect(0, 0, nan, 5), Rect(-1e12, -1e12, 1e12, 1e12)})
            for (Point tail : {box.Center(), Point(nan, 1), Point(1e12, -1e12)}) {
                SCOPED_TRACE(m.name);
                std::unique_ptr<TextCallout> b = make(m, tail, 2, box);
                TextCalloutProperties text;
                text.text = "text";
                text.textRect = box;
                b->setTextCalloutProperties(text);
                b->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                b->pathAsPolygons(Rect());
                std::unique_ptr<TextCallout> copy(b->clone());
                copy->boundingRect();
            }
    // A trail aimed from an ellipse without height is not drawn: the second
    // Basic design on a box of height 0, and a Bold box 24 high above y = 0,
    // which its signed growth flattens.
    CalloutProperties const flat = style(1);
    BasicThoughtBubbleTwo lineBox(Rect(-50, 0, 50, 0), flat, {Point(0, 80)}, false);
    EXPECT_EQ(contours(lineBox.tailPathAsPolygons(-1, Rect())), 0u);
    VantrelTest::LoggingContext log;
    BoldThoughtBubble(Rect(-50, -30, 50, -6), flat, {Point(0, 80)})
        .drawIntoContext(&log, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"fill ellipse", "stroke ellipse"}));
    // Ten thousand tails: at most kMaxThoughtBubbleTails are drawn.
    std::vector<Point> many;
    for (int i = 0; i < 10000; ++i)
        many.push_back(Point::FromAngle(i) * 120);
    BasicThoughtBubble crowded(kBox, flat, many, true);
    crowded.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    BasicThoughtBubbleTwo trails(kBox, flat, many, true);
    EXPECT_EQ(contours(trails.tailPathAsPolygons(-1, Rect())), size_t(4 * kMaxThoughtBubbleTails));
    // An empty tail list reads as a tail on the box's centre.
    for (TextCallout *none : std::initializer_list<TextCallout *>{
             new AbstractThoughtBubble(kBox, flat, {}), new AbstractThoughtBubbleTwo(kBox, flat, {}),
             new BasicThoughtBubble(kBox, flat, {}, true), new BasicThoughtBubbleTwo(kBox, flat, {}, true),
             new BoldThoughtBubble(kBox, flat, {}), new BoldThoughtBubbleTwo(kBox, flat, {}),
             new UrbanThoughtBubble(kBox, flat, {}), new UrbanThoughtBubbleTwo(kBox, flat, {})}) {
        none->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        delete none;
    }
    canvas.context.Clear(Color());
    canvas.context.Fill(kInk, Polygon(Rect(0, 0, 64, 64)));
    EXPECT_EQ(canvas.at(32, 32) >> 24, 255u);
}
