#include <vantrel/callouts/Shapes.h>

namespace Vantrel {

ShapeCallout::ShapeCallout(Color const &fill, std::string const &fillStyle, Point const &gradientDirection,
                           Color const &stroke, double strokeWidth, std::string const &strokeStyle, Rect const &r)
    : properties(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle), rect(r) {}

Rect ShapeCallout::trackingRect() const { return rect.Expanded(properties.strokeWidth * 0.5); }

void OvalShape::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    if (properties.isGradient())
        context->FillEllipse(makeGradientPattern(properties.fillColor, rect, properties.gradientDirection), rect);
    else
        context->FillEllipse(properties.fillColor, rect);
    if (properties.strokeWidth > 0)
        context->StrokeEllipse(properties.strokeColor, properties.strokeWidth, properties.strokeStyle, rect);
}

OvalShape *OvalShape::clone() const { return new OvalShape(*this); }

} // namespace Vantrel
