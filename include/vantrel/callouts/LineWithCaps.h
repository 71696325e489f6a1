// The general line: an end cap at each end and a shaft between them, united
// into one outline at every drawing.
#pragma once

#include <vantrel/callouts/BaseCallout.h>

namespace Vantrel {

// One end of a LineWithCaps.
struct LineEnd {
    int kind = 0;       // an end cap kind, 0 to 13; any other draws nothing
    Point position;     // where the line ends
    bool joined = true; // the shaft runs on into the cap (else it stands off)
    double size = 0;    // the cap's scale
};

// The shaft of a LineWithCaps.
struct ShaftSpec {
    // 0 tapered bar; 1, 6, 9 dots; 2 to 5, 8, 10, 11 dashes; 7 a solid bar
    // with optionally rounded ends.
    int kind = 0;
    double width = 0;
    double endWidth = 0;  // width at the far end, tapered kind only
    int roundedEnds = 0;  // bit 1 rounds the start, bit 2 the end (kinds 7 and 8)
    double fadeStart = 0; // a faded stretch, as fractions of the shaft's length;
    double fadeEnd = 0;   // none unless fadeEnd is above fadeStart
    Color fadeColor;
    bool outlineOnly = false; // stroke the outline (5 units wide) instead of filling it
};

// Presets::createLine fills the fields. The caps and the shaft are made and
// dropped at every drawing; nothing is drawn when either cap kind is unknown.
// Dashes and dots are at most 10,000 per shaft: a longer rhythm is drawn
// with that many, stretched to the length.
class LineWithCaps : public BaseCallout {
public:
    explicit LineWithCaps(Color const &color);

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    // trackingRectAround the second point.
    Rect trackingRect() const override;

    Color color;
    LineEnd startCap;
    LineEnd endCap;
    ShaftSpec shaft;
};

} // namespace Vantrel
