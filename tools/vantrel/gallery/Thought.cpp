// Thought bubbles: both designs of every theme linked below right, far above
// left and inside the body, the translucent trails over the checkerboard;
// and what only the Basic pair do: three tails, a stretched cloud.
#include "gallery/Sheet.h"

using namespace Vantrel;

namespace VantrelTool {

void addThoughtSections(std::vector<Section> &all) {
    Family const &thought = *findFamily("thought");
    std::vector<TailPlace> const places = {
        {"below right", Point(72, 52)}, {"far above left", Point(-76, -56)}, {"inside", Point(8, 4)}};
    for (Kind const &kind : thought.kinds)
        all.push_back(tailPlacesSection("Thought bubbles, " + std::string(kind.variant.empty() ? "first" : "second") +
                                            " design: linked below right, far above left and inside",
                                        kind, places));

    Section basic{"Thought bubbles, Basic pair: three tails, a cloud stretched to a wide box", {}, 4};
    for (Kind const &kind : thought.kinds) {
        std::string const design = kind.variant.empty() ? "basic" : "basic two";
        Settings three;
        kind.sample(three);
        three.tails = {Point(-78, -55), Point(80, -50), Point(10, 60)};
        basic.tiles.push_back(kindTile(design + ", three tails", kThemes[0], kind, three));
        Settings wide;
        kind.sample(wide);
        wide.box = Rect(-60, -10, 60, 10);
        wide.tails = {Point(60, 55)};
        wide.uniformCloud = false;
        basic.tiles.push_back(kindTile(design + ", stretched", kThemes[0], kind, wide));
    }
    all.push_back(basic);
}

} // namespace VantrelTool
