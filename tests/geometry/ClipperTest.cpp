// The clipping engine against an independent point-sampling of the same sets,
// and the union of outlines built on it.
#include <vantrel/Vantrel.h>

#include "geometry/gpc.h"
#include "values/Pi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace Vantrel;

namespace {

using Contour = std::vector<gpc_vertex>;

// Owns the vertex arrays of an operand built from plain contours.
struct Operand {
    std::vector<Contour> contours;
    std::vector<gpc_vertex_list> lists;
    std::vector<int> holes;
    gpc_polygon polygon{};

    explicit Operand(std::vector<Contour> c) : contours(std::move(c)) {
        for (Contour &k : contours)
            lists.push_back({int(k.size()), k.data()});
        holes.assign(contours.size(), 0);
        polygon.num_contours = int(lists.size());
        polygon.hole = holes.empty() ? nullptr : holes.data();
        polygon.contour = lists.empty() ? nullptr : lists.data();
    }
    gpc_polygon *get() { return &polygon; }
};

// Even-odd membership over every contour. An edge's x is taken from its end
// nearer in height, so that a far vertex (1e300) keeps its digits.
bool inside(std::vector<Contour> const &contours, double x, double y) {
    bool in = false;
    for (Contour const &c : contours) {
        size_t n = c.size();
        for (size_t i = 0, j = n - 1; i < n; j = i++) {
            gpc_vertex const &a = c[i], &b = c[j];
            if ((a.y > y) == (b.y > y))
                continue;
            gpc_vertex const &near = std::fabs(y - a.y) <= std::fabs(y - b.y) ? a : b;
            if (x < (b.x - a.x) / (b.y - a.y) * (y - near.y) + near.x)
                in = !in;
        }
    }
    return in;
}

std::vector<Contour> contoursOf(gpc_polygon const &p) {
    std::vector<Contour> out;
    for (int c = 0; c < p.num_contours; ++c)
        out.emplace_back(p.contour[c].vertex, p.contour[c].vertex + p.contour[c].num_vertices);
    return out;
}

double area(Contour const &c) {
    double sum = 0;
    for (size_t i = 0; i < c.size(); ++i) {
        gpc_vertex const &a = c[i], &b = c[(i + 1) % c.size()];
        sum += a.x * b.y - a.y * b.x;
    }
    return std::fabs(sum) / 2;
}

bool expected(gpc_op op, bool s, bool c) {
    switch (op) {
    case GPC_DIFF:
        return s && !c;
    case GPC_INT:
        return s && c;
    case GPC_XOR:
        return s != c;
    default:
        return s || c;
    }
}

Contour randomContour(std::mt19937 &rng, int n, bool snapped) {
    std::uniform_real_distribution<double> coord(0, 100);
    Contour c;
    for (int i = 0; i < n; ++i) {
        double x = coord(rng), y = coord(rng);
        if (snapped) { // a coarse grid makes horizontal runs, shared vertices and coincident edges
            x = std::round(x / 20) * 20;
            y = std::round(y / 20) * 20;
        }
        c.push_back({x, y});
    }
    return c;
}

Contour starContour(std::mt19937 &rng, int n, double cx, double cy) {
    std::uniform_real_distribution<double> radius(10, 45);
    Contour c;
    for (int i = 0; i < n; ++i) {
        double a = 2 * kPi * i / n, r = radius(rng);
        c.push_back({cx + r * std::cos(a), cy + r * std::sin(a)});
    }
    return c;
}

struct Check {
    double resultArea = 0, sampledArea = 0;
    int mismatches = 0, samples = 0;
};

// Samples a grid over the box [-5, 105]: the result's even-odd membership
// against the operation applied to the operands' memberships.
Check check(gpc_op op, std::vector<Contour> const &s, std::vector<Contour> const &c) {
    Operand subject(s), clip(c);
    gpc_polygon result;
    gpc_polygon_clip(op, subject.get(), clip.get(), &result);
    std::vector<Contour> out = contoursOf(result);
    Check k;
    for (int i = 0; i < result.num_contours; ++i) {
        EXPECT_GE(result.contour[i].num_vertices, 3);
        k.resultArea += result.hole[i] ? -area(out[i]) : area(out[i]);
    }
    gpc_free_polygon(&result);
    int const grid = 150;
    double const step = 110.0 / grid;
    for (int i = 0; i < grid; ++i)
        for (int j = 0; j < grid; ++j) {
            // Irrational offsets keep samples off the snapped grid's edges.
            double x = -5 + (i + 0.5377) * step, y = -5 + (j + 0.4123) * step;
            bool want = expected(op, inside(s, x, y), inside(c, x, y));
            bool got = inside(out, x, y);
            k.sampledArea += want ? step * step : 0;
            k.mismatches += want != got;
            ++k.samples;
        }
    return k;
}

char const *const kOpNames[] = {"diff", "int", "xor", "union"};

} // namespace

TEST(Clipper, RandomOperandsAgreeWithSampling) {
    std::mt19937 rng(20261123);
    for (int round = 0; round < 45; ++round) {
        bool snapped = round % 3 == 0;
        std::vector<Contour> s, c;
        int contoursEach = 1 + round % 3;
        for (int k = 0; k < contoursEach; ++k) {
            s.push_back(round % 2 ? randomContour(rng, 4 + round % 9, snapped) : starContour(rng, 12, 45, 50));
            c.push_back(randomContour(rng, 3 + (round * 7) % 11, snapped));
        }
        for (gpc_op op : {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION}) {
            Check k = check(op, s, c);
            std::string what = std::string(kOpNames[op]) + " round " + std::to_string(round);
            // Samples that land on an edge may fall either way; the rest must agree.
            EXPECT_LE(k.mismatches, k.samples / 1000) << what;
            EXPECT_NEAR(k.resultArea, k.sampledArea, 20.0 + 0.02 * k.sampledArea) << what;
        }
    }
}

TEST(Clipper, EmptyAndTrivialOperands) {
    Operand empty({}), square({{{0, 0}, {10, 0}, {10, 10}, {0, 10}}});
    for (gpc_op op : {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION}) {
        gpc_polygon r;
        gpc_polygon_clip(op, empty.get(), empty.get(), &r);
        EXPECT_EQ(r.num_contours, 0);
        EXPECT_EQ(r.hole, nullptr);
        EXPECT_EQ(r.contour, nullptr);
    }
    gpc_polygon r;
    gpc_polygon_clip(GPC_INT, square.get(), empty.get(), &r);
    EXPECT_EQ(r.num_contours, 0);
    gpc_polygon_clip(GPC_DIFF, empty.get(), square.get(), &r);
    EXPECT_EQ(r.num_contours, 0);
    // Union, xor and a difference with an empty clip run the sweep and give the other back.
    for (gpc_op op : {GPC_UNION, GPC_XOR, GPC_DIFF}) {
        gpc_polygon_clip(op, square.get(), empty.get(), &r);
        ASSERT_EQ(r.num_contours, 1) << op;
        EXPECT_EQ(r.contour[0].num_vertices, 4);
        EXPECT_DOUBLE_EQ(area(contoursOf(r)[0]), 100);
        gpc_free_polygon(&r);
    }
    // Vertices inside horizontal runs are dropped; a flat contour has no edge at all.
    Operand runs({{{0, 0}, {5, 0}, {10, 0}, {10, 10}, {5, 10}, {0, 10}}});
    gpc_polygon_clip(GPC_UNION, runs.get(), empty.get(), &r);
    ASSERT_EQ(r.num_contours, 1);
    EXPECT_EQ(r.contour[0].num_vertices, 4);
    gpc_free_polygon(&r);
    Operand flat({{{0, 3}, {5, 3}, {9, 3}}});
    gpc_polygon_clip(GPC_UNION, flat.get(), empty.get(), &r);
    EXPECT_EQ(r.num_contours, 0);
}

TEST(Clipper, FarApartBoxesAndAliasedResults) {
    Operand a({{{0, 0}, {10, 0}, {10, 10}, {0, 10}}}), b({{{50, 50}, {60, 50}, {60, 60}, {50, 60}}});
    gpc_polygon r;
    gpc_polygon_clip(GPC_INT, a.get(), b.get(), &r);
    EXPECT_EQ(r.num_contours, 0);
    EXPECT_EQ(a.polygon.contour[0].num_vertices, 4); // the marks are repaired
    EXPECT_EQ(b.polygon.contour[0].num_vertices, 4);
    gpc_polygon_clip(GPC_DIFF, a.get(), b.get(), &r);
    EXPECT_EQ(r.num_contours, 1);
    EXPECT_EQ(b.polygon.contour[0].num_vertices, 4);
    // The result may be an operand: its old contours go, without a leak.
    gpc_polygon_clip(GPC_UNION, &r, b.get(), &r);
    EXPECT_EQ(r.num_contours, 2);
    gpc_polygon_clip(GPC_INT, &r, b.get(), &r);
    ASSERT_EQ(r.num_contours, 1);
    EXPECT_DOUBLE_EQ(area(contoursOf(r)[0]), 100);
    gpc_polygon_clip(GPC_INT, a.get(), &r, &r); // aliased clip, a trivial empty result
    EXPECT_EQ(r.num_contours, 0);
    gpc_free_polygon(&r);
}

TEST(Clipper, IdenticalAndTouchingOperands) {
    Contour square{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, right{{10, 0}, {20, 0}, {20, 10}, {10, 10}};
    EXPECT_NEAR(check(GPC_UNION, {square}, {square}).resultArea, 100, 1e-9);
    EXPECT_NEAR(check(GPC_XOR, {square}, {square}).resultArea, 0, 1e-9);
    EXPECT_NEAR(check(GPC_DIFF, {square}, {square}).resultArea, 0, 1e-9);
    EXPECT_NEAR(check(GPC_UNION, {square}, {right}).resultArea, 200, 1e-9);
}

TEST(PolygonsUnion, OverlappingDisjointAndShortcuts) {
    Polygon a(Rect(0, 0, 10, 10)), b(Rect(5, 5, 15, 15)), far(Rect(50, 50, 60, 60));
    Polygons one = a.UnionWith(b);
    ASSERT_EQ(one.polygons.size(), 1u);
    EXPECT_EQ(one.polygons[0]->points.size(), 8u);
    EXPECT_EQ(a.UnionWith(far).polygons.size(), 2u);

    Polygons list, empty, onlyEmpty;
    list.Add(a);
    onlyEmpty.Add(Polygon());
    Polygons copy = list.UnionWith(empty);
    ASSERT_EQ(copy.polygons.size(), 1u);
    EXPECT_EQ(copy.polygons[0].get(), list.polygons[0].get()); // shared, not copied
    EXPECT_EQ(onlyEmpty.UnionWith(list).polygons[0].get(), list.polygons[0].get());
    EXPECT_EQ(list.UnionWith(onlyEmpty).polygons[0].get(), list.polygons[0].get());
}

TEST(PolygonsUnion, RingsComeBackSolidAndOperandsCountEvenOdd) {
    // A ring: an outer square and an inner one in the same list is a hole by
    // the even-odd rule; the union drops the hole contour.
    Polygons ring;
    ring.Add(Polygon(Rect(0, 0, 30, 30)));
    ring.Add(Polygon(Rect(10, 10, 20, 20)));
    Polygons other;
    other.Add(Polygon(Rect(25, 0, 40, 5)));
    Polygons united = ring.UnionWith(other);
    ASSERT_EQ(united.polygons.size(), 1u);
    Rect bounds = united.polygons[0]->BoundingRect();
    EXPECT_EQ(bounds, Rect(0, 0, 40, 30));

    // Two overlapping polygons of one list cancel in their overlap first.
    Polygons pair;
    pair.Add(Polygon(Rect(0, 0, 20, 10)));
    pair.Add(Polygon(Rect(10, 0, 30, 10)));
    Polygons far;
    far.Add(Polygon(Rect(100, 100, 101, 101)));
    Polygons split = pair.UnionWith(far);
    EXPECT_EQ(split.polygons.size(), 3u); // two halves and the far square
    double total = 0;
    for (auto const &p : split.polygons)
        total += std::fabs(p->SignedArea());
    EXPECT_NEAR(total, 100 + 100 + 1, 1e-9);
}

TEST(PolygonsUnion, DegenerateContoursAddNothingAndTakeNothing) {
    // A slope that overflows (1e10 / 1e-300) must not reach the result as a NaN.
    Polygon sliver{Point(0, 0), Point(1e10, 1e-300), Point(1e10, 2e-300)},
        corner{Point(0, 0), Point(1, 0), Point(0, 1)};
    double area = 0;
    for (auto const &p : sliver.UnionWith(corner).polygons) {
        for (Point const &v : p->points)
            EXPECT_TRUE(std::isfinite(v.x) && std::isfinite(v.y)) << v;
        area += std::fabs(p->SignedArea());
    }
    EXPECT_NEAR(area, 0.5, 1e-12);

    // Three collinear points enclose nothing and leave the other triangle whole.
    Polygon triangle{Point(5, 5), Point(2.5, 5), Point(3, 2)}, flat{Point(5, 0), Point(3, 3), Point(4, 1.5)};
    Polygons united = triangle.UnionWith(flat);
    ASSERT_EQ(united.polygons.size(), 1u);
    EXPECT_NEAR(std::fabs(united.polygons[0]->SignedArea()), 3.75, 1e-12);
}

namespace {

// Measured from the end nearer to the point, along a direction scaled to
// at most 1, so that edges to a far vertex (1e300) neither overflow nor lose
// their digits.
double distanceToSegment(gpc_vertex const &a, gpc_vertex const &b, double x, double y) {
    bool const fromA = std::hypot(x - a.x, y - a.y) <= std::hypot(x - b.x, y - b.y);
    gpc_vertex const &p = fromA ? a : b, &q = fromA ? b : a;
    double const m = std::max(std::fabs(q.x - p.x), std::fabs(q.y - p.y));
    if (m == 0)
        return std::hypot(x - p.x, y - p.y);
    double const ux = (q.x - p.x) / m, uy = (q.y - p.y) / m;
    if ((x - p.x) * ux + (y - p.y) * uy <= 0)
        return std::hypot(x - p.x, y - p.y);
    return std::fabs((x - p.x) * uy - (y - p.y) * ux) / std::hypot(ux, uy);
}

bool nearAnEdge(std::vector<Contour> const &contours, double x, double y, double tolerance) {
    for (Contour const &c : contours)
        for (size_t i = 0; i < c.size(); ++i)
            if (distanceToSegment(c[i], c[(i + 1) % c.size()], x, y) < tolerance)
                return true;
    return false;
}

int const kDegenerateKinds = 7;

// The contours as the engine reads them: their finite vertices.
std::vector<Contour> finitePart(std::vector<Contour> const &contours) {
    std::vector<Contour> out;
    for (Contour const &c : contours) {
        out.emplace_back();
        for (gpc_vertex const &v : c)
            if (std::isfinite(v.x) && std::isfinite(v.y))
                out.back().push_back(v);
    }
    return out;
}

// A contour on a coarse grid, with one kind of degenerate value worked in.
Contour degenerateContour(std::mt19937 &rng, int kind) {
    std::uniform_int_distribution<int> grid(0, 10);
    auto point = [&]() { return gpc_vertex{grid(rng) * 10.0, grid(rng) * 10.0}; };
    Contour c;
    int n = 3 + int(rng() % 5);
    if (kind == 0) { // every vertex on one line: no area
        gpc_vertex a = point(), b = point();
        for (int i = 0; i < n; ++i) {
            double t = double(rng() % 7) / 3.0 - 0.5;
            c.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
        }
        return c;
    }
    for (int i = 0; i < n; ++i)
        c.push_back(point());
    size_t at = rng() % c.size();
    gpc_vertex v = c[at], w = c[(at + 1) % c.size()];
    switch (kind) {
    case 1: // duplicates
        c.insert(c.begin() + long(at), v);
        c.insert(c.begin() + long(at), v);
        break;
    case 2: // a collinear run along an edge
        c.insert(c.begin() + long(at) + 1, {(v.x + w.x) / 2, (v.y + w.y) / 2});
        c.insert(c.begin() + long(at) + 1, {(3 * v.x + w.x) / 4, (3 * v.y + w.y) / 4});
        break;
    case 3: // steps of 1e-300: slopes that overflow
        c.insert(c.begin() + long(at) + 1, {w.x, v.y + 1e-300});
        c.insert(c.begin() + long(at) + 1, {v.x + 50, v.y + 2e-300});
        break;
    case 4: // a vertex far away
        c.insert(c.begin() + long(at) + 1, {v.x + 1e300, v.y - 3e299});
        break;
    case 5: // a spike that runs out and back along one line
        c.insert(c.begin() + long(at) + 1, v);
        c.insert(c.begin() + long(at) + 1, {v.x + 30, v.y + 20});
        break;
    default: // vertices that are not numbers: the contour is that of the others
        c.insert(c.begin() + long(at) + 1, {std::nan(""), v.y});
        c.insert(c.begin(), {1.0, std::numeric_limits<double>::infinity()});
        break;
    }
    return c;
}

} // namespace

// Degenerate values in random contours: every operation's result is finite
// and holds exactly the points its operation asks for, away from the
// operands' edges.
TEST(Clipper, DegenerateValuesGiveFiniteExactResults) {
    std::mt19937 rng(7);
    for (int round = 0; round < 140; ++round) {
        std::vector<Contour> s{degenerateContour(rng, round % kDegenerateKinds)},
            c{degenerateContour(rng, (round / kDegenerateKinds) % kDegenerateKinds)};
        if (round % 2)
            s.push_back(degenerateContour(rng, int(rng() % kDegenerateKinds)));
        std::vector<Contour> const fs = finitePart(s), fc = finitePart(c);
        for (gpc_op op : {GPC_DIFF, GPC_INT, GPC_XOR, GPC_UNION}) {
            SCOPED_TRACE(std::string(kOpNames[op]) + " round " + std::to_string(round));
            Operand subject(s), clip(c);
            gpc_polygon result;
            gpc_polygon_clip(op, subject.get(), clip.get(), &result);
            std::vector<Contour> out = contoursOf(result);
            gpc_free_polygon(&result);
            for (Contour const &k : out) {
                EXPECT_GE(k.size(), 3u);
                for (gpc_vertex const &v : k)
                    ASSERT_TRUE(std::isfinite(v.x) && std::isfinite(v.y));
            }
            int wrong = 0;
            for (int i = 0; i < 60; ++i)
                for (int j = 0; j < 60; ++j) {
                    double x = -2 + (i + 0.5377) * 104.0 / 60, y = -2 + (j + 0.4123) * 104.0 / 60;
                    if (nearAnEdge(fs, x, y, 1e-3) || nearAnEdge(fc, x, y, 1e-3))
                        continue;
                    wrong += inside(out, x, y) != expected(op, inside(fs, x, y), inside(fc, x, y));
                }
            EXPECT_EQ(wrong, 0);
        }
    }
}
