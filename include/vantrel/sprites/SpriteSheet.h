// Sprite sheets: a laid-out text cut into its glyph clusters, like clusters
// sharing one cell of one bitmap, with items that say where each cluster
// goes, in which word and in which line, so that a host can animate the
// letters one by one.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/values/Bitmap.h>
#include <vantrel/values/Point.h>
#include <vantrel/values/Rect.h>

#include <memory>
#include <vector>

namespace Vantrel {

// Layout coordinates: pango's pixels times the sheet's scale, moved to where
// the text box puts the text (its flips move the text but mirror no cell).

// One cluster of the text.
struct SpriteSheetLayoutItem {
    Rect bitmapRect; // the cluster's pixels in TheBitmap()
    Point origin;    // where the top-left of those pixels goes, in layout coordinates
    // x is 0; y is how far the centre of the item's line lies below the centre of the displayed piece.
    Point lineCenterOffset;
    Rect rect; // the logical rectangle of the cluster's first character
    // From 0, in reading order (the text's order, whatever the direction of
    // its lines: the first word of a Hebrew line is its rightmost); -1 for a
    // character outside any word. Words are separated by ASCII white space.
    int wordIndex;
    int lineIndex; // from 0
    // Bitmap pixels per layout unit: the piece is displayed at bitmapRect's
    // size divided by this.
    double bitmapScale;
};

struct SpriteSheetLineItem {
    Rect rect;       // the line's logical rectangle
    double baseline; // in layout coordinates
    // The top of the line's highest ink in layout coordinates; the baseline
    // for a line without ink.
    double inkTop;
    int firstItem; // index of the line's first item
    int itemCount;
};

class SpriteSheetImpl;

// Cells are packed in rows in the order of their first appearance, in a
// bitmap of at most 4096 pixels a side; a text too large for it at full
// resolution is tried at half, a quarter and so on down to 1/64, and the
// items say at which (bitmapScale). A text too large even then gives a sheet
// whose TheBitmap() is empty, and whose items, from the last attempt, have
// empty bitmapRects.
//
// Any scale is taken, however large: a title cut at scale 40 for a 4K
// frame gives glyphs hundreds of pixels tall, and the smaller bitmap scales
// keep them within the sheet. A glyph so large at the scale given that its
// outline would reach more than about four million pixels from its origin
// (where cairo's fixed-point coordinates end) is not outlined; it could fit
// no sheet at any bitmap scale, so such a sheet has no bitmap, like any text
// too large, and its items come from the last attempt. A scale with a
// component that is not a finite number above 0 (or whose product is not a
// finite number above 0) gives a sheet with no items, no lines and no bitmap. LayoutItem with an index outside 0 ..
// NumItems() - 1 gives an item of empty rects, at word and line -1.
//
// A sheet is immutable; like every object here it belongs to one thread at a time.
class VANTREL_EXPORT SpriteSheet {
public:
    // The text laid out as buildTextLayout does for text callouts (fitted to
    // the box or not, less the margin, of limited height or not), scaled.
    static std::shared_ptr<SpriteSheet> FromText(TextCalloutProperties const &properties,
                                                 TextAttributeList const &attributes, Point const &scale, bool fitToBox,
                                                 double margin, bool unlimitedHeight);

    int NumItems() const;
    SpriteSheetLayoutItem LayoutItem(int index) const;
    std::vector<SpriteSheetLayoutItem> LayoutItems() const;
    std::vector<SpriteSheetLineItem> LineItems() const;
    // The text box, both corners times the scale.
    Rect LayoutRect() const;
    // A view of the sheet's pixels, which the sheet must outlive; Bitmap(0, 0) when there are none.
    Bitmap TheBitmap() const;

private:
    std::shared_ptr<SpriteSheetImpl> impl;
};

} // namespace Vantrel
