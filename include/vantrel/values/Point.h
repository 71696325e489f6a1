// Points in doubles and in ints: the coordinates every other value is made of.
#pragma once

#include <vantrel/VantrelExport.h>

#include <cstdint>
#include <iosfwd>

namespace Vantrel {

struct PointInt {
    int32_t x = 0;
    int32_t y = 0;

    PointInt() = default;
    PointInt(int32_t x_, int32_t y_) : x(x_), y(y_) {}
};

inline bool operator==(PointInt const &a, PointInt const &b) { return a.x == b.x && a.y == b.y; }
inline bool operator!=(PointInt const &a, PointInt const &b) { return !(a == b); }

// A point or vector in doubles. y grows downwards. Nothing here guards a
// division by zero: the result is then non-finite and the caller avoids it.
struct VANTREL_EXPORT Point {
    double x = 0.0;
    double y = 0.0;

    Point() = default;
    Point(double x_, double y_) : x(x_), y(y_) {}
    Point(PointInt const &p) : x(p.x), y(p.y) {}

    Point operator+(Point const &p) const { return Point(x + p.x, y + p.y); }
    Point operator-(Point const &p) const { return Point(x - p.x, y - p.y); }
    Point operator-() const { return Point(-x, -y); }
    Point operator*(double k) const { return Point(x * k, y * k); }
    // Multiplies by the reciprocal, so results may differ from x / k in the last bit.
    Point operator/(double k) const {
        double r = 1.0 / k;
        return Point(x * r, y * r);
    }
    // Dot product.
    double operator*(Point const &p) const { return x * p.x + y * p.y; }
    // Cross product (z of the 3D cross product).
    double operator^(Point const &p) const { return x * p.y - y * p.x; }

    double Angle() const;
    Point DividedBy(Point const &p) const { return Point(x / p.x, y / p.y); }
    Point MultipliedBy(Point const &p) const { return Point(x * p.x, y * p.y); }
    Point MultipliedBy(double sx, double sy) const { return Point(x * sx, y * sy); }
    double LengthSquared() const { return x * x + y * y; }
    double Length() const;
    // Unit vector; a zero vector gives non-finite components.
    Point Normalized() const;
    Point Perpendicular() const { return Point(-y, x); }
    static Point FromAngle(double a);
    // Rounds each component half away from zero.
    PointInt ToPointInt() const;
};

inline bool operator==(Point const &a, Point const &b) { return a.x == b.x && a.y == b.y; }
inline bool operator!=(Point const &a, Point const &b) { return !(a == b); }

// Writes "(x,y)" with the stream's current number formatting.
VANTREL_EXPORT std::ostream &operator<<(std::ostream &os, Point const &p);

} // namespace Vantrel
