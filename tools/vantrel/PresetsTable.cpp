#include "PresetsTable.h"

#include "Catalogue.h"

#include <cstdlib>
#include <cxxabi.h>
#include <iostream>
#include <memory>
#include <typeinfo>

using namespace Vantrel;

namespace VantrelTool {

namespace {

Rect const kBox(-48, -14, 48, 14);
Color const kShapeFill(0.2f, 0.45f, 0.85f);
Color const kBubbleFill(0.55f, 0.78f, 1.0f);

TextCalloutProperties sampleText(std::string const &words) {
    Settings s;
    s.box = kBox;
    s.text = words;
    return textProperties(s);
}

TextAttributeList sampleAttributes(std::string const &words) {
    Settings s;
    s.text = words;
    s.fontSize = 12;
    s.color = kInk;
    return textAttributes(s);
}

using Long = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &, double,
                              std::string const &, Rect const &);
using Short = BaseCallout *(*)(Presets::Theme, Color const &, Color const &, double, std::string const &, Rect const &);
using Bubble = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                double, std::string const &, Rect const &, Point const &, TextCalloutProperties const &,
                                TextAttributeList const &);
using Arrow = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &, double,
                               std::string const &, Rect const &, double, TextCalloutProperties const &,
                               TextAttributeList const &);

PresetFunction shape(std::string name, Long f) {
    return {name, [f](Presets::Theme t) {
                return f(t, kShapeFill, "gradient", Point(0.3, 1), kInk, 3, "solid", Rect(-55, -40, 55, 40));
            }};
}

PresetFunction bubble(std::string name, Bubble f, std::string const &words) {
    return {name, [f, words](Presets::Theme t) {
                return f(t, kBubbleFill, "solid", Point(0, 1), kInk, 2, "solid", kBox, Point(70, 52), sampleText(words),
                         sampleAttributes(words));
            }};
}

PresetFunction arrow(std::string name, Arrow f) {
    Rect const box(-50, -9, 10, 9);
    return {name, [f, box](Presets::Theme t) {
                Settings s;
                s.box = box;
                s.text = "This way";
                s.fontSize = 12;
                s.color = kInk;
                return f(t, Color(1.0f, 0.75f, 0.3f), "solid", Point(0, 1), kInk, 2, "solid", box, 0.6,
                         textProperties(s), textAttributes(s));
            }};
}

} // namespace

std::vector<PresetFunction> const &presetFunctions() {
    static std::vector<PresetFunction> const functions = {
        shape("createShapeOval", static_cast<Long>(Presets::createShapeOval)),
        {"createShapeOval (short form)",
         [](Presets::Theme t) {
             return static_cast<Short>(Presets::createShapeOval)(t, kOrange, kInk, 3, "dash", Rect(-55, -40, 55, 40));
         }},
        shape("createShapeRectangle", static_cast<Long>(Presets::createShapeRectangle)),
        shape("createShapeOctagon", static_cast<Long>(Presets::createShapeOctagon)),
        shape("createShapeTriangle", static_cast<Long>(Presets::createShapeTriangle)),
        shape("createShapeStar", static_cast<Long>(Presets::createShapeStar)),
        {"createLine", [](Presets::Theme t) { return Presets::createLine(t, kBlue, Point(-70, 30), Point(70, -30)); }},
        {"createArrow",
         [](Presets::Theme t) {
             return Presets::createArrow(t, kOrange, 6, "solid", Point(-75, 25), "", Point(75, -25), "");
         }},
        {"createLine (shaft and caps)",
         [](Presets::Theme t) -> BaseCallout * {
             return Presets::createLine(t, kRed, 8, Point(-75, 30), Point(75, -30), Presets::LineShaftSolid,
                                        Presets::LineEndCapCircle, Presets::LineEndCapArrow);
         }},
        bubble("createSpeechBubble", Presets::createSpeechBubble, "Hello there!"),
        bubble("createSpeechBubbleTwo", Presets::createSpeechBubbleTwo, "Hello there!"),
        bubble("createThoughtBubble", Presets::createThoughtBubble, "Hmm..."),
        bubble("createThoughtBubbleTwo", Presets::createThoughtBubbleTwo, "Hmm..."),
        arrow("createTextArrow", Presets::createTextArrow),
        arrow("createTextArrowTwo", Presets::createTextArrowTwo),
        {"createTextRectangle",
         [](Presets::Theme t) {
             return Presets::createTextRectangle(t, Color(0.95f, 0.9f, 0.6f), "gradient", Point(0, 1), kInk, 2, "solid",
                                                 kBox, sampleText("Chapter one"), sampleAttributes("Chapter one"));
         }},
    };
    return functions;
}

std::string className(BaseCallout const *callout) {
    if (!callout)
        return "null";
    int status = 0;
    char *demangled = abi::__cxa_demangle(typeid(*callout).name(), nullptr, nullptr, &status);
    std::string name = status == 0 && demangled ? demangled : typeid(*callout).name();
    std::free(demangled);
    std::string const prefix = "Vantrel::";
    return name.compare(0, prefix.size(), prefix) == 0 ? name.substr(prefix.size()) : name;
}

int runPresets(std::vector<std::string> const &args) {
    if (!args.empty()) {
        bool const help = args[0] == "-h" || args[0] == "--help";
        (help ? std::cout : std::cerr) << "usage: vantrel presets\n\nPrints the class each Presets function makes "
                                          "in each theme, or null.\n";
        return help ? 0 : 2;
    }
    std::vector<std::pair<std::string, Presets::Theme>> themes;
    for (ThemeName const &t : kThemes)
        themes.push_back({t.name, t.theme});
    themes.push_back({"5 (unknown)", Presets::Theme(5)});
    for (auto const &theme : themes) {
        std::cout << "theme " << theme.first << "\n";
        for (PresetFunction const &f : presetFunctions()) {
            std::unique_ptr<BaseCallout> made(f.make(theme.second));
            std::cout << "  " << f.name << std::string(f.name.size() < 30 ? 30 - f.name.size() : 1, ' ')
                      << className(made.get()) << "\n";
        }
    }
    return 0;
}

} // namespace VantrelTool
