// The outline toolbox of the bubbles and text arrows: a rectangle with a
// tail, three triangular tails for bodies that are not rectangles, the gap
// an ellipse leaves for a tail, the fixed cloud, the trail of circles of a
// thought bubble and the head of a text arrow. Free functions of their
// arguments; only the painting ones touch a context. Coordinates are those
// of the callout's body rect, y downwards; angles are radians by atan2.
#pragma once

#include "drawing/SavedContextState.h"
#include "values/Pi.h"

#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/drawing/DrawingContext.h>
#include <vantrel/geometry/Path.h>
#include <vantrel/values/Polygon.h>

#include <string>
#include <vector>

namespace Vantrel {

// Distance from a text box to the outline around it.
inline double calloutMargin() { return 12.0; }
// Height of a Basic text arrow's head as a multiple of its shaft height.
inline double arrowHeadRatio() { return 1.8461538461538463; }
// Multiplier on the grown height of Bold and Urban text arrows.
inline double arrowBodyFactor() { return 1.0; }
// From a text box's width and height to the scale of the fixed cloud.
inline Point thoughtCloudFactors() { return Point(0.9, 1.4285714285714286); }

inline double degreesToRadians(double degrees) { return kPi * degrees / 180.0; }
// low if low > v, else high if high < v, else v (a NaN v comes back as it is).
inline double clampBetween(double low, double v, double high) { return low > v ? low : high < v ? high : v; }
// A copy in which an inverted axis collapses onto its centre.
Rect collapseInverted(Rect r);

// The tail a one-tail design reads: the first, or for an empty list the
// box's centre, which lies within the body and so gives no tail.
inline Point firstTail(std::vector<Point> const &tails, Rect const &box) {
    return tails.empty() ? box.Center() : tails.front();
}

// Unites with result, in list order, the tail tailOf makes for each of the
// first limit tails that tailIndex selects (-1 for all): body and tails come
// out as one contour where they touch.
template <class TailOf>
void uniteTails(Polygons &result, std::vector<Point> const &tails, size_t limit, int tailIndex, TailOf tailOf) {
    for (size_t i = 0; i < tails.size() && i < limit; ++i) {
        if (tailIndex != -1 && size_t(tailIndex) != i)
            continue;
        Polygons tail;
        tail.Add(tailOf(tails[i]));
        result = result.UnionWith(tail);
    }
}

// The base width of a tail whose tip lies out from body: minimum, growing
// by tan(angle) per unit of distance, at most a quarter of the side it
// leaves (the ceiling wins over the floor on a small body); minimum for a
// tip within the body's span on both axes.
double tailBaseWidth(Rect const &body, Point const &tail, double angle, double minimum);

// A rectangular body with one tail off its nearest edge, wrapping the corner
// when the tip lies beyond it. A tip inside the body moves to the middle of
// the top edge. The base (baseWidth, cut to fit between the corner radii)
// starts under the tip when baseFromTip or when the tip lies over the first
// 35 % of the edge, else it is centred under the tip.
Polygon rectangleWithTail(Rect const &body, Point const &tail, double cornerRadius, double baseWidth, bool baseFromTip);
// The tail of a pill whose round ends are centred on core's left and right
// edges; outerSize is the whole pill's size. Three points, the tip first.
Polygon stadiumTail(Point const &tail, Rect const &core, Point const &outerSize);
// A tail aimed at centre, its base across the tail's direction, at most
// halfWidth each side and within a box of size extent around centre. Three
// points, the tip first; with cornerRadius above 0 the last base corner is
// rounded.
Polygon radialTail(Point const &tail, Point const &centre, double halfWidth, Point const &extent, double cornerRadius);
// The tail of the Basic thought cloud: four points, the tip first and last.
// Its base stands on the centre line of box: at the box's centre for every
// tip whose y lies below the centre's x (a comparison of an x with a y that
// the design keeps), else 45 degrees from the tip, at most at the box's right.
Polygon cloudTail(Point const &tail, Rect const &box, Point const &cloudScale);
// Half the angle of the gap a circle or ellipse of the radius leaves for a
// tail whose tip lies distance from the centre: from 0.1 for a tip near the
// rim to 22 degrees for a far one.
double tailGapHalfAngle(double distance, double radius);
// The arc of an ellipse (rx, ry) around centre with the gap for the tail and
// the tail's tip, or the whole ellipse when the tip (measured in the frame in
// which the ellipse is a circle of radius rx, as d) lies within it.
void addGappedEllipse(Path &path, Point const &centre, double rx, double ry, Point const &d, double gapRadius,
                      Point const &tail);
// Appends the fixed cloud, centred on the origin, and scales the whole path
// by scale, each axis at least 1.
void addCloudPath(Path &path, Point const &scale);

// Fills the ellipse in rect with color, its alpha multiplied by alpha, as a
// gradient along direction when gradient is set.
void fillEllipseWithStyle(DrawingContext *context, Rect const &rect, Color const &color, double alpha, bool gradient,
                          Point const &direction);
// The trail of a thought bubble: a small circle on the tail point and a big
// one half way to the rim of the ellipse in shape (scaled by rimFactor),
// translucent or not, painted small first. A shape without height paints
// nothing.
void drawThoughtCircles(Rect const &shape, Point const &extent, Point const &tail, double rimFactor,
                        DrawingContext *context, Color const &fill, Color const &stroke, double strokeWidth,
                        std::string const &strokeStyle, bool translucent, bool gradient, Point const &direction);
// The same for each tail selected by tailIndex (-1 for all).
void drawThoughtCirclesForTails(Rect const &shape, Point const &extent, std::vector<Point> const &tails,
                                double rimFactor, DrawingContext *context, Color const &fill, Color const &stroke,
                                double strokeWidth, std::string const &strokeStyle, bool translucent, int tailIndex,
                                bool gradient, Point const &direction);
// The same, in the style of the callout's properties, whole.
void drawThoughtCirclesForTails(Rect const &shape, Point const &extent, std::vector<Point> const &tails,
                                double rimFactor, DrawingContext *context, CalloutProperties const &properties,
                                bool translucent, int tailIndex);
// Appends the head of a text arrow at box's right: five points, the wings
// opening with progress (fully from 0.125 on), the tip headLength out.
void addArrowHead(Polygon &points, Rect const &box, double headHeight, double headLength, double progress);

} // namespace Vantrel
