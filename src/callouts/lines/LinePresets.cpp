// The line factories: the fixed lines and arrows by theme, and the table
// that turns a theme, a shaft type and two cap types into a LineWithCaps.
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/lines/LineWithCaps.h>
#include <vantrel/callouts/lines/Lines.h>

namespace Vantrel {

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
    using namespace ShaftKind;
    // Solid, dotted, dashed.
    static int const kinds[5][3] = {
        {Tapered, BasicDots, BasicDashes},            // Basic
        {Tapered, ModernDots, ModernDashes},          // Modern
        {Tapered, UrbanShortDashes, UrbanLongDashes}, // Urban
        {Tapered, BoldShortDashes, BoldDashDot},      // Bold
        {Bar, AbstractDots, AbstractDashDotDot},      // Abstract
    };
    if (theme < 0 || theme > 4 || type < 0 || type > 2)
        return Tapered;
    return kinds[theme][type];
}

CapDesign capDesign(Presets::Theme theme, Presets::LineEndCapType type) {
    namespace cap = EndCapKind;
    CapDesign const none{cap::None, 1};
    // Columns: circle, diamond, arrow, square, tail, bold diamond, dot; none
    // where the theme has no such cap.
    // clang-format off
    static CapDesign const designs[5][7] = {
        {{cap::Circle, 2}, {cap::BasicDiamond, 2}, {cap::BasicArrow, 5}, none, none, none, {cap::Dot, 1}},     // Basic
        {{cap::Circle, 2}, {cap::ModernDiamond, 2}, {cap::ModernArrow, 2.8}, none, none, none, {cap::Dot, 1}}, // Modern
        {none, {cap::UrbanDiamond, 3}, {cap::UrbanArrow, 5}, {cap::Square, 3}, none, none, {cap::Dot, 1}},     // Urban
        {none, none, {cap::BoldArrow, 2}, none, none, {cap::BoldDiamond, 2}, {cap::Dot, 1}},                   // Bold
        {{cap::Circle, 2}, none, {cap::AbstractArrow, 5}, none, {cap::AbstractTail, 2.8}, none, {cap::Dot, 1}}, // Abstract
    };
    // clang-format on
    if (theme < 0 || theme > 4 || type < 1 || type > 7)
        return none;
    return designs[theme][type - 1];
}

bool isRound(int kind) { return kind == EndCapKind::Dot || kind == EndCapKind::Circle; }

} // namespace

LineWithCaps *Presets::createLine(Theme theme, Color const &color, double w, Point const &start, Point const &end,
                                  LineShaftType shaftType, LineEndCapType startCapType, LineEndCapType endCapType) {
    LineWithCaps *line = new LineWithCaps(color);
    ShaftSpec &shaft = line->shaft;
    shaft.kind = shaftKind(theme, shaftType);
    CapDesign const first = capDesign(theme, startCapType), second = capDesign(theme, endCapType);

    // A Basic solid line narrows towards a dot or circle at one end when the other has an arrow.
    bool const basicSolid = theme == ThemeBasic && shaft.kind == ShaftKind::Tapered;
    shaft.width = basicSolid && isRound(first.kind) && second.kind == EndCapKind::BasicArrow ? w * 0.75 : w;
    shaft.endWidth = basicSolid && isRound(second.kind) && first.kind == EndCapKind::BasicArrow ? w * 0.75 : w;

    LineEnd &a = line->startCap;
    LineEnd &b = line->endCap;
    a.size = shaft.width * first.scale;
    b.size = shaft.endWidth * second.scale;
    // A small dot is dropped on a dotted Basic line.
    bool const dotted = shaft.kind == ShaftKind::BasicDots;
    a.kind = first.kind == EndCapKind::Dot && dotted ? int(EndCapKind::None) : first.kind;
    b.kind = second.kind == EndCapKind::Dot && dotted ? int(EndCapKind::None) : second.kind;
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
    if (theme == ThemeUrban && shaft.kind == ShaftKind::Tapered) {
        shaft.fadeColor = color;
        shaft.fadeColor.alpha = color.alpha * 0.4f;
        if (first.kind == EndCapKind::UrbanArrow && second.kind == EndCapKind::UrbanArrow) {
            shaft.fadeStart = 0;
            shaft.fadeEnd = 1;
        } else if (first.kind == EndCapKind::None) {
            shaft.fadeStart = 0;
            shaft.fadeEnd = 0.2;
        } else if (second.kind == EndCapKind::None) {
            shaft.fadeStart = 0.8;
            shaft.fadeEnd = 1;
        }
    }
    return line;
}

} // namespace Vantrel
