// The shapes of the presets in every theme, and a host's own polyline.
#include "gallery/Sheet.h"

using namespace Vantrel;

namespace VantrelTool {

void addShapeSections(std::vector<Section> &all) {
    struct Look {
        char const *fillStyle;
        double width;
        char const *strokeStyle;
    } const looks[] = {{"solid", 3, "solid"}, {"gradient", 6, "dash"}};
    for (Kind const &kind : findFamily("shape")->kinds) {
        Section section{kind.title + " from the presets, every theme: bounds pink, tracking rect blue", {}, 5};
        for (Look const &look : looks)
            for (ThemeName const &t : kThemes) {
                Settings s;
                kind.sample(s);
                s.fillStyle = look.fillStyle;
                s.strokeWidth = look.width;
                s.strokeStyle = look.strokeStyle;
                std::string label = std::string(t.name) + ", " + look.fillStyle + ", " + look.strokeStyle + " " +
                                    std::to_string(int(look.width));
                section.tiles.push_back(kindTile(label, t, kind, s, drawWithRects));
            }
        all.push_back(section);
    }
    Kind const &customPath = *findKind(*findFamily("custompath"), "");
    auto path = [&](std::string label, std::string points, double width, std::string style) {
        Settings s;
        customPath.sample(s);
        s.points = points;
        s.strokeWidth = width;
        s.strokeStyle = style;
        return kindTile(label, kThemes[0], customPath, s, drawWithRects);
    };
    all.push_back({"CustomPath: a host's polyline, stretched to its size",
                   {path("zigzag, width 4", "-0.5,0.5 -0.25,-0.5 0,0.3 0.25,-0.5 0.5,0.5", 4, "solid"),
                    path("spiral, width 3, dash", "0,0 0.1,0 0.1,0.15 -0.2,0.15 -0.2,-0.3 0.3,-0.3 0.3,0.45 -0.45,0.45",
                         3, "dash"),
                    path("wave, width 6, dot", "-0.5,0 -0.3,-0.4 -0.1,0.4 0.1,-0.4 0.3,0.4 0.5,0", 6, "dot"),
                    path("beyond the unit box", "-0.8,-0.6 0.8,0.6", 8, "solid")}});
}

} // namespace VantrelTool
