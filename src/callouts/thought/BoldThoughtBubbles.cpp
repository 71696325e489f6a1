// The Bold thought bubbles: an ellipse through the corners of the grown box
// with an opaque trail, and four large circles in a cross with a tail.
#include "callouts/thought/ThoughtCommon.h"

#include <cmath>

namespace Vantrel {

BoldThoughtBubble::BoldThoughtBubble(Rect const &box, CalloutProperties const &properties_,
                                     std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

BoldThoughtBubble *BoldThoughtBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                        Point const &tail) {
    return new BoldThoughtBubble(box, properties, {tail});
}

void BoldThoughtBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                        DrawOutputMetaData *) const {
    // The box grows by the signs of its far coordinates.
    Rect const &box = bodyRect();
    Rect const e1 = box.Expanded(calloutMargin() * std::copysign(1.0, box.Right()));
    Rect const e2 = box.Expanded(calloutMargin() * std::copysign(1.0, box.Bottom()));
    Rect const b(e1.Left(), e2.Top(), e1.Right(), e2.Bottom());
    // The ellipse inscribed in z passes through b's corners.
    Point const grow = b.Size() * ((std::sqrt(2.0) - 1.0) * 0.5);
    Rect const z = b.Expanded(grow);
    drawTrail(context, properties, z, z.Size(), firstTail(tails, box), 0.9, false);
    fillEllipseWithStyle(context, z, properties.fillColor, 1.0, properties.isGradient(), properties.gradientDirection);
    if (properties.strokeWidth > 0)
        context->StrokeEllipse(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, z);
    drawThemedText(context, options);
}

Rect BoldThoughtBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BoldThoughtBubble *BoldThoughtBubble::clone() const { return new BoldThoughtBubble(*this); }

BoldThoughtBubbleTwo::BoldThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                           std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

BoldThoughtBubbleTwo *BoldThoughtBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                              Point const &tail) {
    return new BoldThoughtBubbleTwo(box, properties, {tail});
}

void BoldThoughtBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                           DrawOutputMetaData *) const {
    // At least 4 to 3.
    double w = bodyRect().Width(), h = w * 3.0 * 0.25;
    if (bodyRect().Height() > h) {
        h = bodyRect().Height();
        w = h * 4.0 / 3.0;
    }
    Point const ctr = bodyRect().Center();
    Rect const a = Rect(ctr, ctr).Expanded(Point(1.0, 1.0) + Point(w * 0.5, h * 0.5));
    double const r = a.Width() * 0.4, q = r * 3.0 * 0.5;
    auto circle = [&](Point const &centre) {
        Path path;
        path.AddArc(centre, r, 0.0, 6.283185307179586);
        return path.Flattened(context);
    };
    Polygons outline = circle(Point(0.0, a.Height() * 0.5 - q)).UnionWith(circle(Point(a.Width() * 0.5, 0.0)));
    for (Point const &centre : {Point(0.0, q - a.Height() * 0.5), Point(-a.Width() * 0.5, 0.0)}) {
        Polygons one;
        one.Add(circle(centre));
        outline = outline.UnionWith(one);
    }
    outline = Matrix3x3::Translation(a.Center()) * outline;
    Polygons tail;
    tail.Add(radialTail(firstTail(tails, bodyRect()), a.Center(), a.Height() * 0.25, a.Size(), 0.0));
    outline = outline.UnionWith(tail);
    paintOutline(context, properties, outline, a);
    drawThemedText(context, options);
}

Rect BoldThoughtBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BoldThoughtBubbleTwo *BoldThoughtBubbleTwo::clone() const { return new BoldThoughtBubbleTwo(*this); }

} // namespace Vantrel
