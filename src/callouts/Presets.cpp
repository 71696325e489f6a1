#include <vantrel/callouts/Lines.h>
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/Shapes.h>

namespace Vantrel {

namespace {

// One constant per theme; a theme without the callout has none.
struct ThemeValue {
    bool exists;
    double value;
};

ThemeValue byTheme(Presets::Theme theme, double basic, double urban, double bold, double abstract) {
    switch (theme) {
    case Presets::ThemeBasic:
        return {true, basic};
    case Presets::ThemeUrban:
        return {true, urban};
    case Presets::ThemeBold:
        return {true, bold};
    case Presets::ThemeAbstract:
        return {true, abstract};
    default:
        return {false, 0};
    }
}

double const kOctagonRotation = -0.39269908169872414;
double const kTriangleRotation = -0.5235987755982988;

} // namespace

BaseCallout *Presets::createShapeOval(Theme, Color const &fill, std::string const &fillStyle,
                                      Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                      std::string const &strokeStyle, Rect const &rect) {
    return new OvalShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect);
}

BaseCallout *Presets::createShapeRectangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                           Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                           std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 0);
    if (!radius.exists)
        return nullptr;
    return new RectangleShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, radius.value, rect);
}

BaseCallout *Presets::createShapeOctagon(Theme theme, Color const &fill, std::string const &fillStyle,
                                         Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                         std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 8);
    if (!radius.exists)
        return nullptr;
    return new RegularPolygonShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, 8,
                                   kOctagonRotation, radius.value, rect);
}

BaseCallout *Presets::createShapeTriangle(Theme theme, Color const &fill, std::string const &fillStyle,
                                          Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                          std::string const &strokeStyle, Rect const &rect) {
    ThemeValue radius = byTheme(theme, 8, 0, 0, 8);
    if (!radius.exists)
        return nullptr;
    return new RegularPolygonShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, 3,
                                   kTriangleRotation, radius.value, rect);
}

BaseCallout *Presets::createShapeStar(Theme theme, Color const &fill, std::string const &fillStyle,
                                      Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                      std::string const &strokeStyle, Rect const &rect) {
    ThemeValue ratio = byTheme(theme, 0.5, 0.5, 0.7, 0.5);
    ThemeValue radius = byTheme(theme, 8, 0, 0, 6);
    if (!ratio.exists)
        return nullptr;
    return new StarShape(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, ratio.value,
                         radius.value, rect);
}

// The short forms: a solid fill.
#define VANTREL_SHORT_SHAPE_FORM(name)                                                                                 \
    BaseCallout *Presets::name(Theme theme, Color const &fill, Color const &stroke, double strokeWidth,                \
                               std::string const &strokeStyle, Rect const &rect) {                                     \
        return name(theme, fill, "solid", Point(0, 0), stroke, strokeWidth, strokeStyle, rect);                        \
    }
VANTREL_SHORT_SHAPE_FORM(createShapeOval)
VANTREL_SHORT_SHAPE_FORM(createShapeRectangle)
VANTREL_SHORT_SHAPE_FORM(createShapeOctagon)
VANTREL_SHORT_SHAPE_FORM(createShapeTriangle)
VANTREL_SHORT_SHAPE_FORM(createShapeStar)
#undef VANTREL_SHORT_SHAPE_FORM

BaseCallout *Presets::createLine(Theme theme, Color const &color, Point const &start, Point const &end) {
    switch (theme) {
    case ThemeBasic:
    case ThemeBold:
        return new BoldLine(color, start, end);
    case ThemeUrban:
        return new UrbanLine(color, start, end);
    case ThemeAbstract:
        return new AbstractLine(color, start, end);
    default:
        return nullptr;
    }
}

BaseCallout *Presets::createArrow(Theme theme, Color const &color, double width, std::string const &style,
                                  Point const &start, std::string startStyle, Point const &end, std::string) {
    switch (theme) {
    case ThemeBasic:
    case ThemeBold:
        return new BoldDoubleArrow(color, start, end);
    case ThemeUrban:
        return new UrbanArrow(color, width, style, start, startStyle, end);
    case ThemeAbstract:
        return new AbstractDoubleArrow(color, start, end);
    default:
        return nullptr;
    }
}

namespace {

// A cap design: its kind and its size as a multiple of the shaft's width.
struct CapDesign {
    int kind;
    double scale;
};

int shaftKind(Presets::Theme theme, Presets::LineShaftType type) {
    // Solid, dotted, dashed.
    static int const kinds[5][3] = {{0, 1, 2}, {0, 6, 5}, {0, 11, 10}, {0, 3, 4}, {7, 9, 8}};
    if (theme < 0 || theme > 4 || type < 0 || type > 2)
        return 0;
    return kinds[theme][type];
}

CapDesign capDesign(Presets::Theme theme, Presets::LineEndCapType type) {
    CapDesign const none{0, 1};
    // Circle, diamond, arrow, square, tail, bold diamond, dot; none where the theme has no such cap.
    static CapDesign const designs[5][7] = {
        {{2, 2}, {3, 2}, {4, 5}, none, none, none, {1, 1}},    // Basic
        {{2, 2}, {8, 2}, {7, 2.8}, none, none, none, {1, 1}},  // Modern
        {none, {13, 3}, {12, 5}, {11, 3}, none, none, {1, 1}}, // Urban
        {none, none, {5, 2}, none, none, {6, 2}, {1, 1}},      // Bold
        {{2, 2}, none, {9, 5}, none, {10, 2.8}, none, {1, 1}}, // Abstract
    };
    if (theme < 0 || theme > 4 || type < 1 || type > 7)
        return none;
    return designs[theme][type - 1];
}

} // namespace

LineWithCaps *Presets::createLine(Theme theme, Color const &color, double w, Point const &start, Point const &end,
                                  LineShaftType shaftType, LineEndCapType startCapType, LineEndCapType endCapType) {
    LineWithCaps *line = new LineWithCaps(color);
    ShaftSpec &shaft = line->shaft;
    shaft.kind = shaftKind(theme, shaftType);
    CapDesign const first = capDesign(theme, startCapType), second = capDesign(theme, endCapType);

    // A Basic solid line narrows towards a dot or circle at one end when the other has an arrow.
    bool const basicSolid = theme == ThemeBasic && shaft.kind == 0;
    shaft.width = basicSolid && (first.kind == 1 || first.kind == 2) && second.kind == 4 ? w * 0.75 : w;
    shaft.endWidth = basicSolid && (second.kind == 1 || second.kind == 2) && first.kind == 4 ? w * 0.75 : w;

    LineEnd &a = line->startCap;
    LineEnd &b = line->endCap;
    a.size = shaft.width * first.scale;
    b.size = shaft.endWidth * second.scale;
    // A small dot is dropped on a dotted Basic line.
    a.kind = first.kind == 1 && shaft.kind == 1 ? 0 : first.kind;
    b.kind = second.kind == 1 && shaft.kind == 1 ? 0 : second.kind;
    a.joined = shaftType == LineShaftSolid || startCapType == LineEndCapNone ||
               (theme == ThemeBold && startCapType == LineEndCapCircle);
    b.joined = shaftType == LineShaftSolid || endCapType == LineEndCapNone ||
               (theme == ThemeBold && endCapType == LineEndCapCircle);
    if (theme == ThemeAbstract)
        shaft.roundedEnds = (startCapType == LineEndCapNone ? 1 : 0) | (endCapType == LineEndCapNone ? 2 : 0);
    shaft.outlineOnly = theme == ThemeModern;
    a.position = start;
    b.position = end;

    // Urban solid lines fade over their free ends, or wholly between two arrows.
    if (theme == ThemeUrban && shaft.kind == 0) {
        shaft.fadeColor = color;
        shaft.fadeColor.alpha = color.alpha * 0.4f;
        if (first.kind == 12 && second.kind == 12) {
            shaft.fadeStart = 0;
            shaft.fadeEnd = 1;
        } else if (first.kind == 0) {
            shaft.fadeStart = 0;
            shaft.fadeEnd = 0.2;
        } else if (second.kind == 0) {
            shaft.fadeStart = 0.8;
            shaft.fadeEnd = 1;
        }
    }
    return line;
}

} // namespace Vantrel
