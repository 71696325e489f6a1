#include "sprites/CharsLayout.h"

#include "text/CharacterSpacingAttribute.h"
#include "values/Rounding.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <cwctype>
#include <glib.h>
#include <limits>
#include <map>
#include <pango/pangocairo.h>
#include <tuple>

namespace Vantrel {

int CharsLayoutBitmap::addShape(cairo_t *context, Color const &color, Point const &scale) {
    auto path = std::make_shared<CairoPath>(context);
    if (path->isEmpty())
        return -1;
    path->replaceCurrentPath(context);
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    cairo_path_extents(context, &x1, &y1, &x2, &y2);
    // One pixel beyond the rounded ink on each side; saturated, so that a
    // shape of any size is measured without overflow and then fails to fit.
    shapes.push_back({path, color, scale, Rect(x1, y1, x2, y2), saturatingInt(std::floor(scale.x * x1) - 1),
                      saturatingInt(std::floor(scale.y * y1) - 1), saturatingInt(std::ceil(scale.x * x2) + 1),
                      saturatingInt(std::ceil(scale.y * y2) + 1)});
    return int(shapes.size() - 1);
}

int CharsLayoutBitmap::addOversizedShape(Color const &color, Point const &scale) {
    int const huge = std::numeric_limits<int>::max();
    shapes.push_back({nullptr, color, scale, Rect(), 0, 0, huge, huge});
    return int(shapes.size() - 1);
}

Rect CharsLayoutBitmap::shapeRect(int index) const {
    return index >= 0 && size_t(index) < shapes.size() ? shapes[size_t(index)].extents : Rect();
}

namespace {

int64_t widthOf(CharsLayoutBitmap::Shape const &s) { return std::llabs(int64_t(s.right) - s.left); }
int64_t heightOf(CharsLayoutBitmap::Shape const &s) { return std::llabs(int64_t(s.bottom) - s.top); }

// Rows from the left in the order of the shapes: calls place(shape, x, rowTop)
// for each and returns the sheet's height, or -1 when a shape is wider than size.
template <class Place>
int64_t packRows(std::vector<CharsLayoutBitmap::Shape> const &shapes, int64_t size, Place const &place) {
    int64_t x = 0, rowTop = 0, rowHeight = 0;
    for (CharsLayoutBitmap::Shape const &s : shapes) {
        int64_t const w = widthOf(s), h = heightOf(s);
        if (w > size)
            return -1;
        if (x + w > size) {
            rowTop += rowHeight;
            x = 0;
            rowHeight = 0;
        }
        place(s, x, rowTop);
        x += w;
        rowHeight = std::max(rowHeight, h);
    }
    return rowTop + rowHeight;
}

} // namespace

bool CharsLayoutBitmap::finishLayout(cairo_t *context) {
    // A shape larger than the largest sheet fits no trial; this also keeps
    // the areas below summed well within 64 bits.
    int64_t area = 0;
    for (Shape const &s : shapes) {
        if (widthOf(s) > maximumBitmapSize || heightOf(s) > maximumBitmapSize)
            return false;
        area += widthOf(s) * heightOf(s);
    }
    int64_t size = 32, height = -1;
    auto nothing = [](Shape const &, int64_t, int64_t) {};
    for (; size <= maximumBitmapSize; size *= 2) {
        if (size * size < area)
            continue;
        height = packRows(shapes, size, nothing);
        if (height >= 0 && height < 2 * size)
            break;
    }
    if (size > maximumBitmapSize || height > maximumBitmapSize || height < 0)
        return false;

    bitmap = std::make_shared<Bitmap>(int(size), int(height));
    bitmap->clear();
    packRows(shapes, size, [&](Shape const &s, int64_t x, int64_t rowTop) {
        int const w = int(widthOf(s)), h = int(heightOf(s));
        s.path->replaceCurrentPath(context);
        Bitmap cell(w, h);
        cell.clear();
        cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(cell.bitmapData()),
                                                                       CAIRO_FORMAT_ARGB32, w, h, cell.bytesPerRow());
        cairo_t *cr = cairo_create(surface);
        cairo_translate(cr, -s.left, -s.top);
        cairo_scale(cr, s.scale.x, s.scale.y);
        s.path->appendTo(cr);
        cairo_set_source_rgba(cr, s.color.red, s.color.green, s.color.blue, 1.0);
        cairo_fill(cr);
        cairo_destroy(cr);
        cairo_surface_destroy(surface);
        bitmap->copyFrom(cell, int(x), int(rowTop));
        cells.push_back({Rect(double(x), double(rowTop), double(x + w), double(rowTop + h)), Point(s.left, s.top)});
    });
    return true;
}

namespace {

// What makes two clusters look alike: font, colour, decoration and glyphs.
struct ShapeKey {
    uintptr_t font;
    uint32_t color;
    int flags;
    std::vector<std::array<int, 4>> glyphs; // id, width, x offset, y offset
    bool operator<(ShapeKey const &o) const {
        return std::tie(font, color, flags, glyphs) < std::tie(o.font, o.color, o.flags, o.glyphs);
    }
};

// The character offset of every byte of the text, as the offset conversions
// count them: a byte inside a character counts that character as begun.
std::vector<int> characterOffsets(char const *text, int size) {
    std::vector<int> offsets(size_t(size) + 1);
    int n = 0;
    for (int pos = 0; pos < size; ++n) {
        int const end = std::min(size, pos + int(g_utf8_skip[static_cast<unsigned char>(text[pos])]));
        offsets[size_t(pos)] = n;
        for (int b = pos + 1; b < end; ++b)
            offsets[size_t(b)] = n + 1;
        pos = end;
    }
    offsets[size_t(size)] = n;
    return offsets;
}

Rect scaled(PangoRectangle const &r, Point const &scale, Point const &origin) {
    double const x = pango_units_to_double(r.x), y = pango_units_to_double(r.y);
    return Rect(x * scale.x + origin.x, y * scale.y + origin.y,
                (x + pango_units_to_double(r.width)) * scale.x + origin.x,
                (y + pango_units_to_double(r.height)) * scale.y + origin.y);
}

// Whether the cluster's first character is white space, as its first UTF-16 code unit is.
bool startsWithSpace(char const *text, int start, int end) {
    if (end <= start)
        return false;
    gunichar const c = g_utf8_get_char_validated(text + start, end - start);
    if (c == gunichar(-1) || c == gunichar(-2) || c > 0xFFFF)
        return false; // no conversion, or a surrogate first
    return std::iswspace(wint_t(c)) != 0;
}

// An underline or strikethrough under a cluster of the given width: at
// position above the baseline, of thickness, both in pango units.
Rect decoration(double width, int position, int thickness) {
    double const top = -pango_units_to_double(position);
    return Rect(0, top, width, top + pango_units_to_double(thickness));
}

// Whether an outline within reach (relative to the cluster's origin,
// unscaled) stays inside cairo's coordinate range at this scale.
bool withinOutlineRange(Rect const &reach, Point const &scale) {
    double const x = std::fmax(std::fabs(reach.Left()), std::fabs(reach.Right())) * scale.x;
    double const y = std::fmax(std::fabs(reach.Top()), std::fabs(reach.Bottom())) * scale.y;
    return x <= kMaxOutlineCoordinate && y <= kMaxOutlineCoordinate; // false for NaN too
}

// What a run's attributes make of its clusters: colour and decorations,
// with the font's metrics for the decorations.
struct RunStyle {
    Color color;
    int underline = 0, strikethrough = 0;
    PangoFontMetrics *metrics = nullptr; // owned; only with a decoration

    explicit RunStyle(PangoItem const *item) {
        for (GSList *a = item->analysis.extra_attrs; a; a = a->next) {
            PangoAttribute *attribute = static_cast<PangoAttribute *>(a->data);
            int const type = attributeType(attribute); // registered types lie outside the enumeration
            if (type == PANGO_ATTR_UNDERLINE)
                underline = reinterpret_cast<PangoAttrInt *>(attribute)->value;
            else if (type == PANGO_ATTR_STRIKETHROUGH)
                strikethrough = reinterpret_cast<PangoAttrInt *>(attribute)->value;
            else if (type == PANGO_ATTR_FOREGROUND)
                color = Color::FromPango(reinterpret_cast<PangoAttrColor *>(attribute)->color);
        }
        if ((underline || strikethrough) && item->analysis.font)
            metrics = pango_font_get_metrics(item->analysis.font, item->analysis.language);
    }
    ~RunStyle() {
        if (metrics)
            pango_font_metrics_unref(metrics);
    }
    RunStyle(RunStyle const &) = delete;
    RunStyle &operator=(RunStyle const &) = delete;

    // The underline and strikethrough under a cluster of the given width.
    std::vector<Rect> decorations(double width) const {
        std::vector<Rect> out;
        if (strikethrough && metrics)
            out.push_back(decoration(width, pango_font_metrics_get_strikethrough_position(metrics),
                                     pango_font_metrics_get_strikethrough_thickness(metrics)));
        if (underline && metrics)
            out.push_back(decoration(width, pango_font_metrics_get_underline_position(metrics),
                                     pango_font_metrics_get_underline_thickness(metrics)));
        return out;
    }
};

// Refills key for a cluster of the run's font and style: one key serves every
// cluster, so that a known cluster costs a lookup and no allocation.
void fillKey(ShapeKey &key, PangoFont *font, RunStyle const &style, PangoGlyphString const &glyphs) {
    key.font = reinterpret_cast<uintptr_t>(font);
    key.color = style.color.ToPacked();
    key.flags = (style.underline ? 1 : 0) + (style.strikethrough ? 2 : 0);
    key.glyphs.clear();
    for (int g = 0; g < glyphs.num_glyphs; ++g) {
        PangoGlyphInfo const &glyph = glyphs.glyphs[g];
        key.glyphs.push_back(
            {int(glyph.glyph), glyph.geometry.width, glyph.geometry.x_offset, glyph.geometry.y_offset});
    }
}

// A new shape of the cluster's glyphs and decorations (width is the
// cluster's, unscaled), or one that fits no sheet if its outline would leave
// cairo's range at this scale.
int outlineCluster(CharsLayoutBase &chars, cairo_t *context, PangoFont *font, RunStyle const &style,
                   PangoGlyphString &glyphs, double width, Point const &scale, double bitmapScale) {
    std::vector<Rect> const decorations = style.decorations(width);
    Rect reach;
    if (font && glyphs.num_glyphs > 0) {
        PangoRectangle ink;
        pango_glyph_string_extents(&glyphs, font, &ink, nullptr);
        reach = Rect(pango_units_to_double(ink.x), pango_units_to_double(ink.y),
                     pango_units_to_double(ink.x + ink.width), pango_units_to_double(ink.y + ink.height));
    }
    for (Rect const &d : decorations)
        reach = Rect(std::fmin(reach.Left(), d.Left()), std::fmin(reach.Top(), d.Top()),
                     std::fmax(reach.Right(), d.Right()), std::fmax(reach.Bottom(), d.Bottom()));
    if (!withinOutlineRange(reach, scale))
        return chars.addOversizedShape(style.color, scale * bitmapScale);
    cairo_new_path(context);
    if (font && glyphs.num_glyphs > 0)
        pango_cairo_glyph_string_path(context, font, &glyphs);
    for (Rect const &d : decorations)
        cairo_rectangle(context, d.Left(), d.Top(), d.Width(), d.Height());
    return chars.addShape(context, style.color, scale * bitmapScale);
}

} // namespace

bool buildCharsLayout(CharsLayoutBase &chars, cairo_t *context, PangoLayout *layout, Point const &scale,
                      double bitmapScale, Point const &origin) {
    char const *text = pango_layout_get_text(layout);
    int const size = int(std::strlen(text));
    std::vector<int> const offsetOf = characterOffsets(text, size);
    auto characterAt = [&](int index) { return offsetOf[size_t(std::max(0, std::min(index, size)))]; };
    size_t const characters = size_t(offsetOf.back()) + 1;

    // Every character's logical rectangle, from a walk of the layout.
    std::vector<Rect> rectOf(characters);
    std::vector<bool> hasRect(characters, false);
    PangoLayoutIter *it = pango_layout_get_iter(layout);
    do {
        size_t const c = size_t(characterAt(pango_layout_iter_get_index(it)));
        PangoRectangle extents;
        pango_layout_iter_get_char_extents(it, &extents);
        rectOf[c] = scaled(extents, scale, origin);
        hasRect[c] = true;
    } while (pango_layout_iter_next_char(it));
    pango_layout_iter_free(it);

    // Words numbered in reading order, which is the text's own order: the
    // walk above visits a right-to-left run from its visual left, and the
    // end of a wrapped line twice, so numbers counted along it would run
    // backwards in Hebrew and Arabic and shift at every wrap.
    std::vector<int> wordOf(characters, -1);
    int word = -1;
    bool previousWasSpace = true;
    for (int pos = 0; pos < size; pos = std::min(size, pos + int(g_utf8_skip[static_cast<unsigned char>(text[pos])]))) {
        unsigned char const byte = static_cast<unsigned char>(text[pos]);
        bool const space = byte < 128 && std::isspace(byte);
        if (!space && previousWasSpace)
            ++word;
        previousWasSpace = space;
        wordOf[size_t(offsetOf[size_t(pos)])] = space ? -1 : word;
    }

    std::map<ShapeKey, int> shapeOfKey;
    ShapeKey key{};
    it = pango_layout_get_iter(layout);
    int lineIndex = 0;
    do {
        double const baselineY = pango_units_to_double(pango_layout_iter_get_baseline(it)) * scale.y + origin.y;
        PangoRectangle lineExtents;
        pango_layout_iter_get_line_extents(it, nullptr, &lineExtents);
        Rect const lineRect = scaled(lineExtents, scale, origin);
        int const firstItem = int(chars.items.size());
        double topmost = baselineY;
        PangoLayoutLine *line = pango_layout_iter_get_line_readonly(it);
        for (GSList *l = line ? line->runs : nullptr; l; l = l->next) {
            PangoGlyphItem *run = static_cast<PangoGlyphItem *>(l->data);
            int const base = characterAt(run->item->offset);
            PangoFont *font = run->item->analysis.font;
            RunStyle const style(run->item);
            PangoGlyphItemIter cluster;
            for (bool more = pango_glyph_item_iter_init_start(&cluster, run, text); more;
                 more = pango_glyph_item_iter_next_cluster(&cluster)) {
                bool const rightToLeft = cluster.end_glyph < cluster.start_glyph;
                int const first = rightToLeft ? cluster.end_glyph + 1 : cluster.start_glyph;
                int const count =
                    rightToLeft ? cluster.start_glyph - cluster.end_glyph : cluster.end_glyph - cluster.start_glyph;
                int const character = rightToLeft ? base + cluster.end_char - 1 : base + cluster.start_char;
                // A character without a rectangle ends the run.
                if (character < 0 || size_t(character) >= characters || !hasRect[size_t(character)])
                    break;
                Rect const rect = rectOf[size_t(character)];
                if (startsWithSpace(text, cluster.start_index, cluster.end_index) && !(rect.Width() > 0))
                    continue;
                PangoGlyphString view; // the cluster's glyphs, not copied
                view.num_glyphs = count;
                view.glyphs = run->glyphs->glyphs + first;
                view.log_clusters = run->glyphs->log_clusters + first;
                view.space = count;
                fillKey(key, font, style, view);
                auto known = shapeOfKey.find(key);
                int const shape = known != shapeOfKey.end()
                                      ? known->second
                                      : shapeOfKey
                                            .emplace(key, outlineCluster(chars, context, font, style, view,
                                                                         rect.Width() / scale.x, scale, bitmapScale))
                                            .first->second;
                if (shape < 0)
                    continue; // no outline, no item
                chars.items.push_back(
                    {shape, rect, wordOf[size_t(character)], lineIndex, Point(rect.Left(), baselineY)});
                topmost = std::min(topmost, baselineY + chars.shapeRect(shape).Top() * scale.y);
            }
        }
        chars.lines.push_back({lineRect, baselineY, topmost, firstItem, int(chars.items.size()) - firstItem});
        ++lineIndex;
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    return chars.finishLayout(context);
}

} // namespace Vantrel
