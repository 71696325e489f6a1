// Eight threads drawing and measuring text at once, each with its own
// contexts and callouts, plain and themed: no deadlock, no crash, and the
// results of one thread.
#include "support/TextSupport.h"
#include "support/ThreadSupport.h"

#include <memory>

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

struct Results {
    uint64_t pixels = 0, themed = 0;
    Point dimensions;
    double scale = 0;
    std::vector<Range> lines;
    bool operator==(Results const &o) const {
        return pixels == o.pixels && themed == o.themed && dimensions == o.dimensions && scale == o.scale &&
               lines == o.lines;
    }
};

Presets::Theme const kTextThemes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold,
                                      Presets::ThemeAbstract};
int const kVariants = 12; // three texts by four themes

// The bubbles, arrows and panels of a theme, each with its own text.
uint64_t drawThemed(Presets::Theme theme, TextAttributeList const &a) {
    VantrelTest::Canvas canvas(160, 120);
    canvas.context.Translate(Point(80, 60));
    Rect const box(-50, -12, 50, 12);
    TextCalloutProperties p;
    p.text = "Themed words";
    p.textRect = box;
    Color const fill(0.9f, 0.8f, 0.3f), ink(0.1f, 0.1f, 0.2f);
    std::unique_ptr<BaseCallout> made[] = {
        std::unique_ptr<BaseCallout>(
            Presets::createSpeechBubble(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, Point(70, 50), p, a)),
        std::unique_ptr<BaseCallout>(Presets::createThoughtBubbleTwo(theme, fill, "gradient", Point(0, 1), ink, 2,
                                                                     "dash", box, Point(-70, 50), p, a)),
        std::unique_ptr<BaseCallout>(
            Presets::createTextArrow(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, 0.6, p, a)),
        std::unique_ptr<BaseCallout>(
            Presets::createTextRectangle(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, p, a)),
    };
    for (auto const &callout : made)
        callout->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    return VantrelTest::pixelHash(canvas.bitmap);
}

Results work(int variant) {
    std::string text = "Threads share the font map, variant " + std::to_string(variant % 3) + ", and wrap over lines";
    TextCalloutProperties p = TextTest::box(text, Rect(4, 4, 124, 60));
    TextAttributeList a = TextTest::attributes(text, 18);
    a.addFGColorAttribute(Range(0, 7), Color(0.8f, 0.1f, 0.1f));
    TextCallout callout(Rect(), p, a);
    VantrelTest::Canvas canvas(128, 64);
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    callout.drawSelectionIntoContext(&canvas.context, Range(3, 20), Color(0, 0, 1, 0.3f), Color(1, 0, 0));
    callout.drawMisspelledRangesIntoContext(&canvas.context, {Range(0, 7)}, Color(1, 0, 0));
    Results r;
    r.pixels = VantrelTest::pixelHash(canvas.bitmap);
    r.themed = drawThemed(kTextThemes[variant % 4], TextTest::attributes("Themed words", 12));
    r.dimensions = CrossPlatformDrawingContext::calculateDrawingDimensions(p, a);
    r.scale = CrossPlatformDrawingContext::calculateDrawingFontScale(p, a);
    r.lines = TextCalloutUtil::lineRanges(p, a);
    return r;
}

} // namespace

TEST(Threads, TextFromEightThreadsGivesTheResultsOfOne) {
    PangoFonts::setLoadFallbackFonts(false);
    std::vector<Results> expected;
    for (int v = 0; v < kVariants; ++v)
        expected.push_back(work(v));
    std::vector<int> mismatches(8, 0);
    VantrelTest::runThreadsForAWhile(8, [&](int t, int round) {
        int const v = (t + round) % kVariants;
        mismatches[t] += !(work(v) == expected[v]);
    });
    for (int t = 0; t < 8; ++t)
        EXPECT_EQ(mismatches[t], 0) << t;
}
