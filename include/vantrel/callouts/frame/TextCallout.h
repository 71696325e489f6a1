// The base of every callout with a text box; by itself a callout that is
// nothing but its text.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/geometry/Path.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>

#include <vector>

namespace Vantrel {

class VANTREL_EXPORT TextCallout : public BaseCallout {
public:
    TextCallout(Rect const &bodyRect, TextCalloutProperties const &properties, TextAttributeList const &attributes);
    // Default properties and no attributes; the factories install the text afterwards.
    explicit TextCallout(Rect const &bodyRect);

    // Draws the text when bit 1 of the options is set, even if it is empty;
    // only a plain TextCallout passes the metadata on.
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual TextCallout *clone() const;
    // The caret (an empty selection) or the selection, in character offsets.
    virtual void drawSelectionIntoContext(DrawingContext *context, Range const &selection, Color const &selectionColor,
                                          Color const &caretColor) const;
    virtual void drawMisspelledRangesIntoContext(DrawingContext *context, std::vector<Range> const &ranges,
                                                 Color const &color) const;

    Rect const &bodyRect() const { return mBodyRect; }
    TextAttributeList &textAttributeList() { return mTextAttributeList; }
    TextAttributeList const &textAttributeList() const { return mTextAttributeList; }
    TextCalloutProperties &textCalloutProperties() { return mTextCalloutProperties; }
    TextCalloutProperties const &textCalloutProperties() const { return mTextCalloutProperties; }
    // Neither setter touches bounds already measured.
    void setTextAttributeList(TextAttributeList const &attributes) { mTextAttributeList = attributes; }
    void setTextCalloutProperties(TextCalloutProperties const &properties) { mTextCalloutProperties = properties; }

    // trackingRect().Center() minus the centre of the text box.
    Point offsetOfTextBoxCenterFromTrackingRectCenter() const;

protected:
    // The text as the last step of a themed callout's drawing: when bit 1 is
    // set and the text is not empty, without metadata.
    void drawThemedText(DrawingContext *context, DrawOptions options) const;
    // Fill the outline by the fill style with the gradient over r, then
    // stroke it when strokeWidth is above 0.
    static void paintOutline(DrawingContext *context, CalloutProperties const &properties, Polygon const &outline,
                             Rect const &r);
    static void paintOutline(DrawingContext *context, CalloutProperties const &properties, Polygons const &outline,
                             Rect const &r);
    // The same for a path, stroked with square caps, miter joins, closed.
    static void paintPath(DrawingContext *context, CalloutProperties const &properties, Path const &path,
                          Rect const &r);

    Rect mBodyRect;
    TextCalloutProperties mTextCalloutProperties;
    TextAttributeList mTextAttributeList;
};

} // namespace Vantrel
