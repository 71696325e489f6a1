// The cairo state behind a CrossPlatformDrawingContext, shared with the
// parts of the context that live in other units (text, measuring).
#pragma once

#include <vantrel/drawing/CrossPlatformDrawingContext.h>

#include <cairo.h>

namespace Vantrel {

struct CrossPlatformDrawingContext::Impl {
    Bitmap *bitmap = nullptr; // not owned; null for a recording context
    cairo_surface_t *surface = nullptr;
    cairo_t *cr = nullptr;
};

namespace CairoUtil {

// cairo_set_source_rgba with NaN channels taken as 0, which cairo would turn
// into undefined conversions.
void setSourceColor(cairo_t *cr, Color const &c);
// A new linear pattern with the stops in stored order; the caller destroys it.
cairo_pattern_t *createPattern(GradientPattern const &pattern);
// Sets the dash of a style word for line width w. Words that are not style
// words leave the dash in force.
void applyStrokeStyle(cairo_t *cr, std::string const &style, double w);
// A line width cairo can use: non-finite or negative counts as 0, and widths
// are capped far beyond any drawable size, where cairo's pen would need an
// unbounded number of vertices.
double safeWidth(double w);
// Whether multiplying the current transform by a matrix of determinant det
// keeps it invertible in doubles. cairo refuses a transform that does not
// and stays in an error state for the rest of the context's life.
bool keepsInvertible(cairo_t *cr, double det);

} // namespace CairoUtil

} // namespace Vantrel
