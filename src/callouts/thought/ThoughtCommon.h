// What the thought bubbles share: the trail of two circles in the bubble's
// own style, aimed from an ellipse towards the first tail.
#pragma once

#include <vantrel/callouts/thought/ThoughtBubbles.h>

#include "callouts/bubbles/BubbleGeometry.h"

namespace Vantrel {

inline void drawTrail(DrawingContext *context, CalloutProperties const &properties, Rect const &shape,
                      Point const &extent, Point const &tail, double rimFactor, bool translucent) {
    drawThoughtCircles(shape, extent, tail, rimFactor, context, properties.fillColor, properties.strokeColor,
                       properties.strokeWidth, properties.strokeStyle, translucent, properties.isGradient(),
                       properties.gradientDirection);
}

} // namespace Vantrel
