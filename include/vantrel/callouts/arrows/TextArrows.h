// Text arrows: a text box inside an arrow-shaped body that points towards
// growing x, the head on the right of the box, in two designs for each of
// the themes Abstract, Basic, Bold and Urban (a class whose name ends in Two
// is the second design). Presets::createTextArrow and createTextArrowTwo
// pick them. A host turns an arrow with the context's transform.
//
// Common to all eight: createWithTextBox makes an arrow around box with
// empty text; the text comes from the rectangle in textCalloutProperties,
// which the arrow neither reads nor moves, and empty text is not drawn. None
// has tails, so tailPathAsPolygons gives what the options draw without the
// body bit. Only the Basic pair honour DrawOptionBody and read
// referenceRect, and only they have a tracking rect centred on the box; the
// others track by their bounds. The Abstract and Bold arrows are built at
// construction; the others at each draw.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/TextCallout.h>

namespace Vantrel {

// An arrow with rounded corners, radius 9 on the shaft and 11 on the head, a
// triangle through tan 25 and tan 50 degrees. Its outline is stroked also at
// width 0, which the context draws as its thinnest line.
class VANTREL_EXPORT AbstractTextArrow : public TextCallout {
public:
    static AbstractTextArrow *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    AbstractTextArrow *clone() const override;

private:
    AbstractTextArrow(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
    Polygon outline;
};

// The Abstract arrow with a half-round rear behind the box, its left edge
// not grown.
class VANTREL_EXPORT AbstractTextArrowTwo : public TextCallout {
public:
    static AbstractTextArrowTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    AbstractTextArrowTwo *clone() const override;

private:
    AbstractTextArrowTwo(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
    Polygon outline;
};

// A shaft with a half-round rear and a head 24/13 of its height. A
// referenceRect narrower than the arrow, or lower than its head, shrinks it
// about the arrow's own middle (a width or height of 0 sets no limit); the
// text stays where it is.
class VANTREL_EXPORT BasicTextArrow : public TextCallout {
public:
    static BasicTextArrow *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicTextArrow *clone() const override;

private:
    BasicTextArrow(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
};

// A shaft that narrows towards a square rear, to no less than the text's
// half height plus 1, with the Basic head; shrinks to referenceRect alike.
class VANTREL_EXPORT BasicTextArrowTwo : public TextCallout {
public:
    static BasicTextArrowTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicTextArrowTwo *clone() const override;

private:
    BasicTextArrowTwo(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
};

// A sharp arrow grown 12 above and below the box, with a point and a notch
// of a third of its height.
class VANTREL_EXPORT BoldTextArrow : public TextCallout {
public:
    static BoldTextArrow *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    BoldTextArrow *clone() const override;

private:
    BoldTextArrow(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
    Polygon outline;
};

// A sharp shaft 12 around the box with a head twice its height, as long as
// 0.37 of the shaft: a wide box has a long head.
class VANTREL_EXPORT BoldTextArrowTwo : public TextCallout {
public:
    static BoldTextArrowTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    BoldTextArrowTwo *clone() const override;

private:
    BoldTextArrowTwo(Rect const &box, CalloutProperties const &properties);
    CalloutProperties properties;
    Polygon outline;
};

// The most columns of UrbanTextArrow's tile grid.
int const kMaxRevealColumns = 1024;

// The Urban arrows come in with revealProgress, normally from 0 to 1: the
// head opens until 0.125. Any finite value, and either infinity, is read by
// the same formulas, which clamp; NaN draws the finished arrow. Their bounds
// are those of the finished arrow at any progress, measured anew at every
// call. During the reveal the ink can reach beyond them: UrbanTextArrow's
// stroke steps down two tiles behind the moving body, and the miter joins of
// that step (and of a thick stroke around the half-open head) stand out of
// the finished outline; a host that repaints only the bounds while an
// arrow comes in grows them by the stroke's miter reach.
//
// UrbanTextArrow's rear dissolves into a grid of square tiles two rows high,
// filled in fading strengths as a wave runs through them from the head. A
// grid that would need more than kMaxRevealColumns columns (a long, low box)
// gets tiles wider than high, so that the reveal still spans the arrow in
// that many; a box of grown height 0 or less, or of non-finite size, has no
// grid and draws its body solid, as at the end of the reveal.
class VANTREL_EXPORT UrbanTextArrow : public TextCallout {
public:
    static UrbanTextArrow *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                             double revealProgress);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect boundingRect() const override;
    UrbanTextArrow *clone() const override;

private:
    UrbanTextArrow(Rect const &box, CalloutProperties const &properties, double revealProgress);
    void drawAtProgress(DrawingContext *context, double progress, DrawOptions options) const;
    CalloutProperties properties;
    double revealProgress;
};

// A sharp shaft from 12 left of the box to a head that opens with
// revealProgress, read as for UrbanTextArrow.
class VANTREL_EXPORT UrbanTextArrowTwo : public TextCallout {
public:
    static UrbanTextArrowTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                double revealProgress);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect boundingRect() const override;
    UrbanTextArrowTwo *clone() const override;

private:
    UrbanTextArrowTwo(Rect const &box, CalloutProperties const &properties, double revealProgress);
    void drawAtProgress(DrawingContext *context, double progress, DrawOptions options) const;
    CalloutProperties properties;
    double revealProgress;
};

} // namespace Vantrel
