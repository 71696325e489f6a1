// The fixed lines and arrows of the themes: single polygons with a set shape,
// built once from two points.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>

#include <string>

namespace Vantrel {

// Shared by the fixed lines: tracking around the second point.
class VANTREL_EXPORT FixedLine : public BaseCallout {
public:
    // trackingRectAround the second point.
    Rect trackingRect() const override;
    // A line whose start equals its end (a press before the drag) has no
    // direction to draw along: it draws nothing, has no outline, and its
    // bounds are the empty rect at that point.
    Rect boundingRect() const override;

protected:
    FixedLine(Color const &color_, Point const &start_, Point const &end_) : color(color_), start(start_), end(end_) {}

    Color color;
    Point start;
    Point end;
};

// A bar 10 wide from start to end.
class VANTREL_EXPORT BoldLine : public FixedLine {
public:
    BoldLine(Color const &color, Point const &start, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual BoldLine *clone() const;

protected:
    Polygon outline;
};

// A bar 40 wide with a head 80 wide and 52 long at each end; a short arrow shrinks as a whole.
class VANTREL_EXPORT BoldDoubleArrow : public FixedLine {
public:
    BoldDoubleArrow(Color const &color, Point const &start, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual BoldDoubleArrow *clone() const;

protected:
    Polygon outline;
};

// A bar 20 wide, its corners rounded by 3 at every drawing.
class VANTREL_EXPORT AbstractLine : public FixedLine {
public:
    AbstractLine(Color const &color, Point const &start, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual AbstractLine *clone() const;

protected:
    Polygon outline;
};

// A bar 20 wide with heads 80 wide and 48 long at both ends, rounded by 5.
class VANTREL_EXPORT AbstractDoubleArrow : public FixedLine {
public:
    AbstractDoubleArrow(Color const &color, Point const &start, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual AbstractDoubleArrow *clone() const;

protected:
    Polygon outline;
};

// A bar 10 wide whose first 15 % is lighter: the whole line at 70 % alpha,
// and the rest again on top.
class VANTREL_EXPORT UrbanLine : public FixedLine {
public:
    UrbanLine(Color const &color, Point const &start, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual UrbanLine *clone() const;

protected:
    Polygon solidOutline;
    Polygon fullOutline;
};

// A translucent shaft of half width `width` under an opaque head at the end.
// The style string is kept but changes nothing, and the second string is
// dropped: neither reaches a drawing call.
class VANTREL_EXPORT UrbanArrow : public FixedLine {
public:
    UrbanArrow(Color const &color, double width, std::string const &style, Point const &start,
               std::string const &endStyle, Point const &end);
    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    virtual UrbanArrow *clone() const;

protected:
    double width;
    std::string style;
};

} // namespace Vantrel
