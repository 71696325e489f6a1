// The Bold speech bubbles, built once at construction: a circle with a wedge
// out of a gap, and a sharp rectangle with a tail of base 60.
#include <vantrel/callouts/speech/SpeechBubbles.h>

#include "callouts/bubbles/BubbleGeometry.h"

namespace Vantrel {

BoldSpeechBubble::BoldSpeechBubble(Rect const &box, CalloutProperties const &properties_,
                                   std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {
    Rect const e = box.Expanded(calloutMargin()); // not normalised
    Point const ctr = e.PointAtFraction(0.5, 0.5);
    double const radius = (e.PointAtFraction(0.0, 0.0) - ctr).Length(); // half the diagonal
    gradientRect = Rect(ctr, ctr).Expanded(radius);
    Point const t = firstTail(tails, e);
    addGappedEllipse(outline, ctr, radius, radius, t - ctr, radius, t);
}

BoldSpeechBubble *BoldSpeechBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                      Point const &tail) {
    return new BoldSpeechBubble(box, properties, {tail});
}

void BoldSpeechBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                       DrawOutputMetaData *) const {
    paintPath(context, properties, outline, gradientRect);
    drawThemedText(context, options);
}

Rect BoldSpeechBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BoldSpeechBubble *BoldSpeechBubble::clone() const { return new BoldSpeechBubble(*this); }

BoldSpeechBubbleTwo::BoldSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                         std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {
    gradientRect = box.Normalized().Expanded(calloutMargin());
    outline = rectangleWithTail(gradientRect, firstTail(tails, gradientRect), 0.0, 60.0, false);
}

BoldSpeechBubbleTwo *BoldSpeechBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                            Point const &tail) {
    return new BoldSpeechBubbleTwo(box, properties, {tail});
}

void BoldSpeechBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                          DrawOutputMetaData *) const {
    paintOutline(context, properties, outline, gradientRect);
    drawThemedText(context, options);
}

Rect BoldSpeechBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BoldSpeechBubbleTwo *BoldSpeechBubbleTwo::clone() const { return new BoldSpeechBubbleTwo(*this); }

} // namespace Vantrel
