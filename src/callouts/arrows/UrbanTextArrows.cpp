// The Urban text arrows, built at each draw at their progress: a head that
// opens, and in the first design a rear that dissolves into tiles. Their
// bounds are those of the finished arrow, measured at every call.
#include <vantrel/callouts/arrows/TextArrows.h>

#include "callouts/arrows/TextArrowGeometry.h"
#include "callouts/bubbles/BubbleGeometry.h"
#include "drawing/BoundsFinder.h"

namespace Vantrel {

namespace {

double headHeight(Rect const &shaft) { return shaft.Height() * 1.8; }
double headLength(Rect const &shaft) { return headHeight(shaft) * 0.4; }

} // namespace

UrbanTextArrow::UrbanTextArrow(Rect const &box, CalloutProperties const &properties_, double revealProgress_)
    : TextCallout(box), properties(properties_), revealProgress(revealProgress_) {}

UrbanTextArrow *UrbanTextArrow::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                  double revealProgress) {
    return new UrbanTextArrow(box, properties, revealProgress);
}

void UrbanTextArrow::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                     DrawOutputMetaData *) const {
    drawAtProgress(context, revealProgress, options);
}

void UrbanTextArrow::drawAtProgress(DrawingContext *context, double progress, DrawOptions options) const {
    progress = revealedProgress(progress);
    Rect const r = shaftAroundText(bodyRect());
    double const hh = headHeight(r), hl = headLength(r);
    RevealGrid const grid = revealGrid(r, progress);
    // The tiles from the first column the solid body does not cover, each in
    // its own strength; none stroked.
    for (int col = grid.first / 2; col < grid.cols; ++col)
        for (int row = 0; row < 2; ++row) {
            int const i = 2 * col + row;
            Color c = properties.fillColor;
            c.alpha *= float(grid.alpha(i));
            fillPolygonWithStyle(context, Polygon(grid.tile(i)), c, properties.fillStyle, r,
                                 properties.gradientDirection);
        }
    Polygon body{Point(grid.cut, r.Bottom()), Point(grid.cut, r.Top())};
    addArrowHead(body, r, hh, hl, progress);
    fillPolygonWithStyle(context, body, properties.fillColor, properties.fillStyle, r, properties.gradientDirection);
    if (properties.strokeWidth > 0) {
        // The stroke reaches two tiles behind the body, in a step.
        double const w = grid.width, h = grid.height;
        Polygon stroke{Point(grid.cut - 2 * w, r.Top())};
        addArrowHead(stroke, r, hh, hl, progress);
        for (Point const &p : {Point(grid.cut - w, r.Bottom()), Point(grid.cut - w, r.Bottom() - h),
                               Point(grid.cut - 2 * w, r.Bottom() - h), Point(grid.cut - 2 * w, r.Top())})
            stroke.points.push_back(p);
        context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, stroke);
    }
    drawThemedText(context, options);
}

Rect UrbanTextArrow::boundingRect() const {
    BoundsFinder finder;
    drawAtProgress(&finder, 1.0, DrawOptionAll);
    return finder.InkExtents();
}

UrbanTextArrow *UrbanTextArrow::clone() const { return new UrbanTextArrow(*this); }

UrbanTextArrowTwo::UrbanTextArrowTwo(Rect const &box, CalloutProperties const &properties_, double revealProgress_)
    : TextCallout(box), properties(properties_), revealProgress(revealProgress_) {}

UrbanTextArrowTwo *UrbanTextArrowTwo::createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                        double revealProgress) {
    return new UrbanTextArrowTwo(box, properties, revealProgress);
}

void UrbanTextArrowTwo::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                        DrawOutputMetaData *) const {
    drawAtProgress(context, revealProgress, options);
}

void UrbanTextArrowTwo::drawAtProgress(DrawingContext *context, double progress, DrawOptions options) const {
    progress = revealedProgress(progress);
    Rect const r = shaftAroundText(bodyRect());
    Polygon outline{Point(r.Left() - calloutMargin(), r.Top())};
    addArrowHead(outline, r, headHeight(r), headLength(r), progress);
    outline.points.push_back(Point(r.Left() - calloutMargin(), r.Bottom()));
    paintOutline(context, properties, outline, outline.BoundingRect());
    drawThemedText(context, options);
}

Rect UrbanTextArrowTwo::boundingRect() const {
    BoundsFinder finder;
    drawAtProgress(&finder, 1.0, DrawOptionAll);
    return finder.InkExtents();
}

UrbanTextArrowTwo *UrbanTextArrowTwo::clone() const { return new UrbanTextArrowTwo(*this); }

} // namespace Vantrel
