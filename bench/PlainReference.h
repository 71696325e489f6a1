// The plain cairo and pango drawing that the callout benchmarks measure
// against: the same outlines filled and stroked by cairo, and the same text
// laid out and shown by pango on a font map of its own, into a 512 by 512
// Bitmap with the origin at its centre.
#pragma once

#include <vantrel/Vantrel.h>

#include <benchmark/benchmark.h>

#include <cairo.h>
#include <pango/pangocairo.h>

#include <string>
#include <vector>

namespace VantrelBench {

constexpr double kPi = 3.141592653589793;

// What a callout fills and what it strokes, as polygons in drawing order:
// recorded from its own drawing, ellipses and paths flattened.
struct PlainOutlines {
    std::vector<Vantrel::Polygon> filled, stroked;
};

class OutlineRecorder : public Vantrel::CrossPlatformDrawingContext {
public:
    OutlineRecorder() : CrossPlatformDrawingContext(nullptr) {}
    PlainOutlines outlines;

    // The Polygon overloads come here too.
    void Fill(Vantrel::GradientPattern const &, Vantrel::Polygons const &p) override { add(outlines.filled, p); }
    void Fill(Vantrel::Color const &, Vantrel::Polygons const &p) override { add(outlines.filled, p); }
    void Stroke(Vantrel::Color const &, double, std::string const &, Vantrel::Polygons const &p) override {
        add(outlines.stroked, p);
    }
    void FillEllipse(Vantrel::GradientPattern const &, Vantrel::Rect const &r) override {
        outlines.filled.push_back(ellipse(r));
    }
    void FillEllipse(Vantrel::Color const &, Vantrel::Rect const &r) override { outlines.filled.push_back(ellipse(r)); }
    void StrokeEllipse(Vantrel::Color const &, double, std::string const &, Vantrel::Rect const &r) override {
        outlines.stroked.push_back(ellipse(r));
    }
    void FillPath(Vantrel::GradientPattern const &, Vantrel::Path const &p) override {
        outlines.filled.push_back(p.Flattened(this));
    }
    void FillPath(Vantrel::Color const &, Vantrel::Path const &p) override {
        outlines.filled.push_back(p.Flattened(this));
    }
    void StrokePath(Vantrel::Color const &, double, std::string const &, Vantrel::Path const &p, Vantrel::LineCapTypes,
                    Vantrel::LineJoinTypes, bool) override {
        outlines.stroked.push_back(p.Flattened(this));
    }
    void DrawTextW(Vantrel::TextCalloutProperties const &, Vantrel::TextAttributeList const &,
                   Vantrel::DrawOutputMetaData *) override {}

private:
    static void add(std::vector<Vantrel::Polygon> &to, Vantrel::Polygons const &p) {
        for (auto const &q : p.polygons)
            to.push_back(*q);
    }
    Vantrel::Polygon ellipse(Vantrel::Rect const &r) {
        Vantrel::Path path;
        path.AddArc(r.Center(), r.Width() * 0.5, r.Height() * 0.5, 0.0, 2 * kPi);
        return path.Flattened(this);
    }
};

inline PlainOutlines recordOutlines(Vantrel::BaseCallout const &callout) {
    OutlineRecorder recorder;
    callout.drawIntoContext(&recorder, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
    return recorder.outlines;
}

// The text's font, size and colour over all of it.
inline Vantrel::TextAttributeList plainAttributes(std::string const &text, double size, Vantrel::Color const &ink) {
    Vantrel::TextAttributeList a;
    Vantrel::Range all(0, int(text.size()));
    a.addFontNameAttribute(all, "DejaVu Sans");
    a.addFontSizeAttribute(all, int(size));
    a.addFGColorAttribute(all, ink);
    return a;
}

// A font map of its own at the library's resolution, as a plain program makes one.
inline PangoFontMap *plainFontMap() {
    PangoFontMap *map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72.0);
    return map;
}

// A plain layout of the text at a width in pixels, aligned and wrapped as given.
inline PangoLayout *plainLayout(PangoContext *context, std::string const &text,
                                Vantrel::TextAttributeList const &attributes, double width,
                                PangoAlignment alignment = PANGO_ALIGN_CENTER, PangoWrapMode wrap = PANGO_WRAP_WORD) {
    PangoLayout *layout = pango_layout_new(context);
    pango_layout_set_width(layout, pango_units_from_double(width));
    pango_layout_set_alignment(layout, alignment);
    pango_layout_set_wrap(layout, wrap);
    pango_layout_set_attributes(layout, attributes.pangoAttrList());
    pango_layout_set_text(layout, text.data(), int(text.size()));
    return layout;
}

class PlainCanvas {
public:
    PlainCanvas() : bitmap(512, 512) {
        bitmap.clear();
        surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                      CAIRO_FORMAT_ARGB32, 512, 512, 512 * 4);
        cr = cairo_create(surface);
        cairo_translate(cr, 256, 256);
        map = plainFontMap();
    }
    ~PlainCanvas() {
        g_object_unref(map);
        cairo_destroy(cr);
        cairo_surface_destroy(surface);
    }
    PlainCanvas(PlainCanvas const &) = delete;
    PlainCanvas &operator=(PlainCanvas const &) = delete;

    void addPath(std::vector<Vantrel::Polygon> const &polygons) {
        cairo_new_path(cr);
        for (Vantrel::Polygon const &p : polygons) {
            for (size_t i = 0; i < p.points.size(); ++i)
                (i ? cairo_line_to : cairo_move_to)(cr, p.points[i].x, p.points[i].y);
            cairo_close_path(cr);
        }
    }
    void fill(std::vector<Vantrel::Polygon> const &polygons, Vantrel::Color const &c, double alpha = 1.0) {
        addPath(polygons);
        cairo_set_source_rgba(cr, c.red, c.green, c.blue, alpha);
        cairo_fill(cr);
    }
    void stroke(std::vector<Vantrel::Polygon> const &polygons, Vantrel::Color const &c, double width) {
        addPath(polygons);
        cairo_set_line_width(cr, width);
        cairo_set_source_rgba(cr, c.red, c.green, c.blue, 1);
        cairo_stroke(cr);
    }
    // The text laid out to the box's width, centred, shown at its top left.
    void showText(std::string const &text, Vantrel::TextAttributeList const &attributes, Vantrel::Rect const &box) {
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = plainLayout(context, text, attributes, box.Width());
        cairo_move_to(cr, box.Left(), box.Top());
        pango_cairo_show_layout(cr, layout);
        g_object_unref(layout);
        g_object_unref(context);
    }

private:
    Vantrel::Bitmap bitmap;
    cairo_surface_t *surface;
    cairo_t *cr;
    PangoFontMap *map;
};

// The library's side: the callout drawn whole into the canvas's size.
inline void drawWithLibrary(benchmark::State &state, Vantrel::BaseCallout const &callout) {
    Vantrel::Bitmap bitmap(512, 512);
    bitmap.clear();
    Vantrel::CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Vantrel::Point(256, 256));
    for (auto _ : state)
        callout.drawIntoContext(&context, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
}

// The reference side: the callout's outlines filled in fill and stroked in
// ink, and its text shown, by cairo and pango alone.
inline void drawPlainly(benchmark::State &state, Vantrel::BaseCallout const &callout, Vantrel::Color const &fill,
                        Vantrel::Color const &ink, double strokeWidth, std::string const &text,
                        Vantrel::TextAttributeList const &attributes, Vantrel::Rect const &box) {
    PlainOutlines const outlines = recordOutlines(callout);
    PlainCanvas canvas;
    for (auto _ : state) {
        canvas.fill(outlines.filled, fill);
        canvas.stroke(outlines.stroked, ink, strokeWidth);
        canvas.showText(text, attributes, box);
    }
}

} // namespace VantrelBench
