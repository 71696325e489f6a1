// The whole library at a glance: every Presets function, a row each, in
// every theme, a column each; "none" where the theme has no such callout.
// And the text rectangles beside it, with an inverted box.
#include "gallery/Sheet.h"

#include "PresetsTable.h"

#include <memory>

using namespace Vantrel;

namespace VantrelTool {

void addOverviewSection(std::vector<Section> &all) {
    Section overview{"Every Presets function in every theme: basic, modern, urban, bold, abstract", {}, 5};
    for (PresetFunction const &f : presetFunctions())
        for (ThemeName const &t : kThemes) {
            std::shared_ptr<BaseCallout> made(f.make(t.theme));
            overview.tiles.push_back(
                {made ? f.name : std::string(t.name) + ": none", [made](CrossPlatformDrawingContext &c) {
                     if (made)
                         drawCallout(c, *made);
                 }});
        }
    all.push_back(overview);
}

void addRectangleSections(std::vector<Section> &all) {
    Kind const &kind = *findKind(*findFamily("text-rectangle"), "");
    Section rectangles{"Text rectangles with bounds and tracking rect, and with an inverted box", {}, 5};
    for (bool inverted : {false, true})
        for (ThemeName const &t : kThemes) {
            Settings s;
            kind.sample(s);
            if (inverted)
                s.box = Rect(s.box.Right(), s.box.Bottom(), s.box.Left(), s.box.Top());
            rectangles.tiles.push_back(
                kindTile(std::string(t.name) + (inverted ? ", inverted" : ""), t, kind, s, drawWithRects));
        }
    all.push_back(rectangles);
}

} // namespace VantrelTool
