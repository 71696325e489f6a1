// What text goes into which box, and how: the value every text feature of
// the library lays out from.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Range.h>
#include <vantrel/values/Rect.h>

#include <string>
#include <vector>

namespace Vantrel {

class TextAttributeList;

// Values outside these enumerations count as Left and WrapWord.
enum TextHorizontalAlignment { Left = 0, Center = 1, Right = 2 };
enum TextVerticalAlignment { Top = 0, Middle = 1, Bottom = 2 };
enum TextWrapMode { WrapWord = 0, WrapChar = 1, WrapWordChar = 2 };

class VANTREL_EXPORT TextCalloutProperties {
public:
    std::string text; // UTF-8
    // The box: whole-pixel width and height are taken with floor, and the
    // origin is rounded when drawing.
    Rect textRect;
    bool allCaps = false; // ASCII letters shown as capitals
    bool wordWrap = true; // wrap at the box width; when false the layout has no width
    bool flipVertically = false;
    bool flipHorizontally = false;
    bool flipBoth = false;
    // Whether the first character of text is right-to-left, taken when the
    // value is built. Kept for hosts to read; layout tests the text itself.
    bool isRightToLeft = false;
    TextHorizontalAlignment horizontalAlignment = Center;
    TextVerticalAlignment verticalAlignment = Middle;
    // Extra space between lines as a factor of the largest font size.
    double verticalSpace = 0.0;
    // "resizeText" shrinks the font until the text fits textRect; any other value does not.
    std::string resizeBehavior = "resizeText";
    TextWrapMode wrapMode = WrapWord;
    bool ligatures = true;

    TextCalloutProperties() = default;
    TextCalloutProperties(std::string const &text, Rect const &textRect, bool allCaps, bool wordWrap,
                          bool flipVertically, bool flipHorizontally, bool flipBoth,
                          TextHorizontalAlignment horizontalAlignment, TextVerticalAlignment verticalAlignment,
                          double verticalSpace, std::string const &resizeBehavior, TextWrapMode wrapMode,
                          bool ligatures);

    bool resizesText() const { return resizeBehavior == "resizeText"; }
};

// Queries on the layout of a text.
class VANTREL_EXPORT TextCalloutUtil {
public:
    static int calculateNumberOfPangoLayoutLines(TextCalloutProperties const &properties,
                                                 TextAttributeList const &attributes);
    // One byte range per line, in line order.
    static std::vector<Range> lineRanges(TextCalloutProperties const &properties, TextAttributeList const &attributes);
    // Pixel width and height of the text at full size.
    static Point calculateDrawingDimensions(TextCalloutProperties const &properties,
                                            TextAttributeList const &attributes);
};

} // namespace Vantrel
