// The Urban thought bubbles: a sharp rectangle and a cloud with a flat base,
// each with a translucent trail.
#include "callouts/thought/ThoughtCommon.h"

#include <algorithm>

namespace Vantrel {

UrbanThoughtBubble::UrbanThoughtBubble(Rect const &box, CalloutProperties const &properties_,
                                       std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

UrbanThoughtBubble *UrbanThoughtBubble::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                          Point const &tail) {
    return new UrbanThoughtBubble(box, properties, {tail});
}

void UrbanThoughtBubble::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                         DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(calloutMargin());
    drawTrail(context, properties, e, e.Size(), firstTail(tails, e), 1.0, true);
    paintOutline(context, properties, Polygon(e), e);
    drawThemedText(context, options);
}

Rect UrbanThoughtBubble::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

UrbanThoughtBubble *UrbanThoughtBubble::clone() const { return new UrbanThoughtBubble(*this); }

UrbanThoughtBubbleTwo::UrbanThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties_,
                                             std::vector<Point> const &tails_)
    : TextCallout(box), properties(properties_), tails(tails_) {}

UrbanThoughtBubbleTwo *UrbanThoughtBubbleTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                                Point const &tail) {
    return new UrbanThoughtBubbleTwo(box, properties, {tail});
}

void UrbanThoughtBubbleTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                            DrawOutputMetaData *) const {
    Rect const e = bodyRect().Normalized().Expanded(calloutMargin());
    drawTrail(context, properties, e, e.Size(), firstTail(tails, e), 1.0, true);
    // The cloud about the origin, its flat base the closing line.
    Path cloud;
    cloud.AddPoint(Point(1.04, 0.4));
    static Point const curves[11][3] = {
        {{1.042, 0.388}, {1.042, 0.374}, {1.042, 0.362}},     {{1.042, 0.178}, {0.892, 0.028}, {0.708, 0.028}},
        {{0.706, 0.028}, {0.702, 0.028}, {0.7, 0.028}},       {{0.7, 0.028}, {0.7, 0.028}, {0.7, 0.028}},
        {{0.7, -0.122}, {0.578, -0.244}, {0.428, -0.244}},    {{0.366, -0.244}, {0.31, -0.224}, {0.266, -0.19}},
        {{0.208, -0.398}, {0.016, -0.552}, {-0.212, -0.552}}, {{-0.486, -0.552}, {-0.708, -0.33}, {-0.708, -0.056}},
        {{-0.708, -0.02}, {-0.704, 0.014}, {-0.696, 0.048}},  {{-0.822, 0.096}, {-0.912, 0.218}, {-0.912, 0.36}},
        {{-0.912, 0.372}, {-0.912, 0.386}, {-0.91, 0.398}}};
    for (auto const &c : curves)
        cloud.AddCurve(c[0], c[1], c[2]);
    double const s = std::max(e.Height() * 1.75, e.Width() * 1.5 * 0.55);
    cloud.Transform(Matrix3x3::Translation(e.Center() - Point(0.0, e.Height() / 10.0)) * Matrix3x3::Uniform(s));
    // The gradient spans the cloud itself.
    paintPath(context, properties, cloud, properties.isGradient() ? cloud.Flattened(context).BoundingRect() : e);
    drawThemedText(context, options);
}

Rect UrbanThoughtBubbleTwo::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

UrbanThoughtBubbleTwo *UrbanThoughtBubbleTwo::clone() const { return new UrbanThoughtBubbleTwo(*this); }

} // namespace Vantrel
