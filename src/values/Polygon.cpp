#include <vantrel/values/Polygon.h>

namespace Vantrel {

Polygon::Polygon(Rect const &r)
    : points{Point(r.topLeft.x, r.topLeft.y), Point(r.bottomRight.x, r.topLeft.y),
             Point(r.bottomRight.x, r.bottomRight.y), Point(r.topLeft.x, r.bottomRight.y)} {}

double Polygon::SignedArea() const {
    double sum = 0.0;
    size_t n = points.size();
    for (size_t i = 0; i < n; ++i)
        sum += points[i] ^ points[(i + 1) % n];
    return 0.5 * sum;
}

Polygon Polygon::PositivelyOriented() const { return SignedArea() < 0.0 ? Reversed() : *this; }

Polygon Polygon::Reversed() const { return Polygon(std::vector<Point>(points.rbegin(), points.rend())); }

Polygon &Polygon::Append(Polygon const &other) {
    // A copy first: appending a polygon to itself must not read a reallocated vector.
    std::vector<Point> tail = other.points;
    points.insert(points.end(), tail.begin(), tail.end());
    return *this;
}

void Polygons::Add(Polygon const &p) { polygons.push_back(boost::shared_ptr<Polygon>(new Polygon(p))); }

} // namespace Vantrel
