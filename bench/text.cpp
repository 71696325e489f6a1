// Drawing a TextCallout against a plain pango program that lays out and shows
// the same text with the same attributes, for a text that fits its box and
// for one that needs the fit search. Also the first text draw of a process.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <chrono>
#include <iostream>
#include <pango/pangocairo.h>

using namespace Vantrel;

namespace {

std::string const kShort = "A short caption that fits its box easily.";
std::string const kLong = "A longer text that does not fit its box at the size it asks for, so the library "
                          "searches for the scale at which it does, in eight rounds of bisection over the font size.";
Rect const kBox(20, 20, 380, 140);

TextAttributeList attributes(std::string const &text) {
    TextAttributeList a;
    Range all(0, int(text.size()));
    a.addFontNameAttribute(all, "DejaVu Sans");
    a.addFontSizeAttribute(all, 24);
    a.addFGColorAttribute(all, Color(0.1f, 0.1f, 0.3f));
    return a;
}

TextCallout callout(std::string const &text) {
    TextCalloutProperties p;
    p.text = text;
    p.textRect = kBox;
    return TextCallout(kBox, p, attributes(text));
}

void library(benchmark::State &state, std::string const &text) {
    Bitmap bitmap(400, 160);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    TextCallout c = callout(text);
    for (auto _ : state)
        c.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

// One plain layout and show of the same text and attributes, on a font map of its own.
void plainPango(benchmark::State &state, std::string const &text) {
    Bitmap bitmap(400, 160);
    bitmap.clear();
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 400, 160, 400 * 4);
    cairo_t *cr = cairo_create(surface);
    PangoFontMap *map = VantrelBench::plainFontMap();
    TextAttributeList a = attributes(text);
    for (auto _ : state) {
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = VantrelBench::plainLayout(context, text, a, kBox.Width());
        cairo_save(cr);
        cairo_rectangle(cr, kBox.Left(), kBox.Top(), kBox.Width(), kBox.Height());
        cairo_clip(cr);
        cairo_move_to(cr, kBox.Left(), kBox.Top());
        pango_cairo_show_layout(cr, layout);
        cairo_restore(cr);
        g_object_unref(layout);
        g_object_unref(context);
    }
    g_object_unref(map);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

} // namespace

BENCHMARK_CAPTURE(library, fits, kShort);
BENCHMARK_CAPTURE(plainPango, fits, kShort);
BENCHMARK_CAPTURE(library, fitted, kLong);
BENCHMARK_CAPTURE(plainPango, fitted, kLong);

int main(int argc, char **argv) {
    // The first text draw of the process: fonts made sure of, the font map built.
    auto start = std::chrono::steady_clock::now();
    {
        Bitmap bitmap(400, 160);
        bitmap.clear();
        CrossPlatformDrawingContext context(&bitmap);
        callout(kShort).drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    }
    double first = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    std::cout << "first text draw in a fresh process: " << first << " ms (the six fallback warnings above are expected)"
              << std::endl;
    return VantrelBench::runWithTargets(argc, argv,
                                        {{"text-fits-vs-pango", {"library/fits"}, {"plainPango/fits"}},
                                         {"text-fitted-vs-one-layout", {"library/fitted"}, {"plainPango/fitted"}}});
}
