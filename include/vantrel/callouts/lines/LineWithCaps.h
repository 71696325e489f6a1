// The general line: an end cap at each end and a shaft between them, united
// into one outline at every drawing.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/callouts/lines/LineKinds.h>

namespace Vantrel {

// One end of a LineWithCaps.
struct LineEnd {
    int kind = EndCapKind::None; // an EndCapKind; any other number draws nothing
    Point position;              // where the line ends
    bool joined = true;          // the shaft runs on into the cap (else it stands off)
    double size = 0;             // the cap's scale
};

// The shaft of a LineWithCaps.
struct ShaftSpec {
    int kind = ShaftKind::Tapered; // a ShaftKind; any other number is the tapered bar
    double width = 0;
    double endWidth = 0;  // width at the far end, tapered kind only
    int roundedEnds = 0;  // bit 1 rounds the start, bit 2 the end (Bar and AbstractDashDotDot)
    double fadeStart = 0; // a faded stretch, as fractions of the shaft's length;
    double fadeEnd = 0;   // none unless fadeEnd is above fadeStart
    Color fadeColor;
    bool outlineOnly = false; // stroke the outline (5 units wide) instead of filling it
};

// Presets::createLine fills the fields. The caps and the shaft are made and
// dropped at every drawing; nothing is drawn when either cap kind is unknown.
// Dashes and dots are at most 10,000 per shaft: a longer rhythm is drawn
// with that many, stretched to the length.
class VANTREL_EXPORT LineWithCaps : public BaseCallout {
public:
    explicit LineWithCaps(Color const &color);

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    // trackingRectAround the second point.
    Rect trackingRect() const override;
    // Caps at one point have no direction: a line whose ends are equal draws
    // nothing, has no outline, and its bounds are the empty rect at the point.
    Rect boundingRect() const override;

    Color color;
    LineEnd startCap;
    LineEnd endCap;
    ShaftSpec shaft;
};

} // namespace Vantrel
