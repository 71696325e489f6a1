#include "text/AttributeListInvariant.h"

#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>
#include <pango/pango.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <random>
#include <string>

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

// The list's own invariant, checked after every edit.
void expectWellFormed(T const &list) { EXPECT_TRUE(verifyTextAttributeList(list)); }

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
    expectWellFormed(list);
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
    expectWellFormed(grow);
    EXPECT_EQ(rangesOf(grow, T::FontWeight), (std::vector<Range>{Range(0, 7)}));
    grow.extendAttributes(0, 2);
    expectWellFormed(grow);
    EXPECT_EQ(rangesOf(grow, T::FontWeight), (std::vector<Range>{Range(0, 9)}));

    // Unlisted types: font features stay through a shift, unshifted, and are lost by a removal.
    T features;
    features.addFontWeightAttribute(Range(0, 4), 700);
    PangoAttribute *liga = pango_attr_font_features_new("liga 0");
    liga->start_index = 0;
    liga->end_index = 4;
    features.addPangoAttribute(liga);
    features.shiftAllAttributesByOffset(3);
    expectWellFormed(features);
    EXPECT_EQ(rangesOf(features, T::FontWeight), (std::vector<Range>{Range(3, 7)}));
    size_t runs = features.attributeRuns().size();
    EXPECT_GE(runs, 3u); // the weight, and the features in two segments
    features.removeAttributes(0, 1);
    expectWellFormed(features);
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

namespace {

// What pango is handed: every attribute in order of start, none reversed.
// Lays the list out over a short text, as drawing would.
void layOut(T const &list) {
    PangoFonts::setLoadFallbackFonts(false);
    TextCalloutProperties p;
    p.text = "hostile ranges";
    p.textRect = Rect(0, 0, 60, 30);
    CrossPlatformDrawingContext::calculateDrawingDimensions(p, list);
}
} // namespace

TEST(TextAttributeList, ReversedAndNegativeRangesAreNormalised) {
    T sizes; // a reversed range used to reach pango and crash its next change
    sizes.addFontSizeAttribute(Range(2, 8), 12);
    sizes.addFontSizeAttribute(Range(2, 1), 20);
    EXPECT_EQ(rangesOf(sizes, T::FontSize), (std::vector<Range>{Range(1, 2), Range(2, 8)}));
    T names;
    names.addFontNameAttribute(Range(10, 20), "DejaVu Sans");
    names.addFontNameAttribute(Range(10, 5), "DejaVu Serif");
    EXPECT_EQ(rangesOf(names, T::FontFamily), (std::vector<Range>{Range(5, 10), Range(10, 20)}));
    T clamped;
    clamped.addFontWeightAttribute(Range(-5, 3), 700);
    clamped.addFontWeightAttribute(Range(), 400); // (-1, -1) is empty: adds nothing
    EXPECT_EQ(rangesOf(clamped, T::FontWeight), (std::vector<Range>{Range(0, 3)}));
    EXPECT_EQ(rangesOf(clamped.attributeListForSubRange(Range(2, -7)), T::FontWeight),
              (std::vector<Range>{Range(0, 2)}));

    // (position, length) edits: a negative position is 0, a length at or below 0 does nothing.
    T edits;
    edits.addFontWeightAttribute(Range(0, 8), 700);
    edits.extendAttributes(INT_MIN, 1);
    EXPECT_EQ(rangesOf(edits, T::FontWeight), (std::vector<Range>{Range(0, 9)}));
    edits.extendAttributes(4, -3);
    edits.removeAttributes(5, -2);
    EXPECT_EQ(rangesOf(edits, T::FontWeight), (std::vector<Range>{Range(0, 9)}));
    edits.removeAttributes(-4, 6); // removes bytes 0 and 1
    EXPECT_EQ(rangesOf(edits, T::FontWeight), (std::vector<Range>{Range(0, 7)}));

    // Colour channels outside 0..1 are cut to it.
    T colour;
    colour.addFGColorAttribute(Range(0, 1), Color(2.0f, -1.0f, std::nanf("")));
    EXPECT_EQ(T::valueOfPangoAttribute<Color>(first(colour, T::ForegroundColor)), Color(1, 0, 0, 1));
    expectWellFormed(sizes);
    expectWellFormed(names);
}

TEST(TextAttributeList, ShiftsKeepTheListOrdered) {
    // The fallback attribute is not listed and stays put; the weight moves past it.
    for (int offset : {1, -1, 1000, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(offset);
        T list;
        list.addFontWeightAttribute(Range(0, 8), 700);
        list.addFontFallbackAttribute(Range(0, 6), false);
        list.shiftAllAttributesByOffset(offset);
        expectWellFormed(list);
        layOut(list);
    }
    T list;
    list.addFontWeightAttribute(Range(0, 8), 700);
    list.shiftAllAttributesByOffset(-1); // a start at 0 stays there
    EXPECT_EQ(rangesOf(list, T::FontWeight), (std::vector<Range>{Range(0, 7)}));
    // Font scaling reads the private spacing type as a type number like any other.
    list.addCharacterSpacingAttribute(Range(0, 4), 0.2);
    list.addFontSizeAttribute(Range(0, 4), 20);
    T scaled = CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(list, 0.5);
    EXPECT_EQ(T::valueOfPangoAttribute<int>(first(scaled, T::FontSize)), 10);
}

// Any sequence of operations on any ranges leaves a list pango can use.
TEST(TextAttributeList, AnyEditSequenceStaysWellFormed) {
    std::mt19937 random(12);
    int const offsets[] = {INT_MIN, -7, -1, 0, 1, 2, 3, 5, 8, 13, 40, 1 << 30, INT_MAX};
    auto offset = [&]() {
        return random() % 3 == 0 ? offsets[random() % (sizeof offsets / sizeof *offsets)] : int(random() % 30);
    };
    // Every operation, on a range r; the unlisted font features stand for every
    // attribute type that pangoAttributes does not see.
    std::vector<std::function<void(T &, Range)>> const edits = {
        [&](T &l, Range r) { l.addFontSizeAttribute(r, 5 + random() % 30); },
        [&](T &l, Range r) { l.addFontWeightAttribute(r, random() % 2 ? 700 : 400); },
        [](T &l, Range r) { l.addFontFallbackAttribute(r, false); },
        [&](T &l, Range r) { l.addCharacterSpacingAttribute(r, 0.1 * (random() % 4)); },
        [](T &l, Range r) {
            PangoAttribute *features = pango_attr_font_features_new("liga 0");
            features->start_index = guint(r.start());
            features->end_index = guint(r.end());
            l.addPangoAttribute(features);
        },
        [](T &l, Range r) { l.extendAttributes(r.start(), r.end()); },
        [](T &l, Range r) { l.removeAttributes(r.start(), r.end()); },
        [](T &l, Range r) { l.shiftAllAttributesByOffset(r.start()); },
        [](T &l, Range r) { l = l.attributeListForSubRange(r); },
        [](T &l, Range r) { l = l.textAttributeListBySettingFontSize(9, r); },
        [](T &l, Range) { l.applyCharacterSpacing(); },
    };
    for (int sequence = 0; sequence < 150; ++sequence) {
        T list;
        std::string trail;
        for (int step = 0; step < 16; ++step) {
            Range r(offset(), offset());
            int operation = int(random() % edits.size());
            trail +=
                std::to_string(operation) + " (" + std::to_string(r.start()) + "," + std::to_string(r.end()) + ") ";
            edits[size_t(operation)](list, r);
            SCOPED_TRACE(trail);
            expectWellFormed(list);
            if (HasFailure())
                return;
        }
        layOut(list);
    }
}
