#include <vantrel/callouts/LineWithCaps.h>

#include "EndCaps.h"
#include "Shafts.h"

#include <vantrel/values/Matrix3x3.h>

namespace Vantrel {

LineWithCaps::LineWithCaps(Color const &color_) : color(color_) {}

Rect LineWithCaps::trackingRect() const { return trackingRectAround(endCap.position); }

void LineWithCaps::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    boost::shared_ptr<EndCap> first = makeEndCap(startCap.kind, startCap.size);
    boost::shared_ptr<EndCap> second = makeEndCap(endCap.kind, endCap.size);
    if (!first || !second)
        return;
    double const L = (endCap.position - startCap.position).Length();
    double const a = first->shaftInset(startCap.joined);
    double const b = second->shaftInset(endCap.joined);
    boost::shared_ptr<Shaft> body = makeShaft(shaft, L - a - b, !startCap.joined, !endCap.joined);

    // In the frame of the line from (0, 0) to (L, 0).
    Polygons outline = Matrix3x3::Translation(Point(a, 0)) * body->outline();
    Polygons firstCap, secondCap;
    firstCap.Add(first->outline());
    secondCap.Add(Matrix3x3::Translation(Point(L, 0)) * Matrix3x3::Scale(-1, 1) * second->outline());
    outline = outline.UnionWith(firstCap).UnionWith(secondCap);

    GradientPattern gradient;
    bool const fades = shaft.fadeEnd > shaft.fadeStart;
    if (fades) {
        double const cA = a / L, cB = b / L, f = 1 - cB - cA;
        double const s = f * shaft.fadeStart + cA, e = f * shaft.fadeEnd + cA, p = 1 / L;
        gradient = GradientPattern(startCap.position, endCap.position);
        if (s > 0) {
            gradient.AddStop(0, color);
            gradient.AddStop(s, color);
        }
        gradient.AddStop(s + p, shaft.fadeColor);
        gradient.AddStop(e - p, shaft.fadeColor);
        if (e < 1) {
            gradient.AddStop(e, color);
            gradient.AddStop(1, color);
        }
    }

    Polygons placed = Matrix3x3::SegmentMapping(Point(0, 0), startCap.position, Point(L, 0), endCap.position) * outline;
    if (shaft.outlineOnly)
        context->Stroke(color, 5.0, "", placed);
    else if (fades)
        context->Fill(gradient, placed);
    else
        context->Fill(color, placed);
}

} // namespace Vantrel
