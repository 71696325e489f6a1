// The pen commands a SketchMotionCallout read, for the library's own tests:
// hosts see only their counts and bounds, since the command classes are
// internal.
#pragma once

#include <vantrel/sketch/SketchMotionCallout.h>

namespace Vantrel {

struct SketchMotionAccess {
    static SketchMotionPaths const &paths(SketchMotionCallout const &callout) { return callout.paths; }
};

} // namespace Vantrel
