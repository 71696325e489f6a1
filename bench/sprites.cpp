// Sprite sheets against one plain pango layout and show of the same text,
// and how the cost grows from a thousand letters to ten thousand.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <algorithm>
#include <iostream>
#include <pango/pangocairo.h>

using namespace Vantrel;

namespace {

Rect const kBox(0, 0, 800, 600);

std::string letters(size_t count) {
    std::string const sentence = "Sphinx of black quartz, judge my vow. ";
    std::string text;
    while (text.size() < count)
        text += sentence;
    text.resize(count);
    return text;
}

std::string const kThousand = letters(1000), kTenThousand = letters(10000);

TextAttributeList attributes(std::string const &text) {
    return VantrelBench::plainAttributes(text, 14, Color(0.1f, 0.1f, 0.3f));
}

TextCalloutProperties properties(std::string const &text) {
    TextCalloutProperties p;
    p.text = text;
    p.textRect = kBox;
    p.horizontalAlignment = Left;
    p.verticalAlignment = Top;
    return p;
}

void sheet(benchmark::State &state, std::string const &text) {
    TextCalloutProperties const p = properties(text);
    TextAttributeList const a = attributes(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(SpriteSheet::FromText(p, a, Point(1, 1), false, 0, true));
}

// The same text laid out and shown once into a bitmap of the box's size, on a font map of its own.
void plainPango(benchmark::State &state, std::string const &text) {
    Bitmap bitmap(int(kBox.Width()), int(kBox.Height()));
    cairo_surface_t *surface =
        cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()), CAIRO_FORMAT_ARGB32,
                                            bitmap.width(), bitmap.height(), bitmap.bytesPerRow());
    cairo_t *cr = cairo_create(surface);
    PangoFontMap *map = VantrelBench::plainFontMap();
    TextAttributeList const a = attributes(text);
    for (auto _ : state) {
        bitmap.clear();
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = VantrelBench::plainLayout(context, text, a, kBox.Width(), PANGO_ALIGN_LEFT);
        cairo_move_to(cr, 0, 0);
        pango_cairo_show_layout(cr, layout);
        g_object_unref(layout);
        g_object_unref(context);
    }
    g_object_unref(map);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

} // namespace

BENCHMARK_CAPTURE(sheet, 1000, kThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(plainPango, 1000, kThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sheet, 10000, kTenThousand)->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv) {
    PangoFonts::setLoadFallbackFonts(false);
    for (std::string const *text : {&kThousand, &kTenThousand}) {
        std::shared_ptr<SpriteSheet> s =
            SpriteSheet::FromText(properties(*text), attributes(*text), Point(1, 1), false, 0, true);
        std::vector<Rect> cells;
        for (SpriteSheetLayoutItem const &i : s->LayoutItems())
            if (std::find(cells.begin(), cells.end(), i.bitmapRect) == cells.end())
                cells.push_back(i.bitmapRect);
        std::cout << text->size() << " letters: " << s->NumItems() << " items, " << cells.size() << " cells, sheet "
                  << s->TheBitmap().width() << " by " << s->TheBitmap().height() << std::endl;
    }
    return VantrelBench::runWithTargets(argc, argv,
                                        {{"sprites-1000-vs-pango", {"sheet/1000"}, {"plainPango/1000"}},
                                         {"sprites-10000-over-1000", {"sheet/10000"}, {"sheet/1000"}}});
}
