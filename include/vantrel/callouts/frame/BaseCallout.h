// The frame every callout stands in: one drawing routine, from which bounds
// and outlines are measured by drawing into measuring contexts.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/drawing/DrawingContext.h>
#include <vantrel/text/DrawOutputMetaData.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Polygon.h>
#include <vantrel/values/Rect.h>

#include <string>
#include <vector>

namespace Vantrel {

// The six style values of every filled callout.
class VANTREL_EXPORT CalloutProperties {
public:
    Color fillColor;
    // "gradient" (exactly) for a gradient fill; anything else fills solid.
    std::string fillStyle = "solid";
    // Direction of the gradient, light to dark; only its direction matters.
    Point gradientDirection = Point(0, 1);
    Color strokeColor;
    // No outline at 0 or below.
    double strokeWidth = 0.0;
    // "solid", "dash", "dot", "dashdot" or "dashdotdot".
    std::string strokeStyle = "solid";

    CalloutProperties() = default;
    CalloutProperties(Color const &fill, std::string const &fillStyle_, Point const &gradientDirection_,
                      Color const &stroke, double strokeWidth_, std::string const &strokeStyle_)
        : fillColor(fill), fillStyle(fillStyle_), gradientDirection(gradientDirection_), strokeColor(stroke),
          strokeWidth(strokeWidth_), strokeStyle(strokeStyle_) {}

    bool isGradient() const { return fillStyle == "gradient"; }
};

// Base of every callout. The host owns callouts and deletes them through the
// virtual destructor.
//
// There is no clone() here: the classes that can be copied offer their own,
// and a few (LineWithCaps, CustomPath) cannot be, so a base clone() would
// have to be allowed to fail.
class VANTREL_EXPORT BaseCallout {
public:
    // Which pieces to draw, a bit mask; a host may combine the bits freely.
    enum DrawOptions { DrawOptionText = 1, DrawOptionBody = 2, DrawOptionTail = 4, DrawOptionAll = 255 };

    virtual ~BaseCallout() = default;

    // Width and height of boundingRect().
    virtual Point boundingSize() const;
    // Where the ink of drawIntoContext reaches, stroke included. Measured
    // once and kept for the life of the object: later changes to the callout
    // do not update it.
    virtual Rect boundingRect() const;
    // The rect a host tracks the callout by; boundingRect() unless overridden.
    virtual Rect trackingRect() const;
    // The polygons drawIntoContext fills and strokes: everything, the body,
    // or the tail of the given index.
    virtual Polygons pathAsPolygons(Rect referenceRect) const;
    virtual Polygons bodyPathAsPolygons(Rect referenceRect) const;
    virtual Polygons tailPathAsPolygons(int tailIndex, Rect referenceRect) const;
    // The one description of the callout. tailIndex -1 draws every tail;
    // referenceRect limits the few callouts that scale to fit it.
    virtual void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                                 DrawOutputMetaData *metadata) const = 0;

protected:
    BaseCallout() = default;
    BaseCallout(BaseCallout const &) = default;
    BaseCallout &operator=(BaseCallout const &) = default;

    // The smallest rect centred on c that holds boundingRect().
    Rect trackingRectAround(Point const &c) const;

    mutable bool boundingRectCached = false;
    mutable Rect cachedBoundingRect;
};

inline BaseCallout::DrawOptions operator|(BaseCallout::DrawOptions a, BaseCallout::DrawOptions b) {
    return BaseCallout::DrawOptions(int(a) | int(b));
}

// The light-to-dark three-stop gradient of one colour across rect along
// direction: the gradient line spans the projection of rect on the direction.
// A direction without length (zero or not finite) counts as (0, 1), top to
// bottom, so that the pattern is always drawable.
VANTREL_EXPORT GradientPattern makeGradientPattern(Color const &color, Rect const &rect, Point const &direction);

// Fills polygon in context: with makeGradientPattern(color, rect, direction)
// if style is "gradient", else with color alone.
VANTREL_EXPORT void fillPolygonWithStyle(DrawingContext *context, Polygon const &polygon, Color const &color,
                                         std::string const &style, Rect const &rect, Point const &direction);

} // namespace Vantrel
