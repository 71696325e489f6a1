// The fill and stroke every filled callout gives its outline.
#pragma once

#include <vantrel/callouts/frame/BaseCallout.h>

namespace Vantrel {

// Fill by the fill style (a gradient over r for "gradient"), then stroke when
// strokeWidth is above 0. For a Polygon or Polygons outline.
template <class Outline>
void paintOutline(DrawingContext *context, CalloutProperties const &p, Outline const &outline, Rect const &r) {
    if (p.isGradient())
        context->Fill(makeGradientPattern(p.fillColor, r, p.gradientDirection), outline);
    else
        context->Fill(p.fillColor, outline);
    if (p.strokeWidth > 0)
        context->Stroke(p.strokeColor, p.strokeWidth, p.strokeStyle, outline);
}

} // namespace Vantrel
