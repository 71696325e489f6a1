// The library's one pi: acos(0) + acos(0), which is exactly the double
// nearest to pi. Angles are radians, from +x towards +y. Kept out of the
// public headers, where it would collide with a host's own kPi under
// using namespace Vantrel.
#pragma once

namespace Vantrel {

constexpr double kPi = 3.141592653589793;

} // namespace Vantrel
