// Each speech and thought bubble with a short fitting text drawn into a 512
// by 512 Bitmap, against a plain cairo fill and stroke of the same outlines
// (a thought bubble's trail included) plus a plain pango layout and show of
// the same text; and a Basic bubble with eight tails, whose draw unites them
// one by one.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <memory>

using namespace Vantrel;

namespace {

std::string const kText = "Hello there, bubble";
Rect const kBox(-90, -30, 90, 30);
Color const kFill(0.55f, 0.78f, 1.0f), kInk(0.1f, 0.1f, 0.3f);
double const kStroke = 3;

TextCalloutProperties text() {
    TextCalloutProperties p;
    p.text = kText;
    p.textRect = kBox;
    return p;
}

TextAttributeList attributes() { return VantrelBench::plainAttributes(kText, 18, kInk); }

// 0 to 7: the first and the second design of Basic, Urban, Bold and
// Abstract; 8: the Basic bubble with eight tails; 9 to 16: the thought
// bubbles in the order of the speech bubbles.
std::unique_ptr<BaseCallout> bubble(int which, double strokeWidth = kStroke) {
    Presets::Theme const themes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold,
                                     Presets::ThemeAbstract};
    if (which == 8) {
        std::vector<Point> tails;
        for (int i = 0; i < 8; ++i)
            tails.push_back(Point::FromAngle(2 * VantrelBench::kPi * i / 8 + 0.3) * 200);
        auto *b = new BasicSpeechBubble(
            kBox, CalloutProperties(kFill, "solid", Point(0, 1), kInk, strokeWidth, "solid"), tails);
        b->setTextCalloutProperties(text());
        b->setTextAttributeList(attributes());
        return std::unique_ptr<BaseCallout>(b);
    }
    bool const thought = which > 8;
    if (thought)
        which -= 9;
    auto factory = thought ? (which % 2 ? Presets::createThoughtBubbleTwo : Presets::createThoughtBubble)
                           : (which % 2 ? Presets::createSpeechBubbleTwo : Presets::createSpeechBubble);
    return std::unique_ptr<BaseCallout>(factory(themes[which / 2], kFill, "solid", Point(0, 1), kInk, strokeWidth,
                                                "solid", kBox, Point(120, 150), text(), attributes()));
}

void library(benchmark::State &state, int which) { VantrelBench::drawWithLibrary(state, *bubble(which)); }

void cairoPango(benchmark::State &state, int which) {
    VantrelBench::drawPlainly(state, *bubble(which), kFill, kInk, kStroke, kText, attributes(), kBox);
}

char const *const kNames[] = {
    "basic",           "basicTwo",          "urban",           "urbanTwo",    "bold",
    "boldTwo",         "abstract",          "abstractTwo",     "basicTails8", "thoughtBasic",
    "thoughtBasicTwo", "thoughtUrban",      "thoughtUrbanTwo", "thoughtBold", "thoughtBoldTwo",
    "thoughtAbstract", "thoughtAbstractTwo"};

} // namespace

int main(int argc, char **argv) {
    PangoFonts::setLoadFallbackFonts(false);
    std::vector<std::string> measured, reference, thoughtMeasured, thoughtReference;
    for (int i = 0; i < 17; ++i) {
        benchmark::RegisterBenchmark((std::string("library/") + kNames[i]).c_str(), library, i);
        benchmark::RegisterBenchmark((std::string("cairoPango/") + kNames[i]).c_str(), cairoPango, i);
        if (i != 8) {
            (i < 8 ? measured : thoughtMeasured).push_back(std::string("library/") + kNames[i]);
            (i < 8 ? reference : thoughtReference).push_back(std::string("cairoPango/") + kNames[i]);
        }
    }
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"speech-draw-vs-cairo-pango", measured, reference},
         {"speech-tails8-vs-cairo-pango", {"library/basicTails8"}, {"cairoPango/basicTails8"}},
         {"thought-draw-vs-cairo-pango", thoughtMeasured, thoughtReference}});
}
