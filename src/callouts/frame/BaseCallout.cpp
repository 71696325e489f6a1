#include <vantrel/callouts/frame/BaseCallout.h>

#include "callouts/frame/Painting.h"
#include "drawing/BoundsFinder.h"
#include "drawing/PolygonsDrawingContext.h"

#include <algorithm>
#include <cmath>

namespace Vantrel {

Point BaseCallout::boundingSize() const { return boundingRect().Size(); }

Rect BaseCallout::trackingRect() const { return boundingRect(); }

// The callout's own drawing, run on a recording surface; measured once.
Rect BaseCallout::boundingRect() const {
    if (boundingRectCached)
        return cachedBoundingRect;
    BoundsFinder finder;
    drawIntoContext(&finder, DrawOptionAll, Rect(), -1, nullptr);
    cachedBoundingRect = finder.InkExtents();
    boundingRectCached = true;
    return cachedBoundingRect;
}

namespace {
Polygons outline(BaseCallout const &callout, BaseCallout::DrawOptions options, int tailIndex, Rect const &reference) {
    PolygonsDrawingContext context;
    callout.drawIntoContext(&context, options, reference, tailIndex, nullptr);
    return context.Result();
}
} // namespace

Polygons BaseCallout::pathAsPolygons(Rect referenceRect) const {
    return outline(*this, DrawOptionAll, -1, referenceRect);
}

Polygons BaseCallout::bodyPathAsPolygons(Rect referenceRect) const {
    return outline(*this, DrawOptionBody, -1, referenceRect);
}

Polygons BaseCallout::tailPathAsPolygons(int tailIndex, Rect referenceRect) const {
    return outline(*this, DrawOptionTail, tailIndex, referenceRect);
}

Rect BaseCallout::trackingRectAround(Point const &c) const {
    Rect b = boundingRect();
    double halfWidth = std::max(b.Right() - c.x, c.x - b.Left());
    double halfHeight = std::max(b.Bottom() - c.y, c.y - b.Top());
    Point half(halfWidth, halfHeight);
    return Rect(c - half, c + half);
}

GradientPattern makeGradientPattern(Color const &color, Rect const &rect, Point const &direction) {
    Point u = direction.Normalized();
    if (!std::isfinite(u.x) || !std::isfinite(u.y))
        u = Point(0, 1);
    Point const corners[] = {rect.topLeft, Point(rect.Right(), rect.Top()), rect.bottomRight,
                             Point(rect.Left(), rect.Bottom())};
    double smin = corners[0] * u, smax = smin;
    for (Point const &p : corners) {
        smin = std::min(smin, p * u);
        smax = std::max(smax, p * u);
    }
    GradientPattern pattern(u * smin, u * smax);
    auto light = [](float c) { return float(c * 0.65 + 0.35); };
    auto dark = [](float c) { return float(c * 0.65); };
    pattern.AddStop(0.0, Color(light(color.red), light(color.green), light(color.blue), color.alpha));
    pattern.AddStop(0.5, color);
    pattern.AddStop(1.0, Color(dark(color.red), dark(color.green), dark(color.blue), color.alpha));
    return pattern;
}

void fillPolygonWithStyle(DrawingContext *context, Polygon const &polygon, Color const &color, std::string const &style,
                          Rect const &rect, Point const &direction) {
    fillOutline(context, polygon, color, style == "gradient", rect, direction);
}

} // namespace Vantrel
