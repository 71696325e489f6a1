// Drawing each shape into a 512 by 512 Bitmap, against plain cairo filling
// and stroking the same outline in the same run.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>
#include <cmath>
#include <memory>

using namespace Vantrel;

namespace {

Rect const kBox(-200, -150, 200, 150);
Color const kFill(0.2f, 0.4f, 0.8f);
Color const kStroke(0.1f, 0.1f, 0.1f);
double const kStrokeWidth = 4;

using Factory = BaseCallout *(*)(Presets::Theme, Color const &, Color const &, double, std::string const &,
                                 Rect const &);

std::unique_ptr<BaseCallout> shape(Factory make) {
    return std::unique_ptr<BaseCallout>(make(Presets::ThemeBasic, kFill, kStroke, kStrokeWidth, "solid", kBox));
}

void drawShape(benchmark::State &state, Factory make) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Point(256, 256));
    std::unique_ptr<BaseCallout> callout = shape(make);
    for (auto _ : state)
        callout->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

// The outline the shape draws, filled and stroked by cairo directly.
void drawWithCairo(benchmark::State &state, Factory make) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    Polygon outline = *shape(make)->pathAsPolygons(Rect()).polygons.front();
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 512, 512, 512 * 4);
    cairo_t *cr = cairo_create(surface);
    cairo_translate(cr, 256, 256);
    bool oval = make == static_cast<Factory>(Presets::createShapeOval);
    for (auto _ : state) {
        cairo_new_path(cr);
        if (oval) {
            cairo_save(cr);
            cairo_scale(cr, kBox.Width() / 2, kBox.Height() / 2);
            cairo_arc(cr, 0, 0, 1, 0, 2 * VantrelBench::kPi);
            cairo_restore(cr);
        } else {
            for (Point const &p : outline.points)
                cairo_line_to(cr, p.x, p.y);
            cairo_close_path(cr);
        }
        cairo_set_source_rgba(cr, kFill.red, kFill.green, kFill.blue, 1);
        cairo_fill_preserve(cr);
        cairo_set_line_width(cr, kStrokeWidth);
        cairo_set_source_rgba(cr, kStroke.red, kStroke.green, kStroke.blue, 1);
        cairo_stroke(cr);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

void BM_BoundsCached(benchmark::State &state) {
    std::unique_ptr<BaseCallout> star = shape(Presets::createShapeStar);
    star->boundingRect();
    for (auto _ : state)
        benchmark::DoNotOptimize(star->boundingRect());
}

void BM_BoundsFirst(benchmark::State &state) {
    for (auto _ : state) {
        std::unique_ptr<BaseCallout> star = shape(Presets::createShapeStar);
        benchmark::DoNotOptimize(star->boundingRect());
    }
}

} // namespace

BENCHMARK_CAPTURE(drawShape, oval, Presets::createShapeOval);
BENCHMARK_CAPTURE(drawWithCairo, oval, Presets::createShapeOval);
BENCHMARK_CAPTURE(drawShape, rectangle, Presets::createShapeRectangle);
BENCHMARK_CAPTURE(drawWithCairo, rectangle, Presets::createShapeRectangle);
BENCHMARK_CAPTURE(drawShape, octagon, Presets::createShapeOctagon);
BENCHMARK_CAPTURE(drawWithCairo, octagon, Presets::createShapeOctagon);
BENCHMARK_CAPTURE(drawShape, triangle, Presets::createShapeTriangle);
BENCHMARK_CAPTURE(drawWithCairo, triangle, Presets::createShapeTriangle);
BENCHMARK_CAPTURE(drawShape, star, Presets::createShapeStar);
BENCHMARK_CAPTURE(drawWithCairo, star, Presets::createShapeStar);
BENCHMARK(BM_BoundsCached);
BENCHMARK(BM_BoundsFirst);

int main(int argc, char **argv) {
    // The slowest shape against its own cairo reference, and the cached bounds in nanoseconds.
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"shape-draw-vs-cairo",
          {"drawShape/oval", "drawShape/rectangle", "drawShape/octagon", "drawShape/triangle", "drawShape/star"},
          {"drawWithCairo/oval", "drawWithCairo/rectangle", "drawWithCairo/octagon", "drawWithCairo/triangle",
           "drawWithCairo/star"}},
         {"bounds-cached-ns", {"BM_BoundsCached"}, {}}});
}
