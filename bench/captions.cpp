// Captions against plain pango and cairo: drawing a three-line caption with
// a background and a glyph outline, and building one.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <pango/pangocairo.h>

using namespace Vantrel;

namespace {

std::string const kText = "A caption of three lines on the bottom of its box, with background and outline.";
Rect const kRect(0, 0, 400, 200);
double const kMargin = 10;

CaptionProperties properties() {
    CaptionProperties p;
    p.text = kText;
    p.rect = kRect;
    p.maxLines = 3;
    p.fontName = "DejaVu Sans";
    p.fontSize = 24;
    p.textColor = Color(1, 1, 1);
    p.backgroundColor = Color(0.1f, 0.1f, 0.1f, 0.7f);
    p.outlineColor = Color(0, 0, 0);
    p.outlineWidth = 3;
    return p;
}

TextAttributeList plainAttributes() { return VantrelBench::plainAttributes(kText, 24, Color(1, 1, 1)); }

struct PlainLayout {
    PangoFontMap *map;
    PangoContext *context;
    PangoLayout *layout;
    PlainLayout(TextAttributeList const &a) {
        map = VantrelBench::plainFontMap();
        context = pango_font_map_create_context(map);
        layout = build(a);
    }
    PangoLayout *build(TextAttributeList const &a) const {
        return VantrelBench::plainLayout(context, kText, a, kRect.Width() - 2 * kMargin, PANGO_ALIGN_LEFT,
                                         PANGO_WRAP_WORD_CHAR);
    }
    ~PlainLayout() {
        g_object_unref(layout);
        g_object_unref(context);
        g_object_unref(map);
    }
};

void libraryDraw(benchmark::State &state) {
    Caption caption(properties(), TextAttributeList(), kMargin);
    CrossPlatformDrawingContextWithBuiltInBitmap context(400, 200);
    for (auto _ : state)
        caption.DrawIntoContext(&context);
}

// The same picture by hand: the rounded rectangle, then each line stroked, then shown.
void plainDraw(benchmark::State &state) {
    PlainLayout plain(plainAttributes());
    CrossPlatformDrawingContextWithBuiltInBitmap surface(400, 200);
    cairo_t *cr = surface.Get();
    int width = 0, height = 0;
    pango_layout_get_pixel_size(plain.layout, &width, &height);
    double const top = kRect.Bottom() - kMargin - height;
    for (auto _ : state) {
        cairo_save(cr);
        cairo_new_path(cr);
        cairo_arc(cr, kMargin, top, kMargin, VantrelBench::kPi, 1.5 * VantrelBench::kPi);
        cairo_arc(cr, kMargin + width, top, kMargin, 1.5 * VantrelBench::kPi, 0);
        cairo_arc(cr, kMargin + width, top + height, kMargin, 0, 0.5 * VantrelBench::kPi);
        cairo_arc(cr, kMargin, top + height, kMargin, 0.5 * VantrelBench::kPi, VantrelBench::kPi);
        cairo_set_source_rgba(cr, 0.1, 0.1, 0.1, 0.7);
        cairo_fill(cr);
        cairo_set_source_rgb(cr, 0, 0, 0);
        cairo_set_line_width(cr, 3);
        cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
        for (bool fill : {false, true}) {
            PangoLayoutIter *it = pango_layout_get_iter(plain.layout);
            do {
                PangoRectangle logical;
                pango_layout_iter_get_line_extents(it, nullptr, &logical);
                cairo_move_to(cr, kMargin + pango_units_to_double(logical.x),
                              top + pango_units_to_double(pango_layout_iter_get_baseline(it)));
                if (fill) {
                    pango_cairo_show_layout_line(cr, pango_layout_iter_get_line_readonly(it));
                } else {
                    pango_cairo_layout_line_path(cr, pango_layout_iter_get_line_readonly(it));
                    cairo_stroke(cr);
                }
            } while (pango_layout_iter_next_line(it));
            pango_layout_iter_free(it);
        }
        cairo_restore(cr);
    }
}

void libraryBuild(benchmark::State &state) {
    CaptionProperties const p = properties();
    TextAttributeList const none;
    for (auto _ : state) {
        Caption caption(p, none, kMargin);
        benchmark::DoNotOptimize(&caption);
    }
}

// One layout of the same text, measured, on a font map of its own.
void plainBuild(benchmark::State &state) {
    PlainLayout plain(plainAttributes());
    TextAttributeList const a = plainAttributes();
    for (auto _ : state) {
        PangoLayout *layout = plain.build(a);
        int width = 0, height = 0;
        pango_layout_get_pixel_size(layout, &width, &height);
        benchmark::DoNotOptimize(width);
        g_object_unref(layout);
    }
}

} // namespace

BENCHMARK(libraryDraw);
BENCHMARK(plainDraw);
BENCHMARK(libraryBuild);
BENCHMARK(plainBuild);

int main(int argc, char **argv) {
    PangoFonts::setLoadFallbackFonts(false);
    // Both sides draw every line: the caption must show the whole text.
    if (Caption(properties(), TextAttributeList(), kMargin).SplitUTF8Index() != -1) {
        std::fprintf(stderr, "the caption's text does not fit its three lines\n");
        return 1;
    }
    return VantrelBench::runWithTargets(argc, argv,
                                        {{"caption-draw-vs-pango", {"libraryDraw"}, {"plainDraw"}},
                                         {"caption-build-vs-layout", {"libraryBuild"}, {"plainBuild"}}});
}
