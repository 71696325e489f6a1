// The Basic speech bubbles: a pill and a trapezoid, the only designs that
// keep body and tails apart, read the tail index and the reference rect, and
// take several tails.
#include <vantrel/callouts/speech/SpeechBubbles.h>

#include "callouts/bubbles/BubbleGeometry.h"

namespace Vantrel {

namespace {

// A box scaled about its centre by (sx, sy).
Rect scaledAboutCentre(Rect const &b, double sx, double sy) {
    return b.Expanded(-Point(b.Width() * (1.0 - sx) * 0.5, b.Height() * (1.0 - sy) * 0.5));
}

} // namespace

BasicSpeechBubble::BasicSpeechBubble(Rect const &box, CalloutProperties const &properties_,
                                     std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

BasicSpeechBubble *BasicSpeechBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                        Point const &tail) {
    return new BasicSpeechBubble(box, properties, {tail});
}

void BasicSpeechBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                                        DrawOutputMetaData *) const {
    // The round ends take a fifth of the height from the sides; h is read
    // from the box as given, B from the normalised one.
    double const h = bodyRect().Height();
    Rect const b = collapseInverted(bodyRect().Normalized().Expanded(Point(-h / 5.0, h / 5.0)));
    double const W = b.Width(), H = b.Height();
    double sx = 1.0, sy = 1.0;
    if (referenceRect.Width() != 0 && W + H > referenceRect.Width())
        sx = referenceRect.Width() / (W + H);
    if (referenceRect.Height() != 0 && H > referenceRect.Height())
        sy = referenceRect.Height() / H;

    Path pill;
    if (options & DrawOptionBody) {
        pill.AddArc(Point(-W * 0.5, 0.0), H * 0.5, 1.5707963267948966, 4.71238898038469);
        pill.AddArc(Point(W * 0.5, 0.0), H * 0.5, 4.71238898038469, 1.5707963267948966);
        if (sx != 1.0 || sy != 1.0)
            pill.Transform(Matrix3x3::Scale(sx, sy));
        pill.Transform(Matrix3x3::Translation(b.Center()));
    }
    // Flattened even when empty: a query for the tails alone then holds an
    // empty polygon besides them.
    Polygons result;
    result.Add(pill.Flattened(context));
    if ((options & DrawOptionTail) && !tails.empty()) {
        Rect const core = scaledAboutCentre(b, sx, sy);
        Rect const outer = Rect((-(W + H) * 0.5) * sx, (-H * 0.5) * sy, ((W + H) * 0.5) * sx, (H * 0.5) * sy)
                               .OffsettedRect(b.Center());
        bool const several = tails.size() > 1;
        uniteTails(result, tails, kMaxSpeechBubbleTails, tailIndex, [&](Point const &tail) {
            return several ? radialTail(tail, core.Center(), core.Height() * 0.25, outer.Size(), 4.0)
                           : stadiumTail(tail, core, outer.Size());
        });
    }
    paintOutline(context, properties, result, b);
    drawThemedText(context, options);
}

Rect BasicSpeechBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicSpeechBubble *BasicSpeechBubble::clone() const { return new BasicSpeechBubble(*this); }

BasicSpeechBubbleTwo::BasicSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                           std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

BasicSpeechBubbleTwo *BasicSpeechBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                              Point const &tail) {
    return new BasicSpeechBubbleTwo(box, properties, {tail});
}

void BasicSpeechBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect,
                                           int tailIndex, DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(calloutMargin());
    double const k = e.Height() * 3.0 / 80.0; // the slant of each side
    double const w = e.Width() + 2 * k;
    double sx = 1.0, sy = 1.0;
    if (referenceRect.Width() != 0 && w > referenceRect.Width() + 1.0)
        sx = referenceRect.Width() / w;
    if (referenceRect.Height() != 0 && e.Height() > referenceRect.Height() + 1.0)
        sy = referenceRect.Height() / e.Height();

    Polygons result;
    if (options & DrawOptionBody) {
        double const hw = e.HalfWidth(), hh = e.HalfHeight();
        Polygon body{Point(-hw, hh), Point(-hw - k, -hh), Point(hw + k, -hh), Point(hw, hh)};
        if (sx != 1.0 || sy != 1.0)
            body = Matrix3x3::Scale(sx, sy) * body;
        body = Matrix3x3::Translation(e.Center()) * body;
        result.Add(body.RoundedCorners(10.0));
    }
    if (options & DrawOptionTail) {
        Rect const core = scaledAboutCentre(e, sx, sy);
        uniteTails(result, tails, kMaxSpeechBubbleTails, tailIndex, [&](Point const &tail) {
            return radialTail(tail, core.Center(), core.Height() * 0.25, core.Size(), 4.0);
        });
    }
    paintOutline(context, properties, result, e);
    drawThemedText(context, options);
}

Rect BasicSpeechBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicSpeechBubbleTwo *BasicSpeechBubbleTwo::clone() const { return new BasicSpeechBubbleTwo(*this); }

} // namespace Vantrel
