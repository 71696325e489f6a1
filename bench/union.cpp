// Polygons::UnionWith against Clipper and Boost.Geometry on the same inputs,
// measured in the same run.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <clipper.hpp>

#include <cmath>
#include <random>

using namespace Vantrel;
namespace bg = boost::geometry;

namespace {

using BgPoint = bg::model::d2::point_xy<double>;
using BgPolygon = bg::model::polygon<BgPoint>;
using BgMulti = bg::model::multi_polygon<BgPolygon>;

Polygon star(int n, double cx, double cy, unsigned seed) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<double> radius(150, 250);
    Polygon p;
    for (int i = 0; i < n; ++i)
        p.points.push_back(Point(cx, cy) + Point::FromAngle(2 * VantrelBench::kPi * i / n) * radius(rng));
    return p;
}

Polygon circle(int n, double cx, double cy, double r) {
    Polygon p;
    for (int i = 0; i < n; ++i)
        p.points.push_back(Point(cx, cy) + Point::FromAngle(2 * VantrelBench::kPi * i / n) * r);
    return p;
}

// A rounded speech-bubble body and a tail wedge reaching into it.
std::pair<Polygon, Polygon> boxAndTail() {
    Polygon box = Polygon(Rect(-150, -80, 150, 80)).RoundedCorners(30);
    Polygon tail{Point(-40, 60), Point(-120, 180), Point(10, 70)};
    return {box, tail};
}

Polygons one(Polygon const &p) {
    Polygons list;
    list.Add(p);
    return list;
}

BgPolygon toBoost(Polygon const &p) {
    BgPolygon out;
    for (Point const &q : p.points)
        out.outer().push_back(BgPoint(q.x, q.y));
    bg::correct(out);
    return out;
}

double const kClipperScale = 1024.0;

ClipperLib::Path toClipper(Polygon const &p) {
    ClipperLib::Path out;
    for (Point const &q : p.points)
        out.push_back(ClipperLib::IntPoint(ClipperLib::cInt(std::llround(q.x * kClipperScale)),
                                           ClipperLib::cInt(std::llround(q.y * kClipperScale))));
    return out;
}

struct Pair {
    Polygon a, b;
};

Pair starPair(int n) { return {star(n, 0, 0, 1), star(n, 120, 40, 2)}; }
Pair circlePair(int n) { return {circle(n, 0, 0, 200), circle(n, 150, 30, 200)}; }

void library(benchmark::State &state, Pair const &pair) {
    Polygons a = one(pair.a), b = one(pair.b);
    for (auto _ : state)
        benchmark::DoNotOptimize(a.UnionWith(b));
}

void boostUnion(benchmark::State &state, Pair const &pair) {
    BgPolygon a = toBoost(pair.a), b = toBoost(pair.b);
    for (auto _ : state) {
        BgMulti out;
        bg::union_(a, b, out);
        benchmark::DoNotOptimize(out);
    }
}

void clipperUnion(benchmark::State &state, Pair const &pair) {
    ClipperLib::Path a = toClipper(pair.a), b = toClipper(pair.b);
    for (auto _ : state) {
        ClipperLib::Clipper c;
        c.AddPath(a, ClipperLib::ptSubject, true);
        c.AddPath(b, ClipperLib::ptClip, true);
        ClipperLib::Paths out;
        c.Execute(ClipperLib::ctUnion, out, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
        benchmark::DoNotOptimize(out);
    }
}

#define VANTREL_UNION_CASES(name, pair)                                                                                \
    BENCHMARK_CAPTURE(library, name, pair);                                                                            \
    BENCHMARK_CAPTURE(boostUnion, name, pair);                                                                         \
    BENCHMARK_CAPTURE(clipperUnion, name, pair)

VANTREL_UNION_CASES(star10, starPair(10));
VANTREL_UNION_CASES(star100, starPair(100));
VANTREL_UNION_CASES(star1000, starPair(1000));
// Boost.Geometry needs over a minute for the two 10,000-vertex stars, whose
// spikes cross each other hundreds of thousands of times; it is left out there.
BENCHMARK_CAPTURE(library, star10000, starPair(10000))->Iterations(2);
BENCHMARK_CAPTURE(clipperUnion, star10000, starPair(10000))->Iterations(2);
VANTREL_UNION_CASES(circles1000, circlePair(1000));
VANTREL_UNION_CASES(circles10000, circlePair(10000));
VANTREL_UNION_CASES(boxAndTail, (Pair{boxAndTail().first, boxAndTail().second}));

// 200 overlapping circles, united one by one into a growing outline.
std::vector<Polygon> manyCircles() {
    std::vector<Polygon> all;
    for (int i = 0; i < 200; ++i)
        all.push_back(circle(64, 8.0 * i, 40 * std::sin(i * 0.3), 30));
    return all;
}

void libraryMany(benchmark::State &state) {
    std::vector<Polygon> all = manyCircles();
    for (auto _ : state) {
        Polygons united;
        for (Polygon const &p : all)
            united = united.UnionWith(one(p));
        benchmark::DoNotOptimize(united);
    }
}
BENCHMARK(libraryMany)->Name("library/circles200");

void boostMany(benchmark::State &state) {
    std::vector<BgPolygon> all;
    for (Polygon const &p : manyCircles())
        all.push_back(toBoost(p));
    for (auto _ : state) {
        BgMulti united;
        for (BgPolygon const &p : all) {
            BgMulti next;
            bg::union_(united, p, next);
            united.swap(next);
        }
        benchmark::DoNotOptimize(united);
    }
}
BENCHMARK(boostMany)->Name("boostUnion/circles200");

void clipperMany(benchmark::State &state) {
    std::vector<ClipperLib::Path> all;
    for (Polygon const &p : manyCircles())
        all.push_back(toClipper(p));
    for (auto _ : state) {
        ClipperLib::Paths united;
        for (ClipperLib::Path const &p : all) {
            ClipperLib::Clipper c;
            c.AddPaths(united, ClipperLib::ptSubject, true);
            c.AddPath(p, ClipperLib::ptClip, true);
            ClipperLib::Paths next;
            c.Execute(ClipperLib::ctUnion, next, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
            united.swap(next);
        }
        benchmark::DoNotOptimize(united);
    }
}
BENCHMARK(clipperMany)->Name("clipperUnion/circles200");

} // namespace

// The library's time over each reference's, case by case.
void printRatios(VantrelBench::Times const &times) {
    std::cout << "\nratios (library time / reference time):\n";
    for (auto const &entry : times) {
        std::string const &name = entry.first;
        if (name.compare(0, 8, "library/") != 0)
            continue;
        std::string input = name.substr(8);
        std::cout << "  " << input.substr(0, input.find('/')) << ":";
        for (char const *reference : {"boost", "clipper"}) {
            auto it = times.find(reference + ("Union/" + input));
            char figure[64];
            if (it == times.end())
                std::snprintf(figure, sizeof figure, "  vs %s -", reference);
            else
                std::snprintf(figure, sizeof figure, "  vs %s %.2f", reference, entry.second / it->second);
            std::cout << figure;
        }
        std::cout << "\n";
    }
}

int main(int argc, char **argv) {
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"union-vs-boost-1000", {"library/star1000"}, {"boostUnion/star1000"}},
         {"union-vs-clipper-1000", {"library/star1000"}, {"clipperUnion/star1000"}},
         {"union-growth-1000-to-10000", {"library/circles10000"}, {"library/circles1000"}}},
        printRatios);
}
