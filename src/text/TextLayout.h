// The one function that lays text out, and what is built on it.
//
// Threads: pango does not make a font map safe to share between threads, and
// every layout shares the one process-wide font map. So the layout lock is
// held over every use of a layout, not only while it is built: build, fit
// search, measuring, painting and release all happen under it. Text work of
// different threads is therefore serialised; each thread keeps its own
// contexts and callouts. Locks are taken in this order and no other: the
// text drawing mutex (DrawTextW), the layout lock, the font map mutex.
#pragma once

#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>

#include <cairo.h>
#include <cmath>
#include <mutex>
#include <pango/pangocairo.h>

namespace Vantrel {

std::mutex &layoutLock();
std::mutex &textDrawingLock();

// Builds the layout of the properties' text with the attributes: fonts made
// sure of, base direction from the first character, width and height of the
// box less margin, alignment, line spacing, the prepared attributes, all-caps
// on ASCII bytes, wrap, and with fitToBox the shrink to fit textRect. The
// caller holds the layout lock, owns the layout and releases it with
// g_object_unref under the lock.
PangoLayout *buildTextLayout(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                             bool fitToBox, double margin, bool unlimitedHeight);

// The scale at which the layout's text fits textRect, by eight rounds of
// bisection; 1 when resizeBehavior is not "resizeText". Under the layout lock.
double fontScaleForLayout(PangoLayout *layout, TextCalloutProperties const &properties,
                          TextAttributeList const &attributes);

// The private copy of a list that a layout is given: character spacing
// applied, ligatures on or off, attributes that reach the end of the text
// extended by one byte, and font sizes held to 1/1024 .. kMaxLayoutFontSize
// points (a point is a pixel here).
constexpr int kMaxLayoutFontSize = 65535;
TextAttributeList prepareAttributesForLayout(TextAttributeList const &attributes,
                                             TextCalloutProperties const &properties);

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
