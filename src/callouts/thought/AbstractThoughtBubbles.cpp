// The Abstract thought bubbles: eight lobes around a square, and an ellipse
// with eight circles on its rim.
#include "callouts/thought/ThoughtCommon.h"
#include "values/Pi.h"

#include <algorithm>
#include <cmath>

namespace Vantrel {

AbstractThoughtBubble::AbstractThoughtBubble(Rect const &box, CalloutProperties const &properties_,
                                             std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

AbstractThoughtBubble *AbstractThoughtBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                                Point const &tail) {
    return new AbstractThoughtBubble(box, properties, {tail});
}

void AbstractThoughtBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                            DrawOutputMetaData *) const {
    // A square about the box's centre, whatever the box's proportions.
    double const m = std::max(bodyRect().Width(), bodyRect().Height());
    Point const ctr = bodyRect().Center();
    Rect const a = Rect(ctr, ctr).Expanded((m * 1.6 + 1.0) * 0.5);
    {
        SavedContextState saved(context);
        context->Translate(ctr);
        double const w = a.Width(), h = a.Height();
        auto at = [w, h](double angle, double k) {
            return Point(std::cos(angle) * w * 0.5 * k, std::sin(angle) * h * 0.5 * k);
        };
        // Valleys at 0.7 of the half size on the odd multiples of pi/8, the
        // controls standing out at 0.9.
        double theta = -0.39269908169872414;
        Path lobes;
        lobes.AddPoint(at(theta, 0.7));
        for (int i = 0; i < 8; ++i) {
            lobes.AddCurve(at(theta + 0.19634954084936207, 0.9), at(theta + 0.5890486225480862, 0.9),
                           at(theta + 0.7853981633974483, 0.7));
            theta += 0.7853981633974483;
        }
        drawTrail(context, properties, a.OffsettedRect(-ctr), a.Size(), firstTail(tails, bodyRect()) - ctr, 0.7, true);
        // The gradient keeps the untranslated square, as the design has it.
        paintPath(context, properties, lobes, a);
    }
    drawThemedText(context, options);
}

Rect AbstractThoughtBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

AbstractThoughtBubble *AbstractThoughtBubble::clone() const { return new AbstractThoughtBubble(*this); }

AbstractThoughtBubbleTwo::AbstractThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                                   std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

AbstractThoughtBubbleTwo *
AbstractThoughtBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties, Point const &tail) {
    return new AbstractThoughtBubbleTwo(box, properties, {tail});
}

void AbstractThoughtBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                               DrawOutputMetaData *) const {
    // At least twice as wide as high.
    double w = bodyRect().Width(), h = w * 0.5;
    if (bodyRect().Height() > h) {
        h = bodyRect().Height();
        w = 2.0 * h;
    }
    Point const ctr = bodyRect().Center();
    Rect const a = Rect(ctr, ctr).Expanded(Point(calloutMargin(), calloutMargin()) + Point(w, h) * (0.5 * 1.15));
    Path ellipse;
    ellipse.AddArc(Point(0.0, 0.0), a.Width() * 0.5 * 0.9, a.Height() * 0.5 * 0.9, 0.0, 6.283185307179586);
    Polygons outline;
    outline.Add(ellipse.Flattened(context));
    // The steeper the box, the smaller the angle of the circles off the axes.
    double const off = clampBetween(0.5235987755982988, std::atan2(a.Width(), a.Height()), 1.0471975511965976);
    double const radius = std::max(a.Height() / 5.5, a.Width() / 5.5);
    for (double angle : {0.0, off, kPi / 2, kPi - off, kPi, kPi + off, 3 * kPi / 2, -off}) {
        Path circle;
        circle.AddArc(Point(std::cos(angle) * a.Width() * 0.5, std::sin(angle) * a.Height() * 0.5), radius, 0.0,
                      6.283185307179586);
        Polygons one;
        one.Add(circle.Flattened(context));
        outline = outline.UnionWith(one);
    }
    outline = Matrix3x3::Translation(a.Center()) * outline;
    drawTrail(context, properties, a, a.Size(), firstTail(tails, bodyRect()), 1.0, true);
    // Only the ellipse is filled, about the origin: fill and stroke meet for
    // a box centred there, as the design has it.
    CalloutProperties fillOnly = properties;
    fillOnly.strokeWidth = 0;
    paintPath(context, fillOnly, ellipse, a);
    if (properties.strokeWidth > 0)
        context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, outline);
    drawThemedText(context, options);
}

Rect AbstractThoughtBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

AbstractThoughtBubbleTwo *AbstractThoughtBubbleTwo::clone() const { return new AbstractThoughtBubbleTwo(*this); }

} // namespace Vantrel
