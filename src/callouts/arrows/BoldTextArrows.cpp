// The Bold text arrows, built at construction: sharp, with a notched rear or
// a long head.
#include <vantrel/callouts/arrows/TextArrows.h>

#include "callouts/arrows/TextArrowGeometry.h"

namespace Vantrel {

BoldTextArrow::BoldTextArrow(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_), outline(boldArrowOutline(box)) {}

BoldTextArrow *BoldTextArrow::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new BoldTextArrow(box, properties);
}

void BoldTextArrow::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                    DrawOutputMetaData *) const {
    paintOutline(context, properties, outline, outline.BoundingRect());
    drawThemedText(context, options);
}

BoldTextArrow *BoldTextArrow::clone() const { return new BoldTextArrow(*this); }

BoldTextArrowTwo::BoldTextArrowTwo(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_), outline(boldArrowTwoOutline(box)) {}

BoldTextArrowTwo *BoldTextArrowTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new BoldTextArrowTwo(box, properties);
}

void BoldTextArrowTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                       DrawOutputMetaData *) const {
    paintOutline(context, properties, outline, outline.BoundingRect());
    drawThemedText(context, options);
}

BoldTextArrowTwo *BoldTextArrowTwo::clone() const { return new BoldTextArrowTwo(*this); }

} // namespace Vantrel
