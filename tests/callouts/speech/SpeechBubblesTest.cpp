// The eight speech bubbles, through the factories and directly.
#include "support/CalloutChecks.h"
#include "support/LoggingContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

using namespace Vantrel;
using VantrelTest::expectBoundsMatchInk;

namespace {

Rect const kBox(-70, -25, 70, 25);
using VantrelTest::kFill;
using VantrelTest::kInk;

using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                 double, std::string const &, Rect const &, Point const &,
                                 TextCalloutProperties const &, TextAttributeList const &);
struct Design {
    char const *name;
    Factory make;
};
Design const kDesigns[] = {{"first", Presets::createSpeechBubble}, {"two", Presets::createSpeechBubbleTwo}};
Presets::Theme const kThemes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold, Presets::ThemeAbstract};

std::unique_ptr<BaseCallout> bubble(Design const &d, Presets::Theme theme, Point tail, double strokeWidth = 0,
                                    Rect box = kBox, std::string const &text = "") {
    VantrelTest::CalloutText const t = VantrelTest::calloutText(text, box, 14);
    return std::unique_ptr<BaseCallout>(d.make(theme, kFill, "gradient", Point(0, 1), kInk, strokeWidth, "solid", box,
                                               tail, t.properties, t.attributes));
}

size_t contours(Polygons const &p) {
    size_t n = 0;
    for (auto const &q : p.polygons)
        n += q->points.empty() ? 0 : 1;
    return n;
}

std::string what(Design const &d, Presets::Theme theme) {
    return std::string(d.name) + " theme " + std::to_string(theme);
}

} // namespace

TEST(SpeechBubbles, BoundsMatchTheInkOfAllEight) {
    for (Design const &d : kDesigns)
        for (Presets::Theme theme : kThemes)
            for (double width : {0.0, 3.0, 9.0})
                for (Point tail : {Point(60, -90), Point(-100, 80), Point(130, 0)}) {
                    std::unique_ptr<BaseCallout> b = bubble(d, theme, tail, width);
                    expectBoundsMatchInk(*b, what(d, theme) + " width " + std::to_string(width), 420, 320);
                    // The tracking rect is centred on the box's centre.
                    EXPECT_EQ(b->trackingRect().Center(), Point(0, 0));
                }
}

TEST(SpeechBubbles, ATailInsideTheBodyGivesNoTail) {
    for (Design const &d : kDesigns)
        for (Presets::Theme theme : kThemes) {
            SCOPED_TRACE(what(d, theme));
            Rect b = bubble(d, theme, Point(5, 3))->boundingRect();
            EXPECT_NEAR(b.Left(), -b.Right(), 1.0); // nothing sticks out of the symmetrical body
            EXPECT_NEAR(b.Top(), -b.Bottom(), 1.0);
        }
}

TEST(SpeechBubbles, TheBasicPairKeepBodyAndTailsApart) {
    std::unique_ptr<BaseCallout> one = bubble(kDesigns[0], Presets::ThemeBasic, Point(40, -80));
    EXPECT_EQ(contours(one->pathAsPolygons(Rect())), 1u); // one contour, not two
    EXPECT_EQ(contours(one->bodyPathAsPolygons(Rect())), 1u);
    EXPECT_EQ(contours(one->tailPathAsPolygons(-1, Rect())), 1u);
    EXPECT_EQ(contours(one->tailPathAsPolygons(1, Rect())), 0u); // only the empty, flattened body
    EXPECT_FALSE(one->tailPathAsPolygons(1, Rect()).polygons.empty());
    // The other designs draw their one outline whatever is asked.
    std::unique_ptr<BaseCallout> urban = bubble(kDesigns[0], Presets::ThemeUrban, Point(40, -80));
    EXPECT_EQ(urban->tailPathAsPolygons(0, Rect()).polygons.size(), urban->pathAsPolygons(Rect()).polygons.size());

    std::vector<Point> const three{Point(-90, -70), Point(100, -60), Point(0, 90)};
    CalloutProperties const style(kFill, "solid", Point(0, 1), kInk, 0, "solid");
    for (BaseCallout *several : std::initializer_list<BaseCallout *>{new BasicSpeechBubble(kBox, style, three),
                                                                     new BasicSpeechBubbleTwo(kBox, style, three)}) {
        for (int i = 0; i < 3; ++i) {
            Polygons tail = several->tailPathAsPolygons(i, Rect());
            ASSERT_EQ(contours(tail), 1u) << i;
            EXPECT_GT(tail.polygons.back()->points.size(), 3u); // the rounded base of a radial tail
        }
        EXPECT_EQ(contours(several->pathAsPolygons(Rect())), 1u);
        // A narrow reference rect narrows the body; a zero one leaves it whole.
        double const full = several->bodyPathAsPolygons(Rect()).polygons[0]->BoundingRect().Width();
        double const narrow = several->bodyPathAsPolygons(Rect(0, 0, 80, 0)).polygons[0]->BoundingRect().Width();
        EXPECT_GT(full, 150);
        EXPECT_NEAR(narrow, 80, 10);
        delete several;
    }
    // A box taller than 5/2 of its width makes a circle.
    std::unique_ptr<BaseCallout> tall =
        bubble(kDesigns[0], Presets::ThemeBasic, Point(0, -100), 0, Rect(-10, -40, 10, 40));
    Rect body = tall->bodyPathAsPolygons(Rect()).polygons[0]->BoundingRect();
    EXPECT_NEAR(body.Width(), body.Height(), 0.5);
    // One tail: the first design's pill tail is a plain triangle, the second's radial tail is rounded.
    EXPECT_EQ(one->tailPathAsPolygons(0, Rect()).polygons.back()->points.size(), 3u);
}

TEST(SpeechBubbles, UrbanTwoFillsItsRightPartAtFourFifths) {
    CalloutProperties const style(Color(0, 0, 1), "solid", Point(0, 1), kInk, 2, "solid");
    UrbanSpeechBubbleTwo two(kBox, style, {Point(0, -80)});
    VantrelTest::LoggingContext log;
    two.drawIntoContext(&log, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    ASSERT_EQ(log.calls.size(), 5u);
    EXPECT_EQ(log.calls[1], "fill colour n=1");
    EXPECT_EQ(log.calls[4], "stroke solid n=1"); // unclipped, last
    EXPECT_EQ(log.fillColours[0].alpha, 0.8f);
    EXPECT_EQ(log.fillColours[1].alpha, 1.0f);
    VantrelTest::Canvas canvas(300, 200);
    canvas.context.Translate(Point(150, 100));
    two.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    // E is 211 wide: the division lies at x = 70.3, a sixth of it from E's right end.
    EXPECT_EQ(canvas.at(150 + 90, 100) >> 24, 204u);
    EXPECT_EQ(canvas.at(150 - 40, 100) >> 24, 255u);
}

TEST(SpeechBubbles, HostileInputStaysBounded) {
    double const nan = std::numeric_limits<double>::quiet_NaN();
    VantrelTest::Canvas canvas(64, 64);
    for (Design const &d : kDesigns)
        for (Presets::Theme theme : kThemes)
            for (Rect box : {Rect(), Rect(10, 10, -10, -10), Rect(0, 0, nan, 5), Rect(-1e12, -1e12, 1e12, 1e12)})
                for (Point tail : {Point(0, 0), Point(-70, -25), Point(nan, 1), Point(1e12, -1e12)}) {
                    SCOPED_TRACE(what(d, theme));
                    std::unique_ptr<BaseCallout> b = bubble(d, theme, tail, 2, box, "text");
                    b->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                    b->pathAsPolygons(Rect());
                }
    // Ten thousand tails: at most kMaxSpeechBubbleTails are united; none or an empty list draws the body.
    std::vector<Point> many;
    for (int i = 0; i < 10000; ++i)
        many.push_back(Point::FromAngle(i) * 120);
    CalloutProperties const style(kFill, "solid", Point(0, 1), kInk, 1, "solid");
    BasicSpeechBubble crowded(kBox, style, many);
    EXPECT_LE(crowded.tailPathAsPolygons(-1, Rect()).polygons.size(), size_t(2 * kMaxSpeechBubbleTails + 2));
    crowded.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    for (TextCallout *none : std::initializer_list<TextCallout *>{
             new AbstractSpeechBubble(kBox, style, {}), new AbstractSpeechBubbleTwo(kBox, style, {}),
             new BasicSpeechBubble(kBox, style, {}), new BasicSpeechBubbleTwo(kBox, style, {}),
             new BoldSpeechBubble(kBox, style, {}), new BoldSpeechBubbleTwo(kBox, style, {}),
             new UrbanSpeechBubble(kBox, style, {}), new UrbanSpeechBubbleTwo(kBox, style, {})}) {
        Rect b = none->boundingRect();
        EXPECT_NEAR(b.Top(), -b.Bottom(), 1.0);
        std::unique_ptr<TextCallout> copy(none->clone());
        EXPECT_EQ(copy->boundingRect(), b);
        delete none;
    }
    // The context keeps drawing after all of it.
    canvas.context.Clear(Color());
    canvas.context.Fill(kInk, Polygon(Rect(0, 0, 64, 64)));
    EXPECT_EQ(canvas.at(32, 32) >> 24, 255u);
}
