#include "gallery/Sheet.h"

#include "Gallery.h"

#include <cairo.h>
#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

int const kCellWidth = 190;
int const kCellHeight = 150;
int const kLabelHeight = 22;
int const kColumns = 6;
int const kTitleHeight = 34;
int const kMargin = 16;

void drawCheckerboard(cairo_t *cr, int width, int height) {
    cairo_save(cr);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_set_source_rgb(cr, 0.85, 0.85, 0.87);
    for (int y = 0; y < height; y += 10)
        for (int x = (y / 10 % 2) * 10; x < width; x += 20)
            cairo_rectangle(cr, x, y, 10, 10);
    cairo_fill(cr);
    cairo_restore(cr);
}

void drawLabel(cairo_t *cr, std::string const &text, double x, double y, double size, bool bold) {
    cairo_save(cr);
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                           bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, size);
    cairo_set_source_rgb(cr, 0.1, 0.1, 0.1);
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, text.c_str());
    cairo_restore(cr);
}

std::vector<Section> sections() {
    std::vector<Section> all;
    addOverviewSection(all);
    addDrawingSections(all);
    addShapeSections(all);
    addUnionSection(all);
    addLineSections(all);
    addTextSections(all);
    addSpeechSections(all);
    addThoughtSections(all);
    addArrowSections(all);
    addRectangleSections(all);
    addEditingSections(all);
    addCaptionSections(all);
    addSpriteSections(all);
    addSketchSections(all);
    return all;
}

} // namespace

void drawCallout(CrossPlatformDrawingContext &c, BaseCallout const &callout) {
    callout.drawIntoContext(&c, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

void drawWithRects(CrossPlatformDrawingContext &c, BaseCallout const &callout) {
    drawCallout(c, callout);
    c.Stroke(Color(0.9f, 0.1f, 0.5f), 1, "solid", Polygon(callout.boundingRect()));
    c.Stroke(Color(0.1f, 0.5f, 0.95f), 1, "solid", Polygon(callout.trackingRect()));
}

Tile kindTile(std::string const &label, ThemeName const &theme, Kind const &kind, Settings const &settings,
              void (*draw)(CrossPlatformDrawingContext &, BaseCallout const &)) {
    std::shared_ptr<BaseCallout> callout(kind.make(theme.theme, settings));
    return {callout ? label : std::string(theme.name) + ": none", [callout, draw](CrossPlatformDrawingContext &c) {
                if (callout)
                    draw(c, *callout);
            }};
}

Section tailPlacesSection(std::string const &title, Kind const &kind, std::vector<TailPlace> const &places) {
    Section section{title, {}, int(places.size())};
    for (ThemeName const &t : kThemes)
        for (TailPlace const &place : places) {
            Settings s;
            kind.sample(s);
            s.tails = {place.tail};
            section.tiles.push_back(kindTile(std::string(t.name) + ", " + place.name, t, kind, s));
        }
    return section;
}

bool writeGallery(std::string const &path) {
    std::vector<Section> all = sections();
    int height = kMargin;
    for (Section const &s : all)
        height += kTitleHeight + s.rows() * kCellHeight;
    int width = 2 * kMargin + kColumns * kCellWidth;
    height += kMargin;

    CrossPlatformDrawingContextWithBuiltInBitmap page(width, height);
    cairo_t *cr = page.Get();
    drawCheckerboard(cr, width, height);

    int y = kMargin;
    for (Section const &s : all) {
        drawLabel(cr, s.title, kMargin, y + 22, 16, true);
        y += kTitleHeight;
        for (size_t i = 0; i < s.tiles.size(); ++i) {
            int x = kMargin + int(i % s.columns) * kCellWidth;
            int top = y + int(i / s.columns) * kCellHeight;
            // Each tile draws on a transparent bitmap of its own, so that what it
            // clears or leaves transparent shows the checkerboard beneath.
            CrossPlatformDrawingContextWithBuiltInBitmap tile(kCellWidth, kCellHeight - kLabelHeight);
            tile.builtInBitmap()->clear();
            tile.Translate(Point(kCellWidth / 2.0, (kCellHeight - kLabelHeight) / 2.0));
            s.tiles[i].draw(tile);
            page.DrawBitmap(*tile.builtInBitmap(), Point(x, top), 1.0);
            drawLabel(cr, s.tiles[i].label, x + 8, top + kCellHeight - kLabelHeight + 12, 11, false);
        }
        y += s.rows() * kCellHeight;
    }

    cairo_surface_t *surface = cairo_get_target(cr);
    cairo_surface_flush(surface);
    return cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
}

} // namespace VantrelTool
