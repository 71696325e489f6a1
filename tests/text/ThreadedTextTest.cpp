// Threads drawing and measuring text at once, each with its own contexts,
// callouts and font map: the results of one thread; a family registered on
// one thread is drawn by another; font maps come and go with their threads.
#include "support/TextSupport.h"
#include "support/ThreadSupport.h"

#include "text/TextLayout.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>
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
    EXPECT_EQ(VantrelTest::mismatchesAcrossThreads(8, kVariants, work), 0);
}

namespace {

// The family pango drew the first run of the text in.
std::string familyDrawn(std::string const &family) {
    std::string const text = "Drawn in " + family;
    TextAttributeList a;
    a.addFontNameAttribute(Range(0, int(text.size())), family);
    a.addFontSizeAttribute(Range(0, int(text.size())), 14);
    PangoLayout *layout = buildTextLayout(TextTest::box(text, Rect(0, 0, 300, 40)), a, false, 0, true);
    auto *run = static_cast<PangoGlyphItem *>(pango_layout_get_line_readonly(layout, 0)->runs->data);
    PangoFontDescription *description = pango_font_describe(run->item->analysis.font);
    std::string drawn = pango_font_description_get_family(description);
    pango_font_description_free(description);
    g_object_unref(layout);
    return drawn;
}

// A copy of the fixture font (DejaVu Sans under another file name) whose
// family is renamed to one no system has: "VantrelTest", as long as "DejaVu
// Sans", so that every offset of the file stays.
std::string renamedFontFolder() {
    std::ifstream in(std::string(VANTREL_TEST_FONTS_DIR) + "/VantrelTestFamily-Regular.ttf", std::ios::binary);
    std::string font((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    auto replaceAll = [&font](std::string const &from, std::string const &to) {
        for (size_t at = font.find(from); at != std::string::npos; at = font.find(from, at + to.size()))
            font.replace(at, from.size(), to);
    };
    auto utf16 = [](std::string const &ascii) {
        std::string wide;
        for (char c : ascii)
            wide += std::string(1, '\0') + c;
        return wide;
    };
    replaceAll("DejaVu Sans", "VantrelTest");
    replaceAll(utf16("DejaVu Sans"), utf16("VantrelTest"));
    std::string const folder = testing::TempDir() + "vantrel-thread-font";
    std::filesystem::create_directories(folder);
    std::ofstream(folder + "/renamed.ttf", std::ios::binary) << font;
    return folder;
}

} // namespace

TEST(Threads, AFamilyRegisteredOnOneThreadIsDrawnByAnother) {
    PangoFonts::setLoadFallbackFonts(false);
    std::string const folder = renamedFontFolder();
    std::promise<void> otherHasAMap, registered;
    std::string before, after, onRegisteringThread;
    std::thread other([&] {
        before = familyDrawn("DejaVu Sans"); // this thread's font map is made now
        otherHasAMap.set_value();
        registered.get_future().wait();
        after = familyDrawn("VantrelTest");
    });
    std::thread registering([&] {
        otherHasAMap.get_future().wait();
        CrossPlatformDrawingContext::addFontSearchFolder(folder);
        onRegisteringThread = familyDrawn("VantrelTest");
        registered.set_value();
    });
    registering.join();
    other.join();
    EXPECT_EQ(before, "DejaVu Sans");
    EXPECT_EQ(onRegisteringThread, "VantrelTest");
    EXPECT_EQ(after, "VantrelTest");
}

// Threads that start, lay text out and end while others draw: each makes a
// font map and releases it (AddressSanitizer finds one left behind).
TEST(Threads, ShortLivedThreadsMakeAndReleaseFontMapsWhileOthersDraw) {
    PangoFonts::setLoadFallbackFonts(false);
    std::vector<Results> expected;
    for (int v = 0; v < kVariants; ++v)
        expected.push_back(work(v));
    std::atomic<int> mismatches{0};
    VantrelTest::runThreadsForAWhile(3, [&](int t, int round) {
        int const v = (t + round) % kVariants;
        if (t > 0) {
            mismatches += !(work(v) == expected[v]);
            return;
        }
        std::thread brief([&] { mismatches += !(work(v) == expected[v]); });
        brief.join();
    });
    EXPECT_EQ(mismatches, 0);
}
