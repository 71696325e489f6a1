// Drawing shapes into a 512 by 512 Bitmap, against plain cairo filling and
// stroking the same outline in the same run.
#include "BenchTargets.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>
#include <cmath>

using namespace Vantrel;

namespace {

Rect const kBox(-200, -150, 200, 150);
Color const kFill(0.2f, 0.4f, 0.8f);
Color const kStroke(0.1f, 0.1f, 0.1f);

struct Target512 {
    Bitmap bitmap{512, 512};
    Target512() { bitmap.clear(); }
};

void BM_OvalShape(benchmark::State &state) {
    Target512 t;
    CrossPlatformDrawingContext context(&t.bitmap);
    context.Translate(Point(256, 256));
    OvalShape oval(kFill, "solid", Point(0, 1), kStroke, 4, "solid", kBox);
    for (auto _ : state)
        oval.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}
BENCHMARK(BM_OvalShape);

// The same ellipse, filled and stroked by cairo directly.
void BM_CairoEllipse(benchmark::State &state) {
    Target512 t;
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(t.bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 512, 512, 512 * 4);
    cairo_t *cr = cairo_create(surface);
    cairo_translate(cr, 256, 256);
    for (auto _ : state) {
        cairo_new_path(cr);
        cairo_save(cr);
        cairo_scale(cr, 200, 150);
        cairo_arc(cr, 0, 0, 1, 0, 2 * M_PI);
        cairo_restore(cr);
        cairo_set_source_rgba(cr, kFill.red, kFill.green, kFill.blue, 1);
        cairo_fill_preserve(cr);
        cairo_set_line_width(cr, 4);
        cairo_set_source_rgba(cr, kStroke.red, kStroke.green, kStroke.blue, 1);
        cairo_stroke(cr);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}
BENCHMARK(BM_CairoEllipse);

} // namespace

int main(int argc, char **argv) {
    return VantrelBench::runWithTargets(argc, argv, {{"shape-draw-vs-cairo", {"BM_OvalShape"}, "BM_CairoEllipse"}});
}
