// Each speech and thought bubble with a short fitting text drawn into a 512
// by 512 Bitmap, against a plain cairo fill and stroke of the same outlines
// (a thought bubble's trail included) plus a plain pango layout and show of
// the same text; and a Basic bubble with eight tails, whose draw unites them
// one by one.
#include "BenchTargets.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>
#include <memory>
#include <pango/pangocairo.h>

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

TextAttributeList attributes() {
    TextAttributeList a;
    Range all(0, int(kText.size()));
    a.addFontNameAttribute(all, "DejaVu Sans");
    a.addFontSizeAttribute(all, 18);
    a.addFGColorAttribute(all, kInk);
    return a;
}

// 0 to 7: the first and the second design of Basic, Urban, Bold and
// Abstract; 8: the Basic bubble with eight tails; 9 to 16: the thought
// bubbles in the order of the speech bubbles.
std::unique_ptr<BaseCallout> bubble(int which, double strokeWidth = kStroke) {
    Presets::Theme const themes[] = {Presets::ThemeBasic, Presets::ThemeUrban, Presets::ThemeBold,
                                     Presets::ThemeAbstract};
    if (which == 8) {
        std::vector<Point> tails;
        for (int i = 0; i < 8; ++i)
            tails.push_back(Point::FromAngle(2 * kPi * i / 8 + 0.3) * 200);
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

void library(benchmark::State &state, int which) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Point(256, 256));
    std::unique_ptr<BaseCallout> b = bubble(which);
    for (auto _ : state)
        b->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

// The same outline filled and stroked by cairo, and the same text laid out
// and shown by pango, on a font map of its own.
void cairoPango(benchmark::State &state, int which) {
    Bitmap bitmap(512, 512);
    bitmap.clear();
    // pathAsPolygons lists what is filled and what is stroked in drawing
    // order; without a stroke it lists the fills alone, which tells them apart.
    Polygons const all = bubble(which)->pathAsPolygons(Rect());
    Polygons const fills = bubble(which, 0)->pathAsPolygons(Rect());
    std::vector<Polygon> filled, stroked;
    size_t next = 0;
    for (auto const &p : all.polygons) {
        bool const isFill = next < fills.polygons.size() && fills.polygons[next]->points == p->points;
        next += isFill ? 1 : 0;
        (isFill ? filled : stroked).push_back(*p);
    }
    auto addPath = [](cairo_t *cr, std::vector<Polygon> const &polygons) {
        cairo_new_path(cr);
        for (Polygon const &p : polygons) {
            for (size_t i = 0; i < p.points.size(); ++i)
                (i ? cairo_line_to : cairo_move_to)(cr, p.points[i].x, p.points[i].y);
            cairo_close_path(cr);
        }
    };
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 512, 512, 512 * 4);
    cairo_t *cr = cairo_create(surface);
    cairo_translate(cr, 256, 256);
    PangoFontMap *map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72.0);
    TextAttributeList a = attributes();
    for (auto _ : state) {
        addPath(cr, filled);
        cairo_set_source_rgba(cr, kFill.red, kFill.green, kFill.blue, 1);
        cairo_fill(cr);
        addPath(cr, stroked);
        cairo_set_line_width(cr, kStroke);
        cairo_set_source_rgba(cr, kInk.red, kInk.green, kInk.blue, 1);
        cairo_stroke(cr);
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = pango_layout_new(context);
        pango_layout_set_width(layout, pango_units_from_double(kBox.Width()));
        pango_layout_set_alignment(layout, PANGO_ALIGN_CENTER);
        pango_layout_set_attributes(layout, a.pangoAttrList());
        pango_layout_set_text(layout, kText.data(), int(kText.size()));
        cairo_move_to(cr, kBox.Left(), kBox.Top());
        pango_cairo_show_layout(cr, layout);
        g_object_unref(layout);
        g_object_unref(context);
    }
    g_object_unref(map);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
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
