// Thought bubbles: a body around a text box linked to a point, in two
// designs for each of the themes Abstract, Basic, Bold and Urban (a class
// whose name ends in Two is the second design). Presets::createThoughtBubble
// and createThoughtBubbleTwo pick them.
//
// The link is a trail of two circles, a small one on the tail point and a
// big one half way to the body's rim, painted before the body so that the
// body covers its near end. The trail joins no union: the outline queries
// list its circles apart, before the body, in drawing order.
// BasicThoughtBubble and BoldThoughtBubbleTwo unite a triangular tail with
// the body instead.
//
// Common to all eight: createWithTextBox makes a bubble of one tail around
// box with empty text; the text comes from the rectangle in
// textCalloutProperties, which the bubble neither reads nor moves, and empty
// text is not drawn. The tracking rect is centred on the box's centre. Only
// the Basic pair honour DrawOptionBody, DrawOptionTail and tailIndex and
// take several tails (up to kMaxThoughtBubbleTails are drawn); the others
// draw everything whatever the options, and read the first tail. None reads
// referenceRect. An empty tail list reads as one tail on the box's centre,
// which lies within the body. A trail whose ellipse has no height (a box of
// height 0 in the second Basic design, or a Bold box that its signed growth
// flattens) is not drawn.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/TextCallout.h>

#include <vector>

namespace Vantrel {

// Tails beyond this many are not drawn: each is united with the outline, or
// painted as two circles, at every draw.
int const kMaxThoughtBubbleTails = 100;

// Eight lobes around a square of side 1.6 times the box's larger side, with
// a translucent trail.
class VANTREL_EXPORT AbstractThoughtBubble : public TextCallout {
public:
    AbstractThoughtBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static AbstractThoughtBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                    Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    AbstractThoughtBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// An ellipse at least twice as wide as high with eight circles on its rim.
// Only the ellipse is filled, and at its place for a box centred on the
// origin; the union of ellipse and circles is stroked where the box lies.
class VANTREL_EXPORT AbstractThoughtBubbleTwo : public TextCallout {
public:
    AbstractThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static AbstractThoughtBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                       Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    AbstractThoughtBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// The fixed cloud scaled to the box, with a triangular tail united into its
// outline (a radial tail each when there are several). With uniformCloud the
// cloud takes the larger of its two scales in both directions.
class VANTREL_EXPORT BasicThoughtBubble : public TextCallout {
public:
    BasicThoughtBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails,
                       bool uniformCloud);
    static BasicThoughtBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                 Point const &tail, bool uniformCloud);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicThoughtBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
    bool uniformCloud;
};

// The same cloud with an opaque trail for each tail. With DrawOptionBody
// clear the cloud is an empty path, still filled and stroked.
class VANTREL_EXPORT BasicThoughtBubbleTwo : public TextCallout {
public:
    BasicThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails,
                          bool uniformCloud);
    static BasicThoughtBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                    Point const &tail, bool uniformCloud);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicThoughtBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
    bool uniformCloud;
};

// An ellipse through the corners of the box grown by 12, with an opaque
// trail. The box grows by the signs of its right and bottom coordinates, so
// a box lying wholly at negative coordinates shrinks.
class VANTREL_EXPORT BoldThoughtBubble : public TextCallout {
public:
    BoldThoughtBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BoldThoughtBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BoldThoughtBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// Four large circles in a cross, at least 4 to 3, united with a triangular
// tail.
class VANTREL_EXPORT BoldThoughtBubbleTwo : public TextCallout {
public:
    BoldThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BoldThoughtBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                   Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BoldThoughtBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// A sharp rectangle 12 outside the box, with a translucent trail.
class VANTREL_EXPORT UrbanThoughtBubble : public TextCallout {
public:
    UrbanThoughtBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static UrbanThoughtBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                 Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    UrbanThoughtBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// A second cloud with a flat base, scaled evenly to the larger of 1.75 times
// the grown box's height and 0.825 times its width and raised by a tenth of
// its height, with a translucent trail.
class VANTREL_EXPORT UrbanThoughtBubbleTwo : public TextCallout {
public:
    UrbanThoughtBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static UrbanThoughtBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                    Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    UrbanThoughtBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

} // namespace Vantrel
