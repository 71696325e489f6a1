#include "Gallery.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace Vantrel;

namespace VantrelTool {

namespace {

int const kCellWidth = 190;
int const kCellHeight = 150;
int const kLabelHeight = 22;
int const kColumns = 6;
int const kTitleHeight = 34;
int const kMargin = 16;

// A tile draws around the origin, in a box of about 160 by 110.
using DrawTile = std::function<void(CrossPlatformDrawingContext &)>;

struct Tile {
    std::string label;
    DrawTile draw;
};

struct Section {
    std::string title;
    std::vector<Tile> tiles;
    int columns = kColumns;
    int rows() const { return int((tiles.size() + columns - 1) / columns); }
};

Color const kInk(0.15f, 0.2f, 0.35f);
Color const kBlue(0.2f, 0.45f, 0.85f);
Color const kOrange(1.0f, 0.6f, 0.1f);
Color const kRed(0.85f, 0.15f, 0.2f);
Color const kGreen(0.2f, 0.7f, 0.35f);
Rect const kBox(-70, -45, 70, 45);

void drawCallout(CrossPlatformDrawingContext &c, BaseCallout const &callout) {
    callout.drawIntoContext(&c, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

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

// Bounds (pink) and tracking rect (blue) of a callout, drawn over it.
void drawWithRects(CrossPlatformDrawingContext &c, BaseCallout const &callout) {
    drawCallout(c, callout);
    c.Stroke(Color(0.9f, 0.1f, 0.5f), 1, "solid", Polygon(callout.boundingRect()));
    c.Stroke(Color(0.1f, 0.5f, 0.95f), 1, "solid", Polygon(callout.trackingRect()));
}

struct ThemeName {
    Presets::Theme theme;
    char const *name;
};
ThemeName const kThemes[] = {{Presets::ThemeBasic, "basic"},
                             {Presets::ThemeModern, "modern"},
                             {Presets::ThemeUrban, "urban"},
                             {Presets::ThemeBold, "bold"},
                             {Presets::ThemeAbstract, "abstract"}};

void addShapeSections(std::vector<Section> &all) {
    using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                     double, std::string const &, Rect const &);
    struct Kind {
        char const *name;
        Factory make;
        Color fill;
    } const kinds[] = {{"Oval", Presets::createShapeOval, kBlue},
                       {"Rectangle", Presets::createShapeRectangle, kOrange},
                       {"Octagon", Presets::createShapeOctagon, kRed},
                       {"Triangle", Presets::createShapeTriangle, kGreen},
                       {"Star", Presets::createShapeStar, Color(1.0f, 0.8f, 0.0f)}};
    struct Look {
        char const *fillStyle;
        double width;
        char const *strokeStyle;
    } const looks[] = {{"solid", 3, "solid"}, {"gradient", 6, "dash"}};
    for (Kind const &kind : kinds) {
        Section section{
            std::string(kind.name) + " from the presets, every theme: bounds pink, tracking rect blue", {}, 5};
        for (Look const &look : looks)
            for (ThemeName const &t : kThemes) {
                std::shared_ptr<BaseCallout> callout(kind.make(t.theme, kind.fill, look.fillStyle, Point(0.3, 1), kInk,
                                                               look.width, look.strokeStyle, Rect(-65, -42, 65, 42)));
                std::string label = std::string(t.name) + ", " + look.fillStyle + ", " + look.strokeStyle + " " +
                                    std::to_string(int(look.width));
                if (!callout)
                    label = std::string(t.name) + ": none";
                section.tiles.push_back({label, [callout](CrossPlatformDrawingContext &c) {
                                             if (callout)
                                                 drawWithRects(c, *callout);
                                         }});
            }
        all.push_back(section);
    }
    auto path = [](std::string label, std::string points, double width, std::string style) {
        return Tile{label, [=](CrossPlatformDrawingContext &c) {
                        drawWithRects(c, CustomPath(points, Point(140, 90), kBlue, width, style));
                    }};
    };
    all.push_back({"CustomPath: a host's polyline, stretched to its size",
                   {path("zigzag, width 4", "-0.5,0.5 -0.25,-0.5 0,0.3 0.25,-0.5 0.5,0.5", 4, "solid"),
                    path("spiral, width 3, dash", "0,0 0.1,0 0.1,0.15 -0.2,0.15 -0.2,-0.3 0.3,-0.3 0.3,0.45 -0.45,0.45",
                         3, "dash"),
                    path("wave, width 6, dot", "-0.5,0 -0.3,-0.4 -0.1,0.4 0.1,-0.4 0.3,0.4 0.5,0", 6, "dot"),
                    path("beyond the unit box", "-0.8,-0.6 0.8,0.6", 8, "solid")}});
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

// For each theme: every shaft type with the caps the theme knows, at two
// widths, then the fixed line and arrow, and a short arrow that shrinks.
void addLineSections(std::vector<Section> &all) {
    using Cap = Presets::LineEndCapType;
    struct ThemeCaps {
        ThemeName theme;
        std::vector<Cap> caps;
    } const themes[] = {
        {kThemes[0],
         {Presets::LineEndCapCircle, Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapDot}},
        {kThemes[1],
         {Presets::LineEndCapCircle, Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapDot}},
        {kThemes[2],
         {Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapSquare, Presets::LineEndCapDot}},
        {kThemes[3],
         {Presets::LineEndCapArrow, Presets::LineEndCapBoldDiamond, Presets::LineEndCapDot, Presets::LineEndCapNone}},
        {kThemes[4],
         {Presets::LineEndCapCircle, Presets::LineEndCapArrow, Presets::LineEndCapTail, Presets::LineEndCapDot}},
    };
    char const *const shaftNames[] = {"solid", "dotted", "dashed"};
    Color const colours[] = {kBlue, kRed, kGreen, kOrange};
    for (ThemeCaps const &t : themes) {
        Section section{
            std::string("Lines, ") + t.theme.name + ": each shaft with the theme's caps, fixed line and arrows", {}};
        for (double width : {4.0, 8.0})
            for (int shaft = 0; shaft < 3; ++shaft) {
                std::vector<Cap> caps = t.caps;
                section.tiles.push_back({std::string(shaftNames[shaft]) + ", width " + std::to_string(int(width)),
                                         [=](CrossPlatformDrawingContext &c) {
                                             // One line per cap, from that cap to the next one in the list.
                                             for (size_t i = 0; i < caps.size(); ++i) {
                                                 double y = -42 + 28.0 * i;
                                                 std::unique_ptr<LineWithCaps> line(Presets::createLine(
                                                     t.theme.theme, colours[i], width, Point(-75, y + 6),
                                                     Point(75, y - 6), Presets::LineShaftType(shaft), caps[i],
                                                     caps[(i + 1) % caps.size()]));
                                                 drawCallout(c, *line);
                                             }
                                         }});
            }
        Presets::Theme theme = t.theme.theme;
        section.tiles.push_back({"fixed line", [=](CrossPlatformDrawingContext &c) {
                                     std::unique_ptr<BaseCallout> line(
                                         Presets::createLine(theme, kBlue, Point(-70, 30), Point(70, -30)));
                                     if (line)
                                         drawCallout(c, *line);
                                 }});
        section.tiles.push_back({"arrow", [=](CrossPlatformDrawingContext &c) {
                                     std::unique_ptr<BaseCallout> arrow(Presets::createArrow(
                                         theme, kOrange, 6, "solid", Point(-75, 25), "", Point(75, -25), ""));
                                     if (arrow)
                                         drawCallout(c, *arrow);
                                 }});
        section.tiles.push_back({"short arrow shrinks", [=](CrossPlatformDrawingContext &c) {
                                     std::unique_ptr<BaseCallout> arrow(Presets::createArrow(
                                         theme, kGreen, 6, "solid", Point(-30, 0), "", Point(30, 0), ""));
                                     if (arrow)
                                         drawCallout(c, *arrow);
                                 }});
        if (theme == Presets::ThemeModern)
            for (int i = 0; i < 3; ++i)
                section.tiles[6 + i].label = "modern: none";
        all.push_back(section);
    }
}

// A text callout in a box of 170 by 100 around the origin, the box outlined.
struct TextSample {
    TextCalloutProperties properties;
    TextAttributeList attributes;
};

TextSample sample(std::string const &text, double size, Color colour = kInk) {
    TextSample s;
    s.properties.text = text;
    s.properties.textRect = Rect(-85, -50, 85, 50);
    Range all(0, int(text.size()));
    s.attributes.addFontNameAttribute(all, "DejaVu Sans");
    s.attributes.addFontSizeAttribute(all, size);
    s.attributes.addFGColorAttribute(all, colour);
    return s;
}

Tile textTile(std::string label, TextSample s,
              std::function<void(CrossPlatformDrawingContext &, TextCallout &)> marks = nullptr) {
    return {label, [=](CrossPlatformDrawingContext &c) {
                TextCallout callout(s.properties.textRect, s.properties, s.attributes);
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid", Polygon(s.properties.textRect.Expanded(0.5)));
                if (marks)
                    marks(c, callout);
                drawCallout(c, callout);
            }};
}

void addTextSections(std::vector<Section> &all) {
    std::string const words = "Text in its box, aligned as asked";
    Section alignment{"Text: alignments", {}};
    for (auto h : {Left, Center, Right}) {
        TextSample s = sample(words, 15);
        s.properties.horizontalAlignment = h;
        alignment.tiles.push_back(textTile(h == Left ? "left" : h == Center ? "center" : "right", s));
    }
    for (auto v : {Top, Middle, Bottom}) {
        TextSample s = sample("One line", 18);
        s.properties.verticalAlignment = v;
        alignment.tiles.push_back(textTile(v == Top ? "top" : v == Middle ? "middle" : "bottom", s));
    }
    all.push_back(alignment);

    std::string const longText =
        "A long text that cannot fit this box at its own size is shrunk until it does, by the fit search.";
    TextSample fitted = sample(longText, 22);
    TextSample overflowing = sample(longText, 22);
    overflowing.properties.resizeBehavior = "none";
    TextSample styled = sample("Bold, italic, underlined, coloured", 17);
    styled.attributes.addFontWeightAttribute(Range(0, 4), 700);
    styled.attributes.addFontItalicAttribute(Range(6, 12), 1);
    styled.attributes.addUnderlineAttribute(Range(14, 24), 1);
    styled.attributes.addFGColorAttribute(Range(26, 34), kRed);
    TextSample spaced = sample("Spaced letters and tight ones", 16);
    spaced.attributes.addCharacterSpacingAttribute(Range(0, 14), 0.3);
    spaced.attributes.addCharacterSpacingAttribute(Range(19, 29), -0.05);
    TextSample rtl = sample("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xD7\xA2\xD7\x95\xD7\x9C\xD7\x9D", 22);
    rtl.properties.horizontalAlignment = Left;
    TextSample caps = sample("all caps on ascii letters", 16);
    caps.properties.allCaps = true;
    TextSample flipped = sample("Flipped both ways", 18, kBlue);
    flipped.properties.flipBoth = true;
    all.push_back({"Text: fitting and styles",
                   {textTile("resizeText: shrunk to fit", fitted), textTile("another resizeBehavior", overflowing),
                    textTile("bold, italic, underline, colour", styled), textTile("character spacing", spaced),
                    textTile("right-to-left base direction", rtl), textTile("all caps", caps)}});

    TextSample edited = sample("A caret, a selection over two lines, and misspelt wurds", 15);
    all.push_back({"Text: flips, caret, selection and misspelling marks",
                   {textTile("flipBoth", flipped),
                    textTile("caret before character 9", edited,
                             [](CrossPlatformDrawingContext &c, TextCallout &t) {
                                 t.drawSelectionIntoContext(&c, Range(9, 9), Color(), kRed);
                             }),
                    textTile("selection over two lines", edited,
                             [](CrossPlatformDrawingContext &c, TextCallout &t) {
                                 t.drawSelectionIntoContext(&c, Range(11, 32), Color(0.2f, 0.5f, 1, 0.35f), kRed);
                             }),
                    textTile("misspelling marks", edited, [](CrossPlatformDrawingContext &c, TextCallout &t) {
                        t.drawMisspelledRangesIntoContext(&c, {Range(40, 48), Range(49, 54)}, kRed);
                    })}});
}

std::vector<Section> sections() {
    std::vector<Section> all;
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
    addShapeSections(all);
    addUnionSection(all);
    addLineSections(all);
    addTextSections(all);
    return all;
}

void drawCheckerboard(cairo_t *cr, int width, int height) {
    cairo_save(cr);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_set_source_rgb(cr, 0.85, 0.85, 0.87);
    for (int y = 0; y < height; y += 10)
        for (int x = (y / 10 % 2) * 10; x < width; x += 20)
            cairo_rectangle(cr, x, y, 10, 10);
    cairo_fill(cr);
    cairo_restore(cr);
}

void drawLabel(cairo_t *cr, std::string const &text, double x, double y, double size, bool bold) {
    cairo_save(cr);
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                           bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, size);
    cairo_set_source_rgb(cr, 0.1, 0.1, 0.1);
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, text.c_str());
    cairo_restore(cr);
}

} // namespace

bool writeGallery(std::string const &path) {
    std::vector<Section> all = sections();
    int height = kMargin;
    for (Section const &s : all)
        height += kTitleHeight + s.rows() * kCellHeight;
    int width = 2 * kMargin + kColumns * kCellWidth;
    height += kMargin;

    CrossPlatformDrawingContextWithBuiltInBitmap page(width, height);
    cairo_t *cr = page.Get();
    drawCheckerboard(cr, width, height);

    int y = kMargin;
    for (Section const &s : all) {
        drawLabel(cr, s.title, kMargin, y + 22, 16, true);
        y += kTitleHeight;
        for (size_t i = 0; i < s.tiles.size(); ++i) {
            int x = kMargin + int(i % s.columns) * kCellWidth;
            int top = y + int(i / s.columns) * kCellHeight;
            // Each tile draws on a transparent bitmap of its own, so that what it
            // clears or leaves transparent shows the checkerboard beneath.
            CrossPlatformDrawingContextWithBuiltInBitmap tile(kCellWidth, kCellHeight - kLabelHeight);
            tile.builtInBitmap()->clear();
            tile.Translate(Point(kCellWidth / 2.0, (kCellHeight - kLabelHeight) / 2.0));
            s.tiles[i].draw(tile);
            page.DrawBitmap(*tile.builtInBitmap(), Point(x, top), 1.0);
            drawLabel(cr, s.tiles[i].label, x + 8, top + kCellHeight - kLabelHeight + 12, 11, false);
        }
        y += s.rows() * kCellHeight;
    }

    cairo_surface_t *surface = cairo_get_target(cr);
    cairo_surface_flush(surface);
    return cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
}

} // namespace VantrelTool
