// Eight threads drawing and measuring text at once, each with its own
// contexts and callouts: no deadlock, no crash, and the results of one thread.
#include "support/TextSupport.h"

#include <thread>

using namespace Vantrel;

namespace {

struct Results {
    uint64_t pixels = 0;
    Point dimensions;
    double scale = 0;
    std::vector<Range> lines;
    bool operator==(Results const &o) const {
        return pixels == o.pixels && dimensions == o.dimensions && scale == o.scale && lines == o.lines;
    }
};

Results work(int variant) {
    std::string text = "Threads share the font map, variant " + std::to_string(variant % 3) + ", and wrap over lines";
    TextCalloutProperties p;
    p.text = text;
    p.textRect = Rect(4, 4, 124, 60);
    TextAttributeList a;
    a.addFontNameAttribute(Range(0, int(text.size())), "DejaVu Sans");
    a.addFontSizeAttribute(Range(0, int(text.size())), 18);
    a.addFGColorAttribute(Range(0, 7), Color(0.8f, 0.1f, 0.1f));
    TextCallout callout(Rect(), p, a);
    VantrelTest::Canvas canvas(128, 64);
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    callout.drawSelectionIntoContext(&canvas.context, Range(3, 20), Color(0, 0, 1, 0.3f), Color(1, 0, 0));
    callout.drawMisspelledRangesIntoContext(&canvas.context, {Range(0, 7)}, Color(1, 0, 0));
    Results r;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 128; ++x)
            r.pixels = r.pixels * 31 + canvas.at(x, y);
    r.dimensions = CrossPlatformDrawingContext::calculateDrawingDimensions(p, a);
    r.scale = CrossPlatformDrawingContext::calculateDrawingFontScale(p, a);
    r.lines = TextCalloutUtil::lineRanges(p, a);
    return r;
}

} // namespace

TEST(Threads, TextFromEightThreadsGivesTheResultsOfOne) {
    PangoFonts::setLoadFallbackFonts(false);
    Results expected[3] = {work(0), work(1), work(2)};
    int const kThreads = 8, kRounds = 12;
    std::vector<int> mismatches(kThreads, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([t, &expected, &mismatches] {
            for (int i = 0; i < kRounds; ++i)
                mismatches[t] += !(work(t + i) == expected[(t + i) % 3]);
        });
    for (std::thread &t : threads)
        t.join();
    for (int t = 0; t < kThreads; ++t)
        EXPECT_EQ(mismatches[t], 0) << t;
}
