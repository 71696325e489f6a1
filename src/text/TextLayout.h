// The one function that lays text out, and what is built on it.
//
// Threads: pango does not make a font map safe to share between threads, so
// each thread lays text out with a font map of its own (Fonts.h). A layout
// then belongs to the thread that built it: build, fit search, measuring,
// painting and release need no process-wide lock, and text work of different
// threads runs in parallel. What stays shared, the font search, the
// registration of font files and the memo sets, runs under the layout lock,
// which buildTextLayout takes for that part only; the font map mutex nests
// inside it. A layout must not be used, nor released, on another thread
// while the thread that built it may still do text work: its fonts live in
// that thread's font map.
#pragma once

#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>

#include <cairo.h>
#include <cmath>
#include <mutex>
#include <pango/pangocairo.h>

namespace Vantrel {

// Held by buildTextLayout around the font work only; never by its callers.
std::mutex &layoutLock();

// Builds the layout of the properties' text with the attributes: fonts made
// sure of, base direction from the first character, width and height of the
// box less margin, alignment, line spacing, the prepared attributes, all-caps
// on ASCII bytes, wrap, and with fitToBox the shrink to fit textRect. The
// caller owns the layout and releases it with g_object_unref on the same
// thread.
PangoLayout *buildTextLayout(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                             bool fitToBox, double margin, bool unlimitedHeight);

// The three choices of buildTextLayout by name, for the library's own calls:
// LayoutOptions().fitted().withMargin(2).ofBoxHeight() reads where
// (true, 2, false) does not. By default: not fitted, no margin, of
// unlimited height.
struct LayoutOptions {
    bool fitToBox = false;
    double margin = 0.0;
    bool unlimitedHeight = true;

    LayoutOptions fitted(bool fit = true) const {
        LayoutOptions o = *this;
        o.fitToBox = fit;
        return o;
    }
    LayoutOptions withMargin(double m) const {
        LayoutOptions o = *this;
        o.margin = m;
        return o;
    }
    // The height of the box less the margin; unlimited if unlimited is true.
    LayoutOptions ofBoxHeight(bool limited = true) const {
        LayoutOptions o = *this;
        o.unlimitedHeight = !limited;
        return o;
    }
};

inline PangoLayout *buildTextLayout(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                                    LayoutOptions const &options) {
    return buildTextLayout(properties, attributes, options.fitToBox, options.margin, options.unlimitedHeight);
}

// The scale at which the layout's text fits textRect, by eight rounds of
// bisection; 1 when resizeBehavior is not "resizeText".
double fontScaleForLayout(PangoLayout *layout, TextCalloutProperties const &properties,
                          TextAttributeList const &attributes);

// The private copy of a list that a layout is given: character spacing
// applied, ligatures on or off, attributes that reach the end of the text
// extended by one byte, font sizes held to 1/1024 .. kMaxLayoutFontSize
// points (a point is a pixel here), and every range on character boundaries
// (snapAttributesToCharacters).
constexpr int kMaxLayoutFontSize = 65535;
TextAttributeList prepareAttributesForLayout(TextAttributeList const &attributes,
                                             TextCalloutProperties const &properties);

// Byte offsets are never an error, but pango must not be given a range that
// starts or ends inside a character: its line breaking then writes past its
// own arrays. Every start and end of the list that falls inside a character
// of the text, as pango reads it, moves back to that character's start: a
// range from inside one character to inside another covers the first and
// not the second, the same rule for start and end. Offsets at or
// beyond the end of the text stay as they are.
void snapAttributesToCharacters(PangoAttrList *list, std::string const &text);

double horizontalTextOffset(TextHorizontalAlignment alignment, PangoLayout *layout, double boxWidth, bool wrapped);
double verticalTextOffset(TextVerticalAlignment alignment, PangoLayout *layout, double boxHeight);
// Where the layout sits in its box, by the alignments: the offset from the
// box's rounded origin.
Point textAlignmentOffset(TextCalloutProperties const &properties, PangoLayout *layout);
// The transformation from layout space to drawing space: flips about the
// box centre, the box's rounded origin, then the alignment offsets. Painting
// applies it; sprite sheets place their cells by it.
void textLayoutMatrix(TextCalloutProperties const &properties, cairo_matrix_t *matrix, PangoLayout *layout);

// Pango units to whole pixels, halves up, as PANGO_PIXELS rounds, but in
// double: a layout may be close to the largest int wide, and PANGO_PIXELS
// would overflow adding its half pixel.
inline int roundedPixels(int units) { return int(std::floor(pango_units_to_double(units) + 0.5)); }

// The box's whole-pixel size (floor) and rounded origin.
int wholePixelWidth(Rect const &r);
int wholePixelHeight(Rect const &r);
double roundedCoordinate(double v);

} // namespace Vantrel
