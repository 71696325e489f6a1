// The shape factories: one class per kind, a corner radius or star ratio per theme.
#include "values/Pi.h"
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/shapes/Shapes.h>

namespace Vantrel {

namespace {

// One constant per theme; a theme without the callout has none.
struct ThemeValue {
    bool exists;
    double value;
};

ThemeValue byTheme(Presets::Theme theme, double basic, double urban, double bold, double abstract) {
    switch (theme) {
    case Presets::ThemeBasic:
        return {true, basic};
    case Presets::ThemeUrban:
        return {true, urban};
    case Presets::ThemeBold:
        return {true, bold};
    case Presets::ThemeAbstract:
        return {true, abstract};
    default:
        return {false, 0};
    }
}

double const kOctagonRotation = -kPi / 8;
double const kTriangleRotation = -kPi / 6;

} // namespace

BaseCallout *Presets::createShapeOval(Theme, Color const &fill, std::string const &fillStyle,
                                      Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                      std::string const &strokeStyle, Rect const &rect) {
    return new OvalShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect);
}

BaseCallout *Presets::createShapeRectangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                           Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 0);
    if (!radius.exists)
        return nullptr;
    return new RectangleShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, radius.value, rect);
}

BaseCallout *Presets::createShapeOctagon(Theme theme, Color const &fill, std::string const &fillStyle,
                                         Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                         std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 8);
    if (!radius.exists)
        return nullptr;
    return new RegularPolygonShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, 8,
                                   kOctagonRotation, radius.value, rect);
}

BaseCallout *Presets::createShapeTriangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                          Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                          std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 8);
    if (!radius.exists)
        return nullptr;
    return new RegularPolygonShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, 3,
                                   kTriangleRotation, radius.value, rect);
}

BaseCallout *Presets::createShapeStar(Theme theme, Color const &fill, std::string const &fillStyle,
                                      Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                      std::string const &strokeStyle, Rect const &rect) {
    ThemeValue ratio = byTheme(theme, 0.5, 0.5, 0.7, 0.5);
    ThemeValue radius = byTheme(theme, 8, 0, 0, 6);
    if (!ratio.exists)
        return nullptr;
    return new StarShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, ratio.value,
                         radius.value, rect);
}

// The short forms: a solid fill.
#define VANTREL_SHORT_SHAPE_FORM(name)                                                                                 \
    BaseCallout *Presets::name(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,                \
                               std::string const &strokeStyle, Rect const &rect) {                                     \
        return name(theme, fill, "solid", Point(0, 0), stroke, strokeWidth, strokeStyle, rect);                        \
    }
VANTREL_SHORT_SHAPE_FORM(createShapeOval)
VANTREL_SHORT_SHAPE_FORM(createShapeRectangle)
VANTREL_SHORT_SHAPE_FORM(createShapeOctagon)
VANTREL_SHORT_SHAPE_FORM(createShapeTriangle)
VANTREL_SHORT_SHAPE_FORM(createShapeStar)
#undef VANTREL_SHORT_SHAPE_FORM

} // namespace Vantrel
