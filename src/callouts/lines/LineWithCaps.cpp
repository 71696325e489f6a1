#include <vantrel/callouts/lines/LineWithCaps.h>

#include "callouts/lines/ArrowGeometry.h"
#include "callouts/lines/EndCaps.h"
#include "callouts/lines/Shafts.h"

#include <vantrel/values/Matrix3x3.h>

namespace Vantrel {

LineWithCaps::LineWithCaps(Color const &color_) : color(color_) {}

Rect LineWithCaps::trackingRect() const { return trackingRectAround(endCap.position); }

Rect LineWithCaps::boundingRect() const {
    return isPointLine(startCap.position, endCap.position) ? Rect(endCap.position, endCap.position)
                                                           : BaseCallout::boundingRect();
}

void LineWithCaps::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    boost::shared_ptr<EndCap> first = makeEndCap(startCap.kind, startCap.size);
    boost::shared_ptr<EndCap> second = makeEndCap(endCap.kind, endCap.size);
    if (!first || !second || isPointLine(startCap.position, endCap.position))
        return;
    double const L = (endCap.position - startCap.position).Length();
    double const a = first->shaftInset(startCap.joined);
    double const b = second->shaftInset(endCap.joined);
    boost::shared_ptr<Shaft> body = makeShaft(shaft, L - a - b, !startCap.joined, !endCap.joined);

    // In the frame of the shaft, which starts at the origin: the line runs
    // from (-a, 0) to (L - a, 0). One mapping then places everything, so the
    // thousands of pieces of a dashed shaft are copied once, not twice.
    Polygons firstCap, secondCap;
    firstCap.Add(Matrix3x3::Translation(Point(-a, 0)) * first->outline());
    secondCap.Add(Matrix3x3::Translation(Point(L - a, 0)) * Matrix3x3::Scale(-1, 1) * second->outline());
    Polygons const outline = uniteShaftWithCaps(body->outline(), firstCap, secondCap);

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

    Polygons placed = Matrix3x3::SegmentMapping(Point(0, 0), startCap.position, Point(L, 0), endCap.position) *
                      Matrix3x3::Translation(Point(a, 0)) * outline;
    if (shaft.outlineOnly)
        context->Stroke(color, 5.0, "", placed);
    else if (fades)
        context->Fill(gradient, placed);
    else
        context->Fill(color, placed);
}

} // namespace Vantrel
