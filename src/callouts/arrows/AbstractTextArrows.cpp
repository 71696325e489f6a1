// The Abstract text arrows, built at construction: rounded corners, a square
// or a half-round rear. Their outline is stroked whatever the width.
#include <vantrel/callouts/arrows/TextArrows.h>

#include "callouts/arrows/TextArrowGeometry.h"

namespace Vantrel {

namespace {

void drawAbstract(DrawingContext *context, CalloutProperties const &properties, Polygon const &outline) {
    fillPolygonWithStyle(context, outline, properties.fillColor, properties.fillStyle, outline.BoundingRect(),
                         properties.gradientDirection);
    context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, outline);
}

} // namespace

AbstractTextArrow::AbstractTextArrow(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_), outline(abstractArrowOutline(box, false)) {}

AbstractTextArrow *AbstractTextArrow::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new AbstractTextArrow(box, properties);
}

void AbstractTextArrow::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                        DrawOutputMetaData *) const {
    drawAbstract(context, properties, outline);
    drawThemedText(context, options);
}

AbstractTextArrow *AbstractTextArrow::clone() const { return new AbstractTextArrow(*this); }

AbstractTextArrowTwo::AbstractTextArrowTwo(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_), outline(abstractArrowOutline(box, true)) {}

AbstractTextArrowTwo *AbstractTextArrowTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new AbstractTextArrowTwo(box, properties);
}

void AbstractTextArrowTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                           DrawOutputMetaData *) const {
    drawAbstract(context, properties, outline);
    drawThemedText(context, options);
}

AbstractTextArrowTwo *AbstractTextArrowTwo::clone() const { return new AbstractTextArrowTwo(*this); }

} // namespace Vantrel
