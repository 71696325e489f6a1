#include <vantrel/values/Point.h>

#include "values/Rounding.h"

#include <cmath>
#include <ostream>

namespace Vantrel {

double Point::Angle() const { return std::atan2(y, x); }

double Point::Length() const { return std::sqrt(LengthSquared()); }

Point Point::Normalized() const {
    double r = 1.0 / Length();
    return Point(x * r, y * r);
}

Point Point::FromAngle(double a) { return Point(std::cos(a), std::sin(a)); }

PointInt Point::ToPointInt() const { return PointInt(saturatingRound(x), saturatingRound(y)); }

std::ostream &operator<<(std::ostream &os, Point const &p) { return os << '(' << p.x << ',' << p.y << ')'; }

} // namespace Vantrel
