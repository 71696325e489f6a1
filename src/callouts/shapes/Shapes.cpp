#include <vantrel/callouts/shapes/Shapes.h>

#include "callouts/frame/Painting.h"
#include "values/Pi.h"

#include <cmath>

namespace Vantrel {

ShapeCallout::ShapeCallout(Color const &fill, std::string const &fillStyle, Point const &gradientDirection,
                           Color const &stroke, double strokeWidth, std::string const &strokeStyle, Rect const &r)
    : properties(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle), rect(r) {}

Rect ShapeCallout::trackingRect() const { return rect.Expanded(properties.strokeWidth * 0.5); }

void ShapeCallout::fillAndStroke(DrawingContext *context, Polygon polygon, double cornerRadius) const {
    if (cornerRadius > 0)
        polygon = polygon.RoundedCorners(cornerRadius);
    paintOutline(context, properties, polygon, rect);
}

void OvalShape::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    paintOutline(context, properties, EllipseOutline{rect}, rect);
}

OvalShape *OvalShape::clone() const { return new OvalShape(*this); }

RectangleShape::RectangleShape(Color const &fill, std::string const &fillStyle, Point const &gradientDirection,
                               Color const &stroke, double strokeWidth, std::string const &strokeStyle,
                               double cornerRadius_, Rect const &r)
    : ShapeCallout(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, r),
      cornerRadius(cornerRadius_) {}

void RectangleShape::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    fillAndStroke(context, Polygon(rect), cornerRadius);
}

RectangleShape *RectangleShape::clone() const { return new RectangleShape(*this); }

StarShape::StarShape(Color const &fill, std::string const &fillStyle, Point const &gradientDirection,
                     Color const &stroke, double strokeWidth, std::string const &strokeStyle, double innerRadiusRatio_,
                     double cornerRadius_, Rect const &r)
    : ShapeCallout(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, r),
      innerRadiusRatio(innerRadiusRatio_), cornerRadius(cornerRadius_) {}

Polygon StarShape::starPolygon() const {
    double const w = rect.Width(), h = rect.Height();
    Polygon star;
    star.points.reserve(10);
    star.points.push_back(Point(0, -h / 2));
    for (int i = 1; i <= 5; ++i) {
        double a = i * 1.2566370614359172 + 1.5707963267948966;
        double b = a - 0.6283185307179586;
        star.points.push_back(
            Point(std::cos(b) * w * 0.5 * innerRadiusRatio, -std::sin(b) * h * 0.5 * innerRadiusRatio));
        if (i != 5)
            star.points.push_back(Point(std::cos(a) * w * 0.5, -std::sin(a) * h * 0.5));
    }
    return star;
}

void StarShape::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    fillAndStroke(context, starPolygon(), cornerRadius);
}

StarShape *StarShape::clone() const { return new StarShape(*this); }

RegularPolygonShape::RegularPolygonShape(Color const &fill, std::string const &fillStyle,
                                         Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                         std::string const &strokeStyle, double sides_, double rotation_,
                                         double cornerRadius_, Rect const &r)
    : ShapeCallout(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, r), sides(sides_),
      rotation(rotation_), cornerRadius(cornerRadius_) {}

Polygon RegularPolygonShape::regularPolygon() const {
    Polygon polygon;
    if (sides == 3.0) {
        polygon.points = {rect.PointAtFraction(1, 1), rect.PointAtFraction(0.5, 0), rect.PointAtFraction(0, 1)};
        return polygon;
    }
    double const w = rect.Width(), h = rect.Height();
    double const r = (w * 0.5) / std::cos(rotation);
    // At width 0 the height radius r * (h / w) is taken as (h / 2) / cos(rotation), its value for any other width.
    double const zeroWidthRadiusY = (h * 0.5) / std::cos(rotation);
    double const count = std::fmin(sides, double(kMaxSides));
    for (int i = 0; i < count && sides == sides; ++i) { // no vertex for a NaN count
        double a = (i * kPi * 2) / count + rotation;
        double y = w != 0.0 ? -std::sin(a) * r * (h / w) : -std::sin(a) * zeroWidthRadiusY;
        polygon.points.push_back(Point(std::cos(a) * r, y));
    }
    return polygon;
}

void RegularPolygonShape::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    fillAndStroke(context, regularPolygon(), cornerRadius);
}

RegularPolygonShape *RegularPolygonShape::clone() const { return new RegularPolygonShape(*this); }

} // namespace Vantrel
