// Text arrows: both designs of every theme, the Urban reveal frame by frame,
// and what the Basic pair do with a reference rect, a wide Bold head.
#include "gallery/Sheet.h"

#include <cstdio>
#include <memory>

using namespace Vantrel;

namespace VantrelTool {

void addArrowSections(std::vector<Section> &all) {
    Family const &arrows = *findFamily("text-arrow");
    Section designs{"Text arrows: the first and the second design of each theme", {}, 2};
    for (ThemeName const &t : kThemes)
        for (Kind const &kind : arrows.kinds) {
            Settings s;
            kind.sample(s);
            designs.tiles.push_back(
                kindTile(std::string(t.name) + (kind.variant.empty() ? "" : " two"), t, kind, s, drawWithRects));
        }
    all.push_back(designs);

    ThemeName const &urban = kThemes[2];
    Section reveal{"Urban text arrows coming in: progress 0, 0.05, 0.125, 0.3, 0.6 and 1", {}, 6};
    for (Kind const &kind : arrows.kinds)
        for (double progress : {0.0, 0.05, 0.125, 0.3, 0.6, 1.0}) {
            Settings s;
            kind.sample(s);
            s.progress = progress;
            char label[48];
            std::snprintf(label, sizeof label, "urban%s at %g", kind.variant.empty() ? "" : " two", progress);
            reveal.tiles.push_back(kindTile(label, urban, kind, s));
        }
    all.push_back(reveal);

    Section special{
        "Text arrows: the Basic pair narrowed by a reference rect 110 wide, a wide Bold second design", {}, 3};
    for (Kind const &kind : arrows.kinds) {
        Settings s;
        kind.sample(s);
        std::shared_ptr<BaseCallout> narrowed(kind.make(Presets::ThemeBasic, s));
        special.tiles.push_back({std::string("basic") + (kind.variant.empty() ? "" : " two") + ", reference 110 wide",
                                 [narrowed](CrossPlatformDrawingContext &c) {
                                     narrowed->drawIntoContext(&c, BaseCallout::DrawOptionAll, Rect(0, 0, 110, 0), -1,
                                                               nullptr);
                                 }});
    }
    Settings wide;
    arrows.kinds[1].sample(wide);
    wide.box = Rect(-80, -7, 25, 7);
    wide.text = "A long way";
    wide.fontSize = 11;
    special.tiles.push_back(kindTile("bold two, a wide box: a long head", kThemes[3], arrows.kinds[1], wide));
    all.push_back(special);
}

} // namespace VantrelTool
