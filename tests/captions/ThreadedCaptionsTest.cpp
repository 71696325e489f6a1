// Four threads building, drawing and exporting captions and building sprite
// sheets, each with its own objects: the results of one thread.
#include "support/TextSupport.h"
#include "support/ThreadSupport.h"

#include <sstream>

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

struct Transcript : ICaptionExportObserver {
    std::ostringstream out;
    void exportText(int at, std::string const &text) override { out << at << ':' << text << '|'; }
    void exportLineBreak(int at, bool hard) override { out << at << (hard ? "H|" : "S|"); }
    void exportBold(int at, bool on) override { out << at << 'B' << on << '|'; }
    void exportItalic(int at, bool on) override { out << at << 'I' << on << '|'; }
};

struct Outcome {
    uint64_t caption = 0, sheet = 0;
    std::vector<int> wraps;
    int split = 0;
    std::string exported;
    std::vector<Rect> items;
    bool operator==(Outcome const &o) const {
        return caption == o.caption && sheet == o.sheet && wraps == o.wraps && split == o.split &&
               exported == o.exported && items == o.items;
    }
};

Outcome work(int variant) {
    CaptionProperties c;
    c.text = variant % 2 ? "A caption wrapped over lines, split where the box is full" : "Kurz und\nbündig";
    c.rect = Rect(-90, -30, 90, 30 + 10 * (variant % 3));
    c.fontName = "DejaVu Sans";
    c.fontSize = 14;
    c.maxLines = 2;
    c.backgroundColor = Color(0, 0, 0, 0.5f);
    c.outlineColor = Color(1, 1, 1);
    c.outlineWidth = 2;
    TextAttributeList a = TextTest::attributes(c.text, 14);
    a.addFontWeightAttribute(Range(2, 9), 700);
    Caption caption(c, a, 4);
    VantrelTest::Canvas canvas(200, 100);
    canvas.context.Translate(Point(100, 50));
    caption.DrawIntoContext(&canvas.context);
    Outcome o;
    o.caption = VantrelTest::pixelHash(canvas.bitmap);
    o.wraps = caption.GetWordWrapUTF8Indexes();
    o.split = caption.SplitUTF8Index();
    Transcript transcript;
    Caption::ExportText(transcript, c.text, a, o.wraps);
    o.exported = transcript.out.str();

    std::shared_ptr<SpriteSheet> sheet = SpriteSheet::FromText(TextTest::box(c.text, Rect(-90, -30, 90, 30)), a,
                                                               Point(1 + variant % 2, 1), variant % 3 == 0, 2, false);
    o.sheet = VantrelTest::pixelHash(sheet->TheBitmap());
    for (SpriteSheetLayoutItem const &item : sheet->LayoutItems()) {
        o.items.push_back(item.bitmapRect);
        o.items.push_back(item.rect);
    }
    return o;
}

} // namespace

TEST(Threads, CaptionsAndSpriteSheetsOnFourThreadsGiveTheResultsOfOne) {
    PangoFonts::setLoadFallbackFonts(false);
    EXPECT_EQ(VantrelTest::mismatchesAcrossThreads(4, 6, work), 0);
}
