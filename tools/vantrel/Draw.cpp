#include "Draw.h"

#include "Arguments.h"
#include "CaptionDraw.h"
#include "Catalogue.h"
#include "Picture.h"

#include <vantrel/Vantrel.h>

#include <algorithm>
#include <cairo.h>
#include <cctype>
#include <cmath>
#include <cstdio>
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

namespace {

// A caption is no callout, so it has no row in the catalogue.
char const *const kCaption = "caption";

// What one draw asks for: the kind, the settings it is drawn with, and
// what only the picture needs.
struct Request {
    std::string family, variant, output;
    Presets::Theme theme = Presets::ThemeBasic;
    std::string themeName = "basic";
    Settings settings;
    double margin = 10;
    bool marks = false;
    Range selection;
    bool tailsGiven = false; // the first --tail replaces the default one
    int options = BaseCallout::DrawOptionAll;
    int tailIndex = -1;
    Rect reference;
    bool showOutlines = false;
    int frames = 0; // a reveal of this many pictures, the output a printf pattern
    CaptionRequest caption;
};

Presets::LineEndCapType capType(std::string const &option, std::string const &text) {
    std::vector<std::string> names{"none", "circle", "diamond", "arrow", "square", "tail", "bolddiamond", "dot"};
    std::string name = oneOf(option, text, names);
    return Presets::LineEndCapType(std::find(names.begin(), names.end(), name) - names.begin());
}

// One option: its flags, the word for its value (none for a switch), its
// help (further lines after a newline) and what it sets. The usage text and
// the parser are both made from this table.
struct Option {
    std::vector<std::string> flags;
    std::string value;
    std::string help;
    std::function<void(Request &, std::string const &flag, std::string const &value)> set;
};

std::vector<Option> const &options() {
    static std::vector<Option> const table = {
        {{"-o", "--output"},
         "FILE.png",
         "where to write the picture (required)",
         [](Request &r, std::string const &, std::string const &v) { r.output = v; }},
        {{"--theme"},
         "NAME",
         "basic, modern, urban, bold or abstract (default basic)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<std::string> names;
             for (ThemeName const &t : kThemes)
                 names.push_back(t.name);
             r.themeName = oneOf(f, v, names);
             r.theme = kThemes[size_t(std::find(names.begin(), names.end(), r.themeName) - names.begin())].theme;
         }},
        {{"--box"},
         "L,T,R,B",
         "the callout's rectangle (default -80,-60,80,60)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> b = numbers(f, v, 4);
             r.settings.box = Rect(b[0], b[1], b[2], b[3]);
         }},
        {{"--fill"},
         "COLOR",
         "fill colour, #RRGGBB or #RRGGBBAA (default #3366cc)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.fill = colour(f, v); }},
        {{"--fill-style"},
         "STYLE",
         "solid or gradient (default solid)",
         [](Request &r, std::string const &f, std::string const &v) {
             r.settings.fillStyle = oneOf(f, v, {"solid", "gradient"});
         }},
        {{"--gradient"},
         "X,Y",
         "direction of a gradient fill, light to dark (default 0,1)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> g = numbers(f, v, 2);
             r.settings.gradient = Point(g[0], g[1]);
         }},
        {{"--stroke"},
         "COLOR",
         "outline colour, and a bubble's text (default #222222)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.stroke = colour(f, v); }},
        {{"--stroke-width"},
         "N",
         "outline width; 0 for none (default 2)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.strokeWidth = numbers(f, v, 1)[0]; }},
        {{"--stroke-style"},
         "STYLE",
         "solid, dash, dot, dashdot or dashdotdot (default solid)",
         [](Request &r, std::string const &f, std::string const &v) {
             r.settings.strokeStyle = oneOf(f, v, {"solid", "dash", "dot", "dashdot", "dashdotdot"});
         }},
        {{"--points"},
         "\"X,Y X,Y ...\"",
         "custompath: vertices, about -0.5 to 0.5 (default a zigzag)",
         [](Request &r, std::string const &, std::string const &v) { r.settings.points = v; }},
        {{"--size"},
         "W,H",
         "custompath: the factor applied to the vertices (default 160,120)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> s = numbers(f, v, 2);
             r.settings.size = Point(s[0], s[1]);
         }},
        {{"--margin"},
         "N",
         "pixels around the callout's bounds, 0 to 1000 (default 10)",
         [](Request &r, std::string const &f, std::string const &v) {
             r.margin = numbers(f, v, 1)[0];
             if (r.margin < 0 || r.margin > 1000)
                 throw UsageError("bad value for --margin: expected 0 to 1000");
         }},
        {{"--from"},
         "X,Y",
         "line, arrow: the first point (default -100,40)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> p = numbers(f, v, 2);
             r.settings.from = Point(p[0], p[1]);
         }},
        {{"--to"},
         "X,Y",
         "line, arrow: the second point (default 100,-40)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> p = numbers(f, v, 2);
             r.settings.to = Point(p[0], p[1]);
         }},
        {{"--color"},
         "COLOR",
         "line, arrow, text: colour (default #3366cc)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.color = colour(f, v); }},
        {{"--width"},
         "N",
         "line: width; arrow: half width of the Urban arrow (default 8)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.width = numbers(f, v, 1)[0]; }},
        {{"--shaft"},
         "TYPE",
         "line: solid, dotted or dashed (default solid)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::string t = oneOf(f, v, {"solid", "dotted", "dashed"});
             r.settings.shaftType = t == "solid"    ? Presets::LineShaftSolid
                                    : t == "dotted" ? Presets::LineShaftDotted
                                                    : Presets::LineShaftDashed;
         }},
        {{"--start-cap"},
         "CAP",
         "line: none, circle, diamond, arrow, square, tail, bolddiamond or dot\n(default none); a theme without the "
         "cap draws none",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.startCap = capType(f, v); }},
        {{"--end-cap"},
         "CAP",
         "line: the same words (default arrow)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.endCap = capType(f, v); }},
        {{"--fixed"},
         "",
         "line: the theme's fixed line, as 'draw line fixed'",
         [](Request &r, std::string const &, std::string const &) { r.variant = "fixed"; }},
        {{"--design"},
         "WHICH",
         "speech, thought, text-arrow: one or two, the theme's first or second\ndesign (default one)",
         [](Request &r, std::string const &f, std::string const &v) {
             r.variant = oneOf(f, v, {"one", "two"}) == "two" ? "two" : "";
         }},
        {{"--tail"},
         "X,Y",
         "speech, thought: a tail point (default 120,80); again for more tails,\nwhich the Basic designs draw",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> t = numbers(f, v, 2);
             if (!r.tailsGiven)
                 r.settings.tails.clear();
             r.tailsGiven = true;
             r.settings.tails.push_back(Point(t[0], t[1]));
         }},
        {{"--no-uniform-cloud"},
         "",
         "thought: the Basic cloud stretches to the box instead of keeping its\nproportions",
         [](Request &r, std::string const &, std::string const &) { r.settings.uniformCloud = false; }},
        {{"--progress"},
         "P",
         "text-arrow: how far the Urban arrows have come in, 0 to 1 (default 1)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.progress = numbers(f, v, 1)[0]; }},
        {{"--frames"},
         "N",
         "text-arrow: N pictures of the reveal from progress 0 to 1, the output\nnaming each by a pattern such as "
         "a-%03d.png",
         [](Request &r, std::string const &f, std::string const &v) { r.frames = frameCount(f, v); }},
        {{"--reference"},
         "W,H",
         "speech, text-arrow: the reference rect's size, which the Basic designs\nshrink to",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> s = numbers(f, v, 2);
             r.reference = Rect(0, 0, s[0], s[1]);
         }},
        {{"--options"},
         "N",
         "the draw options: 1 text, 2 body, 4 tail, added up (default 255, all)",
         [](Request &r, std::string const &f, std::string const &v) {
             r.options = int(numbers(f, v, 1)[0]);
             if (r.options < 0 || r.options > 255)
                 throw UsageError("bad value for --options: expected 0 to 255");
         }},
        {{"--tail-index"},
         "N",
         "the tail to draw, -1 for all (default -1)",
         [](Request &r, std::string const &f, std::string const &v) { r.tailIndex = int(numbers(f, v, 1)[0]); }},
        {{"--show-outlines"},
         "",
         "draw the body's outline (green) and the tails' (red) over the callout",
         [](Request &r, std::string const &, std::string const &) { r.showOutlines = true; }},
        {{"--text"},
         "TEXT",
         "text and the bubbles and arrows: the text, UTF-8 (default a sample)",
         [](Request &r, std::string const &, std::string const &v) { r.settings.text = v; }},
        {{"--text-file"},
         "FILE",
         "text: the text read from a file",
         [](Request &r, std::string const &, std::string const &v) {
             std::ifstream in(v, std::ios::binary);
             if (!in)
                 throw UsageError("cannot read the file '" + v + "' for --text-file");
             r.settings.text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
         }},
        {{"--font"},
         "FAMILY",
         "text: font family (default DejaVu Sans)",
         [](Request &r, std::string const &, std::string const &v) { r.settings.font = v; }},
        {{"--font-size"},
         "N",
         "text: font size in points (default 24)",
         [](Request &r, std::string const &f, std::string const &v) { r.settings.fontSize = numbers(f, v, 1)[0]; }},
        {{"--align"},
         "A",
         "text: left, center or right (default center)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::string t = oneOf(f, v, {"left", "center", "right"});
             r.settings.align = t == "left" ? Left : t == "center" ? Center : Right;
         }},
        {{"--valign"},
         "A",
         "text: top, middle or bottom (default middle)",
         [](Request &r, std::string const &f, std::string const &v) {
             std::string t = oneOf(f, v, {"top", "middle", "bottom"});
             r.settings.valign = t == "top" ? Top : t == "middle" ? Middle : Bottom;
         }},
        {{"--resize"},
         "WORD",
         "text: resizeText shrinks the text to fit the box; any other word does not",
         [](Request &r, std::string const &, std::string const &v) { r.settings.resize = v; }},
        {{"--max-lines"},
         "N",
         "caption: most lines shown, -1 for as many as fit (default -1)",
         [](Request &r, std::string const &f, std::string const &v) {
             double const n = numbers(f, v, 1)[0];
             if (n != int(n) || n < -1 || n > 1000000)
                 throw UsageError("bad value for --max-lines: expected a whole number from -1 to 1000000");
             r.caption.maxLines = int(n);
         }},
        {{"--centered"},
         "",
         "caption: the block of lines centred in the box",
         [](Request &r, std::string const &, std::string const &) { r.caption.centered = true; }},
        {{"--background"},
         "COLOR",
         "caption: the rounded background (default none)",
         [](Request &r, std::string const &f, std::string const &v) { r.caption.background = colour(f, v); }},
        {{"--outline-color"},
         "COLOR",
         "caption: the glyph outline's colour (default none)",
         [](Request &r, std::string const &f, std::string const &v) { r.caption.outline = colour(f, v); }},
        {{"--outline-width"},
         "N",
         "caption: the glyph outline's width (default 0, none)",
         [](Request &r, std::string const &f, std::string const &v) { r.caption.outlineWidth = numbers(f, v, 1)[0]; }},
        {{"--caption-margin"},
         "N",
         "caption: the inner margin and the background's corner radius (default 0)",
         [](Request &r, std::string const &f, std::string const &v) { r.caption.margin = numbers(f, v, 1)[0]; }},
        {{"--export"},
         "",
         "caption: print what ExportText tells an observer, a call a line",
         [](Request &r, std::string const &, std::string const &) { r.caption.exportCalls = true; }},
        {{"--infinite"},
         "",
         "caption: the caption's MakeInfiniteHeightCaption, which shows every line\nand draws nowhere near",
         [](Request &r, std::string const &, std::string const &) { r.caption.infinite = true; }},
        {{"--caret"},
         "N",
         "text: draw the caret before character N",
         [](Request &r, std::string const &f, std::string const &v) {
             int at = int(numbers(f, v, 1)[0]);
             r.selection = Range(at, at);
             r.marks = true;
         }},
        {{"--selection"},
         "S,E",
         "text: draw the selection of characters S to E",
         [](Request &r, std::string const &f, std::string const &v) {
             std::vector<double> s = numbers(f, v, 2);
             r.selection = Range(int(s[0]), int(s[1]));
             r.marks = true;
         }},
    };
    return table;
}

// "a|b|c" of a family's named variants, in brackets when it has a default.
std::string variantsOf(Family const &family) {
    std::string names;
    bool hasDefault = false;
    for (Kind const &k : family.kinds) {
        if (k.variant.empty())
            hasDefault = true;
        else
            names += (names.empty() ? "" : "|") + k.variant;
    }
    return names.empty() ? "" : hasDefault ? "[" + names + "]" : names;
}

// The themes in which the kind is made, by the library's own answer.
std::string themesOf(Kind const &kind) {
    std::string names;
    size_t count = 0;
    for (ThemeName const &t : kThemes) {
        std::unique_ptr<BaseCallout> made(kind.make(t.theme, Settings()));
        if (made) {
            names += (names.empty() ? "" : ", ") + std::string(t.name);
            ++count;
        }
    }
    return count == kThemes.size() ? "every theme" : names;
}

std::string padded(std::string text, size_t column) {
    text.resize(std::max(text.size() + 2, column), ' ');
    return text;
}

// Continuation lines of a help text, indented to its column.
std::string indented(std::string const &help, size_t column) {
    std::string out;
    for (char c : help)
        out += c == '\n' ? "\n" + std::string(column, ' ') : std::string(1, c);
    return out + "\n";
}

Option const *findOption(std::string const &flag) {
    for (Option const &o : options())
        if (std::find(o.flags.begin(), o.flags.end(), flag) != o.flags.end())
            return &o;
    return nullptr;
}

Request parse(std::vector<std::string> const &args) {
    Request r;
    std::vector<std::string> positional;
    for (size_t i = 0; i < args.size(); ++i) {
        std::string const &a = args[i];
        if (a.size() < 2 || a[0] != '-') {
            positional.push_back(a);
            continue;
        }
        Option const *option = findOption(a);
        if (!option)
            throw UsageError("unknown option '" + a + "' for draw");
        if (option->value.empty()) {
            option->set(r, a, "");
            continue;
        }
        if (i + 1 >= args.size())
            throw UsageError("option " + a + " needs a value");
        option->set(r, a, args[++i]);
    }
    std::vector<std::string> families;
    for (Family const &f : catalogue())
        families.push_back(f.name);
    families.push_back(kCaption);
    if (positional.empty())
        throw UsageError("draw needs a kind: " + oneOfList(families));
    r.family = oneOf("the kind", positional[0], families);
    if (r.family == kCaption) {
        if (positional.size() > 1)
            throw UsageError("unexpected argument '" + positional[1] + "'");
        if (r.output.empty())
            throw UsageError("draw needs -o FILE.png");
        return r;
    }
    Family const &family = *findFamily(r.family);
    // The second word is the variant when the family has one by that name,
    // or has no default to fall back on.
    size_t expected = 1;
    if (positional.size() > 1 && r.variant.empty() && (findKind(family, positional[1]) || !findKind(family, ""))) {
        r.variant = positional[1];
        expected = 2;
    }
    if (!findKind(family, r.variant)) {
        std::vector<std::string> variants;
        for (Kind const &k : family.kinds)
            if (!k.variant.empty())
                variants.push_back(k.variant);
        if (r.variant.empty())
            throw UsageError("draw " + r.family + " needs a variant: " + oneOfList(variants));
        oneOf("the " + r.family, r.variant, variants);
    }
    if (positional.size() > expected)
        throw UsageError("unexpected argument '" + positional[expected] + "'");
    if (r.output.empty())
        throw UsageError("draw needs -o FILE.png");
    return r;
}

} // namespace

std::string drawUsage() {
    std::string usage = "usage: vantrel draw KIND [VARIANT] [OPTIONS] -o FILE.png\n\n"
                        "Draws one callout, sized to its bounds plus a margin, on a transparent background.\n\n"
                        "Kinds:\n";
    size_t kindColumn = 0;
    for (Family const &f : catalogue())
        kindColumn = std::max(kindColumn, 2 + f.name.size() + 1 + variantsOf(f).size() + 3);
    for (Family const &f : catalogue()) {
        std::string variants = variantsOf(f);
        usage +=
            padded("  " + f.name + (variants.empty() ? "" : " " + variants), kindColumn) + indented(f.help, kindColumn);
        for (Kind const &k : f.kinds)
            usage +=
                std::string(kindColumn, ' ') + (k.variant.empty() ? "themes: " : k.variant + ": ") + themesOf(k) + "\n";
    }
    usage += padded("  caption", kindColumn) +
             indented("a caption on the bottom of --box: the lines that fit, its wrap and\nsplit indexes printed; "
                      "--margin is the picture's, --caption-margin its own",
                      kindColumn);
    usage += "\nOptions:\n";
    size_t const column = 28;
    for (Option const &o : options()) {
        std::string flags;
        for (std::string const &f : o.flags)
            flags += (flags.empty() ? "" : ", ") + f;
        usage += padded("  " + flags + (o.value.empty() ? "" : " " + o.value), column) + indented(o.help, column);
    }
    return usage;
}

namespace {

// The callout of kind in settings, drawn as the request asks into the PNG at
// path: 0 when written, 1 when not; a UsageError for a callout without a
// picture.
int writePicture(Request const &r, Kind const &kind, Settings const &settings, std::string const &path) {
    std::unique_ptr<BaseCallout> callout(kind.make(r.theme, settings));
    if (!callout)
        throw UsageError("theme " + r.themeName + " has no " + (r.variant.empty() ? "" : r.variant + " ") + r.family);
    auto picturePointer = pictureOver(callout->boundingRect().Expanded(r.margin), "the callout's bounding rect");
    CrossPlatformDrawingContext &picture = *picturePointer;
    callout->drawIntoContext(&picture, BaseCallout::DrawOptions(r.options), r.reference, r.tailIndex, nullptr);
    if (r.showOutlines) {
        picture.Stroke(Color(0.1f, 0.7f, 0.2f), 1.5, "solid", callout->bodyPathAsPolygons(r.reference));
        picture.Stroke(Color(0.9f, 0.1f, 0.2f), 1.5, "dash", callout->tailPathAsPolygons(r.tailIndex, r.reference));
    }
    if (auto *text = dynamic_cast<TextCallout *>(callout.get()); text && r.marks)
        text->drawSelectionIntoContext(&picture, r.selection, Color(0.2f, 0.5f, 1.0f, 0.35f), Color(0.9f, 0.1f, 0.1f));
    return writePng(picture, path);
}

} // namespace

int runDraw(std::vector<std::string> const &args) {
    for (std::string const &a : args)
        if (a == "-h" || a == "--help") {
            std::cout << drawUsage();
            return 0;
        }
    try {
        Request r = parse(args);
        if (r.family == kCaption)
            return writeCaption(r.settings, r.caption, r.margin, r.output);
        Kind const &kind = *findKind(*findFamily(r.family), r.variant);
        if (r.frames == 0)
            return writePicture(r, kind, r.settings, r.output);
        return writeFrames(r.output, r.frames, [&](double progress, std::string const &path) {
            Settings frame = r.settings;
            frame.progress = progress;
            return writePicture(r, kind, frame, path);
        });
    } catch (UsageError const &e) {
        std::cerr << "vantrel: " << e.what() << " (see 'vantrel draw --help')\n";
        return 2;
    }
}

} // namespace VantrelTool
