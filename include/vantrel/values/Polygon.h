// Closed point lists, the outlines most callouts are made of.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Rect.h>

#include <boost/shared_ptr.hpp>
#include <initializer_list>
#include <vector>

namespace Vantrel {

// Implicitly closed: the last point joins the first, which is not repeated.
// Empty and one- or two-point polygons are legal values; drawing skips them.
// Nothing fixes the direction a polygon runs in.
struct Polygons;

struct VANTREL_EXPORT Polygon {
    std::vector<Point> points;

    Polygon() = default;
    explicit Polygon(std::vector<Point> pts) : points(std::move(pts)) {}
    Polygon(std::initializer_list<Point> pts) : points(pts) {}
    // (left, top), (right, top), (right, bottom), (left, bottom).
    explicit Polygon(Rect const &r);

    Rect BoundingRect() const { return Rect::BoundingRectOfPoints(points); }
    // Twice the signed area is the sum of cross products of consecutive
    // points; positive means clockwise on a y-down screen.
    double SignedArea() const;
    // A copy running with non-negative signed area.
    Polygon PositivelyOriented() const;
    Polygon Reversed() const;
    Polygon &Append(Polygon const &other);

    // Arc geometry. Arcs are cut into segments whose sagitta is 0.1, in the
    // coordinates' own units; a full turn never gets more than
    // kMaxSegmentsPerTurn segments, so a huge radius costs no more than a
    // large one (the 0.1 holds up to radii of about 340,000).
    static int const kMaxSegmentsPerTurn = 4096;

    // A regular polygon approximating the circle, starting on the positive x
    // axis, with at least 3 vertices; empty for a radius that is not positive.
    static Polygon Circle(Point const &center, double radius);
    // Every vertex replaced by an arc of the radius, radii shrunk where two
    // neighbouring arcs would overrun their shared edge. Consecutive
    // coincident vertices count as one (the first one's radius applies), and a
    // polygon of fewer than 3 distinct vertices, or a radius list of another
    // length than the vertex count, comes back unchanged.
    Polygon RoundedCorners(double radius) const;
    Polygon RoundedCorners(std::vector<double> const &radii) const;
    // The arc replacing corner, between its edges to previous and next. A
    // radius below 0.1 keeps the corner as one point; a straight or reversed
    // corner gives no points.
    static Polygon RoundedCorner(Point const &previous, Point const &corner, Point const &next, double radius);
    // The same for a corner at the origin, from the vectors to its neighbours.
    static Polygon CornerArc(Point const &toPrevious, Point const &toNext, double radius);
    // Distance from the corner along each edge to where the arc touches; 0
    // for radii below 0.01.
    static double CornerCut(Point const &previous, Point const &corner, Point const &next, double radius);
    // The edge (from vertex i to i + 1) nearest to p by a signed distance:
    // points on the inner side of an edge win over points beyond its ends.
    // Ties keep the earlier edge; -1 for an empty polygon.
    int NearestEdgeIndex(Point const &p) const;
    // Length of the edge from vertex edge to edge + 1; indices wrap around.
    double EdgeLength(int edge) const;
    // The vertex of index i, wrapping around in both directions; the origin
    // for an empty polygon, which has no vertex to wrap to.
    Point const &Vertex(int i) const;

    // The union of the two polygons, as Polygons::UnionWith.
    Polygons UnionWith(Polygon const &other) const;
};

// A list of outer outlines; there are no holes. Copies share the Polygon
// objects, so changing a polygon through one copy shows in the other.
struct VANTREL_EXPORT Polygons {
    std::vector<boost::shared_ptr<Polygon>> polygons;

    Polygons() = default;
    // Appends a heap copy of the polygon.
    void Add(Polygon const &p);

    // The outlines of the union of both lists. Within one list polygons count
    // by the even-odd rule, so two overlapping polygons of the same list
    // cancel where they overlap. The result has no holes: hole contours are
    // dropped, so a ring comes back solid. Orientation and first vertex of
    // the result are the engine's. When one side has no polygon with points
    // the result is a copy of the other, sharing its Polygon objects.
    // Vertices with a non-finite coordinate are left out of their polygon.
    Polygons UnionWith(Polygons const &other) const;
};

} // namespace Vantrel
