// Rectangles in doubles (two corners) and in ints (four edges).
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Point.h>

#include <iosfwd>
#include <vector>

typedef struct _PangoRectangle PangoRectangle;

namespace Vantrel {

struct VANTREL_EXPORT RectInt {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;

    RectInt() = default;
    RectInt(int32_t l, int32_t t, int32_t r, int32_t b) : left(l), top(t), right(r), bottom(b) {}

    int32_t Width() const { return right - left; }
    int32_t Height() const { return bottom - top; }

    // Overlap of both; all zeros when the overlap has no area (touching edges included).
    RectInt IntersectionRect(RectInt const &o) const;
    // Smallest rect holding both; a rect with no width or no height is ignored.
    RectInt UnionRect(RectInt const &o) const;
};

inline bool operator==(RectInt const &a, RectInt const &b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
inline bool operator!=(RectInt const &a, RectInt const &b) { return !(a == b); }

// A rectangle as its top-left and bottom-right corners. Nothing keeps the
// corners ordered; Normalized() orders them. The right and bottom edges are
// outside the rect for Contains().
struct VANTREL_EXPORT Rect {
    Point topLeft;
    Point bottomRight;

    Rect() = default;
    Rect(double left, double top, double right, double bottom) : topLeft(left, top), bottomRight(right, bottom) {}
    Rect(Point const &tl, Point const &br) : topLeft(tl), bottomRight(br) {}
    Rect(RectInt const &r) : topLeft(r.left, r.top), bottomRight(r.right, r.bottom) {}

    double Left() const { return topLeft.x; }
    double Top() const { return topLeft.y; }
    double Right() const { return bottomRight.x; }
    double Bottom() const { return bottomRight.y; }

    Rect operator*(float k) const { return *this * double(k); }
    Rect operator*(double k) const { return Rect(topLeft * k, bottomRight * k); }
    Rect operator+(Point const &p) const { return Rect(topLeft + p, bottomRight + p); }
    Rect Scaled(Point const &p) const { return Rect(topLeft.MultipliedBy(p), bottomRight.MultipliedBy(p)); }
    Rect &Offset(Point const &p) {
        topLeft = topLeft + p;
        bottomRight = bottomRight + p;
        return *this;
    }
    Rect OffsettedRect(Point const &p) const { return *this + p; }

    Point Center() const { return (topLeft + bottomRight) / 2.0; }
    Point Size() const { return bottomRight - topLeft; }
    double Width() const { return Size().x; }
    double Height() const { return Size().y; }
    double HalfWidth() const { return Width() * 0.5; }
    double HalfHeight() const { return Height() * 0.5; }
    int IntWidth() const;
    int IntHeight() const;

    bool Contains(Point const &p) const {
        return topLeft.x <= p.x && p.x < bottomRight.x && topLeft.y <= p.y && p.y < bottomRight.y;
    }
    Rect Expanded(double d) const { return Expanded(Point(d, d)); }
    Rect Expanded(Point const &p) const { return Rect(topLeft - p, bottomRight + p); }
    Point PointAtFraction(double fx, double fy) const { return topLeft + Point(Width() * fx, Height() * fy); }
    Rect Normalized() const;

    // Left and top by floor, right and bottom by ceil. Values outside the int
    // range saturate at its ends, and a NaN becomes 0, rather than being undefined.
    RectInt ToContainingRectInt() const;
    // lround of all four, saturating like ToContainingRectInt.
    RectInt ToRectIntRound() const;
    // Bounding rect of both rects' corners: there is no empty rect, so an
    // all-zero Rect contributes the origin.
    Rect UnionRect(Rect const &o) const;

    // An empty list gives left = top = DBL_MAX, right = bottom = -DBL_MAX.
    static Rect BoundingRectOfPoints(std::vector<Point> const &points);
    static Rect FromPango(PangoRectangle const &r);
};

inline bool operator==(Rect const &a, Rect const &b) {
    return a.topLeft == b.topLeft && a.bottomRight == b.bottomRight;
}
inline bool operator!=(Rect const &a, Rect const &b) { return !(a == b); }

// Writes "((left,top),(right,bottom))".
VANTREL_EXPORT std::ostream &operator<<(std::ostream &os, Rect const &r);

} // namespace Vantrel
