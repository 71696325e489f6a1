// Lines with caps in every theme, each shaft type with the theme's caps, and
// the theme's fixed line and arrows.
#include "gallery/Sheet.h"

using namespace Vantrel;

namespace VantrelTool {

void addLineSections(std::vector<Section> &all) {
    using Cap = Presets::LineEndCapType;
    // The caps each theme's table knows.
    std::vector<Cap> const caps[] = {
        {Presets::LineEndCapCircle, Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapDot},
        {Presets::LineEndCapCircle, Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapDot},
        {Presets::LineEndCapDiamond, Presets::LineEndCapArrow, Presets::LineEndCapSquare, Presets::LineEndCapDot},
        {Presets::LineEndCapArrow, Presets::LineEndCapBoldDiamond, Presets::LineEndCapDot, Presets::LineEndCapNone},
        {Presets::LineEndCapCircle, Presets::LineEndCapArrow, Presets::LineEndCapTail, Presets::LineEndCapDot},
    };
    char const *const shaftNames[] = {"solid", "dotted", "dashed"};
    Color const colours[] = {kBlue, kRed, kGreen, kOrange};
    Family const &lines = *findFamily("line");
    Kind const &withCaps = *findKind(lines, ""), &fixed = *findKind(lines, "fixed");
    Kind const &arrow = *findKind(*findFamily("arrow"), "");
    for (ThemeName const &t : kThemes) {
        std::vector<Cap> const &themeCaps = caps[t.theme];
        Section section{std::string("Lines, ") + t.name + ": each shaft with the theme's caps, fixed line and arrows",
                        {}};
        for (double width : {4.0, 8.0})
            for (int shaft = 0; shaft < 3; ++shaft) {
                // One line per cap, from that cap to the next one in the list.
                std::vector<Tile> lines;
                for (size_t i = 0; i < themeCaps.size(); ++i) {
                    Settings s;
                    double y = -42 + 28.0 * i;
                    s.color = colours[i];
                    s.width = width;
                    s.from = Point(-75, y + 6);
                    s.to = Point(75, y - 6);
                    s.shaftType = Presets::LineShaftType(shaft);
                    s.startCap = themeCaps[i];
                    s.endCap = themeCaps[(i + 1) % themeCaps.size()];
                    lines.push_back(kindTile("", t, withCaps, s));
                }
                section.tiles.push_back({std::string(shaftNames[shaft]) + ", width " + std::to_string(int(width)),
                                         [lines](CrossPlatformDrawingContext &c) {
                                             for (Tile const &line : lines)
                                                 line.draw(c);
                                         }});
            }
        Settings fixedLine, longArrow, shortArrow;
        fixed.sample(fixedLine);
        arrow.sample(longArrow);
        arrow.sample(shortArrow);
        shortArrow.color = kGreen;
        shortArrow.from = Point(-30, 0);
        shortArrow.to = Point(30, 0);
        section.tiles.push_back(kindTile("fixed line", t, fixed, fixedLine));
        section.tiles.push_back(kindTile("arrow", t, arrow, longArrow));
        section.tiles.push_back(kindTile("short arrow shrinks", t, arrow, shortArrow));
        all.push_back(section);
    }
}

} // namespace VantrelTool
