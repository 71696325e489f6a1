// Plain filled shapes: the frame they share and each shape.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>

namespace Vantrel {

// A filled and stroked shape inside rect.
class VANTREL_EXPORT ShapeCallout : public BaseCallout {
public:
    ShapeCallout(Color const &fill, std::string const &fillStyle, Point const &gradientDirection, Color const &stroke,
                 double strokeWidth, std::string const &strokeStyle, Rect const &rect);

    // rect grown by half the stroke width.
    Rect trackingRect() const override;

protected:
    // Rounds the polygon when cornerRadius is above 0, fills it by the fill
    // style and strokes it when strokeWidth is above 0.
    void fillAndStroke(DrawingContext *context, Polygon polygon, double cornerRadius) const;

    CalloutProperties properties;
    Rect rect;
};

// The ellipse inscribed in rect. A rect without width or height draws nothing.
class VANTREL_EXPORT OvalShape : public ShapeCallout {
public:
    using ShapeCallout::ShapeCallout;

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual OvalShape *clone() const;
};

// The rect as a polygon, its corners rounded by cornerRadius when above 0.
class VANTREL_EXPORT RectangleShape : public ShapeCallout {
public:
    RectangleShape(Color const &fill, std::string const &fillStyle, Point const &gradientDirection, Color const &stroke,
                   double strokeWidth, std::string const &strokeStyle, double cornerRadius, Rect const &rect);

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual RectangleShape *clone() const;

protected:
    double cornerRadius;
};

// A five-pointed star centred on the origin (only the rect's size counts),
// its x and y radii following the rect's width and height. The inner
// vertices lie at innerRadiusRatio of the outer radius.
class VANTREL_EXPORT StarShape : public ShapeCallout {
public:
    StarShape(Color const &fill, std::string const &fillStyle, Point const &gradientDirection, Color const &stroke,
              double strokeWidth, std::string const &strokeStyle, double innerRadiusRatio, double cornerRadius,
              Rect const &rect);

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual StarShape *clone() const;

    // The ten vertices before rounding, starting at the top point.
    Polygon starPolygon() const;

protected:
    double innerRadiusRatio;
    double cornerRadius;
};

// A regular polygon. sides exactly 3 inscribes a triangle in the rect (apex
// at the middle of the top edge; rotation is not read). Any other count is
// centred on the origin, its first vertex at the angle rotation, with the
// radius chosen so that for an octagon rotated by -pi/8 the vertical edges
// lie on the rect's sides, and the height scaled to the rect's.
//
// Defined results for counts the library itself never passes:
// - a fractional count keeps the loop's meaning, ceil(sides) vertices at
//   angles i * 2pi / sides, so the last edge is shorter;
// - counts above kMaxSides are drawn with kMaxSides vertices (beyond it the
//   polygon is a circle at any size), and 0, below or NaN give no polygon;
// - a rect of width 0 collapses the polygon onto the vertical axis, the
//   height radius being (H / 2) / cos(rotation) as for any other width,
//   instead of dividing by the width.
class VANTREL_EXPORT RegularPolygonShape : public ShapeCallout {
public:
    static int const kMaxSides = 4096;

    RegularPolygonShape(Color const &fill, std::string const &fillStyle, Point const &gradientDirection,
                        Color const &stroke, double strokeWidth, std::string const &strokeStyle, double sides,
                        double rotation, double cornerRadius, Rect const &rect);

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual RegularPolygonShape *clone() const;

    // The vertices before rounding.
    Polygon regularPolygon() const;

protected:
    double sides;
    double rotation;
    double cornerRadius;
};

} // namespace Vantrel
