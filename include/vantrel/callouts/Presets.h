// Factories that make a callout by theme and kind. Each returns a new object
// that the caller owns, or null where the theme has no such callout.
#pragma once

#include <vantrel/callouts/BaseCallout.h>

#include <string>

namespace Vantrel {

class Presets {
public:
    enum Theme { ThemeBasic = 0, ThemeModern = 1, ThemeUrban = 2, ThemeBold = 3, ThemeAbstract = 4 };

    // Shapes. The long forms take the six style values; the short forms fill
    // solid (gradient direction (0, 0)). ThemeModern and values outside the
    // enumeration give null, except for the oval, which every theme has.
    static BaseCallout *createShapeOval(Theme theme, Color const &fill, std::string const &fillStyle,
                                        Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                        std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeOval(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,
                                        std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeRectangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                             Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                             std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeRectangle(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,
                                             std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeOctagon(Theme theme, Color const &fill, std::string const &fillStyle,
                                           Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeOctagon(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeTriangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                            Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                            std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeTriangle(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,
                                            std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeStar(Theme theme, Color const &fill, std::string const &fillStyle,
                                        Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                        std::string const &strokeStyle, Rect const &rect);
    static BaseCallout *createShapeStar(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,
                                        std::string const &strokeStyle, Rect const &rect);
};

} // namespace Vantrel
