// Factories that make a callout by theme and kind. Each returns a new object
// that the caller owns, or null where the theme has no such callout.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/callouts/lines/LineWithCaps.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>

#include <string>

namespace Vantrel {

// The arguments the factories share, in the order they come:
//
// - theme: which family's design. ThemeModern has only the oval and the
//   line with caps; any value outside ThemeBasic .. ThemeAbstract gives null,
//   except for the oval and the line with caps, which every value makes.
// - fill, stroke, color: straight (not premultiplied) colours, each channel
//   0 to 1; cairo cuts a channel outside that range to it, and NaN counts as
//   0. The stroke colour, width and style draw nothing when the width is not
//   above 0.
// - fillStyle: "gradient" fills with the three-stop gradient derived from
//   fill (makeGradientPattern) along gradientDirection over the outline's
//   rect; every other string fills solid.
// - gradientDirection: a vector in drawing coordinates, of any length; one
//   without length (zero or not finite) runs from top to bottom, (0, 1).
// - strokeWidth, width: pixels of the drawing (user units), as drawn under
//   the context's transform. Not above 0 (or NaN): no stroke. Widths beyond
//   10 million are drawn at that.
// - strokeStyle: "solid" (or empty), "dash", "dot", "dashdot",
//   "dashdotdot", their dashes scaled by the width; any other word leaves
//   the context's dash as it was (solid on a new context).
// - rect: the box of the shape or of the text, in drawing coordinates,
//   normally centred on the origin (Translate the context to place it): the
//   star and the thought clouds are built around the origin whatever the
//   box. An inverted or empty box gives a defined, degenerate drawing.
// - tailPoint: where a bubble's tail points, in the same coordinates; it may
//   lie anywhere, inside the body included.
// - progress: how far an Urban text arrow has come in, normally 0 to 1;
//   other values go through the same clamping formulas, and NaN draws the
//   finished arrow. The other themes ignore it.
// - text, attributes: the text callout's text, laid out in text.textRect
//   (normally the same box as rect), and its ranged attributes (byte
//   offsets; an offset inside a character counts from that character's
//   start), both copied into the callout.
//
// Every factory returns a new object that the caller deletes, or null.
class VANTREL_EXPORT Presets {
public:
    // Fixed to int, so that any number a host passes is a value of the type
    // and reaches the documented result for one outside the list.
    enum Theme : int { ThemeBasic = 0, ThemeModern = 1, ThemeUrban = 2, ThemeBold = 3, ThemeAbstract = 4 };
    enum LineShaftType : int { LineShaftSolid = 0, LineShaftDotted = 1, LineShaftDashed = 2 };
    enum LineEndCapType : int {
        LineEndCapNone = 0,
        LineEndCapCircle = 1,
        LineEndCapDiamond = 2,
        LineEndCapArrow = 3,
        LineEndCapSquare = 4,
        LineEndCapTail = 5,
        LineEndCapBoldDiamond = 6,
        LineEndCapDot = 7
    };

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

    // The theme's fixed line from start to end (drawing coordinates; a line
    // whose ends are equal draws nothing); null for ThemeModern and unknown
    // themes.
    static BaseCallout *createLine(Theme theme, Color const &color, Point const &start, Point const &end);
    // The theme's double arrow (Urban: a single arrow of half width `width`).
    // The strings reach no drawing: the first is kept by the Urban arrow,
    // the last is dropped.
    static BaseCallout *createArrow(Theme theme, Color const &color, double width, std::string const &style,
                                    Point const &start, std::string startStyle, Point const &end, std::string endStyle);
    // A line of the theme's shaft and cap designs, width wide; the first cap
    // belongs to start. Every theme value gives a line: an unknown theme has
    // a tapered shaft and no caps. A shaft type outside LineShaftSolid ..
    // LineShaftDashed is the tapered shaft; a cap type outside
    // LineEndCapCircle .. LineEndCapDot, or one the theme lacks, is no cap.
    static LineWithCaps *createLine(Theme theme, Color const &color, double width, Point const &start, Point const &end,
                                    LineShaftType shaftType, LineEndCapType startCapType, LineEndCapType endCapType);

    // Speech bubbles around rect with a tail to tailPoint, the text installed;
    // the first design or the second (Two) of the theme. Null for ThemeModern
    // and unknown themes.
    static BaseCallout *createSpeechBubble(Theme theme, Color const &fill, std::string const &fillStyle,
                                           Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                           TextCalloutProperties const &text, TextAttributeList const &attributes);
    static BaseCallout *createSpeechBubbleTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                              Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                              std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                              TextCalloutProperties const &text, TextAttributeList const &attributes);
    // Thought bubbles around rect linked to tailPoint, the text installed;
    // the Basic clouds keep their proportions. Null for ThemeModern and
    // unknown themes.
    static BaseCallout *createThoughtBubble(Theme theme, Color const &fill, std::string const &fillStyle,
                                            Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                            std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                            TextCalloutProperties const &text, TextAttributeList const &attributes);
    static BaseCallout *createThoughtBubbleTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                               Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                               std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                               TextCalloutProperties const &text, TextAttributeList const &attributes);
    // Text arrows around rect, the text installed; the first design or the
    // second (Two) of the theme. Only the Urban arrows read progress, their
    // revealProgress. Null for ThemeModern and unknown themes.
    static BaseCallout *createTextArrow(Theme theme, Color const &fill, std::string const &fillStyle,
                                        Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                        std::string const &strokeStyle, Rect const &rect, double progress,
                                        TextCalloutProperties const &text, TextAttributeList const &attributes);
    static BaseCallout *createTextArrowTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                           Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect, double progress,
                                           TextCalloutProperties const &text, TextAttributeList const &attributes);
    // A text rectangle around rect made with its text. Null for ThemeModern
    // and unknown themes.
    static BaseCallout *createTextRectangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                            Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                            std::string const &strokeStyle, Rect const &rect,
                                            TextCalloutProperties const &text, TextAttributeList const &attributes);
};

} // namespace Vantrel
