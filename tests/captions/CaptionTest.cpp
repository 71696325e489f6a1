#include "support/TextSupport.h"

#include <vantrel/Vantrel.h>

#include <cmath>
#include <functional>
#include <limits>

using namespace Vantrel;
using VantrelTest::Canvas;

namespace {

class CaptionTest : public VantrelTest::TextTest {
protected:
    static CaptionProperties props(std::string const &text, Rect rect, int maxLines = -1) {
        CaptionProperties p;
        p.text = text;
        p.rect = rect;
        p.maxLines = maxLines;
        p.fontName = "DejaVu Sans";
        p.fontSize = 20;
        p.textColor = Color(0, 0, 0);
        return p;
    }
};

struct Recorder : ICaptionExportObserver {
    std::vector<std::string> calls;
    void exportText(int p, std::string const &t) override { calls.push_back("text " + std::to_string(p) + " " + t); }
    void exportLineBreak(int p, bool hard) override {
        calls.push_back("break " + std::to_string(p) + (hard ? " hard" : " soft"));
    }
    void exportBold(int p, bool on) override { calls.push_back("bold " + std::to_string(p) + (on ? " on" : " off")); }
    void exportItalic(int p, bool on) override {
        calls.push_back("italic " + std::to_string(p) + (on ? " on" : " off"));
    }
};

int red(uint32_t v) { return int(v >> 16 & 0xff); }
int green(uint32_t v) { return int(v >> 8 & 0xff); }

TEST_F(CaptionTest, WrapIndexesHoldEachShownLineAndOneMore) {
    std::string const three = "one\ntwo\nsix";
    struct Case {
        char const *name;
        CaptionProperties properties;
        double margin;
        std::vector<int> indexes;
        int split;
    } const cases[] = {
        {"two of three fit", props(three, Rect(0, 0, 300, 50)), 0, {0, 4, 8}, 8},
        {"all three fit", props(three, Rect(0, 0, 300, 200)), 0, {0, 4, 8, 11}, -1},
        {"maxLines 0", props(three, Rect(0, 0, 300, 200), 0), 0, {0}, 0},
        {"maxLines 1", props(three, Rect(0, 0, 300, 200), 1), 0, {0, 4}, 4},
        {"empty text", props("", Rect(0, 0, 300, 200)), 0, {0, 0}, -1},
        {"margin wider than half the box", props(three, Rect(0, 0, 300, 200), 5), 160, {0}, 0},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        Caption caption(k.properties, TextAttributeList(), k.margin);
        EXPECT_EQ(caption.GetWordWrapUTF8Indexes(), k.indexes);
        EXPECT_EQ(caption.SplitUTF8Index(), k.split);
    }
    // Character offsets over multi-byte text.
    Caption accented(props("h\xC3\xA9llo\nw\xC3\xB6rld\nmore", Rect(0, 0, 300, 50)), TextAttributeList(), 0);
    EXPECT_EQ(accented.GetWordWrapUTF8Indexes(), (std::vector<int>{0, 7, 14}));
    EXPECT_EQ(accented.GetWordWrapCharacterIndexes(), (std::vector<int>{0, 6, 12}));
    EXPECT_EQ(accented.SplitCharacterIndex(), 12);
    EXPECT_EQ(Caption::CharacterIndexFromUTF8Index("h\xC3\xA9llo", 3), 2);
    EXPECT_EQ(Caption::UTF8IndexFromCharacterIndex("h\xC3\xA9llo", 2), 3);
    EXPECT_EQ(Caption::CharacterIndexFromUTF8Index("abc", -5), -5);
    EXPECT_EQ(Caption::UTF8IndexFromCharacterIndex("abc", -1), -1);

    // The unlimited copy gives every line, and stands too far away to draw.
    std::shared_ptr<Caption> all =
        Caption(props(three, Rect(0, 0, 300, 50), 1), TextAttributeList(), 4).MakeInfiniteHeightCaption();
    EXPECT_EQ(all->GetWordWrapUTF8Indexes(), (std::vector<int>{0, 4, 8, 11}));
    EXPECT_EQ(all->SplitUTF8Index(), -1);
    Canvas canvas(100, 100);
    all->DrawIntoContext(&canvas.context);
    EXPECT_EQ(VantrelTest::inkBounds(canvas.bitmap), Rect());
}

TEST_F(CaptionTest, TheBlockStandsOnTheBottomOfItsBox) {
    struct Case {
        char const *name;
        TextHorizontalAlignment alignment;
        bool centered;
        double expectedLeft; // -1: anywhere
    } const cases[] = {{"left", Left, false, 0}, {"right", Right, false, -1}, {"centred", Left, true, -1}};
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        CaptionProperties p = props("Hi", Rect(0, 0, 300, 200));
        p.alignment = k.alignment;
        p.centered = k.centered;
        Canvas canvas(300, 200);
        Caption(p, TextAttributeList(), 0).DrawIntoContext(&canvas.context);
        Rect ink = VantrelTest::inkBounds(canvas.bitmap);
        EXPECT_GT(ink.Top(), 170);
        EXPECT_LE(ink.Bottom(), 200);
        if (k.alignment == Right) {
            EXPECT_GT(ink.Left(), 250);
        }
        if (k.centered) {
            EXPECT_NEAR(ink.Center().x, 150, 3);
        }
        if (k.expectedLeft == 0) {
            EXPECT_LT(ink.Left(), 5);
        }
    }
    // maxLines 0 and an empty text draw nothing.
    for (Caption const *c : {new Caption(props("Hi", Rect(0, 0, 300, 200), 0), TextAttributeList(), 0),
                             new Caption(props("", Rect(0, 0, 300, 200)), TextAttributeList(), 0)}) {
        Canvas canvas(300, 200);
        c->DrawIntoContext(&canvas.context);
        EXPECT_EQ(VantrelTest::inkBounds(canvas.bitmap), Rect());
        delete c;
    }
}

TEST_F(CaptionTest, TheBackgroundGrowsTheBoundsByTheMarginWithRoundCorners) {
    for (double margin : {10.0, 0.0}) {
        SCOPED_TRACE(margin);
        CaptionProperties p = props("Hi", Rect(0, 0, 300, 100));
        p.backgroundColor = Color(1, 0, 0);
        p.textColor = Color(0, 0, 1);
        Canvas canvas(300, 100);
        Caption(p, TextAttributeList(), margin).DrawIntoContext(&canvas.context);
        Rect ink = VantrelTest::inkBounds(canvas.bitmap);
        EXPECT_EQ(ink.Left(), 0);
        EXPECT_EQ(ink.Bottom(), 100);
        int const top = int(ink.Top());
        if (margin > 0) {
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 0, 99), 0);    // outside the round corner
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 0, top), 0);   // and the top one
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 5, 95), 255);  // inside the corner's arc
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 10, 99), 255); // the straight bottom edge
        } else {
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 0, 99), 255); // square corners
            EXPECT_EQ(VantrelTest::alphaAt(canvas.bitmap, 0, top), 255);
        }
    }
}

TEST_F(CaptionTest, TheOutlineLiesJustOutsideTheGlyphsAndTheCaptionsFontWins) {
    CaptionProperties p = props("I", Rect(0, 0, 200, 150));
    p.fontSize = 100;
    p.textColor = Color(1, 0, 0);
    p.outlineColor = Color(0, 1, 0);
    p.outlineWidth = 8;
    Canvas canvas(200, 150);
    Caption(p, TextAttributeList(), 0).DrawIntoContext(&canvas.context);
    int const y = 110;
    int first = -1, last = -1;
    for (int x = 0; x < 200; ++x)
        if (red(canvas.at(x, y)) > 200) {
            first = first < 0 ? x : first;
            last = x;
        }
    ASSERT_GT(first, 2);
    EXPECT_GT(green(canvas.at(first - 2, y)), 200);
    EXPECT_GT(green(canvas.at(last + 2, y)), 200);

    // The list's font and size give way to the caption's; its bold stays.
    auto draw = [&](TextAttributeList const &list) {
        Canvas c(300, 100);
        Caption(props("Bold words", Rect(0, 0, 300, 100)), list, 0).DrawIntoContext(&c.context);
        return std::vector<uint32_t>(static_cast<uint32_t const *>(c.bitmap.bitmapData()),
                                     static_cast<uint32_t const *>(c.bitmap.bitmapData()) + 300 * 100);
    };
    TextAttributeList boldOnly, boldSerifHuge;
    boldOnly.addFontWeightAttribute(Range(0, 4), 700);
    boldSerifHuge.addFontNameAttribute(Range(0, 10), "DejaVu Serif");
    boldSerifHuge.addFontSizeAttribute(Range(0, 10), 60);
    boldSerifHuge.addFontWeightAttribute(Range(0, 4), 700);
    EXPECT_EQ(draw(boldSerifHuge), draw(boldOnly));
    EXPECT_NE(draw(boldOnly), draw(TextAttributeList()));
}

TEST_F(CaptionTest, ExportStreamsLinesBreaksAndStyles) {
    TextAttributeList none, boldToEnd, italicInside;
    boldToEnd.addFontWeightAttribute(Range(3, 5), 700);
    italicInside.addFontItalicAttribute(Range(2, 4), 1);
    struct Case {
        char const *name;
        std::string text;
        TextAttributeList const *attributes;
        std::vector<int> indexes;
        std::vector<std::string> calls;
    } const cases[] = {
        {"line feed", "ab\ncd", &none, {0, 3, 5}, {"text 0 ab", "break 3 hard", "text 3 cd"}},
        {"carriage return and line feed", "ab\r\ncd", &none, {0, 4, 6}, {"text 0 ab", "break 4 hard", "text 4 cd"}},
        {"carriage return alone", "ab\rxcd", &none, {0, 4, 6}, {"text 0 ab\rx", "break 4 hard", "text 4 cd"}},
        {"soft wrap keeps its blank",
         "hello world",
         &none,
         {0, 6, 11},
         {"text 0 hello ", "break 6 soft", "text 6 world"}},
        {"bold closed at the end", "ab cd", &boldToEnd, {0, 5}, {"text 0 ab ", "bold 3 on", "text 3 cd", "bold 5 off"}},
        {"italic splits a line",
         "abcdef",
         &italicInside,
         {0, 6},
         {"text 0 ab", "italic 2 on", "text 2 cd", "italic 4 off", "text 4 ef"}},
        {"only the leading 0", "abc", &none, {0}, {}},
        {"no indexes", "abc", &none, {}, {}},
        {"past the text", "abcdef", &none, {0, 100}, {"text 0 abcdef"}},
        {"out of order", "abcdef", &none, {4, 2}, {"text 0 abcd", "break 4 soft", "text 4 "}},
        {"negative", "abcdef", &none, {-3, 2}, {"text 0 ", "break 0 soft", "text 0 ab"}},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        Recorder recorder;
        Caption::ExportText(recorder, k.text, *k.attributes, k.indexes);
        EXPECT_EQ(recorder.calls, k.calls);
    }
}

TEST_F(CaptionTest, HostileInputDrawsWrapsAndExportsWithoutFault) {
    double const nan = std::nan("");
    struct Case {
        char const *name;
        std::function<void(CaptionProperties &, double &margin)> change;
    } const cases[] = {
        {"invalid UTF-8", [](CaptionProperties &p, double &) { p.text = "\xFF\xFE ab\xC3 \xE2\x82 cd\xC3"; }},
        {"font size 0", [](CaptionProperties &p, double &) { p.fontSize = 0; }},
        {"negative font size", [](CaptionProperties &p, double &) { p.fontSize = -40; }},
        {"huge font size", [](CaptionProperties &p, double &) { p.fontSize = 3000000; }},
        {"NaN colours",
         [nan](CaptionProperties &p, double &) {
             p.textColor = p.backgroundColor = p.outlineColor = Color(nan, nan, nan, nan);
             p.outlineWidth = nan;
         }},
        {"NaN margin", [nan](CaptionProperties &, double &m) { m = nan; }},
        {"huge margin", [](CaptionProperties &, double &m) { m = 1e300; }},
        {"negative margin", [](CaptionProperties &, double &m) { m = -30; }},
        {"NaN rect", [nan](CaptionProperties &p, double &) { p.rect = Rect(nan, 0, 100, nan); }},
        {"far rect", [](CaptionProperties &p, double &) { p.rect = Rect(-1e300, -1e300, 1e300, 1e300); }},
        {"a megabyte", [](CaptionProperties &p, double &) { p.text = std::string(1 << 20, 'x'); }},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        CaptionProperties p = props("Some words to wrap\nand more", Rect(0, 0, 120, 60), 2);
        p.backgroundColor = Color(0, 0, 0, 0.5f);
        p.outlineColor = Color(1, 1, 1);
        p.outlineWidth = 3;
        double margin = 5;
        k.change(p, margin);
        Caption caption(p, TextAttributeList(), margin);
        Canvas canvas(120, 60);
        caption.DrawIntoContext(&canvas.context);
        std::vector<int> indexes = caption.GetWordWrapUTF8Indexes();
        EXPECT_FALSE(indexes.empty());
        EXPECT_GE(caption.SplitUTF8Index(), -1);
        EXPECT_LE(caption.SplitUTF8Index(), int(p.text.size()));
        caption.GetWordWrapCharacterIndexes();
        caption.SplitCharacterIndex();
        Recorder recorder;
        Caption::ExportText(recorder, p.text, TextAttributeList(), indexes);
    }
}

} // namespace
