// Each text rectangle with a fitting text drawn into a 512 by 512 Bitmap,
// against a plain cairo fill and stroke of the same panel plus a plain pango
// layout and show of the same text; and UrbanTextRectangle's boundingRect,
// measured at every call, beside the cached bounds of BasicTextRectangle.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <memory>

using namespace Vantrel;

namespace {

std::string const kText = "Chapter one: the harbour";
Rect const kBox(-130, -14, 130, 14);
Color const kFill(0.95f, 0.9f, 0.6f), kInk(0.1f, 0.1f, 0.3f);
double const kStroke = 3;

TextAttributeList attributes() { return VantrelBench::plainAttributes(kText, 18, kInk); }

// 0 to 3: Basic, Urban, Bold and Abstract.
std::unique_ptr<BaseCallout> rectangle(int which) {
    Presets::Theme const themes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold,
                                     Presets::ThemeAbstract};
    TextCalloutProperties text;
    text.text = kText;
    text.textRect = kBox;
    return std::unique_ptr<BaseCallout>(Presets::createTextRectangle(themes[which], kFill, "solid", Point(0, 1), kInk,
                                                                     kStroke, "solid", kBox, text, attributes()));
}

void library(benchmark::State &state, int which) { VantrelBench::drawWithLibrary(state, *rectangle(which)); }

void cairoPango(benchmark::State &state, int which) {
    VantrelBench::drawPlainly(state, *rectangle(which), kFill, kInk, kStroke, kText, attributes(), kBox);
}

void bounds(benchmark::State &state, int which) {
    std::unique_ptr<BaseCallout> r = rectangle(which);
    for (auto _ : state)
        benchmark::DoNotOptimize(r->boundingRect());
}

char const *const kNames[] = {"basic", "urban", "bold", "abstract"};

} // namespace

int main(int argc, char **argv) {
    PangoFonts::setLoadFallbackFonts(false);
    std::vector<std::string> measured, reference;
    for (int i = 0; i < 4; ++i) {
        benchmark::RegisterBenchmark((std::string("library/") + kNames[i]).c_str(), library, i);
        benchmark::RegisterBenchmark((std::string("cairoPango/") + kNames[i]).c_str(), cairoPango, i);
        measured.push_back(std::string("library/") + kNames[i]);
        reference.push_back(std::string("cairoPango/") + kNames[i]);
    }
    benchmark::RegisterBenchmark("boundingRect/urban", bounds, 1);
    benchmark::RegisterBenchmark("boundingRect/basicCached", bounds, 0);
    return VantrelBench::runWithTargets(argc, argv,
                                        {{"text-rectangle-draw-vs-cairo-pango", measured, reference},
                                         {"urban-rectangle-bounds-ns", {"boundingRect/urban"}, {}},
                                         {"basic-rectangle-cached-bounds-ns", {"boundingRect/basicCached"}, {}}});
}
