#include "callouts/lines/EndCaps.h"

#include <vantrel/values/Matrix3x3.h>

namespace Vantrel {

namespace {

// A unit outline scaled by s, rounded by radius when it is above 0.
Polygon scaled(std::initializer_list<Point> unit, double s, double radius) {
    Polygon p = Matrix3x3::Uniform(s) * Polygon(unit);
    return radius > 0 ? p.RoundedCorners(radius) : p;
}

} // namespace

Polygon CircleEndCap::outline() const { return Polygon::Circle(Point(size / 2, 0), size / 2); }

Polygon SquareEndCap::outline() const { return Polygon(Rect(Point(0, size / 2), Point(size, -size / 2))); }

Polygon BasicDiamondEndCap::outline() const {
    double s = size;
    Polygon p{Point(0, 0), Point(s / 2, s / 2), Point(s, 0), Point(s / 2, -s / 2)};
    return roundingRatio > 0 ? p.RoundedCorners(roundingRatio * s) : p;
}

Polygon BoldDiamondEndCap::outline() const {
    double h = size / 2;
    return Polygon{Point(0, h), Point(0.75 * h, 0.5 * h), Point(0.75 * h, -0.5 * h), Point(0, -h)};
}

Polygon BasicArrowHead::outline() const {
    return scaled({Point(0, 0), Point(0.55, 0.5), Point(0.39, 0), Point(0.55, -0.5)}, size, size * 0.03);
}

Polygon BoldArrowHead::outline() const { return scaled({Point(0, 0), Point(0.7, 0.5), Point(0.7, -0.5)}, size, 0); }

Polygon ModernArrowHead::outline() const {
    return scaled({Point(0, 0), Point(0.57, 0.5), Point(0.57, -0.5)}, size, size * 0.05);
}

Polygon AbstractArrowHead::outline() const {
    return scaled({Point(0, 0), Point(0.65, 0.5), Point(0.65, -0.5)}, size, size * 0.06);
}

Polygon UrbanArrowHead::outline() const { return scaled({Point(0, 0), Point(0.41, 0.5), Point(0.41, -0.5)}, size, 0); }

Polygon AbstractTail::outline() const {
    double s = size, h = s / 2;
    Polygon p{Point(0, 0),       Point(-h, h),           Point(1.6 * s - h, h),
              Point(1.6 * s, 0), Point(1.6 * s - h, -h), Point(-h, -h)};
    return s * 0.1 > 0 ? p.RoundedCorners(s * 0.1) : p;
}

boost::shared_ptr<EndCap> makeEndCap(int kind, double size) {
    switch (kind) {
    case EndCapKind::None:
        return boost::shared_ptr<EndCap>(new NullEndCap(size));
    case EndCapKind::Dot:
    case EndCapKind::Circle:
        return boost::shared_ptr<EndCap>(new CircleEndCap(size));
    case EndCapKind::BasicDiamond:
    case EndCapKind::ModernDiamond:
        return boost::shared_ptr<EndCap>(new BasicDiamondEndCap(size, 0.05));
    case EndCapKind::BasicArrow:
        return boost::shared_ptr<EndCap>(new BasicArrowHead(size));
    case EndCapKind::BoldArrow:
        return boost::shared_ptr<EndCap>(new BoldArrowHead(size));
    case EndCapKind::BoldDiamond:
        return boost::shared_ptr<EndCap>(new BoldDiamondEndCap(size));
    case EndCapKind::ModernArrow:
        return boost::shared_ptr<EndCap>(new ModernArrowHead(size));
    case EndCapKind::AbstractArrow:
        return boost::shared_ptr<EndCap>(new AbstractArrowHead(size));
    case EndCapKind::AbstractTail:
        return boost::shared_ptr<EndCap>(new AbstractTail(size));
    case EndCapKind::Square:
        return boost::shared_ptr<EndCap>(new SquareEndCap(size));
    case EndCapKind::UrbanArrow:
        return boost::shared_ptr<EndCap>(new UrbanArrowHead(size));
    case EndCapKind::UrbanDiamond:
        return boost::shared_ptr<EndCap>(new BasicDiamondEndCap(size, 0));
    default:
        return boost::shared_ptr<EndCap>();
    }
}

} // namespace Vantrel
