// Closed point lists, the outlines most callouts are made of.
#pragma once

#include <vantrel/values/Rect.h>

#include <boost/shared_ptr.hpp>
#include <initializer_list>
#include <vector>

namespace Vantrel {

// Implicitly closed: the last point joins the first, which is not repeated.
// Empty and one- or two-point polygons are legal values; drawing skips them.
// Nothing fixes the direction a polygon runs in.
struct Polygon {
    std::vector<Point> points;

    Polygon() = default;
    explicit Polygon(std::vector<Point> pts) : points(std::move(pts)) {}
    Polygon(std::initializer_list<Point> pts) : points(pts) {}
    // (left, top), (right, top), (right, bottom), (left, bottom).
    explicit Polygon(Rect const &r);

    Rect BoundingRect() const { return Rect::BoundingRectOfPoints(points); }
    // Twice the signed area is the sum of cross products of consecutive
    // points; positive means clockwise on a y-down screen.
    double SignedArea() const;
    // A copy running with non-negative signed area.
    Polygon PositivelyOriented() const;
    Polygon Reversed() const;
    Polygon &Append(Polygon const &other);
};

// A list of outer outlines; there are no holes. Copies share the Polygon
// objects, so changing a polygon through one copy shows in the other.
struct Polygons {
    std::vector<boost::shared_ptr<Polygon>> polygons;

    Polygons() = default;
    // Appends a heap copy of the polygon.
    void Add(Polygon const &p);
};

} // namespace Vantrel
