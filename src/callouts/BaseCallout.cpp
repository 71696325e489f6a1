#include <vantrel/callouts/BaseCallout.h>

#include <algorithm>
#include <cmath>

namespace Vantrel {

Point BaseCallout::boundingSize() const { return boundingRect().Size(); }

Rect BaseCallout::trackingRect() const { return boundingRect(); }

// Measured by the measuring contexts; until they exist a callout has no extent.
Rect BaseCallout::boundingRect() const { return cachedBoundingRect; }

Polygons BaseCallout::pathAsPolygons(Rect) const { return Polygons(); }

Polygons BaseCallout::bodyPathAsPolygons(Rect) const { return Polygons(); }

Polygons BaseCallout::tailPathAsPolygons(int, Rect) const { return Polygons(); }

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
    if (style == "gradient")
        context->Fill(makeGradientPattern(color, rect, direction), polygon);
    else
        context->Fill(color, polygon);
}

} // namespace Vantrel
