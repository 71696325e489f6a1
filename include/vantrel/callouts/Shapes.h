// Plain filled shapes: the frame they share and each shape.
#pragma once

#include <vantrel/callouts/BaseCallout.h>

namespace Vantrel {

// A filled and stroked shape inside rect.
class ShapeCallout : public BaseCallout {
public:
    ShapeCallout(Color const &fill, std::string const &fillStyle, Point const &gradientDirection, Color const &stroke,
                 double strokeWidth, std::string const &strokeStyle, Rect const &rect);

    // rect grown by half the stroke width.
    Rect trackingRect() const override;

protected:
    CalloutProperties properties;
    Rect rect;
};

// The ellipse inscribed in rect. A rect without width or height draws nothing.
class OvalShape : public ShapeCallout {
public:
    using ShapeCallout::ShapeCallout;

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual OvalShape *clone() const;
};

} // namespace Vantrel
