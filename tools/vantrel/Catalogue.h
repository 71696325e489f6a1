// The callouts the tool can draw: one catalogue of families and kinds, each
// with its factory per theme and its sample geometry, that `vantrel draw`
// and the gallery both read. A new callout family adds its row here, a
// gallery file of its own, and nothing else.
#pragma once

#include <vantrel/Vantrel.h>

#include <functional>
#include <string>
#include <vector>

namespace VantrelTool {

// Everything a kind may be drawn with; each kind reads what it needs. The
// defaults are those of `vantrel draw`.
struct Settings {
    Vantrel::Rect box = Vantrel::Rect(-80, -60, 80, 60);
    Vantrel::Color fill = Vantrel::Color(0.2f, 0.4f, 0.8f);
    std::string fillStyle = "solid";
    Vantrel::Point gradient = Vantrel::Point(0, 1);
    Vantrel::Color stroke = Vantrel::Color(0.133f, 0.133f, 0.133f);
    double strokeWidth = 2;
    std::string strokeStyle = "solid";
    std::string points = "-0.5,0.5 -0.25,-0.5 0,0.3 0.25,-0.5 0.5,0.5";
    Vantrel::Point size = Vantrel::Point(160, 120);
    Vantrel::Point from = Vantrel::Point(-100, 40), to = Vantrel::Point(100, -40);
    Vantrel::Color color = Vantrel::Color(0.2f, 0.4f, 0.8f);
    double width = 8;
    Vantrel::Presets::LineShaftType shaftType = Vantrel::Presets::LineShaftSolid;
    Vantrel::Presets::LineEndCapType startCap = Vantrel::Presets::LineEndCapNone;
    Vantrel::Presets::LineEndCapType endCap = Vantrel::Presets::LineEndCapArrow;
    std::string text = "Vantrel lays text out, fits it to its box and paints it.";
    std::string font = "DejaVu Sans";
    double fontSize = 24;
    Vantrel::TextHorizontalAlignment align = Vantrel::Center;
    Vantrel::TextVerticalAlignment valign = Vantrel::Middle;
    std::string resize = "resizeText";
    std::vector<Vantrel::Point> tails = {Vantrel::Point(120, 80)}; // bubbles: the first is the tail point
    bool uniformCloud = true;                                      // the Basic thought clouds
    double progress = 1.0;                                         // the Urban text arrows' reveal
};

// The text of a text-bearing kind: the settings' text in their box, font,
// size and colour.
Vantrel::TextCalloutProperties textProperties(Settings const &s);
Vantrel::TextAttributeList textAttributes(Settings const &s);

// The sample colours of the catalogue and the gallery.
inline Vantrel::Color const kInk(0.15f, 0.2f, 0.35f);
inline Vantrel::Color const kBlue(0.2f, 0.45f, 0.85f);
inline Vantrel::Color const kOrange(1.0f, 0.6f, 0.1f);
inline Vantrel::Color const kRed(0.85f, 0.15f, 0.2f);
inline Vantrel::Color const kGreen(0.2f, 0.7f, 0.35f);
inline Vantrel::Color const kYellow(1.0f, 0.8f, 0.0f);

struct ThemeName {
    Vantrel::Presets::Theme theme;
    char const *name;
};
// Every theme, in the order of Presets::Theme.
extern std::vector<ThemeName> const kThemes;

// A kind of callout. make gives a new callout that the caller owns, or null
// where the theme has none of the kind.
struct Kind {
    std::string variant; // the second word of `draw FAMILY VARIANT`; empty for the family's default
    std::string title;   // how the gallery names it
    std::function<Vantrel::BaseCallout *(Vantrel::Presets::Theme, Settings const &)> make;
    std::function<void(Settings &)> sample; // the gallery's sample geometry and colour
};

struct Family {
    std::string name; // the first word after `draw`
    std::string help; // for the usage text; a newline starts a further line
    std::vector<Kind> kinds;
};

std::vector<Family> const &catalogue();
Family const *findFamily(std::string const &name);
// Null when the family has no such variant (or no default, for "").
Kind const *findKind(Family const &family, std::string const &variant);

} // namespace VantrelTool
