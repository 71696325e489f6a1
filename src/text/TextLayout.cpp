#include "text/TextLayout.h"

#include "text/Fonts.h"
#include "text/KeptLayout.h"

#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/text/UTF8StringUtil.h>

#include "values/Rounding.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace Vantrel {

std::mutex &layoutLock() {
    static std::mutex lock;
    return lock;
}

int wholePixelWidth(Rect const &r) { return r.IntWidth(); }
int wholePixelHeight(Rect const &r) { return r.IntHeight(); }
double roundedCoordinate(double v) { return std::round(v); }

namespace {

int const kUnlimited = 0x7fffffff;

PangoAlignment pangoAlignment(TextHorizontalAlignment a) {
    switch (int(a)) {
    case Center:
        return PANGO_ALIGN_CENTER;
    case Right:
        return PANGO_ALIGN_RIGHT;
    default:
        return PANGO_ALIGN_LEFT;
    }
}

PangoWrapMode pangoWrap(TextWrapMode m) {
    switch (int(m)) {
    case WrapChar:
        return PANGO_WRAP_CHAR;
    case WrapWordChar:
        return PANGO_WRAP_WORD_CHAR;
    default:
        return PANGO_WRAP_WORD;
    }
}

// The largest stored font size in the list, in points; 0 without one.
double maximumFontSize(TextAttributeList const &attributes) {
    double largest = 0.0;
    for (auto const &run : attributes.attributeRuns())
        if (TextAttributeList::typeOfPangoAttribute(run->attribute()) == TextAttributeList::FontSize)
            largest =
                std::fmax(largest, pango_units_to_double(reinterpret_cast<PangoAttrSize *>(run->attribute())->size));
    return largest;
}

// Pango units of a whole-pixel size. Sizes are held within a million pixels,
// well inside what pango's int units can take.
int units(int pixels) { return pango_units_from_double(double(std::max(-1000000, std::min(pixels, 1000000)))); }

bool fits(PangoLayout *layout, Rect const &box) {
    int width = 0, height = 0;
    pango_layout_get_pixel_size(layout, &width, &height);
    return double(wholePixelWidth(box)) >= width && double(wholePixelHeight(box)) >= height;
}

// Floors every listed font size and letter spacing scaled by scale, in place.
void scaleSizes(TextAttributeList &list, double scale) {
    for (PangoAttribute *a : list.pangoAttributes()) {
        TextAttributeList::AttributeType type = TextAttributeList::typeOfPangoAttribute(a);
        if (type == TextAttributeList::FontSize)
            reinterpret_cast<PangoAttrSize *>(a)->size =
                saturatingInt(std::floor(reinterpret_cast<PangoAttrSize *>(a)->size * scale));
        else if (type == TextAttributeList::LetterSpacing)
            reinterpret_cast<PangoAttrInt *>(a)->value =
                saturatingInt(std::floor(reinterpret_cast<PangoAttrInt *>(a)->value * scale));
    }
}

// Where pango's copy of the text begins a character: pango reads the text
// up to its first zero byte and makes every byte that is not part of valid
// UTF-8 a character of its own. starts[i] for 0 <= i <= the length it reads.
std::vector<bool> pangoCharacterStarts(std::string const &text) {
    size_t const length = std::strlen(text.c_str());
    std::vector<bool> starts(length + 1, false);
    char const *const begin = text.c_str();
    size_t pos = 0;
    while (pos < length) {
        char const *end = nullptr;
        g_utf8_validate(begin + pos, gssize(std::min(length - pos, size_t(G_MAXSSIZE))), &end);
        size_t const valid = size_t(end - begin);
        for (; pos < valid; pos = size_t(g_utf8_next_char(begin + pos) - begin))
            starts[pos] = true;
        if (pos < length) // an invalid byte, a character by itself
            starts[pos++] = true;
    }
    starts[length] = true;
    return starts;
}

// Moves an offset inside a character back to that character's start.
guint snappedOffset(std::vector<bool> const &starts, guint offset) {
    if (offset >= starts.size())
        return offset; // at or beyond the end of what pango reads
    while (offset > 0 && !starts[offset])
        --offset;
    return offset;
}

gboolean snapAttributeToCharacters(PangoAttribute *attribute, gpointer data) {
    std::vector<bool> const &starts = *static_cast<std::vector<bool> const *>(data);
    attribute->start_index = snappedOffset(starts, attribute->start_index);
    attribute->end_index = snappedOffset(starts, attribute->end_index);
    return FALSE; // keeps every attribute
}

} // namespace

void snapAttributesToCharacters(PangoAttrList *list, std::string const &text) {
    std::vector<bool> const starts = pangoCharacterStarts(text);
    // Snapping is monotonic, so the list's order by start stays as it is.
    pango_attr_list_filter(list, snapAttributeToCharacters, const_cast<std::vector<bool> *>(&starts));
}

TextAttributeList prepareAttributesForLayout(TextAttributeList const &attributes,
                                             TextCalloutProperties const &properties) {
    TextAttributeList prepared(attributes);
    prepared.applyCharacterSpacing();
    prepared.addPangoAttribute(pango_attr_font_features_new(properties.ligatures ? "liga 1" : "liga 0"));
    guint const size = guint(properties.text.size());
    for (PangoAttribute *a : prepared.pangoAttributes()) {
        if (a->end_index == size)
            a->end_index = size + 1;
        // cairo makes no font of a size of 0 or below, nor FreeType one above
        // 65535 pixels; the error font it hands out instead draws nothing and
        // is never released.
        TextAttributeList::AttributeType type = TextAttributeList::typeOfPangoAttribute(a);
        if (type == TextAttributeList::FontSize || type == TextAttributeList::AbsoluteSize) {
            int &units = reinterpret_cast<PangoAttrSize *>(a)->size;
            units = std::max(1, std::min(units, kMaxLayoutFontSize * PANGO_SCALE));
        }
    }
    snapAttributesToCharacters(prepared.pangoAttrList(), properties.text);
    return prepared;
}

PangoLayout *buildTextLayout(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                             bool fitToBox, double margin, bool unlimitedHeight) {
    Rect const box = properties.textRect.Expanded(-margin);
    releaseLayoutsSentHome();
    PangoContext *context;
    {
        // The font search and the font maps are shared; the rest is the thread's own.
        std::lock_guard<std::mutex> guard(layoutLock());
        loadFallbackFonts(fontSearchFolders());
        loadFontsOfAttributes(attributes);
        context = pango_font_map_create_context(fontMap());
    }

    PangoDirection direction =
        UTF8StringUtil::isRightToLeftLanguage(properties.text) ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR;
    pango_context_set_base_dir(context, direction);
    PangoLayout *layout = pango_layout_new(context);

    pango_layout_set_width(layout, units(wholePixelWidth(box)));
    pango_layout_set_height(layout, unlimitedHeight ? kUnlimited : units(wholePixelHeight(box)));
    pango_layout_set_alignment(layout, pangoAlignment(properties.horizontalAlignment));
    pango_layout_set_spacing(layout,
                             saturatingInt(maximumFontSize(attributes) * properties.verticalSpace * PANGO_SCALE));

    TextAttributeList prepared = prepareAttributesForLayout(attributes, properties);
    pango_layout_set_attributes(layout, prepared.pangoAttrList());

    // Capitals on ASCII bytes only, so that every byte offset stays valid.
    std::string text = properties.text;
    if (properties.allCaps)
        for (char &c : text)
            if (c >= 'a' && c <= 'z')
                c = char(c - 'a' + 'A');
    pango_layout_set_text(layout, text.data(), int(std::min(text.size(), size_t(kUnlimited))));

    if (properties.wordWrap)
        pango_layout_set_wrap(layout, pangoWrap(properties.wrapMode));
    else
        pango_layout_set_width(layout, -1);

    if (fitToBox && !fits(layout, properties.textRect)) {
        double scale = fontScaleForLayout(layout, properties, prepared);
        TextAttributeList scaled = CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(prepared, scale);
        pango_layout_set_attributes(layout, scaled.pangoAttrList());
    }
    g_object_unref(context);
    return layout;
}

double fontScaleForLayout(PangoLayout *layout, TextCalloutProperties const &properties,
                          TextAttributeList const &attributes) {
    if (!properties.resizesText())
        return 1.0;
    PangoLayout *trialLayout = pango_layout_copy(layout);
    pango_layout_set_height(trialLayout, kUnlimited);
    TextAttributeList base = prepareAttributesForLayout(attributes, properties);
    pango_layout_set_attributes(trialLayout, base.pangoAttrList());
    double scale = 1.0, step = 0.5, best = 1.0;
    bool found = false;
    for (int round = 0; round < 8; ++round) {
        TextAttributeList trial(base);
        scaleSizes(trial, scale);
        pango_layout_set_attributes(trialLayout, trial.pangoAttrList());
        if (fits(trialLayout, properties.textRect)) {
            best = scale;
            found = true;
            scale = std::fmin(step + scale, 1.0);
        } else {
            scale = scale - step;
        }
        step = step * 0.5;
    }
    g_object_unref(trialLayout);
    return found ? best : scale;
}

double horizontalTextOffset(TextHorizontalAlignment alignment, PangoLayout *layout, double boxWidth, bool wrapped) {
    if (wrapped)
        return 0.0;
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    double w = double(roundedPixels(logical.width));
    switch (int(alignment)) {
    case Center:
        return (boxWidth - w) * 0.5;
    case Right:
        return boxWidth - w;
    default:
        return 0.0;
    }
}

double verticalTextOffset(TextVerticalAlignment alignment, PangoLayout *layout, double boxHeight) {
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    double h = double(roundedPixels(logical.height));
    switch (int(alignment)) {
    case Top:
        return 0.0;
    case Bottom:
        return boxHeight - h;
    default:
        return (boxHeight - h) * 0.5;
    }
}

Point textAlignmentOffset(TextCalloutProperties const &properties, PangoLayout *layout) {
    Rect const &r = properties.textRect;
    return Point(
        horizontalTextOffset(properties.horizontalAlignment, layout, double(wholePixelWidth(r)), properties.wordWrap),
        verticalTextOffset(properties.verticalAlignment, layout, double(wholePixelHeight(r))));
}

void textLayoutMatrix(TextCalloutProperties const &properties, cairo_matrix_t *matrix, PangoLayout *layout) {
    Rect const &r = properties.textRect;
    Point const c = r.Center();
    cairo_matrix_init_identity(matrix);
    cairo_matrix_translate(matrix, c.x, c.y);
    if (properties.flipVertically)
        cairo_matrix_scale(matrix, 1, -1);
    if (properties.flipHorizontally)
        cairo_matrix_scale(matrix, -1, 1);
    if (properties.flipBoth)
        cairo_matrix_scale(matrix, -1, -1);
    cairo_matrix_translate(matrix, -c.x, -c.y);
    cairo_matrix_translate(matrix, roundedCoordinate(r.Left()), roundedCoordinate(r.Top()));
    Point const offset = textAlignmentOffset(properties, layout);
    cairo_matrix_translate(matrix, offset.x, offset.y);
}

// The queries: each builds a layout of the calling thread's font map and releases it.

Point CrossPlatformDrawingContext::calculateDrawingDimensions(TextCalloutProperties const &properties,
                                                              TextAttributeList const &attributes) {
    PangoLayout *layout = buildTextLayout(properties, attributes, LayoutOptions());
    int width = 0, height = 0;
    pango_layout_get_pixel_size(layout, &width, &height);
    g_object_unref(layout);
    return Point(width, height);
}

double CrossPlatformDrawingContext::calculateDrawingFontScale(TextCalloutProperties const &properties,
                                                              TextAttributeList const &attributes) {
    PangoLayout *layout = buildTextLayout(properties, attributes, LayoutOptions().fitted(properties.resizesText()));
    double scale = fontScaleForLayout(layout, properties, attributes);
    g_object_unref(layout);
    return scale;
}

TextAttributeList CrossPlatformDrawingContext::textAttributeListByApplyingFontScale(TextAttributeList const &attributes,
                                                                                    double scale) {
    TextAttributeList copy(attributes);
    scaleSizes(copy, scale);
    return copy;
}

} // namespace Vantrel
