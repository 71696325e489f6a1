#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>
#include <pango/pango.h>

#include <algorithm>
#include <cmath>

using namespace Vantrel;
using T = TextAttributeList;

namespace {

// The listed attributes of one type, by range.
std::vector<Range> rangesOf(T const &list, T::AttributeType type) {
    std::vector<Range> out;
    for (PangoAttribute *a : list.pangoAttributes())
        if (T::typeOfPangoAttribute(a) == type)
            out.push_back(T::rangeOfPangoAttribute(a));
    std::sort(out.begin(), out.end(), [](Range a, Range b) { return a.start() < b.start(); });
    return out;
}

PangoAttribute *first(T const &list, T::AttributeType type) {
    for (PangoAttribute *a : list.pangoAttributes())
        if (T::typeOfPangoAttribute(a) == type)
            return a;
    return nullptr;
}

} // namespace

TEST(TextAttributeList, StorageUnitsAndValues) {
    T list;
    EXPECT_TRUE(list.pangoAttributes().empty());
    list.addFontSizeAttribute(Range(0, 5), 12.5);
    PangoAttribute *size = first(list, T::FontSize);
    ASSERT_NE(size, nullptr);
    EXPECT_EQ(reinterpret_cast<PangoAttrSize *>(size)->size, 12800);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(size), 12);
    EXPECT_THROW(T::valueOfPangoAttribute<std::string>(size), std::runtime_error);
    EXPECT_THROW(T::valueOfPangoAttribute<double>(size), std::runtime_error);
    EXPECT_THROW(T::valueOfPangoAttribute<long>(size), std::runtime_error);

    list.addFGColorAttribute(Range(0, 5), Color(1.0f, 0.5f, 0.0f, 0.2f));
    PangoAttribute *colour = first(list, T::ForegroundColor);
    EXPECT_EQ(reinterpret_cast<PangoAttrColor *>(colour)->color.red, 65535);
    EXPECT_EQ(reinterpret_cast<PangoAttrColor *>(colour)->color.green, 32767);
    EXPECT_EQ(T::valueOfPangoAttribute<Color>(colour), Color(1.0f, 32767 / 65535.0f, 0.0f, 1.0f));

    list.addFontNameAttribute(Range(0, 5), "DejaVu Sans");
    EXPECT_EQ(T::valueOfPangoAttribute<std::string>(first(list, T::FontFamily)), "DejaVu Sans");
    list.addFontItalicAttribute(Range(0, 2), 7);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(list, T::FontStyle)), PANGO_STYLE_ITALIC);
    list.addUnderlineAttribute(Range(0, 2), 3);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(list, T::Underline)), PANGO_UNDERLINE_SINGLE);
    list.addCharacterSpacingAttribute(Range(1, 4), 0.25);
    PangoAttribute *spacing = first(list, T::customCharacterSpacingType());
    ASSERT_NE(spacing, nullptr);
    EXPECT_TRUE(T::isCustomCharacterSpacingAttribute(spacing));
    EXPECT_EQ(T::valueOfPangoAttribute<double>(spacing), 0.25);
    EXPECT_THROW(T::valueOfPangoAttribute<int>(spacing), std::runtime_error);
    EXPECT_GT(int(T::customCharacterSpacingType()), int(T::GravityHint));

    PangoAttribute *language = pango_attr_language_new(pango_language_from_string("en"));
    language->start_index = 0;
    language->end_index = 3;
    list.addPangoAttribute(language);
    EXPECT_THROW(T::valueOfPangoAttribute<int>(first(list, T::Language)), std::runtime_error);

    EXPECT_EQ(TextAttributeListHelper::BoldToFontWeight(true), 700);
    EXPECT_TRUE(TextAttributeListHelper::FontWeightToBold(800));
    EXPECT_FALSE(TextAttributeListHelper::FontWeightToBold(699));
    EXPECT_EQ(TextAttributeListHelper::ToIntStrikethrought(true), 1);
    EXPECT_FALSE(TextAttributeListHelper::ToBoolItalic(0));
}

TEST(TextAttributeList, ChangeReplacesAndMerges) {
    T list;
    list.addFontWeightAttribute(Range(0, 10), 700);
    list.addFontWeightAttribute(Range(3, 6), 400); // replaces that part
    EXPECT_EQ(rangesOf(list, T::FontWeight), (std::vector<Range>{Range(0, 3), Range(3, 6), Range(6, 10)}));
    T spacing;
    spacing.addCharacterSpacingAttribute(Range(0, 5), 0.1);
    spacing.addCharacterSpacingAttribute(Range(5, 9), 0.1); // equal neighbours merge
    EXPECT_EQ(rangesOf(spacing, T::customCharacterSpacingType()), (std::vector<Range>{Range(0, 9)}));
    spacing.addCharacterSpacingAttribute(Range(9, 12), 0.3);
    EXPECT_EQ(rangesOf(spacing, T::customCharacterSpacingType()).size(), 2u);
}

TEST(TextAttributeList, EditsKeepRangesRight) {
    T list;
    list.addFontWeightAttribute(Range(0, 10), 700);
    list.addFontSizeAttribute(Range(6, 9), 20);
    list.addUnderlineAttribute(Range(3, 4), 1);
    list.removeAttributes(2, 3);
    EXPECT_EQ(rangesOf(list, T::FontWeight), (std::vector<Range>{Range(0, 7)}));
    EXPECT_EQ(rangesOf(list, T::FontSize), (std::vector<Range>{Range(3, 6)}));
    EXPECT_TRUE(rangesOf(list, T::Underline).empty() || rangesOf(list, T::Underline)[0] == Range(2, 2));

    T sub;
    sub.addFontWeightAttribute(Range(0, 7), 700);
    sub.addFontSizeAttribute(Range(7, 20), 11);
    sub.addUnderlineAttribute(Range(10, 12), 1);
    T part = sub.attributeListForSubRange(Range(5, 10));
    EXPECT_EQ(rangesOf(part, T::FontWeight), (std::vector<Range>{Range(5, 7)}));
    EXPECT_EQ(rangesOf(part, T::FontSize), (std::vector<Range>{Range(7, 10)}));
    EXPECT_TRUE(rangesOf(part, T::Underline).empty());

    T grow;
    grow.addFontWeightAttribute(Range(0, 5), 700);
    grow.extendAttributes(5, 2);
    EXPECT_EQ(rangesOf(grow, T::FontWeight), (std::vector<Range>{Range(0, 7)}));
    grow.extendAttributes(0, 2);
    EXPECT_EQ(rangesOf(grow, T::FontWeight), (std::vector<Range>{Range(0, 9)}));

    // Unlisted types: font features stay through a shift, unshifted, and are lost by a removal.
    T features;
    features.addFontWeightAttribute(Range(0, 4), 700);
    PangoAttribute *liga = pango_attr_font_features_new("liga 0");
    liga->start_index = 0;
    liga->end_index = 4;
    features.addPangoAttribute(liga);
    features.shiftAllAttributesByOffset(3);
    EXPECT_EQ(rangesOf(features, T::FontWeight), (std::vector<Range>{Range(3, 7)}));
    size_t runs = features.attributeRuns().size();
    EXPECT_GE(runs, 3u); // the weight, and the features in two segments
    features.removeAttributes(0, 1);
    for (auto const &run : features.attributeRuns())
        EXPECT_NE(run->attribute()->klass->type, PANGO_ATTR_FONT_FEATURES);

    // Editing an empty list leaves it empty; copies are deep.
    T empty;
    empty.removeAttributes(0, 5);
    empty.extendAttributes(3, 4);
    empty.shiftAllAttributesByOffset(2);
    EXPECT_TRUE(empty.pangoAttributes().empty());
    T copy = grow;
    copy.addFontWeightAttribute(Range(0, 9), 300);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(grow, T::FontWeight)), 700);
    T assigned;
    assigned = copy;
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(assigned, T::FontWeight)), 300);
    T sized = grow.textAttributeListBySettingFontSize(30, Range(0, 9));
    EXPECT_EQ(first(grow, T::FontSize), nullptr);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(sized, T::FontSize)), 30);
}

TEST(TextAttributeList, CharacterSpacingBecomesLetterSpacing) {
    T list;
    list.addFontSizeAttribute(Range(0, 10), 20);
    list.addCharacterSpacingAttribute(Range(5, 15), 0.1);
    list.addCharacterSpacingAttribute(Range(20, 30), 0.5); // no size beneath: none
    list.applyCharacterSpacing();
    std::vector<Range> spaced = rangesOf(list, T::LetterSpacing);
    ASSERT_EQ(spaced, (std::vector<Range>{Range(5, 10)}));
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(list, T::LetterSpacing)), 2048);
}

TEST(TextAttributeList, BadRangesAndTextSurvive) {
    T list;
    list.addFontSizeAttribute(Range(-5, 3), 1e300);
    list.addFontWeightAttribute(Range(10, 2), 700);
    list.addFontNameAttribute(Range(0, 1 << 30), "\xFF\xFE not utf-8");
    list.addCharacterSpacingAttribute(Range(-1, -1), std::nan(""));
    list.removeAttributes(-10, 5);
    list.extendAttributes(-4, -3);
    list.shiftAllAttributesByOffset(-100);
    list.attributeListForSubRange(Range(-3, 1 << 30));
    list.applyCharacterSpacing();
    list.attributeRuns();
    SUCCEED();
}
