#include "Draw.h"

#include <vantrel/Vantrel.h>

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

using namespace Vantrel;

namespace VantrelTool {

char const *const kDrawUsage = R"(usage: vantrel draw KIND [VARIANT] [OPTIONS] -o FILE.png

Draws one callout, sized to its bounds plus a margin, on a transparent background.

Kinds:
  shape oval|rectangle|octagon|triangle|star   a shape from the theme's presets
  custompath                                   a polyline given by --points, stretched by --size
  line                                         a line of the theme's shaft and end caps
                                               (--shaft, --start-cap, --end-cap), or with
                                               --fixed the theme's fixed line
  arrow                                        the theme's arrow
  text                                         a plain text callout in --box

Options:
  -o, --output FILE.png     where to write the picture (required)
  --theme NAME              basic, modern, urban, bold or abstract (default basic)
  --box L,T,R,B             the callout's rectangle (default -80,-60,80,60)
  --fill COLOR              fill colour, #RRGGBB or #RRGGBBAA (default #3366cc)
  --fill-style STYLE        solid or gradient (default solid)
  --gradient X,Y            direction of a gradient fill, light to dark (default 0,1)
  --stroke COLOR            outline colour (default #222222)
  --stroke-width N          outline width; 0 for none (default 2)
  --stroke-style STYLE      solid, dash, dot, dashdot or dashdotdot (default solid)
  --points "X,Y X,Y ..."    custompath: vertices, about -0.5 to 0.5 (default a zigzag)
  --size W,H                custompath: the factor applied to the vertices (default 160,120)
  --margin N                pixels around the callout's bounds (default 10)
  --from X,Y, --to X,Y      line, arrow: the first and second point (default -100,40 and 100,-40)
  --color COLOR             line, arrow: colour (default #3366cc)
  --width N                 line: width; arrow: half width of the Urban arrow (default 8)
  --shaft TYPE              line: solid, dotted or dashed (default solid)
  --start-cap CAP           line: none, circle, diamond, arrow, square, tail, bolddiamond
  --end-cap CAP                   or dot (default none and arrow); a theme without the cap
                                  draws none
  --fixed                   line: the theme's fixed line instead
  --text TEXT               text: the text, UTF-8 (default a sample)
  --text-file FILE          text: the text read from a file
  --font FAMILY             text: font family (default DejaVu Sans)
  --font-size N             text: font size in points (default 24)
  --align A                 text: left, center or right (default center)
  --valign A                text: top, middle or bottom (default middle)
  --resize WORD             text: resizeText shrinks the text to fit the box; any other word does not
  --caret N                 text: draw the caret before character N
  --selection S,E           text: draw the selection of characters S to E
)";

namespace {

// A bad option or value: the message names it.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::vector<double> numbers(std::string const &option, std::string const &text, size_t count) {
    std::vector<double> values;
    std::stringstream in(text);
    std::string item;
    while (std::getline(in, item, ',')) {
        char *end = nullptr;
        double v = std::strtod(item.c_str(), &end);
        if (item.empty() || *end != '\0' || !std::isfinite(v))
            throw UsageError("bad value '" + text + "' for " + option);
        values.push_back(v);
    }
    if (values.size() != count)
        throw UsageError("bad value '" + text + "' for " + option + ": expected " + std::to_string(count) +
                         " numbers separated by commas");
    return values;
}

Color colour(std::string const &option, std::string const &text) {
    std::string hex = !text.empty() && text[0] == '#' ? text.substr(1) : text;
    bool ok = hex.size() == 6 || hex.size() == 8;
    for (char c : hex)
        ok = ok && std::isxdigit(static_cast<unsigned char>(c));
    if (!ok)
        throw UsageError("bad colour '" + text + "' for " + option + ": expected #RRGGBB or #RRGGBBAA");
    Color c(hex.substr(0, 6));
    if (hex.size() == 8)
        c.alpha = float(std::strtol(hex.substr(6).c_str(), nullptr, 16)) / 255.0f;
    return c;
}

std::string oneOf(std::string const &option, std::string const &text, std::vector<std::string> const &words) {
    for (std::string const &w : words)
        if (w == text)
            return text;
    std::string list;
    for (std::string const &w : words)
        list += (list.empty() ? "" : ", ") + w;
    throw UsageError("bad value '" + text + "' for " + option + ": expected one of " + list);
}

struct DrawOptions {
    std::string kind, variant, output;
    Presets::Theme theme = Presets::ThemeBasic;
    std::string themeName = "basic";
    Rect box = Rect(-80, -60, 80, 60);
    Color fill = Color(0.2f, 0.4f, 0.8f);
    std::string fillStyle = "solid";
    Point gradient = Point(0, 1);
    Color stroke = Color(0.133f, 0.133f, 0.133f);
    double strokeWidth = 2;
    std::string strokeStyle = "solid";
    std::string points = "-0.5,0.5 -0.25,-0.5 0,0.3 0.25,-0.5 0.5,0.5";
    Point size = Point(160, 120);
    double margin = 10;
    Point from = Point(-100, 40), to = Point(100, -40);
    Color color = Color(0.2f, 0.4f, 0.8f);
    double width = 8;
    Presets::LineShaftType shaftType = Presets::LineShaftSolid;
    Presets::LineEndCapType startCap = Presets::LineEndCapNone, endCap = Presets::LineEndCapArrow;
    bool fixed = false;
    std::string text = "Vantrel lays text out, fits it to its box and paints it.";
    std::string font = "DejaVu Sans";
    double fontSize = 24;
    TextHorizontalAlignment align = Center;
    TextVerticalAlignment valign = Middle;
    std::string resize = "resizeText";
    bool marks = false;
    Range selection;
};

Presets::LineEndCapType capType(std::string const &option, std::string const &text) {
    std::vector<std::string> names{"none", "circle", "diamond", "arrow", "square", "tail", "bolddiamond", "dot"};
    std::string name = oneOf(option, text, names);
    return Presets::LineEndCapType(std::find(names.begin(), names.end(), name) - names.begin());
}

DrawOptions parse(std::vector<std::string> const &args) {
    DrawOptions o;
    std::vector<std::string> positional;
    for (size_t i = 0; i < args.size(); ++i) {
        std::string const &a = args[i];
        if (a.size() < 2 || a[0] != '-') {
            positional.push_back(a);
            continue;
        }
        if (a == "--fixed") {
            o.fixed = true;
            continue;
        }
        if (i + 1 >= args.size())
            throw UsageError("option " + a + " needs a value");
        std::string const &v = args[++i];
        if (a == "-o" || a == "--output")
            o.output = v;
        else if (a == "--theme") {
            std::string t = oneOf(a, v, {"basic", "modern", "urban", "bold", "abstract"});
            std::map<std::string, Presets::Theme> themes{{"basic", Presets::ThemeBasic},
                                                         {"modern", Presets::ThemeModern},
                                                         {"urban", Presets::ThemeUrban},
                                                         {"bold", Presets::ThemeBold},
                                                         {"abstract", Presets::ThemeAbstract}};
            o.theme = themes[t];
            o.themeName = t;
        } else if (a == "--box") {
            std::vector<double> b = numbers(a, v, 4);
            o.box = Rect(b[0], b[1], b[2], b[3]);
        } else if (a == "--fill")
            o.fill = colour(a, v);
        else if (a == "--fill-style")
            o.fillStyle = oneOf(a, v, {"solid", "gradient"});
        else if (a == "--gradient") {
            std::vector<double> g = numbers(a, v, 2);
            o.gradient = Point(g[0], g[1]);
        } else if (a == "--stroke")
            o.stroke = colour(a, v);
        else if (a == "--stroke-width")
            o.strokeWidth = numbers(a, v, 1)[0];
        else if (a == "--stroke-style")
            o.strokeStyle = oneOf(a, v, {"solid", "dash", "dot", "dashdot", "dashdotdot"});
        else if (a == "--points")
            o.points = v;
        else if (a == "--size") {
            std::vector<double> s = numbers(a, v, 2);
            o.size = Point(s[0], s[1]);
        } else if (a == "--margin")
            o.margin = numbers(a, v, 1)[0];
        else if (a == "--from" || a == "--to") {
            std::vector<double> p = numbers(a, v, 2);
            (a == "--from" ? o.from : o.to) = Point(p[0], p[1]);
        } else if (a == "--color")
            o.color = colour(a, v);
        else if (a == "--width")
            o.width = numbers(a, v, 1)[0];
        else if (a == "--shaft") {
            std::string t = oneOf(a, v, {"solid", "dotted", "dashed"});
            o.shaftType = t == "solid"    ? Presets::LineShaftSolid
                          : t == "dotted" ? Presets::LineShaftDotted
                                          : Presets::LineShaftDashed;
        } else if (a == "--text")
            o.text = v;
        else if (a == "--text-file") {
            std::ifstream in(v, std::ios::binary);
            if (!in)
                throw UsageError("cannot read the file '" + v + "' for --text-file");
            o.text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        } else if (a == "--font")
            o.font = v;
        else if (a == "--font-size")
            o.fontSize = numbers(a, v, 1)[0];
        else if (a == "--align") {
            std::string t = oneOf(a, v, {"left", "center", "right"});
            o.align = t == "left" ? Left : t == "center" ? Center : Right;
        } else if (a == "--valign") {
            std::string t = oneOf(a, v, {"top", "middle", "bottom"});
            o.valign = t == "top" ? Top : t == "middle" ? Middle : Bottom;
        } else if (a == "--resize")
            o.resize = v;
        else if (a == "--caret") {
            int at = int(numbers(a, v, 1)[0]);
            o.selection = Range(at, at);
            o.marks = true;
        } else if (a == "--selection") {
            std::vector<double> r = numbers(a, v, 2);
            o.selection = Range(int(r[0]), int(r[1]));
            o.marks = true;
        } else if (a == "--start-cap")
            o.startCap = capType(a, v);
        else if (a == "--end-cap")
            o.endCap = capType(a, v);
        else
            throw UsageError("unknown option '" + a + "' for draw");
    }
    if (positional.empty())
        throw UsageError("draw needs a kind: shape, custompath, line, arrow or text");
    o.kind = oneOf("the kind", positional[0], {"shape", "custompath", "line", "arrow", "text"});
    size_t expected = o.kind == "shape" ? 2 : 1;
    if (o.kind == "shape") {
        if (positional.size() < 2)
            throw UsageError("draw shape needs a variant: oval, rectangle, octagon, triangle or star");
        o.variant = oneOf("the shape", positional[1], {"oval", "rectangle", "octagon", "triangle", "star"});
    }
    if (positional.size() > expected)
        throw UsageError("unexpected argument '" + positional[expected] + "'");
    if (o.output.empty())
        throw UsageError("draw needs -o FILE.png");
    if (o.margin < 0 || o.margin > 1000)
        throw UsageError("bad value for --margin: expected 0 to 1000");
    return o;
}

std::unique_ptr<BaseCallout> make(DrawOptions const &o) {
    if (o.kind == "custompath")
        return std::unique_ptr<BaseCallout>(new CustomPath(o.points, o.size, o.stroke, o.strokeWidth, o.strokeStyle));
    if (o.kind == "line" && o.fixed)
        return std::unique_ptr<BaseCallout>(Presets::createLine(o.theme, o.color, o.from, o.to));
    if (o.kind == "line")
        return std::unique_ptr<BaseCallout>(
            Presets::createLine(o.theme, o.color, o.width, o.from, o.to, o.shaftType, o.startCap, o.endCap));
    if (o.kind == "text") {
        TextCalloutProperties p;
        p.text = o.text;
        p.textRect = o.box;
        p.horizontalAlignment = o.align;
        p.verticalAlignment = o.valign;
        p.resizeBehavior = o.resize;
        TextAttributeList a;
        Range all(0, int(o.text.size()));
        a.addFontNameAttribute(all, o.font);
        a.addFontSizeAttribute(all, o.fontSize);
        a.addFGColorAttribute(all, o.color);
        return std::unique_ptr<BaseCallout>(new TextCallout(o.box, p, a));
    }
    if (o.kind == "arrow")
        return std::unique_ptr<BaseCallout>(
            Presets::createArrow(o.theme, o.color, o.width, "solid", o.from, "", o.to, ""));
    using Factory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                     double, std::string const &, Rect const &);
    std::map<std::string, Factory> shapes{{"oval", Presets::createShapeOval},
                                          {"rectangle", Presets::createShapeRectangle},
                                          {"octagon", Presets::createShapeOctagon},
                                          {"triangle", Presets::createShapeTriangle},
                                          {"star", Presets::createShapeStar}};
    return std::unique_ptr<BaseCallout>(
        shapes[o.variant](o.theme, o.fill, o.fillStyle, o.gradient, o.stroke, o.strokeWidth, o.strokeStyle, o.box));
}

} // namespace

int runDraw(std::vector<std::string> const &args) {
    for (std::string const &a : args)
        if (a == "-h" || a == "--help") {
            std::cout << kDrawUsage;
            return 0;
        }
    try {
        DrawOptions o = parse(args);
        std::unique_ptr<BaseCallout> callout = make(o);
        if (!callout)
            throw UsageError("theme " + o.themeName + " has no " +
                             (o.variant.empty() ? (o.fixed ? "fixed " : "") + o.kind : o.variant));
        Rect bounds = callout->boundingRect().Expanded(o.margin);
        RectInt pixels = bounds.ToContainingRectInt();
        int64_t width = int64_t(pixels.right) - pixels.left, height = int64_t(pixels.bottom) - pixels.top;
        if (width <= 0 || height <= 0 || width > 16000 || height > 16000)
            throw UsageError("the callout's bounds " + std::to_string(width) + " by " + std::to_string(height) +
                             " pixels do not make a picture (at most 16000 on a side)");
        CrossPlatformDrawingContextWithBuiltInBitmap picture{int(width), int(height)};
        picture.builtInBitmap()->clear();
        picture.Translate(Point(-pixels.left, -pixels.top));
        callout->drawIntoContext(&picture, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        if (auto *text = dynamic_cast<TextCallout *>(callout.get()); text && o.marks)
            text->drawSelectionIntoContext(&picture, o.selection, Color(0.2f, 0.5f, 1.0f, 0.35f),
                                           Color(0.9f, 0.1f, 0.1f));
        cairo_surface_t *surface = cairo_get_target(picture.Get());
        cairo_surface_flush(surface);
        if (cairo_surface_write_to_png(surface, o.output.c_str()) != CAIRO_STATUS_SUCCESS) {
            std::cerr << "vantrel: could not write '" << o.output << "'\n";
            return 1;
        }
        return 0;
    } catch (UsageError const &e) {
        std::cerr << "vantrel: " << e.what() << " (see 'vantrel draw --help')\n";
        return 2;
    }
}

} // namespace VantrelTool
