// Text rectangles: a text box on a plain panel, one class per theme, picked
// by Presets::createTextRectangle. Each is made with its text at once; there
// is no createWithTextBox. The panel neither moves nor clips the text, and
// none reads referenceRect, tailIndex or the body and tail options.
//
// An inverted box (right left of left, or bottom above top): the Basic panel
// is grown from the normalised box; the others grow the box as given, so
// their panel is smaller than the box, or inverted.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/TextCallout.h>

#include <string>

namespace Vantrel {

// The box grown by 12 with corners of radius 9, built at each draw; its
// outline is stroked also at width 0, which the context draws as its
// thinnest line.
class VANTREL_EXPORT AbstractTextRectangle : public TextCallout {
public:
    AbstractTextRectangle(Color const &fillColor, std::string const &fillStyle, Point const &gradientDirection,
                          Color const &strokeColor, double strokeWidth, std::string const &strokeStyle, Rect const &box,
                          TextCalloutProperties const &text, TextAttributeList const &attributes);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    AbstractTextRectangle *clone() const override;

private:
    CalloutProperties properties;
};

// The normalised box grown by 12 with corners of radius 8; tracked about the
// box's centre.
class VANTREL_EXPORT BasicTextRectangle : public TextCallout {
public:
    BasicTextRectangle(Color const &fillColor, std::string const &fillStyle, Point const &gradientDirection,
                       Color const &strokeColor, double strokeWidth, std::string const &strokeStyle, Rect const &box,
                       TextCalloutProperties const &text, TextAttributeList const &attributes);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicTextRectangle *clone() const override;

private:
    CalloutProperties properties;
};

// The box grown by 12, sharp, built at construction: it stays as built when
// the text or the body rect changes afterwards.
class VANTREL_EXPORT BoldTextRectangle : public TextCallout {
public:
    BoldTextRectangle(Color const &fillColor, std::string const &fillStyle, Point const &gradientDirection,
                      Color const &strokeColor, double strokeWidth, std::string const &strokeStyle, Rect const &box,
                      TextCalloutProperties const &text, TextAttributeList const &attributes);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    BoldTextRectangle *clone() const override;

private:
    CalloutProperties properties;
    Polygon outline;
};

// The box grown by a quarter of its width at the sides and 12 above and
// below, filled in two parts that meet at five sixths of its width: the
// right one at 0.8 of the fill's alpha; one stroke around both. It draws the
// panel and the text whatever the options say, so its body outline is its
// whole outline; its bounds are measured anew at every call.
class VANTREL_EXPORT UrbanTextRectangle : public TextCallout {
public:
    UrbanTextRectangle(Color const &fillColor, std::string const &fillStyle, Point const &gradientDirection,
                       Color const &strokeColor, double strokeWidth, std::string const &strokeStyle, Rect const &box,
                       TextCalloutProperties const &text, TextAttributeList const &attributes);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect boundingRect() const override;
    UrbanTextRectangle *clone() const override;

private:
    CalloutProperties properties;
};

} // namespace Vantrel
