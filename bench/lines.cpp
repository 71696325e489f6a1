// Drawing a LineWithCaps of each shaft type with arrow heads into a 512 by
// 512 Bitmap, against a plain cairo fill of the same final outline.
#include "BenchTargets.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>
#include <memory>

using namespace Vantrel;

namespace {

Color const kColor(0.2f, 0.4f, 0.8f);

std::unique_ptr<LineWithCaps> line(Presets::LineShaftType shaft) {
    return std::unique_ptr<LineWithCaps>(Presets::createLine(Presets::ThemeBasic, kColor, 8, Point(56, 456),
                                                             Point(456, 56), shaft, Presets::LineEndCapArrow,
                                                             Presets::LineEndCapArrow));
}

void library(benchmark::State &state, Presets::LineShaftType shaft) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    std::unique_ptr<LineWithCaps> l = line(shaft);
    for (auto _ : state)
        l->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

void cairoFill(benchmark::State &state, Presets::LineShaftType shaft) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    // The final outline, each polygon turned the way the library fills it.
    Polygons outline;
    for (auto const &p : line(shaft)->pathAsPolygons(Rect()).polygons)
        outline.Add(p->PositivelyOriented());
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 512, 512, 512 * 4);
    cairo_t *cr = cairo_create(surface);
    for (auto _ : state) {
        cairo_new_path(cr);
        for (auto const &p : outline.polygons) {
            cairo_move_to(cr, p->points[0].x, p->points[0].y);
            for (Point const &q : p->points)
                cairo_line_to(cr, q.x, q.y);
            cairo_close_path(cr);
        }
        cairo_set_source_rgba(cr, kColor.red, kColor.green, kColor.blue, 1);
        cairo_fill(cr);
    }
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

// A line whose rhythm is far below a pixel: the full 10,000 dashes, with a
// cap at each end. One draw of it is bounded, not a reference ratio.
void thousandsOfDashes(benchmark::State &state) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Point(256, 256));
    LineWithCaps l(kColor);
    l.startCap = LineEnd{EndCapKind::BoldDiamond, Point(-20, 0), true, 7e-15};
    l.endCap = LineEnd{EndCapKind::AbstractArrow, Point(20, 7), true, 7e-15};
    l.shaft.kind = ShaftKind::UrbanLongDashes;
    l.shaft.width = 7e-15;
    for (auto _ : state)
        l.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

} // namespace

BENCHMARK(thousandsOfDashes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(library, solid, Presets::LineShaftSolid);
BENCHMARK_CAPTURE(cairoFill, solid, Presets::LineShaftSolid);
BENCHMARK_CAPTURE(library, dashed, Presets::LineShaftDashed);
BENCHMARK_CAPTURE(cairoFill, dashed, Presets::LineShaftDashed);
BENCHMARK_CAPTURE(library, dotted, Presets::LineShaftDotted);
BENCHMARK_CAPTURE(cairoFill, dotted, Presets::LineShaftDotted);

int main(int argc, char **argv) {
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"line-solid-vs-fill", {"library/solid"}, {"cairoFill/solid"}},
         {"line-dashed-vs-fill", {"library/dashed", "library/dotted"}, {"cairoFill/dashed", "cairoFill/dotted"}},
         {"line-10000-dashes-ns", {"thousandsOfDashes"}, {}}});
}
