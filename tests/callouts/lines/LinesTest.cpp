#include "support/CalloutChecks.h"

#include "callouts/lines/ArrowGeometry.h"
#include "callouts/lines/EndCaps.h"
#include "callouts/lines/Shafts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

using namespace Vantrel;
using VantrelTest::expectBoundsMatchInk;

namespace {

double sum(std::vector<double> const &v) { return std::accumulate(v.begin(), v.end(), 0.0); }

void expectPoint(Point p, double x, double y, double tolerance = 1e-9) {
    EXPECT_NEAR(p.x, x, tolerance);
    EXPECT_NEAR(p.y, y, tolerance);
}

Color const kInk(0.1f, 0.2f, 0.6f);

} // namespace

TEST(Shafts, FitDashPattern) {
    // The worked example: three dashes and two gaps, stretched by 12 / 11.6.
    std::vector<double> fit = fitDashPattern({3.2, 1}, 12, false, false);
    ASSERT_EQ(fit.size(), 5u);
    EXPECT_NEAR(fit[0], 3.2 * 12 / 11.6, 1e-12);
    EXPECT_NEAR(fit[1], 1.0 * 12 / 11.6, 1e-12);
    EXPECT_NEAR(sum(fit), 12, 1e-12);

    // Both gaps: a zero dash, then a gap first, and a gap last.
    std::vector<double> gaps = fitDashPattern({3.2, 1}, 20, true, true);
    ASSERT_GE(gaps.size(), 4u);
    EXPECT_EQ(gaps[0], 0.0);
    EXPECT_EQ(gaps.size() % 2, 0u); // ends on a gap: zero dash + odd count of elements
    EXPECT_NEAR(gaps[1] / gaps[2], 1 / 3.2, 1e-12);
    EXPECT_NEAR(sum(gaps), 20, 1e-12);

    // A trailing gap only, below the first pair: that pair scaled to fit.
    std::vector<double> pair = fitDashPattern({3.2, 1}, 2, false, true);
    ASSERT_EQ(pair.size(), 2u);
    EXPECT_NEAR(sum(pair), 2, 1e-12);

    for (double total : {0.5, 7.0, 33.3, 1000.0})
        for (bool a : {false, true})
            for (bool b : {false, true}) {
                std::vector<double> r = fitDashPattern({2.0, 0.4, 1.0, 0.4}, total, a, b);
                EXPECT_NEAR(sum(r), total, 1e-9 * total);
            }
    EXPECT_EQ(fitDashPattern({}, 5, true, false), std::vector<double>{5});
    EXPECT_TRUE(fitDashPattern({3.2, 1}, 0, false, false).empty());
    EXPECT_TRUE(fitDashPattern({3.2, 1}, -3, false, false).empty());
    EXPECT_TRUE(fitDashPattern({3.2, 1}, std::nan(""), false, false).empty());
    EXPECT_EQ(fitDashPattern({0, 0}, 5, false, false), std::vector<double>{5}); // no length: one bar
    // A tiny width over a huge length: capped, and still the whole length.
    std::vector<double> many = fitDashPattern({1, 1}, 1e15, false, false);
    EXPECT_LE(many.size(), size_t(2 * kMaxShaftPieces + 2));
    EXPECT_NEAR(sum(many), 1e15, 1e3);
}

TEST(Shafts, OutlinesOfEachKind) {
    Polygons tapered = TaperedShaft(10, 100, 4).outline();
    ASSERT_EQ(tapered.polygons.size(), 1u);
    EXPECT_EQ(tapered.polygons[0]->points,
              (std::vector<Point>{Point(0, 5), Point(0, -5), Point(100, -2), Point(100, 2)}));
    Polygons flat = TaperedShaft(0, 100, 4).outline();
    ASSERT_EQ(flat.polygons.size(), 1u);
    EXPECT_TRUE(flat.polygons[0]->points.empty());

    // Dots: neither gap puts a dot edge at each end.
    Polygons dots = DotShaft(10, 100, 0.5, false, false).outline();
    ASSERT_EQ(dots.polygons.size(), 7u); // (100 + 5) / 15 = 7
    EXPECT_NEAR(dots.polygons.front()->BoundingRect().Left(), 0, 1e-9);
    EXPECT_NEAR(dots.polygons.back()->BoundingRect().Right(), 100, 1e-9);
    Polygons gapped = DotShaft(10, 100, 0.5, true, true).outline();
    EXPECT_GT(gapped.polygons.front()->BoundingRect().Left(), 1);
    EXPECT_TRUE(DotShaft(10, 4, 0.5, false, false).outline().polygons.empty()); // below one dot
    EXPECT_EQ(DotShaft(1e-9, 1e6, 0.5, false, false).outline().polygons.size(), size_t(kMaxShaftPieces));

    // Dashes, with the start rounded and the end sharp.
    DashShaft dashed(10, 120, {3.2, 1.0}, false, false);
    dashed.startCornerRatio = 0.3;
    Polygons dashes = dashed.outline();
    ASSERT_EQ(dashes.polygons.size(), 3u);
    EXPECT_GT(dashes.polygons.front()->points.size(), 4u);
    EXPECT_EQ(dashes.polygons.back()->points.size(), 4u);
    EXPECT_NEAR(dashes.polygons.back()->BoundingRect().Right(), 120, 1e-9);
    DashShaft bar(10, 50, {}, false, false);
    bar.startCornerRatio = bar.endCornerRatio = 0.3;
    Polygons one = bar.outline();
    ASSERT_EQ(one.polygons.size(), 1u);
    EXPECT_GT(one.polygons[0]->points.size(), 8u); // four rounded corners
    EXPECT_TRUE(DashShaft(10, 0, {3.2, 1}, false, false).outline().polygons.empty());
    EXPECT_TRUE(DashShaft(-1, 50, {3.2, 1}, false, false).outline().polygons.empty());
}

TEST(EndCaps, OutlinesAndInsets) {
    namespace cap = EndCapKind;
    struct Inset {
        int kind;
        bool joined;
        double inset;
    };
    for (Inset c : {Inset{cap::None, true, 0}, Inset{cap::Dot, true, 5}, Inset{cap::Dot, false, 10},
                    Inset{cap::BoldArrow, true, 6.99}, Inset{cap::BoldDiamond, true, 3.749},
                    Inset{cap::Square, false, 9.999}, Inset{cap::AbstractTail, true, 11}}) {
        SCOPED_TRACE(c.kind);
        EXPECT_NEAR(makeEndCap(c.kind, 10)->shaftInset(c.joined), c.inset, 1e-12);
    }
    EXPECT_TRUE(makeEndCap(cap::None, 10)->outline().points.empty());
    EXPECT_TRUE(makeEndCap(cap::Dot, 0)->outline().points.empty());
    Rect circle = makeEndCap(cap::Circle, 10)->outline().BoundingRect();
    EXPECT_NEAR(circle.Left(), 0, 1e-9);
    EXPECT_NEAR(circle.Right(), 10, 1e-9);
    EXPECT_EQ(makeEndCap(cap::UrbanDiamond, 20)->outline().points,
              (std::vector<Point>{Point(0, 0), Point(10, 10), Point(20, 0), Point(10, -10)}));
    Polygon rounded = makeEndCap(cap::BasicDiamond, 20)->outline(); // radius 1
    EXPECT_NEAR(rounded.BoundingRect().Right(), 20 - (std::sqrt(2.0) - 1), 1e-6);
    EXPECT_EQ(makeEndCap(cap::BoldArrow, 10)->outline().points,
              (std::vector<Point>{Point(0, 0), Point(7, 5), Point(7, -5)}));
    Rect tail = makeEndCap(cap::AbstractTail, 10)->outline().BoundingRect();
    EXPECT_LT(tail.Left(), 0); // the swallow tail's back corners lie behind the end
    EXPECT_NEAR(tail.Right(), 16, 0.5);
    for (int kind = cap::None; kind <= cap::UrbanDiamond; ++kind)
        EXPECT_NE(makeEndCap(kind, 8), nullptr) << kind;
    EXPECT_EQ(makeEndCap(cap::UrbanDiamond + 1, 8), nullptr);
    EXPECT_EQ(makeEndCap(-1, 8), nullptr);
}

TEST(Arrows, BuildAndShrink) {
    ArrowSpec spec;
    spec.start = Point(0, 0);
    spec.end = Point(300, 0);
    spec.headAtStart = spec.headAtEnd = true;
    spec.shaftHalfWidth = 20;
    spec.headHalfWidth = 40;
    spec.headLength = 52;
    Polygon p = buildArrowPolygon(spec);
    ASSERT_EQ(p.points.size(), 10u);
    expectPoint(p.points[0], 52, -20);
    expectPoint(p.points[2], 0, 0);
    expectPoint(p.points[7], 300, 0);
    expectPoint(p.points[9], 248, -20);
    ArrowParts parts = buildArrowParts(spec);
    EXPECT_EQ(parts.startHead.points, (std::vector<Point>{p.points[1], p.points[2], p.points[3]}));
    EXPECT_EQ(parts.endHead.points, (std::vector<Point>{p.points[6], p.points[7], p.points[8]}));

    // 100 long: shrinks by 100 / 156.
    spec.end = Point(0, 100);
    Polygon shrunk = buildArrowPolygon(spec);
    expectPoint(shrunk.points[0], 20 * 100 / 156.0, 52 * 100 / 156.0);
    spec.headAtStart = false;
    EXPECT_EQ(buildArrowParts(spec).startHead.points.size(), 0u);
    EXPECT_EQ(buildArrowParts(spec).endHead.points.size(), 3u);
}

TEST(Lines, FixedLinesAndArrows) {
    BoldDoubleArrow arrow(kInk, Point(0, 0), Point(100, 0));
    expectBoundsMatchInk(arrow, "bold arrow");
    EXPECT_NEAR(arrow.boundingRect().Height(), 80 * 100 / 156.0, 1.0); // ink extents are whole pixels
    // Tracking is symmetrical about the second point.
    EXPECT_EQ(arrow.trackingRect().Center(), Point(100, 0));

    UrbanArrow urban(kInk, 4, "solid", Point(-50, 0), "ignored", Point(50, 0));
    Rect head = urban.boundingRect();
    EXPECT_NEAR(head.Height(), 24, 1e-6);
    EXPECT_NEAR(head.Right(), 50, 1e-6);
    // The head is opaque over a translucent shaft.
    VantrelTest::Canvas canvas(120, 40);
    canvas.context.Translate(Point(60, 20));
    urban.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    EXPECT_EQ(canvas.at(107, 20) >> 24, 255u); // inside the head, 8.4 long
    int shaftAlpha = canvas.at(60, 20) >> 24;
    EXPECT_GT(shaftAlpha, 150); // 0.6 and 0.5 on top of each other: 0.8
    EXPECT_LT(shaftAlpha, 230);
    EXPECT_LT(int(canvas.at(15, 20) >> 24), shaftAlpha); // the first 15 % has one layer only

    // UrbanLine: the first 15 % lighter.
    UrbanLine line(Color(0, 0, 0), Point(0, 0), Point(100, 0));
    VantrelTest::Canvas lineCanvas(110, 20);
    lineCanvas.context.Translate(Point(5, 10));
    line.drawIntoContext(&lineCanvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    EXPECT_NEAR(int(lineCanvas.at(10, 10) >> 24), 178, 1);
    EXPECT_EQ(lineCanvas.at(50, 10) >> 24, 255u);

    for (BaseCallout *fixed : std::initializer_list<BaseCallout *>{
             new BoldLine(kInk, Point(-80, 30), Point(90, -40)), new AbstractLine(kInk, Point(-80, 30), Point(90, -40)),
             new AbstractDoubleArrow(kInk, Point(-80, 30), Point(90, -40)),
             new UrbanLine(kInk, Point(-80, 30), Point(90, -40))}) {
        expectBoundsMatchInk(*fixed, "fixed line");
        delete fixed;
    }
    std::unique_ptr<AbstractLine> copy(AbstractLine(kInk, Point(0, 0), Point(50, 0)).clone());
    EXPECT_NEAR(copy->boundingRect().Height(), 20, 1e-6);
    // Length 0: no crash, nothing sensible to measure.
    BoldLine(kInk, Point(3, 3), Point(3, 3)).boundingRect();
}

TEST(LineWithCaps, OutlinesOfShaftAndCaps) {
    // A solid Basic line with an arrow head: one contour.
    std::unique_ptr<LineWithCaps> solid(Presets::createLine(Presets::ThemeBasic, kInk, 8, Point(-100, 0), Point(100, 0),
                                                            Presets::LineShaftSolid, Presets::LineEndCapNone,
                                                            Presets::LineEndCapArrow));
    EXPECT_EQ(solid->pathAsPolygons(Rect()).polygons.size(), 1u);
    expectBoundsMatchInk(*solid, "solid with arrow");

    // Null caps: the trapezium of the tapered shaft.
    LineWithCaps bare(kInk);
    bare.startCap.position = Point(0, 0);
    bare.endCap.position = Point(0, 100);
    bare.shaft.width = 10;
    bare.shaft.endWidth = 4;
    Polygons trapezium = bare.pathAsPolygons(Rect());
    ASSERT_EQ(trapezium.polygons.size(), 1u);
    Rect t = trapezium.polygons[0]->BoundingRect();
    EXPECT_NEAR(t.Width(), 10, 1e-9);
    EXPECT_NEAR(t.Height(), 100, 1e-9);

    // Dashes: one polygon per dash, and rounded bar ends for Abstract.
    std::unique_ptr<LineWithCaps> dashed(Presets::createLine(Presets::ThemeBold, kInk, 6, Point(0, 0), Point(300, 0),
                                                             Presets::LineShaftDashed, Presets::LineEndCapNone,
                                                             Presets::LineEndCapNone));
    EXPECT_GT(dashed->pathAsPolygons(Rect()).polygons.size(), 10u);
    std::unique_ptr<LineWithCaps> bar(Presets::createLine(Presets::ThemeAbstract, kInk, 10, Point(0, 0), Point(100, 0),
                                                          Presets::LineShaftSolid, Presets::LineEndCapNone,
                                                          Presets::LineEndCapNone));
    Polygons rounded = bar->pathAsPolygons(Rect());
    ASSERT_EQ(rounded.polygons.size(), 1u);
    EXPECT_GT(rounded.polygons[0]->points.size(), 8u);

    // An unknown cap kind draws nothing.
    LineWithCaps unknown(kInk);
    unknown.startCap.kind = 99;
    unknown.endCap.position = Point(100, 0);
    unknown.shaft.width = 5;
    EXPECT_TRUE(unknown.pathAsPolygons(Rect()).polygons.empty());
}

TEST(LineWithCaps, FadeGradient) {
    // The gradient stops are seen by drawing into a recording of fills.
    class Recorder : public CrossPlatformDrawingContext {
    public:
        Recorder() : CrossPlatformDrawingContext(nullptr) {}
        void Fill(GradientPattern const &pattern, Polygons const &) override { seen = pattern; }
        GradientPattern seen;
    };
    std::unique_ptr<LineWithCaps> oneCap(Presets::createLine(Presets::ThemeUrban, kInk, 10, Point(0, 0), Point(100, 0),
                                                             Presets::LineShaftSolid, Presets::LineEndCapNone,
                                                             Presets::LineEndCapArrow));
    EXPECT_EQ(oneCap->shaft.fadeStart, 0);
    EXPECT_EQ(oneCap->shaft.fadeEnd, 0.2);
    Recorder r;
    oneCap->drawIntoContext(&r, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    // No cap at the start: s = 0, so the ramp starts at s + p with the fade colour.
    ASSERT_EQ(r.seen.stops.size(), 4u);
    EXPECT_NEAR(r.seen.stops[0].offset, 0.01, 1e-12);
    EXPECT_EQ(r.seen.stops[0].color.alpha, kInk.alpha * 0.4f);
    EXPECT_EQ(r.seen.stops[3].offset, 1.0);
    EXPECT_EQ(r.seen.stops[3].color, kInk);

    std::unique_ptr<LineWithCaps> twoArrows(Presets::createLine(Presets::ThemeUrban, kInk, 10, Point(0, 0),
                                                                Point(100, 0), Presets::LineShaftSolid,
                                                                Presets::LineEndCapArrow, Presets::LineEndCapArrow));
    EXPECT_EQ(twoArrows->shaft.fadeEnd, 1.0);
    Recorder both;
    twoArrows->drawIntoContext(&both, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    // Caps at both ends: the solid colour over each cap, the fade between.
    ASSERT_EQ(both.seen.stops.size(), 6u);
    double cA = (50 * 0.41 - 0.001) / 100;
    EXPECT_NEAR(both.seen.stops[1].offset, cA, 1e-12);
    EXPECT_NEAR(both.seen.stops[4].offset, 1 - cA, 1e-12);
}

TEST(Presets, LineTables) {
    Point a(0, 0), b(100, 0);
    std::unique_ptr<LineWithCaps> basic(Presets::createLine(Presets::ThemeBasic, kInk, 8, a, b, Presets::LineShaftSolid,
                                                            Presets::LineEndCapCircle, Presets::LineEndCapArrow));
    EXPECT_EQ(basic->shaft.width, 6);
    EXPECT_EQ(basic->shaft.endWidth, 8);
    EXPECT_EQ(basic->startCap.size, 12);
    EXPECT_EQ(basic->endCap.size, 40);
    EXPECT_TRUE(basic->startCap.joined);

    std::unique_ptr<LineWithCaps> dots(Presets::createLine(Presets::ThemeBasic, kInk, 8, a, b, Presets::LineShaftDotted,
                                                           Presets::LineEndCapDot, Presets::LineEndCapDot));
    EXPECT_EQ(dots->startCap.kind, EndCapKind::None);
    EXPECT_EQ(dots->endCap.kind, EndCapKind::None);
    EXPECT_FALSE(dots->startCap.joined);

    std::unique_ptr<LineWithCaps> urbanCircle(Presets::createLine(Presets::ThemeUrban, kInk, 8, a, b,
                                                                  Presets::LineShaftSolid, Presets::LineEndCapCircle,
                                                                  Presets::LineEndCapNone));
    EXPECT_EQ(urbanCircle->startCap.kind, EndCapKind::None);
    std::unique_ptr<LineWithCaps> boldDashed(Presets::createLine(Presets::ThemeBold, kInk, 8, a, b,
                                                                 Presets::LineShaftDashed, Presets::LineEndCapCircle,
                                                                 Presets::LineEndCapArrow));
    EXPECT_EQ(boldDashed->startCap.kind, EndCapKind::None);
    EXPECT_TRUE(boldDashed->startCap.joined);
    EXPECT_FALSE(boldDashed->endCap.joined);
    std::unique_ptr<LineWithCaps> abstract(Presets::createLine(Presets::ThemeAbstract, kInk, 8, a, b,
                                                               Presets::LineShaftSolid, Presets::LineEndCapNone,
                                                               Presets::LineEndCapNone));
    EXPECT_EQ(abstract->shaft.kind, ShaftKind::Bar);
    EXPECT_EQ(abstract->shaft.roundedEnds, 3);
    std::unique_ptr<LineWithCaps> modern(Presets::createLine(Presets::ThemeModern, kInk, 8, a, b,
                                                             Presets::LineShaftDotted, Presets::LineEndCapArrow,
                                                             Presets::LineEndCapDiamond));
    EXPECT_TRUE(modern->shaft.outlineOnly);
    EXPECT_EQ(modern->shaft.kind, ShaftKind::ModernDots);
    EXPECT_EQ(modern->endCap.kind, EndCapKind::ModernDiamond);
    std::unique_ptr<LineWithCaps> unknown(Presets::createLine(Presets::Theme(9), kInk, 8, a, b,
                                                              Presets::LineShaftDashed, Presets::LineEndCapArrow,
                                                              Presets::LineEndCapArrow));
    ASSERT_NE(unknown, nullptr);
    EXPECT_EQ(unknown->shaft.kind, ShaftKind::Tapered);
    EXPECT_EQ(unknown->startCap.kind, EndCapKind::None);
    EXPECT_EQ(unknown->shaft.width, 8);

    EXPECT_EQ(Presets::createLine(Presets::ThemeModern, kInk, a, b), nullptr);
    EXPECT_EQ(Presets::createArrow(Presets::ThemeModern, kInk, 4, "", a, "", b, ""), nullptr);
    std::unique_ptr<BaseCallout> urban(Presets::createLine(Presets::ThemeUrban, kInk, a, b));
    EXPECT_NE(dynamic_cast<UrbanLine *>(urban.get()), nullptr);
    std::unique_ptr<BaseCallout> arrow(Presets::createArrow(Presets::ThemeBasic, kInk, 4, "", a, "", b, ""));
    EXPECT_NE(dynamic_cast<BoldDoubleArrow *>(arrow.get()), nullptr);
}

TEST(LineWithCaps, EveryCombinationDrawsAndMeasures) {
    for (int theme = 0; theme <= 4; ++theme)
        for (int shaftType = 0; shaftType <= 2; ++shaftType)
            for (int cap = 0; cap <= 7; ++cap) {
                std::unique_ptr<LineWithCaps> line(Presets::createLine(
                    Presets::Theme(theme), kInk, 6, Point(-90, 40), Point(100, -50), Presets::LineShaftType(shaftType),
                    Presets::LineEndCapType(cap), Presets::LineEndCapType((cap + 3) % 8)));
                expectBoundsMatchInk(*line, "theme " + std::to_string(theme) + " shaft " + std::to_string(shaftType) +
                                                " cap " + std::to_string(cap));
            }
}

// A draw's work is bounded by its pieces: only the pieces that touch a cap
// go through the union, the others pass by as they are.
TEST(LineWithCaps, OnlyPiecesThatTouchACapAreUnited) {
    DashShaft shaft(1.0, 20000.0, {5.0, 0.5}, false, false);
    Polygons pieces = shaft.outline();
    ASSERT_GT(pieces.polygons.size(), 3000u);
    Polygons first, second, none;
    first.Add(Polygon(Rect(-2, -2, 1, 2)));
    second.Add(Polygon(Rect(19999, -2, 20002, 2)));
    none.Add(Polygon());
    Polygons united = uniteShaftWithCaps(pieces, first, second);
    ASSERT_EQ(united.polygons.size(), pieces.polygons.size()); // the end pieces merge with their caps
    size_t passed = 0;
    for (size_t i = 0; i < united.polygons.size(); ++i)
        passed +=
            std::find(pieces.polygons.begin(), pieces.polygons.end(), united.polygons[i]) != pieces.polygons.end();
    EXPECT_EQ(passed, pieces.polygons.size() - 2);
    // Caps without points leave the pieces exactly as they were.
    Polygons alone = uniteShaftWithCaps(pieces, none, none);
    EXPECT_EQ(alone.polygons, pieces.polygons);

    // The dashed line that once took 10,000 dashes through the union at every draw.
    LineWithCaps line(kInk);
    line.startCap = LineEnd{EndCapKind::BoldDiamond, Point(-20, 0), true, 7e-15};
    line.endCap = LineEnd{EndCapKind::AbstractArrow, Point(20, 7), true, 7e-15};
    line.shaft.kind = ShaftKind::UrbanLongDashes;
    line.shaft.width = 7e-15;
    Polygons outline = line.pathAsPolygons(Rect());
    EXPECT_LE(outline.polygons.size(), size_t(kMaxShaftPieces) + 2);

    // Hostile widths and lengths: no more pieces than the bound, and drawing goes on.
    VantrelTest::Canvas canvas(64, 64);
    for (int shaftType = 0; shaftType <= 2; ++shaftType)
        for (double width : {1e-9, -4.0, 0.0, 1e9})
            for (Point end : {Point(1e6, 0), Point(0, 0), Point(1e-9, 0)}) {
                SCOPED_TRACE(std::to_string(shaftType) + " width " + std::to_string(width) + " to " +
                             std::to_string(end.x));
                std::unique_ptr<LineWithCaps> hostile(Presets::createLine(
                    Presets::ThemeBasic, kInk, width, Point(0, 0), end, Presets::LineShaftType(shaftType),
                    Presets::LineEndCapArrow, Presets::LineEndCapDot));
                hostile->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                EXPECT_LE(hostile->pathAsPolygons(Rect()).polygons.size(), size_t(kMaxShaftPieces) + 2);
            }
}

// A line whose start is its end, as when a user presses before dragging:
// nothing drawn, no outline, bounds empty at the point, in every theme.
TEST(Lines, ALineOfLengthZeroHasNoOutlineAndBoundsAtItsPoint) {
    Point const p(37.5, -12);
    std::vector<std::pair<std::string, std::unique_ptr<BaseCallout>>> lines;
    for (int theme = 0; theme <= 4; ++theme) {
        std::string const t = "theme " + std::to_string(theme);
        lines.emplace_back(t + " line", Presets::createLine(Presets::Theme(theme), kInk, p, p));
        lines.emplace_back(t + " arrow", Presets::createArrow(Presets::Theme(theme), kInk, 6, "", p, "", p, ""));
        for (int cap = 0; cap <= 7; ++cap)
            lines.emplace_back(t + " caps " + std::to_string(cap),
                               Presets::createLine(Presets::Theme(theme), kInk, 6, p, p,
                                                   Presets::LineShaftType(cap % 3), Presets::LineEndCapType(cap),
                                                   Presets::LineEndCapType(cap)));
    }
    for (auto const &[name, line] : lines) {
        if (!line)
            continue; // a theme without this kind
        SCOPED_TRACE(name);
        for (auto const &polygon : line->pathAsPolygons(Rect()).polygons)
            EXPECT_TRUE(polygon->points.empty());
        EXPECT_EQ(line->boundingRect(), Rect(p, p));
        Bitmap bitmap(100, 100);
        bitmap.clear();
        CrossPlatformDrawingContext context(&bitmap);
        context.Translate(Point(50, 50) - p);
        line->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        EXPECT_EQ(VantrelTest::inkBounds(bitmap), Rect());
    }
}
