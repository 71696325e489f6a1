// Conversions from double to int that stay defined for any input.
#pragma once

#include <climits>
#include <cmath>

namespace Vantrel {

// Saturates at the ends of the int range; a NaN becomes 0. A plain cast of
// such values would be undefined, and hosts pass whatever their users draw.
inline int saturatingInt(double v) {
    if (!(v == v))
        return 0;
    if (v >= double(INT_MAX))
        return INT_MAX;
    if (v <= double(INT_MIN))
        return INT_MIN;
    return int(v);
}

// lround, halves away from zero, saturating like saturatingInt.
inline int saturatingRound(double v) { return saturatingInt(std::round(v)); }

} // namespace Vantrel
