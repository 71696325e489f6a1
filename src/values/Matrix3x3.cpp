#include <vantrel/values/Matrix3x3.h>
#include <vantrel/values/Polygon.h>

namespace Vantrel {

Matrix3x3 Matrix3x3::operator*(Matrix3x3 const &o) const {
    return Matrix3x3(m00 * o.m00 + m01 * o.m10 + m02 * o.m20, m00 * o.m01 + m01 * o.m11 + m02 * o.m21,
                     m00 * o.m02 + m01 * o.m12 + m02 * o.m22, //
                     m10 * o.m00 + m11 * o.m10 + m12 * o.m20, m10 * o.m01 + m11 * o.m11 + m12 * o.m21,
                     m10 * o.m02 + m11 * o.m12 + m12 * o.m22, //
                     m20 * o.m00 + m21 * o.m10 + m22 * o.m20, m20 * o.m01 + m21 * o.m11 + m22 * o.m21,
                     m20 * o.m02 + m21 * o.m12 + m22 * o.m22);
}

Polygon Matrix3x3::operator*(Polygon const &p) const {
    Polygon r;
    r.points.reserve(p.points.size());
    for (Point const &q : p.points)
        r.points.push_back(*this * q);
    return r;
}

Polygons Matrix3x3::operator*(Polygons const &p) const {
    Polygons r;
    r.polygons.reserve(p.polygons.size());
    for (auto const &q : p.polygons)
        r.Add(q ? *this * *q : Polygon());
    return r;
}

Matrix3x3 Matrix3x3::Inverse() const {
    double det = (m11 * m22 - m12 * m21) * m00 - (m01 * m22 - m02 * m21) * m10 + (m01 * m12 - m02 * m11) * m20;
    double k = 1.0 / det;
    return Matrix3x3((m11 * m22 - m12 * m21) * k, -(m01 * m22 - m02 * m21) * k, (m01 * m12 - m02 * m11) * k,
                     -(m10 * m22 - m12 * m20) * k, (m00 * m22 - m02 * m20) * k, -(m00 * m12 - m02 * m10) * k,
                     (m10 * m21 - m11 * m20) * k, -(m00 * m21 - m01 * m20) * k, (m00 * m11 - m01 * m10) * k);
}

Matrix3x3 Matrix3x3::SegmentMapping(Point const &fromStart, Point const &toStart, Point const &fromEnd,
                                    Point const &toEnd) {
    Point d1 = fromEnd - fromStart;
    Point d2 = toEnd - toStart;
    double l2 = d1.LengthSquared();
    double a = (d1 * d2) / l2;
    double b = (d1 ^ d2) / l2;
    return Translation(toStart) * Matrix3x3(a, -b, 0, b, a, 0, 0, 0, 1) * Translation(-fromStart);
}

} // namespace Vantrel
