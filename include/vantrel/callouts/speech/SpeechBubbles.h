// Speech bubbles: a body around a text box with a tail towards a point, in
// two designs for each of the themes Abstract, Basic, Bold and Urban (a
// class whose name ends in Two is the second design, not a variant of the
// first). Presets::createSpeechBubble and createSpeechBubbleTwo pick them.
//
// Common to all eight: createWithTextBox(box, properties, tail) makes a
// bubble of one tail around box with empty text; the text comes from the
// rectangle in textCalloutProperties, which the bubble neither reads nor
// moves, and empty text is not drawn. The tracking rect is centred on the
// box's centre. Only the Basic pair honour DrawOptionBody, DrawOptionTail,
// tailIndex and referenceRect and take several tails; the others draw their
// one outline whatever the options, so their tailPathAsPolygons is the whole
// bubble. A tail inside the body gives no tail: flattened onto the top edge
// (rectangles), a closed ellipse or circle, or hidden in the union (Basic).
// Coordinates far beyond cairo's range (about 8 million units from the
// device origin) are clamped by cairo when painted; the outline queries give
// the exact geometry.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/TextCallout.h>
#include <vantrel/geometry/Path.h>

#include <vector>

namespace Vantrel {

// Tails beyond this many are not drawn: each is united with the outline in
// turn, and a host that passes thousands would wait for each draw.
int const kMaxSpeechBubbleTails = 100;

// A rectangle 12 outside the box with corners of radius 5 and a triangular
// tail off the nearest edge, its base growing with the tip's distance.
class VANTREL_EXPORT AbstractSpeechBubble : public TextCallout {
public:
    AbstractSpeechBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static AbstractSpeechBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                   Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    AbstractSpeechBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// An ellipse through the corners of the rectangle 12 outside the box, with a
// wedge out of a gap in it. The box grows by the signs of its right and
// bottom coordinates, so a box lying wholly at negative coordinates shrinks.
class VANTREL_EXPORT AbstractSpeechBubbleTwo : public TextCallout {
public:
    AbstractSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static AbstractSpeechBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                      Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    AbstractSpeechBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// A pill (a rectangle with half-circle ends) with a triangle from its centre
// line to each tail, united into one outline. A referenceRect narrower than
// the pill, or lower, scales it down; a box taller than 5/2 of its width is a
// circle.
class VANTREL_EXPORT BasicSpeechBubble : public TextCallout {
public:
    // Several tails are drawn each (up to kMaxSpeechBubbleTails, radial tails
    // with rounded bases); none draws the body alone.
    BasicSpeechBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BasicSpeechBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicSpeechBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// A trapezoid wider at the top with corners of radius 10, and a triangle from
// the centre to each tail.
class VANTREL_EXPORT BasicSpeechBubbleTwo : public TextCallout {
public:
    BasicSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BasicSpeechBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                   Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BasicSpeechBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// A circle through the corners of the rectangle 12 outside the box (not
// normalised), with a wedge out of a gap in it; built at construction. An
// empty tail list gives the circle alone.
class VANTREL_EXPORT BoldSpeechBubble : public TextCallout {
public:
    BoldSpeechBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BoldSpeechBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties, Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BoldSpeechBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
    Rect gradientRect; // the square around the circle
    Path outline;
};

// A sharp rectangle 12 outside the box with a tail of base 60; built at
// construction. An empty tail list gives the rectangle alone.
class VANTREL_EXPORT BoldSpeechBubbleTwo : public TextCallout {
public:
    BoldSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static BoldSpeechBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                  Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    BoldSpeechBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
    Rect gradientRect; // the grown box
    Polygon outline;
};

// A sharp rectangle 12 outside the box; one side of the tail stands at right
// angles on the edge under the tip.
class VANTREL_EXPORT UrbanSpeechBubble : public TextCallout {
public:
    UrbanSpeechBubble(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static UrbanSpeechBubble *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    UrbanSpeechBubble *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

// The Urban bubble widened by a quarter of the box on each side, filled in
// two parts: the right one at 0.8 of the fill's alpha, divided at a third of
// the width taken as a coordinate.
class VANTREL_EXPORT UrbanSpeechBubbleTwo : public TextCallout {
public:
    UrbanSpeechBubbleTwo(Rect const &box, CalloutProperties const &properties, std::vector<Point> const &tails);
    static UrbanSpeechBubbleTwo *createWithTextBox(Rect const &box, CalloutProperties const &properties,
                                                   Point const &tail);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    Rect trackingRect() const override;
    UrbanSpeechBubbleTwo *clone() const override;

private:
    CalloutProperties properties;
    std::vector<Point> tails;
};

} // namespace Vantrel
