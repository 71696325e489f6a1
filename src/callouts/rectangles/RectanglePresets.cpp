// The text rectangle factory: every argument goes to the theme's class.
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/rectangles/TextRectangles.h>

namespace Vantrel {

BaseCallout *Presets::createTextRectangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                          Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                          std::string const &strokeStyle, Rect const &rect,
                                          TextCalloutProperties const &text, TextAttributeList const &attributes) {
    switch (theme) {
    case ThemeBasic:
        return new BasicTextRectangle(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect, text,
                                      attributes);
    case ThemeUrban:
        return new UrbanTextRectangle(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect, text,
                                      attributes);
    case ThemeBold:
        return new BoldTextRectangle(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect, text,
                                     attributes);
    case ThemeAbstract:
        return new AbstractTextRectangle(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes);
    default:
        return nullptr; // ThemeModern and numbers outside the enumeration
    }
}

} // namespace Vantrel
