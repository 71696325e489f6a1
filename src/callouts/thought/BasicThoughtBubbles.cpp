// The Basic thought bubbles: the fixed cloud with a triangular tail united
// into it, or with an opaque trail; the only designs that read the body and
// tail options and the tail index, and take several tails.
#include "callouts/thought/ThoughtCommon.h"

#include <algorithm>

namespace Vantrel {

namespace {

// The scale of the cloud around box, the same both ways when uniform.
Point cloudScale(Rect const &box, bool uniform) {
    Point const f = thoughtCloudFactors();
    Point s(box.Width() * f.x, box.Height() * f.y);
    if (uniform)
        s.x = s.y = std::max(s.x, s.y);
    return s;
}

// The cloud around box, or an empty path when the body is not asked for.
Path cloudAround(Rect const &box, Point const &scale, BaseCallout::DrawOptions options) {
    Path cloud;
    if (options & BaseCallout::DrawOptionBody) {
        addCloudPath(cloud, scale);
        cloud.Transform(Matrix3x3::Translation(box.Center()));
    }
    return cloud;
}

} // namespace

BasicThoughtBubble::BasicThoughtBubble(Rect const &box, CalloutProperties const &properties_,
                                       std::vector<Point> const &tails_, bool uniformCloud_)
    : TextCallout(box), properties(properties_), tails(tails_), uniformCloud(uniformCloud_) {}

BasicThoughtBubble *BasicThoughtBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                          Point const &tail, bool uniformCloud) {
    return new BasicThoughtBubble(box, properties, {tail}, uniformCloud);
}

void BasicThoughtBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int tailIndex,
                                         DrawOutputMetaData *) const {
    Rect const &box = bodyRect();
    Point const s = cloudScale(box, uniformCloud);
    // Flattened even when empty: a query for the tails alone then holds an
    // empty polygon besides them.
    Polygons outline;
    outline.Add(cloudAround(box, s, options).Flattened(context));
    if (options & DrawOptionTail) {
        bool const several = tails.size() > 1;
        uniteTails(outline, tails, kMaxThoughtBubbleTails, tailIndex, [&](Point const &tail) {
            return several ? radialTail(tail, box.Center(), box.Height() * 0.25, box.Size(), 4.0)
                           : cloudTail(tail, box, s);
        });
    }
    paintOutline(context, properties, outline, box);
    drawThemedText(context, options);
}

Rect BasicThoughtBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicThoughtBubble *BasicThoughtBubble::clone() const { return new BasicThoughtBubble(*this); }

BasicThoughtBubbleTwo::BasicThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                             std::vector<Point> const &tails_, bool uniformCloud_)
    : TextCallout(box), properties(properties_), tails(tails_), uniformCloud(uniformCloud_) {}

BasicThoughtBubbleTwo *BasicThoughtBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                                Point const &tail, bool uniformCloud) {
    return new BasicThoughtBubbleTwo(box, properties, {tail}, uniformCloud);
}

void BasicThoughtBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int tailIndex,
                                            DrawOutputMetaData *) const {
    Rect const &box = bodyRect();
    Point const s = cloudScale(box, uniformCloud);
    Path const cloud = cloudAround(box, s, options);
    if (options & DrawOptionTail) {
        bool const capped = tails.size() > size_t(kMaxThoughtBubbleTails);
        std::vector<Point> const drawn =
            capped ? std::vector<Point>(tails.begin(), tails.begin() + kMaxThoughtBubbleTails) : std::vector<Point>();
        drawThoughtCirclesForTails(box, s, capped ? drawn : tails, 1.2, context, properties, false, tailIndex);
    }
    // Painted also when empty, as the design has it.
    paintPath(context, properties, cloud, box);
    drawThemedText(context, options);
}

Rect BasicThoughtBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicThoughtBubbleTwo *BasicThoughtBubbleTwo::clone() const { return new BasicThoughtBubbleTwo(*this); }

} // namespace Vantrel
