// Attributes whose byte offsets fall inside characters, in every user of a
// layout. pango must only ever see ranges on character boundaries: given
// one inside a character its line breaking writes past its own arrays, and
// the indexes it hands back leave the text. This executable also runs with
// glibc's malloc checks (see CMakeLists.txt), which catch such a write.
#include "support/TextSupport.h"

#include "text/TextLayout.h"

#include <vantrel/Vantrel.h>

#include <glib.h>
#include <random>

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

// Words of several scripts, many of them of multi-byte characters that combine.
char const *const kWords[] = {
    "Hello",
    "caf\xC3\xA9",                                                              // café
    "\xE0\xB8\xAA\xE0\xB8\xA7\xE0\xB8\xB1\xE0\xB8\xAA\xE0\xB8\x94\xE0\xB8\xB5", // สวัสดี
    "\xE0\xB8\x94\xE0\xB9\x89\xE0\xB8\xA7\xE0\xB8\xA2",                         // ด้วย
    "\xED\x95\x9C\xEA\xB5\xAD\xEC\x96\xB4",                                     // 한국어
    "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",                                         // שלום
    "\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85",                                         // سلام
    "\xE0\xA4\xA8\xE0\xA4\xAE\xE0\xA4\xB8\xE0\xA5\x8D\xE0\xA4\xA4\xE0\xA5\x87", // नमस्ते
    "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7", // family emoji
    "\xF0\x9F\x87\xAB\xF0\x9F\x87\xB7",                                         // a flag
    "e\xCC\x81\xCC\x81",                                                        // e with two accents
};

std::string randomText(std::mt19937 &random) {
    std::string text;
    int const words = std::uniform_int_distribution<int>(1, 8)(random);
    for (int i = 0; i < words; ++i) {
        if (i > 0)
            text += random() % 5 == 0 ? "\n" : " ";
        text += kWords[random() % (sizeof kWords / sizeof *kWords)];
    }
    return text;
}

// Attributes of every kind a host sets, at byte offsets anywhere in and around the text.
TextAttributeList randomAttributes(std::string const &text, std::mt19937 &random) {
    TextAttributeList list = TextTest::attributes(text, 10 + double(random() % 20));
    int const size = int(text.size());
    auto offset = [&] { return std::uniform_int_distribution<int>(0, size + 2)(random); };
    for (int i = 0; i < 6; ++i) {
        int a = offset(), b = offset();
        Range r(std::min(a, b), std::max(a, b));
        switch (random() % 6) {
        case 0:
            list.addFontWeightAttribute(r, 700);
            break;
        case 1:
            list.addFontItalicAttribute(r, 1);
            break;
        case 2:
            list.addFontSizeAttribute(r, 6 + double(random() % 40));
            break;
        case 3:
            list.addUnderlineAttribute(r, 1);
            break;
        case 4:
            list.addCharacterSpacingAttribute(r, 0.1);
            break;
        default:
            list.addFGColorAttribute(r, Color(1, 0, 0));
            break;
        }
    }
    return list;
}

// Whether a byte offset lies in the text, on the start of a character or at its end.
::testing::AssertionResult onBoundary(std::string const &text, int offset) {
    if (offset < 0 || size_t(offset) > text.size())
        return ::testing::AssertionFailure() << offset << " is outside the text of " << text.size() << " bytes";
    for (char const *p = text.c_str(); p < text.c_str() + text.size(); p = g_utf8_next_char(p))
        if (p - text.c_str() == offset)
            return ::testing::AssertionSuccess();
    if (size_t(offset) == text.size())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << offset << " lies inside a character";
}

class OffsetsInsideCharacters : public TextTest {};

} // namespace

TEST_F(OffsetsInsideCharacters, LayoutsMeasuresCaptionsSessionsAndSheetsGiveBoundaries) {
    std::mt19937 random(20261124);
    for (int round = 0; round < 60; ++round) {
        std::string const text = randomText(random);
        TextAttributeList const attributes = randomAttributes(text, random);
        SCOPED_TRACE("round " + std::to_string(round) + ": " + text);
        double const width = 30 + double(random() % 200);
        TextCalloutProperties p = box(text, Rect(-width / 2, -40, width / 2, 40));
        p.wrapMode = TextWrapMode(random() % 3);

        for (Range const &line : TextCalloutUtil::lineRanges(p, attributes)) {
            EXPECT_TRUE(onBoundary(text, line.start()));
            EXPECT_TRUE(onBoundary(text, line.end()));
        }
        CrossPlatformDrawingContext::calculateDrawingDimensions(p, attributes);
        EXPECT_GT(CrossPlatformDrawingContext::calculateDrawingFontScale(p, attributes), 0.0);

        TextCallout callout(p.textRect);
        callout.setTextCalloutProperties(p);
        callout.setTextAttributeList(attributes);
        Bitmap bitmap(120, 100);
        bitmap.clear();
        CrossPlatformDrawingContext context(&bitmap);
        context.Translate(Point(60, 50));
        callout.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        callout.boundingRect();

        CaptionProperties cp;
        cp.text = text;
        cp.rect = Rect(0, 0, width, 60);
        cp.fontName = "DejaVu Sans";
        cp.fontSize = 14;
        cp.maxLines = int(random() % 4) - 1;
        Caption caption(cp, attributes, 2);
        for (int index : caption.GetWordWrapUTF8Indexes())
            EXPECT_TRUE(onBoundary(text, index));
        if (caption.SplitUTF8Index() >= 0) {
            EXPECT_TRUE(onBoundary(text, caption.SplitUTF8Index()));
        }
        caption.DrawIntoContext(&context);

        {
            TextEditingSession session(&callout, nullptr);
            session.handleMouseDown(Point(double(random() % 120), double(random() % 80)));
            session.moveSelectionRightAndModifySelection();
            session.moveSelectionDown();
            session.updateTextAndAttributes(text, attributes, random() % 2 == 0);
            session.moveSelectionToEndOfLine();
            int const characters = UTF8StringUtil::length(text);
            EXPECT_LE(session.selection().end(), characters);
        }

        std::shared_ptr<SpriteSheet> sheet =
            SpriteSheet::FromText(p, attributes, Point(1, 1), random() % 2 == 0, 0, true);
        for (SpriteSheetLineItem const &line : sheet->LineItems())
            EXPECT_LE(line.firstItem + line.itemCount, sheet->NumItems());
    }
}

TEST_F(OffsetsInsideCharacters, BoundaryInsideACharacterMovesToItsStart) {
    // 한국어 is three characters of three bytes each; bold over bytes 0 .. 4
    // is bold over the first character, the end moving back to 3.
    std::string const korean = "\xED\x95\x9C\xEA\xB5\xAD\xEC\x96\xB4";
    CaptionProperties cp;
    cp.text = korean;
    cp.rect = Rect(0, 0, 200, 100);
    cp.fontName = "DejaVu Sans";
    cp.fontSize = 20;
    TextAttributeList bold;
    bold.addFontWeightAttribute(Range(0, 4), 700);
    EXPECT_EQ(Caption(cp, bold, 0).GetWordWrapUTF8Indexes(), (std::vector<int>{0, 9}));
    cp.text = korean + korean + korean;
    cp.rect = Rect(0, 0, 60, 200);
    EXPECT_EQ(Caption(cp, bold, 0).GetWordWrapUTF8Indexes(), (std::vector<int>{0, 9, 18, 27}));

    TextAttributeList list = attributes(korean, 20);
    list.addFontSizeAttribute(Range(1, 4), 40);
    TextCalloutProperties p = box(korean, Rect(0, 0, 400, 100));
    PangoLayout *layout = buildTextLayout(p, list, false, 0, true);
    PangoAttrIterator *it = pango_attr_list_get_iterator(pango_layout_get_attributes(layout));
    std::vector<Range> sizes;
    do {
        int start = 0, end = 0;
        pango_attr_iterator_range(it, &start, &end);
        if (PangoAttribute *a = pango_attr_iterator_get(it, PANGO_ATTR_SIZE))
            if (reinterpret_cast<PangoAttrSize *>(a)->size == 40 * PANGO_SCALE)
                sizes.push_back(Range(start, std::min(end, 9)));
    } while (pango_attr_iterator_next(it));
    pango_attr_iterator_destroy(it);
    g_object_unref(layout);
    // Both ends moved back to the start of their character: (1, 4) became (0, 3).
    EXPECT_EQ(sizes, (std::vector<Range>{Range(0, 3)}));
}
