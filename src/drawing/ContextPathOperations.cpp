// The context's operations on a Path. Until paths can replay themselves
// these leave the surface untouched.
#include "CrossPlatformDrawingContextImpl.h"

namespace Vantrel {

void CrossPlatformDrawingContext::FillPath(GradientPattern const &, Path const &) {}

void CrossPlatformDrawingContext::FillPath(Color const &, Path const &) {}

void CrossPlatformDrawingContext::StrokePath(Color const &, double, std::string const &, Path const &, LineCapTypes,
                                             LineJoinTypes, bool) {}

} // namespace Vantrel
