// The cairo context's text operations: the text, the selection or caret, the
// misspelling marks, and four plain layout operations.
#include "drawing/BoundsFinder.h"
#include "drawing/CrossPlatformDrawingContextImpl.h"
#include "text/TextLayout.h"
#include "values/Rounding.h"

#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/text/UTF8StringUtil.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Vantrel {

namespace {

// Clip to the box, build the layout and move into its space (flips about the
// box's centre, its rounded corner, the alignment offsets, which are
// returned). A transparent source stays current: text without a colour
// attribute paints nothing. The caller restores the context.
PangoLayout *prepareText(cairo_t *cr, TextCalloutProperties const &properties, TextAttributeList const &attributes,
                         Point *offset) {
    Rect const &r = properties.textRect;
    cairo_save(cr);
    cairo_set_source_rgba(cr, 0, 0, 0, 0);
    cairo_paint_with_alpha(cr, 0.0);
    cairo_rectangle(cr, roundedCoordinate(r.Left()), roundedCoordinate(r.Top()), wholePixelWidth(r),
                    wholePixelHeight(r));
    cairo_clip(cr);
    if (PathState *paths = CairoUtil::pathState(cr))
        paths->reach.clear(); // the clip took the path
    PangoLayout *layout = buildTextLayout(properties, attributes, LayoutOptions().fitted(properties.resizesText()));
    if (layout) {
        cairo_matrix_t toDrawing;
        textLayoutMatrix(properties, &toDrawing, layout);
        cairo_transform(cr, &toDrawing);
        *offset = textAlignmentOffset(properties, layout);
    }
    return layout;
}

// Text preparation for one operation: the layout is released and the
// context restored when it goes.
class PreparedText {
public:
    PreparedText(cairo_t *cr_, TextCalloutProperties const &properties, TextAttributeList const &attributes)
        : cr(cr_), layout(prepareText(cr_, properties, attributes, &offset)) {}
    ~PreparedText() {
        if (layout)
            g_object_unref(layout);
        cairo_restore(cr);
    }
    PreparedText(PreparedText const &) = delete;
    PreparedText &operator=(PreparedText const &) = delete;

    cairo_t *cr;
    Point offset;
    PangoLayout *layout;
};

void setSource(cairo_t *cr, Color const &c) { CairoUtil::setSourceColor(cr, c); }

// A range of characters cut to the text: offsets past its end, or before its
// start, would otherwise ask pango about positions that do not exist.
Range charactersWithin(std::string const &text, Range r) {
    int length = UTF8StringUtil::length(text);
    return Range(std::max(0, std::min(r.start(), length)), std::max(0, std::min(r.end(), length)));
}

void fillMetadata(PangoLayout *layout, Point offset, DrawOutputMetaData *metadata) {
    metadata->clusterRects.clear();
    metadata->clusterBaselines.clear();
    pango_layout_get_pixel_size(layout, &metadata->layoutWidth, &metadata->layoutHeight);
    PangoLayoutIter *it = pango_layout_get_iter(layout);
    if (!it)
        return;
    do {
        PangoRectangle ink;
        pango_layout_iter_get_cluster_extents(it, &ink, nullptr);
        pango_extents_to_pixels(nullptr, &ink);
        // Sums in double: a far position plus a wide extent may pass the int range.
        double const x = ink.x + offset.x, y = ink.y + offset.y;
        metadata->clusterRects.push_back(Rect(x, y, x + double(ink.width), y + double(ink.height)));
        metadata->clusterBaselines.push_back(
            saturatingRound(pango_units_to_double(pango_layout_iter_get_baseline(it)) + offset.y));
    } while (pango_layout_iter_next_cluster(it));
    pango_layout_iter_free(it);
}

} // namespace

void CrossPlatformDrawingContext::DrawTextW(TextCalloutProperties const &properties,
                                            TextAttributeList const &attributes, DrawOutputMetaData *metadata) {
    PreparedText prepared(impl->cr, properties, attributes);
    if (!prepared.layout)
        return;
    pango_cairo_show_layout(impl->cr, prepared.layout);
    if (metadata)
        fillMetadata(prepared.layout, prepared.offset, metadata);
}

void CrossPlatformDrawingContext::DrawTextSelection(TextCalloutProperties const &properties,
                                                    TextAttributeList const &attributes, Range const &selection,
                                                    Color const &selectionColor, Color const &caretColor) {
    PreparedText prepared(impl->cr, properties, attributes);
    if (!prepared.layout)
        return;
    cairo_t *cr = impl->cr;
    PangoLayout *layout = prepared.layout;
    std::string const &text = properties.text;
    Range chosen = charactersWithin(text, selection.normalized());
    if (chosen.length() < 1) {
        PangoRectangle strong;
        pango_layout_get_cursor_pos(layout, UTF8StringUtil::byteOffsetFromCharacterOffset(text, chosen.start()),
                                    &strong, nullptr);
        setSource(cr, caretColor);
        cairo_rectangle(cr, pango_units_to_double(strong.x), pango_units_to_double(strong.y), 2.0,
                        pango_units_to_double(strong.height));
        cairo_fill(cr);
    } else {
        // Positions in 64 bits: the line spacing may be as large as an int
        // holds, and a band reaches half of it beyond its line.
        struct Band {
            int64_t x, y, width, height;
        };
        int64_t const spacing = pango_layout_get_spacing(layout), half = spacing / 2;
        auto band = [&](Band const &p) {
            cairo_rectangle(cr, double(p.x) / PANGO_SCALE, double(p.y - half) / PANGO_SCALE,
                            double(p.width) / PANGO_SCALE, double(p.height + spacing) / PANGO_SCALE);
        };
        std::vector<Band> runs;
        for (int i = chosen.start(); i < chosen.end(); ++i) {
            PangoRectangle index;
            pango_layout_index_to_pos(layout, UTF8StringUtil::byteOffsetFromCharacterOffset(text, i), &index);
            Band const pos{index.x, index.y, index.width, index.height};
            setSource(cr, selectionColor);
            band(pos);
            cairo_fill(cr);
            bool merged = false;
            for (Band &r : runs) {
                if (r.y != pos.y || r.height != pos.height)
                    continue;
                if (r.x + r.width == pos.x) {
                    r.width += pos.width;
                } else if (pos.x + pos.width == r.x) {
                    r.x = pos.x;
                    r.width += pos.width;
                } else if (!(pos.x >= r.x && pos.x + pos.width <= r.x + r.width)) {
                    continue;
                }
                merged = true;
                break;
            }
            if (!merged)
                runs.push_back(pos);
        }
        setSource(cr, Color(0, 0, 0, selectionColor.alpha));
        for (Band const &r : runs) {
            band(r);
            cairo_stroke(cr);
        }
    }
}

void CrossPlatformDrawingContext::DrawMisspelledRanges(TextCalloutProperties const &properties,
                                                       TextAttributeList const &attributes,
                                                       std::vector<Range> const &ranges, Color const &color) {
    PreparedText prepared(impl->cr, properties, attributes);
    if (!prepared.layout)
        return;
    cairo_t *cr = impl->cr;
    PangoLayout *layout = prepared.layout;
    std::string const &text = properties.text;
    double startX = 0, endX = 0, lineBaseline = 0, height = 0, drop = 0;
    auto strokeSegment = [&]() {
        double lineWidth = std::fmax(2.0, height * 0.0625);
        double const dashes[] = {1.0, lineWidth * 2.0};
        cairo_set_dash(cr, dashes, 2, 0.0);
        cairo_set_line_width(cr, lineWidth);
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_SQUARE);
        double y = drop * 0.5 + lineBaseline;
        cairo_move_to(cr, startX, y);
        cairo_line_to(cr, endX, y);
        cairo_stroke(cr);
    };
    for (Range const &given : ranges) {
        // A range without a character has no geometry to take: it draws nothing.
        Range range = charactersWithin(text, given);
        if (range.length() < 1)
            continue;
        startX = endX = lineBaseline = 0;
        for (int i = range.start(); i < range.end(); ++i) {
            int index = UTF8StringUtil::byteOffsetFromCharacterOffset(text, i);
            PangoRectangle pos;
            pango_layout_index_to_pos(layout, index, &pos);
            int line = 0, xPos = 0;
            pango_layout_index_to_line_x(layout, index, 0, &line, &xPos);
            PangoLayoutIter *it = pango_layout_get_iter(layout);
            for (int l = 0; l < line; ++l)
                pango_layout_iter_next_line(it);
            double baseline = pango_units_to_double(pango_layout_iter_get_baseline(it));
            pango_layout_iter_free(it);
            setSource(cr, color);
            double x = pango_units_to_double(pos.x), width = pango_units_to_double(pos.width);
            height = pango_units_to_double(pos.height);
            drop = height / 10.0;
            if (i == range.start()) {
                startX = x;
                lineBaseline = baseline;
            } else if (baseline != lineBaseline) {
                strokeSegment(); // the range goes on on a new line
                startX = x;
                lineBaseline = baseline;
            }
            endX = x + width;
        }
        strokeSegment();
    }
}

// The plain layout operations draw at the current point with the current
// source, on the thread that built the layout.
void CrossPlatformDrawingContext::DrawPangoLayout(PangoLayout *layout) { pango_cairo_show_layout(impl->cr, layout); }

void CrossPlatformDrawingContext::DrawPangoLayoutOutline(PangoLayout *layout) {
    pango_cairo_layout_path(impl->cr, layout);
    cairo_stroke(impl->cr);
}

void CrossPlatformDrawingContext::DrawPangoLayoutLine(PangoLayoutLine *line) {
    pango_cairo_show_layout_line(impl->cr, line);
}

void CrossPlatformDrawingContext::DrawPangoLayoutLineOutline(PangoLayoutLine *line) {
    pango_cairo_layout_line_path(impl->cr, line);
    cairo_stroke(impl->cr);
}

// For bounds, a text is its box: glyphs are not laid out, and overflow does not count.
void BoundsFinder::DrawTextW(TextCalloutProperties const &properties, TextAttributeList const &, DrawOutputMetaData *) {
    Fill(Color(1, 1, 1), Polygon(properties.textRect));
}

} // namespace Vantrel
