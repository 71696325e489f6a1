// A text editing session on a text of 500 characters over several lines:
// installing a text that fits against one plain pango layout of the same
// text and attributes, the hit test of a click, and a line move.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <iostream>
#include <pango/pangocairo.h>

using namespace Vantrel;

namespace {

Rect const kBox(-300, -200, 300, 200);

std::string sampleText() {
    std::string const sentence = "The quick brown fox jumps over the lazy dog once more. ";
    std::string text;
    for (int line = 0; text.size() + sentence.size() < 500; ++line)
        text += sentence + (line % 3 == 2 ? "\n" : "");
    text.resize(500, '.');
    return text;
}

std::string const kText = sampleText();

TextAttributeList attributes(std::string const &text) {
    return VantrelBench::plainAttributes(text, 14, Color(0.1f, 0.1f, 0.3f));
}

TextCallout callout() {
    TextCalloutProperties p;
    p.text = kText;
    p.textRect = kBox;
    return TextCallout(kBox, p, attributes(kText));
}

void update(benchmark::State &state) {
    TextCallout c = callout();
    TextEditingSession session(&c, nullptr);
    TextAttributeList const a = attributes(kText);
    for (auto _ : state)
        session.updateTextAndAttributes(kText, a, true);
}

// The same text laid out and measured once, on a font map of its own.
void plainPango(benchmark::State &state) {
    PangoFontMap *map = VantrelBench::plainFontMap();
    TextAttributeList const a = attributes(kText);
    for (auto _ : state) {
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = VantrelBench::plainLayout(context, kText, a, kBox.Width());
        int width = 0, height = 0;
        pango_layout_get_pixel_size(layout, &width, &height);
        benchmark::DoNotOptimize(width);
        g_object_unref(layout);
        g_object_unref(context);
    }
    g_object_unref(map);
}

void hitTest(benchmark::State &state) {
    TextCallout c = callout();
    TextEditingSession session(&c, nullptr);
    double x = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(session.selectionRangeForPoint(Point(100 + x, 180)));
        x = x < 300 ? x + 7 : 0;
    }
}

void moveDown(benchmark::State &state) {
    TextCallout c = callout();
    TextEditingSession session(&c, nullptr);
    for (auto _ : state) {
        session.setSelection(Range(20, 20));
        session.moveSelectionDown();
    }
}

} // namespace

BENCHMARK(update);
BENCHMARK(plainPango);
BENCHMARK(hitTest);
BENCHMARK(moveDown);

int main(int argc, char **argv) {
    return VantrelBench::runWithTargets(
        argc, argv, {{"edit-update-vs-pango", {"update"}, {"plainPango"}}, {"edit-hit-test-ns", {"hitTest"}, {}}},
        [](VantrelBench::Times const &times) {
            auto it = times.find("moveDown");
            if (it != times.end())
                std::cout << "moveSelectionDown from the first line: " << it->second << " ns" << std::endl;
        });
}
