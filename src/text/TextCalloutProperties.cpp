// The text properties of a callout, and the line queries built on its layout.
#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/text/UTF8StringUtil.h>

#include "text/TextLayout.h"

namespace Vantrel {

TextCalloutProperties::TextCalloutProperties(std::string const &text_, Rect const &textRect_, bool allCaps_,
                                             bool wordWrap_, bool flipVertically_, bool flipHorizontally_,
                                             bool flipBoth_, TextHorizontalAlignment horizontalAlignment_,
                                             TextVerticalAlignment verticalAlignment_, double verticalSpace_,
                                             std::string const &resizeBehavior_, TextWrapMode wrapMode_,
                                             bool ligatures_)
    : text(text_), textRect(textRect_), allCaps(allCaps_), wordWrap(wordWrap_), flipVertically(flipVertically_),
      flipHorizontally(flipHorizontally_), flipBoth(flipBoth_),
      isRightToLeft(UTF8StringUtil::isRightToLeftLanguage(text_)), horizontalAlignment(horizontalAlignment_),
      verticalAlignment(verticalAlignment_), verticalSpace(verticalSpace_), resizeBehavior(resizeBehavior_),
      wrapMode(wrapMode_), ligatures(ligatures_) {}

int TextCalloutUtil::calculateNumberOfPangoLayoutLines(TextCalloutProperties const &properties,
                                                       TextAttributeList const &attributes) {
    PangoLayout *layout = buildTextLayout(properties, attributes, LayoutOptions().fitted());
    int lines = pango_layout_get_line_count(layout);
    g_object_unref(layout);
    return lines;
}

std::vector<Range> TextCalloutUtil::lineRanges(TextCalloutProperties const &properties,
                                               TextAttributeList const &attributes) {
    PangoLayout *layout = buildTextLayout(properties, attributes, LayoutOptions().fitted());
    std::vector<Range> ranges;
    PangoLayoutIter *it = pango_layout_get_iter(layout);
    do {
        PangoLayoutLine *line = pango_layout_iter_get_line_readonly(it);
        ranges.push_back(Range(line->start_index, line->start_index + line->length));
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    g_object_unref(layout);
    return ranges;
}

Point TextCalloutUtil::calculateDrawingDimensions(TextCalloutProperties const &properties,
                                                  TextAttributeList const &attributes) {
    return CrossPlatformDrawingContext::calculateDrawingDimensions(properties, attributes);
}

} // namespace Vantrel
