// Speech bubbles: both designs of every theme with tails in four places, and
// what only the Basic pair do: several tails, a reference rect, a circle.
#include "gallery/Sheet.h"

#include <memory>

using namespace Vantrel;

namespace VantrelTool {

void addSpeechSections(std::vector<Section> &all) {
    Family const &speech = *findFamily("speech");
    std::vector<TailPlace> const places = {
        {"above", Point(30, -58)}, {"right", Point(88, 12)}, {"below left", Point(-75, 52)}, {"inside", Point(10, 4)}};
    for (Kind const &kind : speech.kinds)
        all.push_back(tailPlacesSection("Speech bubbles, " + std::string(kind.variant.empty() ? "first" : "second") +
                                            " design: tails above, right, below left and inside",
                                        kind, places));

    Section basic{"Speech bubbles, Basic pair: three tails, a reference rect 90 wide, a tall narrow box", {}};
    for (Kind const &kind : speech.kinds) {
        std::string const design = kind.variant.empty() ? "basic" : "basic two";
        Settings three;
        kind.sample(three);
        three.tails = {Point(-80, -50), Point(80, -45), Point(10, 58)};
        basic.tiles.push_back(kindTile(design + ", three tails", kThemes[0], kind, three));
        Settings narrow;
        kind.sample(narrow);
        narrow.tails = {Point(40, 55)};
        std::shared_ptr<BaseCallout> shrunk(kind.make(Presets::ThemeBasic, narrow));
        basic.tiles.push_back({design + ", reference 90 wide", [shrunk](CrossPlatformDrawingContext &c) {
                                   shrunk->drawIntoContext(&c, BaseCallout::DrawOptionAll, Rect(0, 0, 90, 0), -1,
                                                           nullptr);
                               }});
    }
    Settings tall;
    speech.kinds[0].sample(tall);
    tall.box = Rect(-12, -38, 12, 38);
    tall.text = "";
    tall.tails = {Point(70, 40)};
    basic.tiles.push_back(kindTile("basic, tall box: a circle", kThemes[0], speech.kinds[0], tall));
    all.push_back(basic);
}

} // namespace VantrelTool
