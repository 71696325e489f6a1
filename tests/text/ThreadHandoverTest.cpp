// A caption and an editing session keep a layout between calls. Made on one
// thread and handed to another while the first goes on laying text out, they
// must give the results they gave on the first, and neither thread may touch
// the other's font map (which ThreadSanitizer watches here).
#include "support/TextSupport.h"
#include "support/ThreadSupport.h"

#include "text/Fonts.h"

#include <pango/pango.h>

#include <atomic>
#include <memory>
#include <thread>

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

// A context over a bitmap that checks that every line it draws was laid out
// in the font map of the drawing thread.
class MapCheckingContext : public CrossPlatformDrawingContext {
public:
    explicit MapCheckingContext(Bitmap *bitmap) : CrossPlatformDrawingContext(bitmap) {}
    void DrawPangoLayoutLine(PangoLayoutLine *line) override {
        foreignLines += pango_context_get_font_map(pango_layout_get_context(line->layout)) != fontMap();
        CrossPlatformDrawingContext::DrawPangoLayoutLine(line);
    }
    int foreignLines = 0;
};

std::string const kText = "A caption handed between threads, wrapped over a few lines of text";

CaptionProperties captionProperties() {
    CaptionProperties c;
    c.text = kText;
    c.rect = Rect(-90, -40, 90, 40);
    c.fontName = "DejaVu Sans";
    c.fontSize = 14;
    c.maxLines = 3;
    return c;
}

// What the two objects give: the caption's pixels and wraps, the session's
// selections after a click and some moves.
struct Results {
    uint64_t pixels = 0;
    std::vector<int> wraps;
    std::vector<Range> selections;
    int foreignLines = 0; // lines drawn from a layout of another thread's font map
    bool operator==(Results const &o) const {
        return pixels == o.pixels && wraps == o.wraps && selections == o.selections && foreignLines == o.foreignLines;
    }
};

Results use(Caption const &caption, TextEditingSession &session) {
    Results r;
    Bitmap bitmap(200, 100);
    bitmap.clear();
    MapCheckingContext context(&bitmap);
    context.Translate(Point(100, 50));
    caption.DrawIntoContext(&context);
    r.pixels = VantrelTest::pixelHash(bitmap);
    r.foreignLines = context.foreignLines;
    r.wraps = caption.GetWordWrapUTF8Indexes();
    session.handleMouseDown(Point(30, 12));
    r.selections.push_back(session.selection());
    session.moveSelectionDownAndModifySelection();
    session.moveSelectionToEndOfLine();
    r.selections.push_back(session.selection());
    session.moveSelectionWordLeftAndModifySelection();
    r.selections.push_back(session.selection());
    return r;
}

// Text work of the thread that made the objects, meanwhile, in the same
// fonts: other texts, so that the fonts' caches keep changing.
void layTextOut(std::atomic<bool> const &stop) {
    int round = 0;
    while (!stop) {
        std::string const text = "Meanwhile " + std::to_string(round++ * 7919) + " \xE2\x80\x94 " + kText;
        TextCallout callout(Rect(-80, -30, 80, 30), TextTest::box(text, Rect(-80, -30, 80, 30)),
                            TextTest::attributes(text, 14 + round % 2));
        VantrelTest::Canvas canvas(160, 60);
        canvas.context.Translate(Point(80, 30));
        callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        CaptionProperties c = captionProperties();
        c.text = text;
        TextAttributeList underlined = TextTest::attributes(text, 14);
        underlined.addUnderlineAttribute(Range(0, int(text.size())), 1);
        Caption(c, underlined, 2).DrawIntoContext(&canvas.context);
    }
}

} // namespace

TEST(Threads, CaptionAndSessionHandedToAnotherThreadGiveTheSameResults) {
    PangoFonts::setLoadFallbackFonts(false);
    TextCallout callout(Rect(-80, -30, 80, 30), TextTest::box(kText, Rect(-80, -30, 80, 30)),
                        TextTest::attributes(kText, 14));
    // Underlined, so that drawing asks the fonts for glyph extents.
    TextAttributeList underlined = TextTest::attributes(kText, 14);
    underlined.addUnderlineAttribute(Range(2, 30), 1);
    Caption caption(captionProperties(), underlined, 2);
    TextEditingSession session(&callout, nullptr);
    Results const here = use(caption, session);
    EXPECT_EQ(here.foreignLines, 0);

    auto const end = std::chrono::steady_clock::now() + std::chrono::duration<double>(VantrelTest::threadSeconds());
    int mismatches = 0, handovers = 0;
    while (handovers < 2 || std::chrono::steady_clock::now() < end) {
        // To a worker while this thread lays text out, then back here while
        // the worker, still alive, does the same; then back once it has ended.
        std::atomic<bool> workerStop{false}, handedBack{false};
        Results there, again;
        std::thread worker([&] {
            there = use(caption, session);
            handedBack = true;
            layTextOut(workerStop);
        });
        layTextOut(handedBack);
        again = use(caption, session);
        workerStop = true;
        worker.join();
        Results const afterEnd = use(caption, session);
        mismatches += !(there == here) + !(again == here) + !(afterEnd == here);
        ++handovers;
    }
    EXPECT_EQ(mismatches, 0);

    // A caption kept in a static goes after this thread's own records, at
    // the end of the process: its layout is released all the same.
    static std::unique_ptr<Caption> leftForTheEnd;
    leftForTheEnd.reset(new Caption(captionProperties(), TextAttributeList(), 2));
    leftForTheEnd->GetWordWrapUTF8Indexes();
}
