// The union engine on degenerate contours: the clipper's four operations
// and Polygons::UnionWith. Results hold no contour below three vertices;
// finite input within kRange gives finite output, and a union covers each
// operand, by sampling a grid away from the edges.
#include "FuzzCheck.h"

#include "geometry/gpc.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <vector>

using namespace Vantrel;

namespace {

// Coordinates within this range are sums and products the engine keeps finite.
double const kRange = 1e6;

double degenerate(FuzzedDataProvider &in, std::vector<double> const &seen) {
    switch (in.ConsumeIntegralInRange<int>(0, 9)) {
    case 0:
        return 0;
    case 1:
        return in.ConsumeBool() ? 1e-300 : -1e-300;
    case 2:
        return in.ConsumeBool() ? 1e300 : -1e300;
    case 3:
        return std::nan("");
    case 4:
        return in.ConsumeBool() ? INFINITY : -INFINITY;
    case 5: // a value seen before: duplicates, collinear runs, coincident edges
        return seen.empty() ? 0 : seen[in.ConsumeIntegralInRange<size_t>(0, seen.size() - 1)];
    case 6:
        return in.ConsumeFloatingPoint<double>();
    default: // small integers: shared vertices and edges are likely
        return in.ConsumeIntegralInRange<int>(-8, 8) * 8.0;
    }
}

Polygons contours(FuzzedDataProvider &in, std::vector<double> &seen) {
    Polygons result;
    int const count = in.ConsumeIntegralInRange<int>(0, 4);
    for (int c = 0; c < count; ++c) {
        auto polygon = boost::shared_ptr<Polygon>(new Polygon());
        int const n = in.ConsumeIntegralInRange<int>(0, 12);
        for (int i = 0; i < n; ++i) {
            double x = degenerate(in, seen), y = degenerate(in, seen);
            seen.push_back(x), seen.push_back(y);
            polygon->points.emplace_back(x, y);
        }
        result.polygons.push_back(polygon);
    }
    return result;
}

bool hasPoints(Polygons const &p) {
    for (auto const &polygon : p.polygons)
        if (!polygon->points.empty())
            return true;
    return false;
}

bool within(Polygons const &p, double limit) {
    for (auto const &polygon : p.polygons)
        for (Point const &q : polygon->points)
            if (!(std::fabs(q.x) <= limit && std::fabs(q.y) <= limit))
                return false;
    return true;
}

bool insideContour(std::vector<Point> const &v, Point const &q, bool in) {
    for (size_t i = 0, j = v.size() - 1; i < v.size(); j = i++)
        if ((v[i].y > q.y) != (v[j].y > q.y) && q.x < (v[j].x - v[i].x) * (q.y - v[i].y) / (v[j].y - v[i].y) + v[i].x)
            in = !in;
    return in;
}

// Even-odd over all contours: the rule an operand is read by.
bool inside(Polygons const &p, Point const &q) {
    bool in = false;
    for (auto const &polygon : p.polygons)
        if (!polygon->points.empty())
            in = insideContour(polygon->points, q, in);
    return in;
}

// Inside any one contour: the union's outlines are all outer ones, and an
// island in a dropped hole lies within another.
bool insideAny(Polygons const &p, Point const &q) {
    for (auto const &polygon : p.polygons)
        if (!polygon->points.empty() && insideContour(polygon->points, q, false))
            return true;
    return false;
}

// Distance from q to the nearest edge of p.
double edgeDistance(Polygons const &p, Point const &q) {
    double best = INFINITY;
    for (auto const &polygon : p.polygons) {
        auto const &v = polygon->points;
        for (size_t i = 0, j = v.size() - 1; i < v.size(); j = i++) {
            Point const d = v[i] - v[j];
            double t = d.LengthSquared() > 0 ? ((q - v[j]) * d) / d.LengthSquared() : 0;
            t = t < 0 ? 0 : t > 1 ? 1 : t;
            best = std::fmin(best, (q - (v[j] + d * t)).Length());
        }
    }
    return best;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    FuzzedDataProvider in(data, size);
    std::vector<double> seen;
    Polygons const a = contours(in, seen), b = contours(in, seen);
    bool const finite = within(a, kRange) && within(b, kRange);

    // The clipper itself, all four operations.
    std::vector<std::vector<gpc_vertex>> storeA, storeB;
    std::vector<gpc_vertex_list> listsA, listsB;
    auto fill = [](Polygons const &p, std::vector<std::vector<gpc_vertex>> &store, std::vector<gpc_vertex_list> &lists,
                   gpc_polygon &g) {
        store.clear();
        lists.clear();
        for (auto const &polygon : p.polygons) {
            store.emplace_back();
            for (Point const &q : polygon->points)
                store.back().push_back({q.x, q.y});
        }
        for (auto &s : store)
            lists.push_back({int(s.size()), s.data()});
        g.num_contours = int(lists.size());
        g.hole = nullptr;
        g.contour = lists.data();
    };
    gpc_polygon subject{}, clip{};
    fill(a, storeA, listsA, subject);
    fill(b, storeB, listsB, clip);
    for (gpc_op op : {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION}) {
        gpc_polygon result{};
        gpc_polygon_clip(op, &subject, &clip, &result);
        for (int c = 0; c < result.num_contours; ++c) {
            VantrelFuzz::check(result.contour[c].num_vertices >= 3, "no clipper contour below three vertices");
            if (finite)
                for (int v = 0; v < result.contour[c].num_vertices; ++v)
                    VantrelFuzz::check(std::isfinite(result.contour[c].vertex[v].x) &&
                                           std::isfinite(result.contour[c].vertex[v].y),
                                       "finite clipper output for finite input");
        }
        gpc_free_polygon(&result);
    }

    Polygons const united = a.UnionWith(b);
    if (!hasPoints(a) || !hasPoints(b)) {
        // One side with nothing: the other comes back as it is.
        VantrelFuzz::check(united.polygons == (hasPoints(a) ? a : b).polygons, "a union with nothing is a copy");
        return 0;
    }
    for (auto const &polygon : united.polygons)
        VantrelFuzz::check(polygon->points.size() >= 3, "no union contour below three vertices");
    if (!finite)
        return 0;
    VantrelFuzz::check(within(united, kRange * 4), "finite union output for finite input");

    // Every point well inside an operand and away from every edge is inside the union.
    std::vector<Point> all;
    for (Polygons const *p : {&a, &b})
        for (auto const &polygon : p->polygons)
            all.insert(all.end(), polygon->points.begin(), polygon->points.end());
    Rect const box = Rect::BoundingRectOfPoints(all);
    if (all.empty() || !(box.Width() > 0) || !(box.Height() > 0))
        return 0;
    double const tolerance = 1e-6 * std::fmax(box.Width(), box.Height()) + 1e-9;
    for (int i = 0; i < 16; ++i)
        for (int j = 0; j < 16; ++j) {
            Point const q(box.Left() + box.Width() * (i + 0.5) / 16, box.Top() + box.Height() * (j + 0.5) / 16);
            bool const inOperand = inside(a, q) || inside(b, q);
            if (!inOperand || edgeDistance(a, q) < tolerance || edgeDistance(b, q) < tolerance)
                continue;
            if (edgeDistance(united, q) < tolerance)
                continue;
            VantrelFuzz::check(insideAny(united, q), "the union covers each operand");
        }
    return 0;
}
