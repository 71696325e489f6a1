// The cairo context's operations on a Path: the path replays itself here.
#include "drawing/CrossPlatformDrawingContextImpl.h"

#include <vantrel/geometry/Path.h>

namespace Vantrel {

void CrossPlatformDrawingContext::FillPath(GradientPattern const &pattern, Path const &path) {
    path.Fill(pattern, this);
}

void CrossPlatformDrawingContext::FillPath(Color const &color, Path const &path) { path.Fill(color, this); }

void CrossPlatformDrawingContext::StrokePath(Color const &color, double lineWidth, std::string const &style,
                                             Path const &path, LineCapTypes cap, LineJoinTypes join, bool closePath) {
    path.Stroke(color, lineWidth, style, this, cap, join, closePath);
}

} // namespace Vantrel
