#include "support/TextSupport.h"

#include "text/TextLayout.h"

#include <cmath>

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

PangoLayout *layoutOf(TextCalloutProperties const &p, TextAttributeList const &a, bool fit) {
    return buildTextLayout(p, a, fit, 0, true);
}

} // namespace

TEST_F(TextTest, PropertiesDefaultsAndDirection) {
    TextCalloutProperties p;
    EXPECT_EQ(p.horizontalAlignment, Center);
    EXPECT_EQ(p.verticalAlignment, Middle);
    EXPECT_TRUE(p.wordWrap);
    EXPECT_TRUE(p.ligatures);
    EXPECT_EQ(p.resizeBehavior, "resizeText");
    EXPECT_EQ(p.wrapMode, WrapWord);
    TextCalloutProperties arabic("\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85", Rect(0, 0, 100, 50), false, true, false, false,
                                 false, Left, Top, 0, "resizeText", WrapWord, true);
    EXPECT_TRUE(arabic.isRightToLeft);
    PangoLayout *layout = layoutOf(arabic, attributes(arabic.text, 12), false);
    EXPECT_EQ(pango_context_get_base_dir(pango_layout_get_context(layout)), PANGO_DIRECTION_RTL);
    g_object_unref(layout);
}

TEST_F(TextTest, LineRanges) {
    TextCalloutProperties empty = box("", Rect(0, 0, 100, 50));
    EXPECT_EQ(TextCalloutUtil::lineRanges(empty, TextAttributeList()), (std::vector<Range>{Range(0, 0)}));
    EXPECT_EQ(TextCalloutUtil::calculateNumberOfPangoLayoutLines(empty, TextAttributeList()), 1);

    // Three words of two-byte letters, one per line: byte offsets.
    std::string text = "\xC3\xA9\xC3\xA9\xC3\xA9 \xC3\xA9\xC3\xA9\xC3\xA9 \xC3\xA9\xC3\xA9\xC3\xA9";
    TextCalloutProperties narrow = box(text, Rect(0, 0, 30, 400));
    narrow.resizeBehavior = "none";
    std::vector<Range> lines = TextCalloutUtil::lineRanges(narrow, attributes(text, 12));
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], Range(0, 7));
    EXPECT_EQ(lines[1], Range(7, 14));
    EXPECT_EQ(lines[2], Range(14, 20));
    // Without word wrap the box width plays no part.
    narrow.wordWrap = false;
    EXPECT_EQ(TextCalloutUtil::calculateNumberOfPangoLayoutLines(narrow, attributes(text, 12)), 1);
    EXPECT_GT(CrossPlatformDrawingContext::calculateDrawingDimensions(narrow, attributes(text, 12)).x, 30);
}

TEST_F(TextTest, SpacingAndPreparedAttributes) {
    std::string text = "ab cd";
    TextAttributeList a;
    a.addFontSizeAttribute(Range(0, 2), 10);
    a.addFontSizeAttribute(Range(2, 5), 20);
    a.addFontWeightAttribute(Range(0, 4), 700);
    TextCalloutProperties p = box(text, Rect(0, 0, 200, 100));
    p.verticalSpace = 0.5;
    PangoLayout *layout = layoutOf(p, a, true);
    EXPECT_EQ(pango_layout_get_spacing(layout), 10 * PANGO_SCALE);
    g_object_unref(layout);
    // Attributes that reach the end of the text cover one byte more; the source list stays as it was.
    TextAttributeList prepared = prepareAttributesForLayout(a, p);
    bool sawExtended = false;
    for (PangoAttribute *attribute : prepared.pangoAttributes()) {
        Range r = TextAttributeList::rangeOfPangoAttribute(attribute);
        EXPECT_NE(r.end(), 5);
        sawExtended = sawExtended || r.end() == 6;
    }
    EXPECT_TRUE(sawExtended);
    for (PangoAttribute *attribute : a.pangoAttributes())
        EXPECT_LE(TextAttributeList::rangeOfPangoAttribute(attribute).end(), 5);

    // Sizes cairo can make a font of: its error font for the others was never released.
    for (double points : {1e6, 0.0, -5.0}) {
        SCOPED_TRACE(points);
        TextAttributeList sized;
        sized.addFontSizeAttribute(Range(0, 5), points);
        TextAttributeList const held = prepareAttributesForLayout(sized, p);
        for (PangoAttribute *attribute : held.pangoAttributes())
            if (TextAttributeList::typeOfPangoAttribute(attribute) == TextAttributeList::FontSize) {
                EXPECT_EQ(reinterpret_cast<PangoAttrSize *>(attribute)->size,
                          points > 0 ? kMaxLayoutFontSize * PANGO_SCALE : 1);
            }
    }
}

TEST_F(TextTest, FitSearch) {
    std::string text = "The quick brown fox jumps over the lazy dog again and again";
    TextAttributeList a = attributes(text, 30);
    TextCalloutProperties fits = box(text, Rect(0, 0, 2000, 200));
    EXPECT_EQ(CrossPlatformDrawingContext::calculateDrawingFontScale(fits, a), 1.0);

    TextCalloutProperties tight = box(text, Rect(0, 0, 150, 60));
    double scale = CrossPlatformDrawingContext::calculateDrawingFontScale(tight, a);
    EXPECT_LT(scale, 1.0);
    EXPECT_EQ(scale * 128, std::floor(scale * 128)); // a point of the bisection
    Point at = CrossPlatformDrawingContext::calculateDrawingDimensions(
        tight, CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(a, scale));
    EXPECT_LE(at.x, 150);
    EXPECT_LE(at.y, 60);
    Point above = CrossPlatformDrawingContext::calculateDrawingDimensions(
        tight, CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(a, scale + 1.0 / 64));
    EXPECT_TRUE(above.x > 150 || above.y > 60);

    tight.resizeBehavior = "none";
    EXPECT_EQ(CrossPlatformDrawingContext::calculateDrawingFontScale(tight, a), 1.0);
    tight.resizeBehavior = "resizeText";
    TextAttributeList noSize;
    noSize.addFontNameAttribute(Range(0, int(text.size())), "DejaVu Sans");
    TextCalloutProperties tiny = box(text, Rect(0, 0, 3, 3));
    EXPECT_EQ(CrossPlatformDrawingContext::calculateDrawingFontScale(tiny, noSize), 0.00390625);

    // Applying a scale floors in pango units, on a copy.
    TextAttributeList sizes;
    sizes.addFontSizeAttribute(Range(0, 2), 12);
    sizes.addFontSizeAttribute(Range(2, 4), 12801.0 / PANGO_SCALE);
    TextAttributeList scaled = CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(sizes, 0.703125);
    std::vector<int> values;
    for (PangoAttribute *attribute : scaled.pangoAttributes())
        values.push_back(reinterpret_cast<PangoAttrSize *>(attribute)->size);
    std::sort(values.begin(), values.end());
    EXPECT_EQ(values, (std::vector<int>{8640, 9000}));
    for (PangoAttribute *attribute : sizes.pangoAttributes())
        EXPECT_GE(reinterpret_cast<PangoAttrSize *>(attribute)->size, 12288);
}

TEST_F(TextTest, OffsetsAndMatrix) {
    TextCalloutProperties p = box("Hi", Rect(10.4, 20.6, 110.9, 70.9));
    p.wordWrap = false;
    p.horizontalAlignment = Right;
    p.verticalAlignment = Bottom;
    PangoLayout *layout = layoutOf(p, attributes(p.text, 20), false);
    int w = 0, h = 0;
    pango_layout_get_pixel_size(layout, &w, &h);
    EXPECT_NEAR(horizontalTextOffset(Right, layout, 100, false), 100 - w, 1);
    EXPECT_EQ(horizontalTextOffset(Right, layout, 100, true), 0.0);
    EXPECT_NEAR(verticalTextOffset(Bottom, layout, 50), 50 - h, 1);
    EXPECT_NEAR(verticalTextOffset(TextVerticalAlignment(9), layout, 50), (50 - h) * 0.5, 1);
    cairo_matrix_t m;
    textLayoutMatrix(p, &m, layout);
    EXPECT_NEAR(m.x0, 10 + horizontalTextOffset(Right, layout, 100, false), 1e-9);
    EXPECT_NEAR(m.y0, 21 + verticalTextOffset(Bottom, layout, 50), 1e-9);
    p.flipHorizontally = true;
    textLayoutMatrix(p, &m, layout);
    EXPECT_EQ(m.xx, -1.0);
    g_object_unref(layout);
}
