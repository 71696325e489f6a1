// The gallery sheet: sections of labelled tiles, laid out in a grid on a
// checkerboard and written as one PNG. Each family's sections are built in a
// file of their own in this folder, from the catalogue where the family is
// themed.
#pragma once

#include "Catalogue.h"

#include <vantrel/Vantrel.h>

#include <functional>
#include <string>
#include <vector>

namespace VantrelTool {

// A tile draws around the origin, in a box of about 160 by 110.
using DrawTile = std::function<void(Vantrel::CrossPlatformDrawingContext &)>;

struct Tile {
    std::string label;
    DrawTile draw;
};

struct Section {
    std::string title;
    std::vector<Tile> tiles;
    int columns = 6;
    int rows() const { return int((tiles.size() + columns - 1) / columns); }
};

void drawCallout(Vantrel::CrossPlatformDrawingContext &c, Vantrel::BaseCallout const &callout);
// Bounds (pink) and tracking rect (blue) of a callout, drawn over it.
void drawWithRects(Vantrel::CrossPlatformDrawingContext &c, Vantrel::BaseCallout const &callout);

// The tile of a catalogue kind in one theme, drawn by draw; labelled
// "THEME: none" where the theme has none of the kind.
Tile kindTile(std::string const &label, ThemeName const &theme, Kind const &kind, Settings const &settings,
              void (*draw)(Vantrel::CrossPlatformDrawingContext &, Vantrel::BaseCallout const &) = drawCallout);

// A tail point by the name the gallery gives its place.
struct TailPlace {
    char const *name;
    Vantrel::Point tail;
};
// A bubble kind in every theme with its one tail at each place, a row of
// places per theme.
Section tailPlacesSection(std::string const &title, Kind const &kind, std::vector<TailPlace> const &places);

// The sections of each family, in the order the sheet shows them.
void addDrawingSections(std::vector<Section> &all); // fills, strokes, pixels, paths, polygons
void addShapeSections(std::vector<Section> &all);
void addUnionSection(std::vector<Section> &all);
void addLineSections(std::vector<Section> &all);
void addTextSections(std::vector<Section> &all);
void addSpeechSections(std::vector<Section> &all);
void addThoughtSections(std::vector<Section> &all);
void addArrowSections(std::vector<Section> &all);
void addOverviewSection(std::vector<Section> &all);
void addRectangleSections(std::vector<Section> &all);
void addEditingSections(std::vector<Section> &all);
void addCaptionSections(std::vector<Section> &all);
void addSpriteSections(std::vector<Section> &all);
void addSketchSections(std::vector<Section> &all);

} // namespace VantrelTool
