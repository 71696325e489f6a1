// Each text arrow with a fitting text drawn into a 512 by 512 Bitmap,
// against a plain cairo fill and stroke of the same outline plus a plain
// pango layout and show of the same text; and the reveal of UrbanTextArrow
// over 60 progress values against plain cairo fills of the same tiles, body
// and stroke plus the text.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <memory>

using namespace Vantrel;

namespace {

std::string const kText = "This way, please";
Rect const kBox(-120, -14, 60, 14);
Color const kFill(1.0f, 0.75f, 0.3f), kInk(0.1f, 0.1f, 0.3f);
double const kStroke = 3;
int const kFrames = 60;

TextAttributeList attributes() { return VantrelBench::plainAttributes(kText, 18, kInk); }

// 0 to 7: the first and the second design of Basic, Urban, Bold and Abstract.
std::unique_ptr<BaseCallout> arrow(int which, double strokeWidth = kStroke, double progress = 1.0) {
    Presets::Theme const themes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold,
                                     Presets::ThemeAbstract};
    TextCalloutProperties text;
    text.text = kText;
    text.textRect = kBox;
    auto factory = which % 2 ? Presets::createTextArrowTwo : Presets::createTextArrow;
    return std::unique_ptr<BaseCallout>(factory(themes[which / 2], kFill, "solid", Point(0, 1), kInk, strokeWidth,
                                                "solid", kBox, progress, text, attributes()));
}

void library(benchmark::State &state, int which) { VantrelBench::drawWithLibrary(state, *arrow(which)); }

void cairoPango(benchmark::State &state, int which) {
    VantrelBench::drawPlainly(state, *arrow(which), kFill, kInk, kStroke, kText, attributes(), kBox);
}

double progressOf(int frame) { return double(frame) / (kFrames - 1); }

// One reveal: the frames of UrbanTextArrow from progress 0 to 1.
void revealLibrary(benchmark::State &state) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Point(256, 256));
    std::vector<std::unique_ptr<BaseCallout>> frames;
    for (int f = 0; f < kFrames; ++f)
        frames.push_back(arrow(2, kStroke, progressOf(f)));
    for (auto _ : state)
        for (auto const &frame : frames)
            frame->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

// Each tile filled on its own at a strength of its own, the body after them.
void revealCairoPango(benchmark::State &state) {
    std::vector<VantrelBench::PlainOutlines> frames;
    for (int f = 0; f < kFrames; ++f)
        frames.push_back(VantrelBench::recordOutlines(*arrow(2, kStroke, progressOf(f))));
    VantrelBench::PlainCanvas canvas;
    TextAttributeList const a = attributes();
    for (auto _ : state)
        for (VantrelBench::PlainOutlines const &frame : frames) {
            for (size_t i = 0; i < frame.filled.size(); ++i)
                canvas.fill({frame.filled[i]}, kFill, i + 1 == frame.filled.size() ? 1.0 : 0.5);
            canvas.stroke(frame.stroked, kInk, kStroke);
            canvas.showText(kText, a, kBox);
        }
}

char const *const kNames[] = {"basic", "basicTwo", "urban", "urbanTwo", "bold", "boldTwo", "abstract", "abstractTwo"};

} // namespace

int main(int argc, char **argv) {
    PangoFonts::setLoadFallbackFonts(false);
    std::vector<std::string> measured, reference;
    for (int i = 0; i < 8; ++i) {
        benchmark::RegisterBenchmark((std::string("library/") + kNames[i]).c_str(), library, i);
        benchmark::RegisterBenchmark((std::string("cairoPango/") + kNames[i]).c_str(), cairoPango, i);
        measured.push_back(std::string("library/") + kNames[i]);
        reference.push_back(std::string("cairoPango/") + kNames[i]);
    }
    benchmark::RegisterBenchmark("library/urbanReveal", revealLibrary);
    benchmark::RegisterBenchmark("cairoPango/urbanReveal", revealCairoPango);
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"text-arrow-draw-vs-cairo-pango", measured, reference},
         {"urban-reveal-frame-vs-cairo-pango", {"library/urbanReveal"}, {"cairoPango/urbanReveal"}}});
}
