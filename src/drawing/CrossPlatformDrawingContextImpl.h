// The cairo state behind a CrossPlatformDrawingContext, shared with the
// parts of the context that live in other units (text, measuring).
#pragma once

#include <vantrel/drawing/CrossPlatformDrawingContext.h>

#include <cairo.h>

namespace Vantrel {

// cairo keeps path coordinates in 24.8 fixed point: beyond about 8.4 million
// device units they wrap around, and what it draws or measures of such a
// path has nothing to do with the path. The context keeps, in doubles, the
// device-space box of the points it hands cairo for the current path, so
// that it knows when a path has gone that far.
struct PathReach {
    double left, top, right, bottom;
    PathReach() { clear(); }
    void clear();
    void add(double deviceX, double deviceY);
    bool empty() const { return !(left <= right); }
    // Beyond the extent within which the context trusts cairo's coordinates.
    bool far() const;
};

// What a context knows of its paths, reached from its cairo_t (see pathState).
struct PathState {
    PathReach reach;
    bool measuring = false; // a recording context, whose ink is measured
    // The ink of far paths in a measuring context: their boxes, grown by a
    // stroke's reach, in device space; cairo is not given them.
    PathReach farInk;
};

struct CrossPlatformDrawingContext::Impl {
    Bitmap *bitmap = nullptr; // not owned; null for a recording context
    cairo_surface_t *surface = nullptr;
    cairo_t *cr = nullptr;
    PathState paths;
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

// The path state of the context that owns cr; null for a cairo_t of no context.
PathState *pathState(cairo_t *cr);
// cairo_move_to, cairo_line_to and cairo_new_path, keeping the path's reach.
void moveTo(cairo_t *cr, double x, double y);
void lineTo(cairo_t *cr, double x, double y);
void newPath(cairo_t *cr);
// Adds the user-space box (x0, y0) .. (x1, y1) to the reach of the current path.
void noteUserBox(cairo_t *cr, double x0, double y0, double x1, double y1);
// Called just before cr fills (strokeReach 0) or strokes its current path.
// A far path in a measuring context is not painted: its box grown by
// strokeReach counts as ink instead and the path is dropped. Returns whether
// to paint; the reach is cleared either way, as the paint clears the path.
bool beginPaint(cairo_t *cr, double strokeReach);
// The reach of a stroke with the current line settings beyond its path:
// half the width, times the miter limit (or the square cap's diagonal).
double strokeReach(cairo_t *cr);

} // namespace CairoUtil

} // namespace Vantrel
