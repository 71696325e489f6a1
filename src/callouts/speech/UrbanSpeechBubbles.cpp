// The Urban speech bubbles: a sharp rectangle whose tail stands with one side
// on the tip, and a wider one filled in two strengths.
#include <vantrel/callouts/speech/SpeechBubbles.h>

#include "callouts/bubbles/BubbleGeometry.h"

namespace Vantrel {

namespace {

// The outline both designs draw around e.
Polygon urbanOutline(Rect const &e, std::vector<Point> const &tails) {
    Point const t = firstTail(tails, e);
    return rectangleWithTail(e, t, 0.0, tailBaseWidth(e, t, 1.0471975511965976, 20.0), true);
}

} // namespace

UrbanSpeechBubble::UrbanSpeechBubble(Rect const &box, CalloutProperties const &properties_,
                                     std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

UrbanSpeechBubble *UrbanSpeechBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                        Point const &tail) {
    return new UrbanSpeechBubble(box, properties, {tail});
}

void UrbanSpeechBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                        DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(calloutMargin());
    paintOutline(context, properties, urbanOutline(e, tails), e);
    drawThemedText(context, options);
}

Rect UrbanSpeechBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

UrbanSpeechBubble *UrbanSpeechBubble::clone() const { return new UrbanSpeechBubble(*this); }

UrbanSpeechBubbleTwo::UrbanSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                           std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

UrbanSpeechBubbleTwo *UrbanSpeechBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                              Point const &tail) {
    return new UrbanSpeechBubbleTwo(box, properties, {tail});
}

void UrbanSpeechBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                           DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(Point(bodyRect().Width() * 0.25 + 1.0, calloutMargin()));
    Polygon const outline = urbanOutline(e, tails);
    Rect const b = outline.BoundingRect();
    double const x = e.Width() / 3.0; // a coordinate as it is, without e's left edge
    // The right part at 0.8 of the fill's alpha, then the left at full
    // strength; the clips overlap by 1.
    CalloutProperties fillOnly = properties;
    fillOnly.strokeWidth = 0;
    fillOnly.fillColor.alpha = properties.fillColor.alpha * 0.8f;
    context->Save();
    context->SetClip(Rect(x, b.Top(), b.Right(), b.Bottom()));
    paintOutline(context, fillOnly, outline, e);
    context->Restore();
    fillOnly.fillColor = properties.fillColor;
    context->Save();
    context->SetClip(Rect(b.Left(), b.Top(), x + 1.0, b.Bottom()));
    paintOutline(context, fillOnly, outline, e);
    context->Restore();
    if (properties.strokeWidth > 0)
        context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, outline);
    drawThemedText(context, options);
}

Rect UrbanSpeechBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

UrbanSpeechBubbleTwo *UrbanSpeechBubbleTwo::clone() const { return new UrbanSpeechBubbleTwo(*this); }

} // namespace Vantrel
