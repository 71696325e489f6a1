// The union of outlines, on the clipping engine.
#include <vantrel/values/Polygon.h>

#include "geometry/gpc.h"

#include <cstddef>
#include <type_traits>

namespace Vantrel {

// The engine reads the Points in place, without a copy.
static_assert(sizeof(gpc_vertex) == sizeof(Point) && offsetof(gpc_vertex, x) == offsetof(Point, x) &&
                  offsetof(gpc_vertex, y) == offsetof(Point, y) && std::is_standard_layout<Point>::value,
              "gpc_vertex and Point must share their layout");

namespace {

// A Polygons seen as the engine's operand: one contour for each non-empty
// polygon, none flagged as a hole, the vertices read where they are.
class GpcPolygonAdapter {
public:
    explicit GpcPolygonAdapter(Polygons const &p) : source(p) {
        for (auto const &shared : source.polygons) {
            if (!shared || shared->points.empty())
                continue;
            holes.push_back(0);
            gpc_vertex_list list;
            list.num_vertices = int(shared->points.size());
            list.vertex = reinterpret_cast<gpc_vertex *>(shared->points.data());
            contours.push_back(list);
        }
        polygon.num_contours = int(contours.size());
        polygon.hole = holes.empty() ? nullptr : holes.data();
        polygon.contour = contours.empty() ? nullptr : contours.data();
    }

    gpc_polygon *get() { return &polygon; }

private:
    Polygons source; // keeps the polygons alive
    std::vector<int> holes;
    std::vector<gpc_vertex_list> contours;
    gpc_polygon polygon;
};

bool hasPoints(Polygons const &p) {
    for (auto const &shared : p.polygons)
        if (shared && !shared->points.empty())
            return true;
    return false;
}

} // namespace

Polygons Polygons::UnionWith(Polygons const &other) const {
    if (!hasPoints(*this))
        return other;
    if (!hasPoints(other))
        return *this;
    GpcPolygonAdapter subject(*this), clip(other);
    gpc_polygon result;
    gpc_polygon_clip(GPC_UNION, subject.get(), clip.get(), &result);
    Polygons united;
    for (int c = 0; c < result.num_contours; ++c) {
        if (result.hole[c])
            continue; // holes are dropped: a ring comes back solid
        gpc_vertex const *v = result.contour[c].vertex;
        Polygon polygon;
        polygon.points.reserve(size_t(result.contour[c].num_vertices));
        for (int i = 0; i < result.contour[c].num_vertices; ++i)
            polygon.points.emplace_back(v[i].x, v[i].y);
        united.polygons.push_back(boost::shared_ptr<Polygon>(new Polygon(std::move(polygon))));
    }
    gpc_free_polygon(&result);
    return united;
}

Polygons Polygon::UnionWith(Polygon const &other) const {
    Polygons a, b;
    a.Add(*this);
    b.Add(other);
    return a.UnionWith(b);
}

} // namespace Vantrel
