// The Basic text arrows, built at each draw: a half-round or a tapered rear,
// shrunk to the reference rect; the only arrows that read the body option.
#include <vantrel/callouts/arrows/TextArrows.h>

#include "callouts/arrows/TextArrowGeometry.h"
#include "callouts/bubbles/BubbleGeometry.h"
#include "callouts/frame/Painting.h"

namespace Vantrel {

namespace {

// The arrow is built about the origin and drawn at r's centre; its gradient
// keeps r in the outer coordinates, as the design has it.
void drawBasic(DrawingContext *context, CalloutProperties const &properties, BaseCallout::DrawOptions options,
               BasicArrow const &arrow) {
    if (!(options & BaseCallout::DrawOptionBody))
        return;
    SavedContextState saved(context);
    context->Translate(arrow.r.Center());
    paintOutline(context, properties, arrow.outline, arrow.r);
}

} // namespace

BasicTextArrow::BasicTextArrow(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_) {}

BasicTextArrow *BasicTextArrow::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new BasicTextArrow(box, properties);
}

void BasicTextArrow::drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int,
                                     DrawOutputMetaData *) const {
    drawBasic(context, properties, options, basicArrowOutline(bodyRect(), false, referenceRect));
    drawThemedText(context, options);
}

Rect BasicTextArrow::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicTextArrow *BasicTextArrow::clone() const { return new BasicTextArrow(*this); }

BasicTextArrowTwo::BasicTextArrowTwo(Rect const &box, CalloutProperties const &properties_)
    : TextCallout(box), properties(properties_) {}

BasicTextArrowTwo *BasicTextArrowTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties) {
    return new BasicTextArrowTwo(box, properties);
}

void BasicTextArrowTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int,
                                        DrawOutputMetaData *) const {
    drawBasic(context, properties, options, basicArrowOutline(bodyRect(), true, referenceRect));
    drawThemedText(context, options);
}

Rect BasicTextArrowTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicTextArrowTwo *BasicTextArrowTwo::clone() const { return new BasicTextArrowTwo(*this); }

} // namespace Vantrel
