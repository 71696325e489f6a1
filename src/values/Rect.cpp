#include <vantrel/values/Rect.h>

#include "values/Rounding.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <ostream>
#include <pango/pango.h>

namespace Vantrel {

RectInt RectInt::IntersectionRect(RectInt const &o) const {
    RectInt r(std::max(left, o.left), std::max(top, o.top), std::min(right, o.right), std::min(bottom, o.bottom));
    // Compared as differences in 64 bits: far-apart edges must not wrap into a positive width.
    if (int64_t(r.right) - r.left <= 0 || int64_t(r.bottom) - r.top <= 0)
        return RectInt();
    return r;
}

RectInt RectInt::UnionRect(RectInt const &o) const {
    if (o.right == o.left || o.bottom == o.top)
        return *this;
    if (right == left || bottom == top)
        return o;
    return RectInt(std::min(left, o.left), std::min(top, o.top), std::max(right, o.right), std::max(bottom, o.bottom));
}

int Rect::IntWidth() const { return saturatingInt(std::floor(Width())); }
int Rect::IntHeight() const { return saturatingInt(std::floor(Height())); }

Rect Rect::Normalized() const {
    Rect r = *this;
    if (r.topLeft.x > r.bottomRight.x)
        std::swap(r.topLeft.x, r.bottomRight.x);
    if (r.topLeft.y > r.bottomRight.y)
        std::swap(r.topLeft.y, r.bottomRight.y);
    return r;
}

RectInt Rect::ToContainingRectInt() const {
    return RectInt(saturatingInt(std::floor(topLeft.x)), saturatingInt(std::floor(topLeft.y)),
                   saturatingInt(std::ceil(bottomRight.x)), saturatingInt(std::ceil(bottomRight.y)));
}

RectInt Rect::ToRectIntRound() const {
    return RectInt(saturatingRound(topLeft.x), saturatingRound(topLeft.y), saturatingRound(bottomRight.x),
                   saturatingRound(bottomRight.y));
}

Rect Rect::UnionRect(Rect const &o) const {
    return BoundingRectOfPoints({topLeft, bottomRight, o.topLeft, o.bottomRight});
}

Rect Rect::BoundingRectOfPoints(std::vector<Point> const &points) {
    Rect r(DBL_MAX, DBL_MAX, -DBL_MAX, -DBL_MAX);
    for (Point const &p : points) {
        r.topLeft.x = std::min(r.topLeft.x, p.x);
        r.topLeft.y = std::min(r.topLeft.y, p.y);
        r.bottomRight.x = std::max(r.bottomRight.x, p.x);
        r.bottomRight.y = std::max(r.bottomRight.y, p.y);
    }
    return r;
}

Rect Rect::FromPango(PangoRectangle const &r) {
    // Summed in 64 bits: a layout near the int range must not wrap.
    return Rect(pango_units_to_double(r.x), pango_units_to_double(r.y), double(int64_t(r.x) + r.width) / PANGO_SCALE,
                double(int64_t(r.y) + r.height) / PANGO_SCALE);
}

std::ostream &operator<<(std::ostream &os, Rect const &r) {
    return os << '(' << r.topLeft << ',' << r.bottomRight << ')';
}

} // namespace Vantrel
