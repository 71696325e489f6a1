// The one construction of the fixed lines and arrows: a bar from start to
// end with an optional arrow head at either end.
#pragma once

#include <vantrel/values/Polygon.h>

#include <cmath>

namespace Vantrel {

struct ArrowSpec {
    Point start;
    Point end;
    bool headAtStart = false;
    bool headAtEnd = false;
    double shaftHalfWidth = 0;
    double headHalfWidth = 0;
    double headLength = 0;
    double cornerRadius = 0;
};

// Whether a line from start to end has no direction: its ends are finite
// and its length is 0 (or too small to divide by). Such a line draws
// nothing, and its bounds are the empty rect at the point.
inline bool isPointLine(Point const &start, Point const &end) {
    return std::isfinite(start.x) && std::isfinite(start.y) && std::isfinite(end.x) && std::isfinite(end.y) &&
           !((end - start).Length() > 0);
}

// The outline, starting at the first end. An arrow shorter than 1.5 head
// lengths per head shrinks as a whole; a line of length 0 has none.
Polygon buildArrowPolygon(ArrowSpec const &spec);

struct ArrowParts {
    Polygon outline;
    Polygon startHead; // wing, tip, wing; empty without a head
    Polygon endHead;
};

ArrowParts buildArrowParts(ArrowSpec const &spec);

} // namespace Vantrel
