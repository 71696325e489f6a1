#include "editing/EditingLayout.h"

#include "text/TextLayout.h"

#include <vantrel/text/UTF8StringUtil.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <glib.h>
#include <vector>

namespace Vantrel {

namespace {

// Pixels to pango units, saturating short of the int range; NaN counts as 0.
int pangoUnits(double pixels) {
    double const limit = double(G_MAXINT / PANGO_SCALE - 1);
    if (!(pixels == pixels))
        return 0;
    return pango_units_from_double(std::max(-limit, std::min(pixels, limit)));
}

// The layout's own text: pango's byte indexes refer to it.
struct LayoutText {
    explicit LayoutText(PangoLayout *layout) : bytes(pango_layout_get_text(layout)), size(int(std::strlen(bytes))) {}
    // The byte at i, or 0 at and past the end.
    char at(int i) const { return i >= 0 && i < size ? bytes[i] : '\0'; }
    char const *bytes;
    int size;
};

// The byte index of a character offset, within the layout's text.
int byteIndex(LayoutText const &bytes, std::string const &text, int offset) {
    return std::min(UTF8StringUtil::byteOffsetFromCharacterOffset(text, offset), bytes.size);
}

struct LineSpan {
    int number, start, end; // bytes: end is start_index + length
    bool last;
};

// The line that holds the byte index, found as pango finds it for a leading edge.
LineSpan lineOf(PangoLayout *layout, LayoutText const &bytes, int index) {
    int number = 0;
    pango_layout_index_to_line_x(layout, index, FALSE, &number, nullptr);
    int const count = pango_layout_get_line_count(layout);
    number = std::max(0, std::min(number, count - 1));
    LineSpan span{number, 0, 0, number == count - 1};
    if (PangoLayoutLine *line = pango_layout_get_line_readonly(layout, number)) {
        span.start = std::max(0, std::min(line->start_index, bytes.size));
        span.end = std::max(span.start, std::min(int(int64_t(line->start_index) + line->length), bytes.size));
    }
    return span;
}

bool isSeparator(unsigned char lead) { return lead == ' ' || lead == '\n' || lead == '\r'; }

// The first byte of each character, as the offset conversions count them.
std::vector<unsigned char> leadBytes(std::string const &text) {
    size_t const count = size_t(UTF8StringUtil::length(text));
    std::vector<unsigned char> leads;
    leads.reserve(count);
    for (size_t pos = 0; pos < text.size() && leads.size() < count;
         pos += size_t(g_utf8_skip[static_cast<unsigned char>(text[pos])]))
        leads.push_back(static_cast<unsigned char>(text[pos]));
    return leads;
}

} // namespace

Point layoutPointForPoint(TextCalloutProperties const &properties, Rect const &trackingRect, PangoLayout *layout,
                          Point const &point) {
    Rect const &box = properties.textRect;
    int const width = wholePixelWidth(box), height = wholePixelHeight(box);
    Point const half(width / 2, height / 2);
    Point q = point - (box.topLeft - trackingRect.topLeft) - half;
    // Each flip undone by its own test, as painting applies each.
    if (properties.flipVertically)
        q.y = -q.y;
    if (properties.flipHorizontally)
        q.x = -q.x;
    if (properties.flipBoth)
        q = -q;
    Point p = q + half;
    p.x -= horizontalTextOffset(properties.horizontalAlignment, layout, double(width), properties.wordWrap);
    p.y -= verticalTextOffset(properties.verticalAlignment, layout, double(height));
    return p;
}

std::vector<bool> cursorStops(PangoLayout *layout, std::string const &text) {
    int const length = UTF8StringUtil::length(text);
    std::vector<bool> stops(size_t(length) + 1, true);
    LayoutText const bytes(layout);
    int attributeCount = 0;
    PangoLogAttr const *attributes = pango_layout_get_log_attrs_readonly(layout, &attributeCount);
    // pango numbers the characters of its own copy of the text; where that
    // copy and the text disagree on a character's start, the start is a stop.
    std::vector<int> pangoCharacterAt(size_t(bytes.size) + 1, -1);
    int n = 0;
    for (char const *p = bytes.bytes; p < bytes.bytes + bytes.size; p = g_utf8_next_char(p))
        pangoCharacterAt[size_t(p - bytes.bytes)] = n++;
    pangoCharacterAt[size_t(bytes.size)] = n;
    int byte = 0;
    for (int c = 0; c <= length; ++c) {
        if (byte <= bytes.size) {
            int const k = pangoCharacterAt[size_t(byte)];
            if (k >= 0 && k < attributeCount)
                stops[size_t(c)] = attributes[k].is_cursor_position;
        }
        if (c < length)
            byte += int(g_utf8_skip[static_cast<unsigned char>(text[size_t(byte)])]);
    }
    stops.front() = stops.back() = true;
    return stops;
}

int steppedToStop(std::vector<bool> const &stops, int offset, int d) {
    int64_t t = int64_t(offset) + d;
    int64_t const last = int64_t(stops.size()) - 1;
    int const step = d < 0 ? -1 : 1;
    while (d != 0 && t > 0 && t < last && !stops[size_t(t)])
        t += step;
    return int(std::max<int64_t>(INT32_MIN, std::min<int64_t>(INT32_MAX, t)));
}

int nearestStop(std::vector<bool> const &stops, int offset, int d) {
    if (offset <= 0 || size_t(offset) >= stops.size() || stops[size_t(offset)])
        return offset;
    return steppedToStop(stops, offset, d < 0 ? -1 : 1);
}

int characterAtLayoutPoint(PangoLayout *layout, std::string const &text, Point const &point) {
    LayoutText const bytes(layout);
    int const x = pangoUnits(point.x), y = pangoUnits(point.y);
    int index = 0, trailing = 0;
    pango_layout_xy_to_index(layout, x, y, &index, &trailing);
    index = std::max(0, std::min(index, bytes.size));
    bool const rightToLeft = UTF8StringUtil::isRightToLeftLanguage(text);
    PangoRectangle pos;
    pango_layout_index_to_pos(layout, index, &pos);
    std::vector<bool> const stops = cursorStops(layout, text);
    // The cluster clicked, from its start to the next stop.
    int before = nearestStop(stops, UTF8StringUtil::characterOffsetFromByteOffset(text, index), -1);
    LineSpan const line = lineOf(layout, bytes, index);
    // The blank at which a line wrapped: the click lands in front of it.
    if (index == line.end - 1 && bytes.at(index) == ' ' && bytes.at(line.end) != '\n' && !line.last)
        before = steppedToStop(stops, before, -1);
    int const after = steppedToStop(stops, before, 1);
    // A right-to-left character has a negative width, so the side of its
    // middle decides in both directions.
    int64_t const middle = int64_t(pos.x) + pos.width / 2;
    bool const pastMiddle = x > middle && x != 0;
    return pastMiddle != rightToLeft ? after : before;
}

int startOfLineOffset(PangoLayout *layout, std::string const &text, int offset) {
    LayoutText const bytes(layout);
    return UTF8StringUtil::characterOffsetFromByteOffset(text,
                                                         lineOf(layout, bytes, byteIndex(bytes, text, offset)).start);
}

int endOfLineOffset(PangoLayout *layout, std::string const &text, int offset) {
    LayoutText const bytes(layout);
    LineSpan const line = lineOf(layout, bytes, byteIndex(bytes, text, offset));
    // The character that holds the line's last byte.
    int const last = UTF8StringUtil::characterOffsetFromByteOffset(text, line.end) - 1;
    char const next = bytes.at(line.end);
    return next == '\r' || next == '\n' || line.last ? last + 1 : last;
}

int lineHeightAt(PangoLayout *layout, int n) {
    if (n < 0)
        return 0;
    PangoLayoutIter *it = pango_layout_get_iter(layout);
    int height = 0;
    bool found = true;
    for (int i = 0; i < n && found; ++i)
        found = pango_layout_iter_next_line(it);
    if (found) {
        int top = 0, bottom = 0;
        pango_layout_iter_get_line_yrange(it, &top, &bottom);
        height = bottom - top;
    }
    pango_layout_iter_free(it);
    return height;
}

namespace {

// The hit test a line's height above or below the caret's strong position.
int offsetBesideCaret(PangoLayout *layout, std::string const &text, int index, int64_t dy) {
    PangoRectangle strong;
    pango_layout_get_cursor_pos(layout, index, &strong, nullptr);
    return characterAtLayoutPoint(layout, text,
                                  Point(double(strong.x / PANGO_SCALE), double((strong.y + dy) / PANGO_SCALE)));
}

} // namespace

int lineAboveOffset(PangoLayout *layout, std::string const &text, int offset) {
    LayoutText const bytes(layout);
    int const index = byteIndex(bytes, text, offset);
    LineSpan const line = lineOf(layout, bytes, index);
    if (line.number == 0)
        return UTF8StringUtil::characterOffsetFromByteOffset(text, line.start);
    return offsetBesideCaret(layout, text, index, -int64_t(lineHeightAt(layout, line.number - 1)));
}

int lineBelowOffset(PangoLayout *layout, std::string const &text, int offset) {
    LayoutText const bytes(layout);
    int const index = byteIndex(bytes, text, offset);
    LineSpan const line = lineOf(layout, bytes, index);
    if (line.last)
        return endOfLineOffset(layout, text, offset);
    return offsetBesideCaret(layout, text, index, lineHeightAt(layout, line.number));
}

int wordEndOffset(std::string const &text, int offset) {
    std::vector<unsigned char> const leads = leadBytes(text);
    int const length = int(leads.size());
    if (offset >= length)
        return length;
    int pos = std::max(offset, 0);
    while (pos < length && isSeparator(leads[size_t(pos)]))
        ++pos;
    while (pos < length && !isSeparator(leads[size_t(pos)]))
        ++pos;
    return pos;
}

int wordStartOffset(std::string const &text, int offset) {
    std::vector<unsigned char> const leads = leadBytes(text);
    // The character at offset 0 is never looked at.
    int pos = std::min(offset, int(leads.size())) - 1;
    for (; pos >= 1 && isSeparator(leads[size_t(pos)]); --pos) {
    }
    for (; pos >= 1; --pos)
        if (isSeparator(leads[size_t(pos)]))
            return pos + 1;
    return 0;
}

Range caretMovedBy(Range const &selection, int d, std::vector<bool> const &stops) {
    int const s = selection.start(), e = selection.end();
    if (s != e) {
        int const t = d < 0 ? std::min(s, e) : std::max(s, e);
        return Range(t, t);
    }
    int const t = steppedToStop(stops, s, d);
    return Range(t, t);
}

Rect grownTextRect(Rect const &box, int width, int height) {
    double const w = box.Width(), h = box.Height();
    auto usable = [](double side) { return std::isfinite(side) && side > 0; };
    Point size;
    if (usable(w) && usable(h)) {
        double const factor = std::fmax(width / w, height / h);
        if (!(factor > 1.0))
            return box;
        size = Point(w * factor, h * factor);
    } else {
        size = Point(usable(w) ? std::fmax(w, width) : width, usable(h) ? std::fmax(h, height) : height);
        if (size.x == w && size.y == h)
            return box;
    }
    return Rect(-size.x * 0.5, -size.y * 0.5, size.x * 0.5, size.y * 0.5);
}

} // namespace Vantrel
