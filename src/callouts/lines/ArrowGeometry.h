// The one construction of the fixed lines and arrows: a bar from start to
// end with an optional arrow head at either end.
#pragma once

#include <vantrel/values/Polygon.h>

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

// The outline, starting at the first end. An arrow shorter than 1.5 head
// lengths per head shrinks as a whole.
Polygon buildArrowPolygon(ArrowSpec const &spec);

struct ArrowParts {
    Polygon outline;
    Polygon startHead; // wing, tip, wing; empty without a head
    Polygon endHead;
};

ArrowParts buildArrowParts(ArrowSpec const &spec);

} // namespace Vantrel
