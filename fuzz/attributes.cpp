// Attribute ranges: a byte-coded program of TextAttributeList operations on
// any text, then a layout and a drawing of it. The list handed to pango stays
// ordered with no start after its end, and copies stay as they were made.
#include "FuzzCheck.h"

#include "text/AttributeListInvariant.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <pango/pango.h>

#include <cstdint>
#include <string>
#include <vector>

using namespace Vantrel;
using VantrelFuzz::offset;

namespace {

Range range(FuzzedDataProvider &in, int textSize) {
    int const a = offset(in, textSize);
    return Range(a, offset(in, textSize));
}

double number(FuzzedDataProvider &in) {
    if (in.ConsumeBool())
        return in.ConsumeIntegralInRange<int>(-2, 120);
    return in.ConsumeFloatingPoint<double>();
}

// Every attribute kind the list can hold: its own adds, and pango's other
// types handed over ready-made.
void add(TextAttributeList &list, FuzzedDataProvider &in, int textSize) {
    Range const r = range(in, textSize);
    int const kind = in.ConsumeIntegralInRange<int>(0, 20);
    int const i = in.ConsumeIntegralInRange<int>(-1, 1000);
    PangoAttribute *a = nullptr;
    switch (kind) {
    case 0:
        list.addFGColorAttribute(r, Color(float(number(in)), float(number(in)), float(number(in))));
        return;
    case 1: {
        // A few names: pango keeps every family name asked for as long as the
        // process, so random names would only measure that cache.
        char const *const families[] = {"DejaVu Sans", "DejaVu Sans Mono", "No Such Family", ""};
        list.addFontNameAttribute(r, families[in.ConsumeIntegralInRange<int>(0, 3)]);
        return;
    }
    case 2:
        list.addFontSizeAttribute(r, number(in));
        return;
    case 3:
        list.addFontWeightAttribute(r, i);
        return;
    case 4:
        list.addFontItalicAttribute(r, i);
        return;
    case 5:
        list.addUnderlineAttribute(r, i);
        return;
    case 6:
        list.addStrikethroughAttribute(r, i);
        return;
    case 7:
        list.addCharacterSpacingAttribute(r, number(in));
        return;
    case 8:
        list.addFontFallbackAttribute(r, in.ConsumeBool());
        return;
    case 9:
        a = pango_attr_language_new(pango_language_from_string(in.ConsumeBool() ? "ar" : "en"));
        break;
    case 10:
        a = pango_attr_variant_new(PangoVariant(in.ConsumeIntegralInRange<int>(0, 1)));
        break;
    case 11:
        a = pango_attr_stretch_new(PangoStretch(in.ConsumeIntegralInRange<int>(0, 8)));
        break;
    case 12:
        a = pango_attr_background_new(uint16_t(i), 0, 0);
        break;
    case 13:
        a = pango_attr_rise_new(i * 64);
        break;
    case 14:
        a = pango_attr_letter_spacing_new(i * 16);
        break;
    case 15:
        a = pango_attr_underline_color_new(0, uint16_t(i), 0);
        break;
    case 16:
        a = pango_attr_strikethrough_color_new(0, 0, uint16_t(i));
        break;
    case 17:
        a = pango_attr_size_new_absolute(in.ConsumeIntegralInRange<int>(0, 200) * PANGO_SCALE);
        break;
    case 18:
        a = pango_attr_gravity_new(PangoGravity(in.ConsumeIntegralInRange<int>(0, 3)));
        break;
    case 19:
        a = pango_attr_gravity_hint_new(PangoGravityHint(in.ConsumeIntegralInRange<int>(0, 2)));
        break;
    default:
        a = pango_attr_style_new(PangoStyle(in.ConsumeIntegralInRange<int>(0, 2)));
        break;
    }
    a->start_index = guint(offset(in, textSize));
    a->end_index = guint(offset(in, textSize));
    list.addPangoAttribute(a);
}

// Every attribute of the list pango gets, in its order: copies the caller frees.
std::vector<PangoAttribute *> listed(TextAttributeList const &list) {
    std::vector<PangoAttribute *> out;
    GSList *all = pango_attr_list_get_attributes(list.pangoAttrList());
    for (GSList *l = all; l; l = l->next)
        out.push_back(static_cast<PangoAttribute *>(l->data));
    g_slist_free(all);
    return out;
}

void release(std::vector<PangoAttribute *> const &attributes) {
    for (PangoAttribute *a : attributes)
        pango_attribute_destroy(a);
}

bool sameAttributes(TextAttributeList const &x, TextAttributeList const &y) {
    std::vector<PangoAttribute *> const a = listed(x), b = listed(y);
    bool same = a.size() == b.size();
    for (size_t k = 0; same && k < a.size(); ++k)
        same = a[k]->start_index == b[k]->start_index && a[k]->end_index == b[k]->end_index &&
               pango_attribute_equal(a[k], b[k]);
    release(a);
    release(b);
    return same;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    PangoFonts::setLoadFallbackFonts(false);
    FuzzedDataProvider in(data, size);
    std::string const text = in.ConsumeRandomLengthString(256);
    int const n = int(text.size());
    TextAttributeList list;
    list.addFontNameAttribute(Range(0, n), "DejaVu Sans");
    list.addFontSizeAttribute(Range(0, n), 12);
    // Each copy beside a second one made at the same moment: both must keep what the list held then.
    std::vector<std::pair<TextAttributeList, TextAttributeList>> copies;
    for (int step = 0; step < 48 && in.remaining_bytes() > 0; ++step) {
        switch (in.ConsumeIntegralInRange<int>(0, 8)) {
        case 0:
        case 1:
            add(list, in, n);
            break;
        case 2:
            list.extendAttributes(offset(in, n), offset(in, n));
            break;
        case 3:
            list.removeAttributes(offset(in, n), offset(in, n));
            break;
        case 4:
            list.shiftAllAttributesByOffset(offset(in, n));
            break;
        case 5:
            list = list.attributeListForSubRange(range(in, n));
            break;
        case 6:
            list = list.textAttributeListBySettingFontSize(number(in), range(in, n));
            break;
        case 7:
            if (copies.size() < 4)
                copies.emplace_back(list, list);
            break;
        default:
            list.applyCharacterSpacing();
            break;
        }
        VantrelFuzz::check(verifyTextAttributeList(list), "the list stays ordered by start, no start after its end");
    }
    for (auto const &c : copies)
        VantrelFuzz::check(sameAttributes(c.first, c.second), "copies stay as they were made");

    TextCalloutProperties properties;
    properties.text = text;
    properties.textRect = Rect(0, 0, 64, 64);
    VantrelFuzz::Canvas canvas;
    canvas.context.DrawTextW(properties, list, nullptr);
    (void)TextCalloutUtil::lineRanges(properties, list);
    return 0;
}
