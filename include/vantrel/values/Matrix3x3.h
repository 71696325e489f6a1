// The affine transform of points, polygons and paths, as a full 3x3 matrix.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Point.h>

namespace Vantrel {

struct Polygon;
struct Polygons;

// Row-major. Points are column vectors with an implied third coordinate 1;
// the third row takes part in products and inversion, not in transforming a
// point (there is no perspective division).
struct VANTREL_EXPORT Matrix3x3 {
    double m00 = 1, m01 = 0, m02 = 0;
    double m10 = 0, m11 = 1, m12 = 0;
    double m20 = 0, m21 = 0, m22 = 1;

    Matrix3x3() = default;
    Matrix3x3(double a00, double a01, double a02, double a10, double a11, double a12, double a20, double a21,
              double a22)
        : m00(a00), m01(a01), m02(a02), m10(a10), m11(a11), m12(a12), m20(a20), m21(a21), m22(a22) {}

    Point operator*(Point const &p) const { return Point(m00 * p.x + m01 * p.y + m02, m10 * p.x + m11 * p.y + m12); }
    Matrix3x3 operator*(Matrix3x3 const &o) const;
    Polygon operator*(Polygon const &p) const;
    Polygons operator*(Polygons const &p) const;

    static Matrix3x3 Scale(double sx, double sy) { return Matrix3x3(sx, 0, 0, 0, sy, 0, 0, 0, 1); }
    static Matrix3x3 Uniform(double k) { return Scale(k, k); }
    static Matrix3x3 Translation(Point const &p) { return Matrix3x3(1, 0, p.x, 0, 1, p.y, 0, 0, 1); }

    // Adjugate over determinant; a singular matrix gives non-finite entries.
    Matrix3x3 Inverse() const;
    // The rotation with uniform scale (never a mirror) that carries fromStart to
    // toStart and fromEnd to toEnd. Non-finite when fromStart equals fromEnd.
    static Matrix3x3 SegmentMapping(Point const &fromStart, Point const &toStart, Point const &fromEnd,
                                    Point const &toEnd);
};

} // namespace Vantrel
