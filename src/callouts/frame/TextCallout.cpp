#include <vantrel/callouts/frame/TextCallout.h>

#include "callouts/frame/Painting.h"

namespace Vantrel {

TextCallout::TextCallout(Rect const &bodyRect, TextCalloutProperties const &properties,
                         TextAttributeList const &attributes)
    : mBodyRect(bodyRect), mTextCalloutProperties(properties), mTextAttributeList(attributes) {}

TextCallout::TextCallout(Rect const &bodyRect) : mBodyRect(bodyRect) {}

void TextCallout::drawIntoContext(DrawingContext *context, DrawOptions options, Rect, int,
                                  DrawOutputMetaData *metadata) const {
    if (options & DrawOptionText)
        context->DrawTextW(mTextCalloutProperties, mTextAttributeList, metadata);
}

TextCallout *TextCallout::clone() const { return new TextCallout(*this); }

void TextCallout::drawSelectionIntoContext(DrawingContext *context, Range const &selection, Color const &selectionColor,
                                           Color const &caretColor) const {
    context->DrawTextSelection(mTextCalloutProperties, mTextAttributeList, selection, selectionColor, caretColor);
}

void TextCallout::drawMisspelledRangesIntoContext(DrawingContext *context, std::vector<Range> const &ranges,
                                                  Color const &color) const {
    context->DrawMisspelledRanges(mTextCalloutProperties, mTextAttributeList, ranges, color);
}

Point TextCallout::offsetOfTextBoxCenterFromTrackingRectCenter() const {
    return trackingRect().Center() - mTextCalloutProperties.textRect.Center();
}

void TextCallout::drawThemedText(DrawingContext *context, DrawOptions options) const {
    if ((options & DrawOptionText) && !mTextCalloutProperties.text.empty())
        context->DrawTextW(mTextCalloutProperties, mTextAttributeList, nullptr);
}

void TextCallout::paintOutline(DrawingContext *context, CalloutProperties const &properties, Polygon const &outline,
                               Rect const &r) {
    Vantrel::paintOutline(context, properties, outline, r);
}

void TextCallout::paintOutline(DrawingContext *context, CalloutProperties const &properties, Polygons const &outline,
                               Rect const &r) {
    Vantrel::paintOutline(context, properties, outline, r);
}

void TextCallout::paintPath(DrawingContext *context, CalloutProperties const &properties, Path const &path,
                            Rect const &r) {
    Vantrel::paintOutline(context, properties, path, r);
}

} // namespace Vantrel
