// The drawing surface itself: fills and strokes, polygons, pixels, paths,
// rounded and measured outlines, and the union of outlines.
#include "gallery/Sheet.h"

#include <cmath>
#include <memory>

using namespace Vantrel;

namespace VantrelTool {

constexpr double kPi = 3.141592653589793;

namespace {

Rect const kBox(-70, -45, 70, 45);

Tile ovalTile(std::string label, std::string fillStyle, Point direction, double strokeWidth, std::string strokeStyle,
              Color fill = kBlue) {
    return {label, [=](CrossPlatformDrawingContext &c) {
                drawCallout(c, OvalShape(fill, fillStyle, direction, kInk, strokeWidth, strokeStyle, kBox));
            }};
}

Polygon starPolygon(double outer, double inner, int points) {
    Polygon star;
    for (int i = 0; i < 2 * points; ++i) {
        double r = i % 2 ? inner : outer;
        star.points.push_back(Point::FromAngle(-kPi / 2 + kPi * i / points) * r);
    }
    return star;
}

// The bounds of a callout as a thin outline and its outline polygons over it, in a second colour.
void drawMeasurements(CrossPlatformDrawingContext &c, BaseCallout const &callout) {
    drawCallout(c, callout);
    c.Stroke(Color(0.9f, 0.1f, 0.5f), 1, "solid", Polygon(callout.boundingRect()));
    Polygons outline = callout.pathAsPolygons(Rect());
    c.Stroke(Color(0.1f, 0.75f, 0.2f), 1, "solid", outline);
}

// A keyhole: an arc, two lines and a curve, as one contour.
Path keyhole() {
    Path p;
    p.AddArc(Point(0, -15), 22, kPi * 0.65, kPi * 2.35);
    p.AddPoint(Point(18, 35));
    p.AddCurve(Point(6, 45), Point(-6, 45), Point(-18, 35));
    return p;
}

void addPathSections(std::vector<Section> &all) {
    auto pathTile = [](std::string label, Matrix3x3 m, std::string style) {
        return Tile{label, [=](CrossPlatformDrawingContext &c) {
                        Path p = keyhole();
                        p.Transform(m);
                        c.FillPath(makeGradientPattern(kBlue, Rect(-40, -40, 40, 45), Point(1, 1)), p);
                        c.StrokePath(kInk, 3, style, p, LineCapRound, LineJoinRound, true);
                    }};
    };
    double const a = kPi / 6;
    Matrix3x3 rotation(std::cos(a), -std::sin(a), 0, std::sin(a), std::cos(a), 0, 0, 0, 1);
    Matrix3x3 shear(1, 0.6, 0, 0, 1, 0, 0, 0, 1);
    all.push_back(
        {"Paths: arcs, lines and curves, transformed",
         {pathTile("path", Matrix3x3(), "solid"), pathTile("rotated 30 degrees", rotation, "dash"),
          pathTile("sheared", shear, "dot"), pathTile("scaled (1.6, 0.8)", Matrix3x3::Scale(1.6, 0.8), "dashdot"),
          pathTile("mirrored", Matrix3x3::Scale(-1, 1) * rotation, "solid")}});

    Polygon star = starPolygon(55, 24, 5);
    Polygon triangle{Point(0, -50), Point(60, 45), Point(-60, 45)};
    auto rounded = [](std::string label, Polygon p, Color fill) {
        return Tile{label, [=](CrossPlatformDrawingContext &c) {
                        c.Fill(fill, p);
                        c.Stroke(kInk, 2, "solid", p);
                    }};
    };
    all.push_back({"Rounded polygons",
                   {rounded("star, radius 3", star.RoundedCorners(3), kOrange),
                    rounded("star, radius 40 (shrunk)", star.RoundedCorners(40), kOrange),
                    rounded("triangle, radius 12", triangle.RoundedCorners(12), kGreen),
                    rounded("radii 0, 10, 40", triangle.RoundedCorners(std::vector<double>{0, 10, 40}), kGreen),
                    rounded("square, radius 1000", Polygon(Rect(-45, -45, 45, 45)).RoundedCorners(1000), kBlue),
                    rounded("circle of radius 50", Polygon::Circle(Point(0, 0), 50), kRed)}});

    auto measured = [](std::string label, double width, std::string style, Rect r) {
        return Tile{label, [=](CrossPlatformDrawingContext &c) {
                        drawMeasurements(c, OvalShape(kOrange, "gradient", Point(0, 1), kInk, width, style, r));
                    }};
    };
    all.push_back({"Measured: boundingRect (pink) and pathAsPolygons (green)",
                   {measured("no stroke", 0, "solid", Rect(-60, -40, 60, 40)),
                    measured("stroke 4", 4, "solid", Rect(-60, -40, 60, 40)),
                    measured("stroke 12, dash", 12, "dash", Rect(-55, -35, 55, 35)),
                    measured("stroke 8, dot", 8, "dot", Rect(-30, -45, 30, 45)),
                    measured("off centre", 3, "dashdot", Rect(-70, -20, 20, 45))}});
}

} // namespace

void addDrawingSections(std::vector<Section> &all) {
    all.push_back({"Ovals: solid and gradient fills",
                   {ovalTile("solid", "solid", Point(0, 1), 0, "solid"),
                    ovalTile("gradient (0,1)", "gradient", Point(0, 1), 0, "solid"),
                    ovalTile("gradient (1,0)", "gradient", Point(1, 0), 0, "solid"),
                    ovalTile("gradient (1,1)", "gradient", Point(1, 1), 0, "solid", kOrange),
                    ovalTile("gradient (-1,0.3)", "gradient", Point(-1, 0.3), 0, "solid", kGreen),
                    ovalTile("half transparent", "solid", Point(0, 1), 3, "solid", Color(0.85f, 0.15f, 0.2f, 0.5f))}});
    all.push_back({"Ovals: the five stroke styles at width 4",
                   {ovalTile("solid", "gradient", Point(0, 1), 4, "solid", kOrange),
                    ovalTile("dash", "gradient", Point(0, 1), 4, "dash", kOrange),
                    ovalTile("dot", "gradient", Point(0, 1), 4, "dot", kOrange),
                    ovalTile("dashdot", "gradient", Point(0, 1), 4, "dashdot", kOrange),
                    ovalTile("dashdotdot", "gradient", Point(0, 1), 4, "dashdotdot", kOrange),
                    ovalTile("width 12, dash", "solid", Point(0, 1), 12, "dash", Color(1, 1, 1))}});

    Polygon star = starPolygon(55, 22, 5);
    Polygon outer(Rect(-60, -45, 60, 45));
    Polygon inner = Polygon(Rect(-30, -20, 30, 20)).Reversed();
    all.push_back({"Polygons, lines and rectangles",
                   {{"filled star, dashed",
                     [=](CrossPlatformDrawingContext &c) {
                         c.Fill(kGreen, star);
                         c.Stroke(kInk, 3, "dash", star);
                     }},
                    {"inner square fills solid",
                     [=](CrossPlatformDrawingContext &c) {
                         Polygons both;
                         both.Add(outer);
                         both.Add(inner);
                         c.Fill(kRed, both);
                         c.Stroke(kInk, 1.5, "solid", both);
                     }},
                    {"gradient polygon",
                     [=](CrossPlatformDrawingContext &c) {
                         c.Fill(makeGradientPattern(kBlue, star.BoundingRect(), Point(1, 1)), star);
                     }},
                    {"lines: butt and round caps",
                     [](CrossPlatformDrawingContext &c) {
                         c.DrawLine(Point(-60, -25), Point(60, -25), kInk, 14, false);
                         c.DrawLine(Point(-60, 20), Point(60, 20), kBlue, 14, true);
                     }},
                    {"rectangle outline",
                     [](CrossPlatformDrawingContext &c) { c.DrawRectangle(kRed, Rect(-60.5, -40.5, 60.5, 40.5)); }},
                    {"miter corner of 3 degrees", [](CrossPlatformDrawingContext &c) {
                         Polygon sharp({Point(-75, 30), Point(10, 27.8), Point(-75, 25.6)});
                         c.Stroke(kInk, 2, "solid", sharp);
                     }}}});

    all.push_back(
        {"Pixels: clear, blend and bitmaps",
         {{"clear to transparent in a clip",
           [](CrossPlatformDrawingContext &c) {
               drawCallout(c, OvalShape(kOrange, "gradient", Point(0, 1), kInk, 3, "solid", kBox));
               c.Save();
               c.SetClip(Rect(-25, -30, 25, 30));
               c.Clear(Color(0, 0, 0, 0));
               c.Restore();
           }},
          {"blend with alpha 0.5",
           [](CrossPlatformDrawingContext &c) {
               // Two pixel buffers of the tile's size, blended directly.
               CrossPlatformDrawingContextWithBuiltInBitmap base(180, 120);
               base.builtInBitmap()->clear();
               base.Translate(Point(90, 60));
               drawCallout(base, OvalShape(kBlue, "solid", Point(0, 1), kInk, 2, "solid", Rect(-80, -50, 20, 50)));
               std::unique_ptr<DrawingContext> top(base.CreateBlankClone());
               top->Translate(Point(90, 60));
               OvalShape(kRed, "solid", Point(0, 1), kInk, 2, "solid", Rect(-20, -50, 80, 50))
                   .drawIntoContext(top.get(), BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
               base.BlendWith(top.get(), 0.5);
               c.DrawBitmap(*base.builtInBitmap(), Point(-90, -60), 1.0);
           }},
          {"bitmap scaled 3x",
           [](CrossPlatformDrawingContext &c) {
               CrossPlatformDrawingContextWithBuiltInBitmap small(40, 30);
               small.builtInBitmap()->clear();
               drawCallout(small, OvalShape(kGreen, "gradient", Point(1, 1), kInk, 1, "solid", Rect(2, 2, 38, 28)));
               c.DrawBitmap(*small.builtInBitmap(), Rect(-60, -45, 60, 45), 1.0);
           }},
          {"bitmap at alpha 0.4", [](CrossPlatformDrawingContext &c) {
               CrossPlatformDrawingContextWithBuiltInBitmap small(120, 90);
               small.Clear(kRed);
               c.DrawBitmap(*small.builtInBitmap(), Point(-60, -45), 0.4);
           }}}});
    addPathSections(all);
}

// Outlines merged by the union: the operands in thin lines, the result filled.
void addUnionSection(std::vector<Section> &all) {
    auto unionTile = [](std::string label, Polygons a, Polygons b) {
        return Tile{label, [=](CrossPlatformDrawingContext &c) {
                        Polygons united = a.UnionWith(b);
                        c.Fill(Color(0.3f, 0.6f, 0.95f, 0.8f), united);
                        c.Stroke(kInk, 2, "solid", united);
                        c.Stroke(kRed, 1, "dash", a);
                        c.Stroke(kOrange, 1, "dash", b);
                    }};
    };
    auto list = [](std::initializer_list<Polygon> polygons) {
        Polygons p;
        for (Polygon const &q : polygons)
            p.Add(q);
        return p;
    };
    Polygon body = Polygon(Rect(-60, -40, 60, 20)).RoundedCorners(14);
    Polygon tail{Point(-20, 10), Point(-45, 50), Point(5, 15)};
    all.push_back(
        {"Union of outlines",
         {unionTile("rounded body and tail", list({body}), list({tail})),
          unionTile("two circles", list({Polygon::Circle(Point(-20, 0), 35)}),
                    list({Polygon::Circle(Point(25, 5), 30)})),
          unionTile("a ring comes back solid", list({Polygon(Rect(-45, -40, 45, 40)), Polygon(Rect(-20, -15, 20, 15))}),
                    list({Polygon(Rect(30, -10, 65, 10))})),
          unionTile("stars", list({starPolygon(50, 20, 5)}),
                    list({Matrix3x3::Translation(Point(30, 10)) * starPolygon(35, 15, 6)})),
          unionTile("far apart", list({Polygon(Rect(-60, -30, -20, 10))}),
                    list({Polygon::Circle(Point(35, 10), 25)}))}});
}

} // namespace VantrelTool
