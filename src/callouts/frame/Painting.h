// The one paint rule of every filled callout: fill the outline by the fill
// style (a gradient over a rect for "gradient"), then stroke it when the
// stroke width is above 0. Outlines are polygons, paths or ellipses.
#pragma once

#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/drawing/DrawingContext.h>
#include <vantrel/geometry/Path.h>

#include <string>

namespace Vantrel {

// The ellipse inscribed in rect, as an outline.
struct EllipseOutline {
    Rect rect;
};

// The drawing calls of each kind of outline.
inline void fillWith(DrawingContext *c, GradientPattern const &g, Polygon const &o) { c->Fill(g, o); }
inline void fillWith(DrawingContext *c, Color const &k, Polygon const &o) { c->Fill(k, o); }
inline void fillWith(DrawingContext *c, GradientPattern const &g, Polygons const &o) { c->Fill(g, o); }
inline void fillWith(DrawingContext *c, Color const &k, Polygons const &o) { c->Fill(k, o); }
inline void fillWith(DrawingContext *c, GradientPattern const &g, Path const &o) { c->FillPath(g, o); }
inline void fillWith(DrawingContext *c, Color const &k, Path const &o) { c->FillPath(k, o); }
inline void fillWith(DrawingContext *c, GradientPattern const &g, EllipseOutline const &o) {
    c->FillEllipse(g, o.rect);
}
inline void fillWith(DrawingContext *c, Color const &k, EllipseOutline const &o) { c->FillEllipse(k, o.rect); }

inline void strokeWith(DrawingContext *c, Color const &k, double w, std::string const &s, Polygon const &o) {
    c->Stroke(k, w, s, o);
}
inline void strokeWith(DrawingContext *c, Color const &k, double w, std::string const &s, Polygons const &o) {
    c->Stroke(k, w, s, o);
}
// A path's contour is closed, with square caps and miter joins.
inline void strokeWith(DrawingContext *c, Color const &k, double w, std::string const &s, Path const &o) {
    c->StrokePath(k, w, s, o, LineCapSquare, LineJoinMiter, true);
}
inline void strokeWith(DrawingContext *c, Color const &k, double w, std::string const &s, EllipseOutline const &o) {
    c->StrokeEllipse(k, w, s, o.rect);
}

// Fills with makeGradientPattern(color, r, direction) if gradient, else with color.
template <class Outline>
void fillOutline(DrawingContext *context, Outline const &outline, Color const &color, bool gradient, Rect const &r,
                 Point const &direction) {
    if (gradient)
        fillWith(context, makeGradientPattern(color, r, direction), outline);
    else
        fillWith(context, color, outline);
}

// The fill of the properties' style with the gradient over r, then the
// stroke when strokeWidth is above 0.
template <class Outline>
void paintOutline(DrawingContext *context, CalloutProperties const &p, Outline const &outline, Rect const &r) {
    fillOutline(context, outline, p.fillColor, p.isGradient(), r, p.gradientDirection);
    if (p.strokeWidth > 0)
        strokeWith(context, p.strokeColor, p.strokeWidth, p.strokeStyle, outline);
}

} // namespace Vantrel
