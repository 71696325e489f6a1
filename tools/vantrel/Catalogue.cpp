#include "Catalogue.h"

using namespace Vantrel;

namespace VantrelTool {

std::vector<ThemeName> const kThemes = {{Presets::ThemeBasic, "basic"},
                                        {Presets::ThemeModern, "modern"},
                                        {Presets::ThemeUrban, "urban"},
                                        {Presets::ThemeBold, "bold"},
                                        {Presets::ThemeAbstract, "abstract"}};

namespace {

using ShapeFactory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                      double, std::string const &, Rect const &);

Kind shape(std::string variant, std::string title, ShapeFactory factory, Color colour) {
    return {variant, title,
            [factory](Presets::Theme theme, Settings const &s) {
                return factory(theme, s.fill, s.fillStyle, s.gradient, s.stroke, s.strokeWidth, s.strokeStyle, s.box);
            },
            [colour](Settings &s) {
                s.fill = colour;
                s.box = Rect(-65, -42, 65, 42);
                s.gradient = Point(0.3, 1);
                s.stroke = kInk;
            }};
}

using BubbleFactory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                       double, std::string const &, Rect const &, Point const &,
                                       TextCalloutProperties const &, TextAttributeList const &);

// A speech or thought bubble of the design. The Basic pair's constructor
// (made by basic from the style and the settings) takes several tails, or a
// cloud that does not keep its proportions; the factories take one tail.
template <class Basic>
Kind bubble(std::string variant, std::string title, BubbleFactory factory, Basic basic,
            bool (*needsBasic)(Settings const &)) {
    return {variant, title,
            [factory, basic, needsBasic](Presets::Theme theme, Settings const &s) -> BaseCallout * {
                // A bubble's text takes the outline's colour, which stands out on the fill.
                Settings inked = s;
                inked.color = s.stroke;
                TextCalloutProperties const p = textProperties(inked);
                TextAttributeList const a = textAttributes(inked);
                if (theme == Presets::ThemeBasic && needsBasic(s)) {
                    TextCallout *b = basic(
                        CalloutProperties(s.fill, s.fillStyle, s.gradient, s.stroke, s.strokeWidth, s.strokeStyle), s);
                    b->setTextCalloutProperties(p);
                    b->setTextAttributeList(a);
                    return b;
                }
                Point const tail = s.tails.empty() ? s.box.Center() : s.tails.front();
                return factory(theme, s.fill, s.fillStyle, s.gradient, s.stroke, s.strokeWidth, s.strokeStyle, s.box,
                               tail, p, a);
            },
            [](Settings &s) {
                s.box = Rect(-48, -14, 48, 14);
                s.text = "Hello there!";
                s.fontSize = 12;
                s.fill = Color(0.55f, 0.78f, 1.0f);
                s.stroke = kInk;
                s.strokeWidth = 2;
            }};
}

template <class BasicDesign> Kind speech(std::string variant, std::string title, BubbleFactory factory) {
    return bubble(
        variant, title, factory,
        [](CalloutProperties const &style, Settings const &s) { return new BasicDesign(s.box, style, s.tails); },
        [](Settings const &s) { return s.tails.size() > 1; });
}

template <class BasicDesign> Kind thought(std::string variant, std::string title, BubbleFactory factory) {
    Kind kind = bubble(
        variant, title, factory,
        [](CalloutProperties const &style, Settings const &s) {
            return new BasicDesign(s.box, style, s.tails, s.uniformCloud);
        },
        [](Settings const &s) { return s.tails.size() > 1 || !s.uniformCloud; });
    kind.sample = [](Settings &s) {
        s.box = Rect(-40, -14, 40, 14);
        s.text = "Hmm...";
        s.fontSize = 13;
        s.fill = Color(0.85f, 0.8f, 1.0f);
        s.stroke = kInk;
        s.strokeWidth = 2;
    };
    return kind;
}

using ArrowFactory = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                      double, std::string const &, Rect const &, double, TextCalloutProperties const &,
                                      TextAttributeList const &);

// A text arrow of the design; the progress reaches the Urban arrows.
Kind textArrow(std::string variant, std::string title, ArrowFactory factory) {
    return {variant, title,
            [factory](Presets::Theme theme, Settings const &s) -> BaseCallout * {
                Settings inked = s;
                inked.color = s.stroke;
                return factory(theme, s.fill, s.fillStyle, s.gradient, s.stroke, s.strokeWidth, s.strokeStyle, s.box,
                               s.progress, textProperties(inked), textAttributes(inked));
            },
            [](Settings &s) {
                s.box = Rect(-50, -9, 10, 9);
                s.text = "This way";
                s.fontSize = 12;
                s.fill = Color(1.0f, 0.75f, 0.3f);
                s.stroke = kInk;
                s.strokeWidth = 2;
            }};
}

std::vector<Family> build() {
    return {
        {"shape",
         "a shape from the theme's presets",
         {shape("oval", "Oval", Presets::createShapeOval, kBlue),
          shape("rectangle", "Rectangle", Presets::createShapeRectangle, kOrange),
          shape("octagon", "Octagon", Presets::createShapeOctagon, kRed),
          shape("triangle", "Triangle", Presets::createShapeTriangle, kGreen),
          shape("star", "Star", Presets::createShapeStar, kYellow)}},
        {"custompath",
         "a polyline given by --points, stretched by --size",
         {{"", "CustomPath",
           [](Presets::Theme, Settings const &s) -> BaseCallout * {
               return new CustomPath(s.points, s.size, s.stroke, s.strokeWidth, s.strokeStyle);
           },
           [](Settings &s) {
               s.size = Point(140, 90);
               s.stroke = kBlue;
           }}}},
        {"line",
         "a line of the theme's shaft and end caps (--shaft, --start-cap,\n--end-cap); fixed (or --fixed): the "
         "theme's fixed line",
         {{"", "line with caps",
           [](Presets::Theme theme, Settings const &s) -> BaseCallout * {
               return Presets::createLine(theme, s.color, s.width, s.from, s.to, s.shaftType, s.startCap, s.endCap);
           },
           nullptr},
          {"fixed", "fixed line",
           [](Presets::Theme theme, Settings const &s) { return Presets::createLine(theme, s.color, s.from, s.to); },
           [](Settings &s) {
               s.color = kBlue;
               s.from = Point(-70, 30);
               s.to = Point(70, -30);
           }}}},
        {"arrow",
         "the theme's arrow",
         {{"", "arrow",
           [](Presets::Theme theme, Settings const &s) {
               return Presets::createArrow(theme, s.color, s.width, "solid", s.from, "", s.to, "");
           },
           [](Settings &s) {
               s.color = kOrange;
               s.width = 6;
               s.from = Point(-75, 25);
               s.to = Point(75, -25);
           }}}},
        {"text",
         "a plain text callout in --box",
         {{"", "text",
           [](Presets::Theme, Settings const &s) -> BaseCallout * {
               return new TextCallout(s.box, textProperties(s), textAttributes(s));
           },
           nullptr}}},
        {"speech",
         "a speech bubble around --box with its text, the tail to --tail; two\n(or --design two): the theme's "
         "second design",
         {speech<BasicSpeechBubble>("", "speech bubble", Presets::createSpeechBubble),
          speech<BasicSpeechBubbleTwo>("two", "speech bubble, second design", Presets::createSpeechBubbleTwo)}},
        {"thought",
         "a thought bubble around --box with its text, linked to --tail; two\n(or --design two): the theme's "
         "second design",
         {thought<BasicThoughtBubble>("", "thought bubble", Presets::createThoughtBubble),
          thought<BasicThoughtBubbleTwo>("two", "thought bubble, second design", Presets::createThoughtBubbleTwo)}},
        {"text-rectangle",
         "a text on the theme's panel around --box",
         {{"", "text rectangle",
           [](Presets::Theme theme, Settings const &s) {
               Settings inked = s;
               inked.color = s.stroke;
               return Presets::createTextRectangle(theme, s.fill, s.fillStyle, s.gradient, s.stroke, s.strokeWidth,
                                                   s.strokeStyle, s.box, textProperties(inked), textAttributes(inked));
           },
           [](Settings &s) {
               s.box = Rect(-55, -14, 55, 14);
               s.text = "Chapter one";
               s.fontSize = 14;
               s.fill = Color(0.95f, 0.9f, 0.6f);
               s.fillStyle = "gradient";
               s.stroke = kInk;
               s.strokeWidth = 2;
           }}}},
        {"text-arrow",
         "an arrow around --box with its text, pointing right; two (or --design\ntwo): the theme's second design",
         {textArrow("", "text arrow", Presets::createTextArrow),
          textArrow("two", "text arrow, second design", Presets::createTextArrowTwo)}},
    };
}

} // namespace

TextCalloutProperties textProperties(Settings const &s) {
    TextCalloutProperties p;
    p.text = s.text;
    p.textRect = s.box;
    p.horizontalAlignment = s.align;
    p.verticalAlignment = s.valign;
    p.resizeBehavior = s.resize;
    return p;
}

TextAttributeList textAttributes(Settings const &s) {
    TextAttributeList a;
    Range all(0, int(s.text.size()));
    a.addFontNameAttribute(all, s.font);
    a.addFontSizeAttribute(all, s.fontSize);
    a.addFGColorAttribute(all, s.color);
    return a;
}

std::vector<Family> const &catalogue() {
    static std::vector<Family> const families = build();
    return families;
}

Family const *findFamily(std::string const &name) {
    for (Family const &f : catalogue())
        if (f.name == name)
            return &f;
    return nullptr;
}

Kind const *findKind(Family const &family, std::string const &variant) {
    for (Kind const &k : family.kinds)
        if (k.variant == variant)
            return &k;
    return nullptr;
}

} // namespace VantrelTool
