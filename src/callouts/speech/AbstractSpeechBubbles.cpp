// The Abstract speech bubbles: a rounded rectangle with a tail off its
// nearest edge, and an ellipse with a wedge out of a gap.
#include <vantrel/callouts/speech/SpeechBubbles.h>

#include "callouts/bubbles/BubbleGeometry.h"

#include <cmath>

namespace Vantrel {

AbstractSpeechBubble::AbstractSpeechBubble(Rect const &box, CalloutProperties const &properties_,
                                           std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

AbstractSpeechBubble *AbstractSpeechBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                              Point const &tail) {
    return new AbstractSpeechBubble(box, properties, {tail});
}

void AbstractSpeechBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                           DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(calloutMargin());
    Point const t = firstTail(tails, e);
    double const w = tailBaseWidth(e, t, 0.5235987755982988, 10.0);
    paintOutline(context, properties, rectangleWithTail(e, t, 5.0, w, false), e);
    drawThemedText(context, options);
}

Rect AbstractSpeechBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

AbstractSpeechBubble *AbstractSpeechBubble::clone() const { return new AbstractSpeechBubble(*this); }

AbstractSpeechBubbleTwo::AbstractSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                                 std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

AbstractSpeechBubbleTwo *
AbstractSpeechBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties, Point const &tail) {
    return new AbstractSpeechBubbleTwo(box, properties, {tail});
}

void AbstractSpeechBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                              DrawOutputMetaData *) const {
    // The box grows by the signs of its far coordinates.
    Rect const &box = bodyRect();
    Rect const e1 = box.Expanded(calloutMargin() * std::copysign(1.0, box.Right()));
    Rect const e2 = box.Expanded(calloutMargin() * std::copysign(1.0, box.Bottom()));
    Rect const b(e1.Left(), e2.Top(), e1.Right(), e2.Bottom());
    Point const ctr = b.PointAtFraction(0.5, 0.5), size = b.Size();
    Point const t = firstTail(tails, b);
    Point d = t - ctr;
    d.y = d.y * size.x / size.y; // the frame in which the ellipse is a circle
    double const rx = size.x / std::sqrt(2.0), ry = size.y / std::sqrt(2.0);
    Path path;
    addGappedEllipse(path, ctr, rx, ry, d, std::max(rx, ry), t);
    paintPath(context, properties, path, b);
    drawThemedText(context, options);
}

Rect AbstractSpeechBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

AbstractSpeechBubbleTwo *AbstractSpeechBubbleTwo::clone() const { return new AbstractSpeechBubbleTwo(*this); }

} // namespace Vantrel
