// The four text rectangles: a panel behind the text, one design per theme.
#include <vantrel/callouts/rectangles/TextRectangles.h>

#include "callouts/frame/Painting.h"
#include "drawing/BoundsFinder.h"

namespace Vantrel {

namespace {

double const kPanelMargin = 12.0;

} // namespace

AbstractTextRectangle::AbstractTextRectangle(Color const &fillColor, std::string const &fillStyle,
                                             Point const &gradientDirection, Color const &strokeColor,
                                             double strokeWidth, std::string const &strokeStyle, Rect const &box,
                                             TextCalloutProperties const &text, TextAttributeList const &attributes)
    : TextCallout(box, text, attributes),
      properties(fillColor, fillStyle, gradientDirection, strokeColor, strokeWidth, strokeStyle) {}

BasicTextRectangle::BasicTextRectangle(Color const &fillColor, std::string const &fillStyle,
                                       Point const &gradientDirection, Color const &strokeColor, double strokeWidth,
                                       std::string const &strokeStyle, Rect const &box,
                                       TextCalloutProperties const &text, TextAttributeList const &attributes)
    : TextCallout(box, text, attributes),
      properties(fillColor, fillStyle, gradientDirection, strokeColor, strokeWidth, strokeStyle) {}

BoldTextRectangle::BoldTextRectangle(Color const &fillColor, std::string const &fillStyle,
                                     Point const &gradientDirection, Color const &strokeColor, double strokeWidth,
                                     std::string const &strokeStyle, Rect const &box, TextCalloutProperties const &text,
                                     TextAttributeList const &attributes)
    : TextCallout(box, text, attributes),
      properties(fillColor, fillStyle, gradientDirection, strokeColor, strokeWidth, strokeStyle),
      outline(Polygon(box.Expanded(kPanelMargin))) {}

UrbanTextRectangle::UrbanTextRectangle(Color const &fillColor, std::string const &fillStyle,
                                       Point const &gradientDirection, Color const &strokeColor, double strokeWidth,
                                       std::string const &strokeStyle, Rect const &box,
                                       TextCalloutProperties const &text, TextAttributeList const &attributes)
    : TextCallout(box, text, attributes),
      properties(fillColor, fillStyle, gradientDirection, strokeColor, strokeWidth, strokeStyle) {}

void AbstractTextRectangle::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                            DrawOutputMetaData *) const {
    Rect const r = bodyRect().Expanded(kPanelMargin);
    Polygon const corners{r.PointAtFraction(0.0, 0.0), r.PointAtFraction(1.0, 0.0), r.PointAtFraction(1.0, 1.0),
                          r.PointAtFraction(0.0, 1.0)};
    Polygon const outline = corners.RoundedCorners({9.0, 9.0, 9.0, 9.0});
    fillPolygonWithStyle(context, outline, properties.fillColor, properties.fillStyle, r, properties.gradientDirection);
    // Stroked whatever the width, as the design has it.
    context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, outline);
    drawThemedText(context, options);
}

AbstractTextRectangle *AbstractTextRectangle::clone() const { return new AbstractTextRectangle(*this); }

void BasicTextRectangle::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                         DrawOutputMetaData *) const {
    Rect const r = bodyRect().Normalized().Expanded(kPanelMargin);
    paintOutline(context, properties, Polygon(r).RoundedCorners(8.0), r);
    drawThemedText(context, options);
}

Rect BasicTextRectangle::trackingRect() const { return trackingRectAround(bodyRect().Center()); }

BasicTextRectangle *BasicTextRectangle::clone() const { return new BasicTextRectangle(*this); }

void BoldTextRectangle::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                        DrawOutputMetaData *) const {
    fillPolygonWithStyle(context, outline, properties.fillColor, properties.fillStyle, outline.BoundingRect(),
                         properties.gradientDirection);
    if (properties.strokeWidth > 0)
        context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, outline);
    drawThemedText(context, options);
}

BoldTextRectangle *BoldTextRectangle::clone() const { return new BoldTextRectangle(*this); }

void UrbanTextRectangle::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    Rect const r = bodyRect().Expanded(Point(bodyRect().Width() * 0.25, kPanelMargin));
    // The parts meet at five sixths of the width, without overlap.
    double const x = r.Left() + r.Width() * 5.0 / 6.0;
    fillPolygonWithStyle(context, Polygon(Rect(Point(r.Left(), r.Top()), Point(x, r.Bottom()))), properties.fillColor,
                         properties.fillStyle, r, properties.gradientDirection);
    Color lighter = properties.fillColor;
    lighter.alpha *= 0.8f;
    fillPolygonWithStyle(context, Polygon(Rect(Point(x, r.Top()), Point(r.Right(), r.Bottom()))), lighter,
                         properties.fillStyle, r, properties.gradientDirection);
    if (properties.strokeWidth > 0)
        context->Stroke(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, Polygon(r));
    // The options are not read: the text is drawn whenever there is one.
    drawThemedText(context, DrawOptionAll);
}

Rect UrbanTextRectangle::boundingRect() const {
    BoundsFinder finder;
    drawIntoContext(&finder, DrawOptionAll, Rect(), -1, nullptr);
    return finder.InkExtents();
}

UrbanTextRectangle *UrbanTextRectangle::clone() const { return new UrbanTextRectangle(*this); }

} // namespace Vantrel
