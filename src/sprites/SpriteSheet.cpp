// A sheet keeps no layout: the layout is built, its glyph outlines drawn
// and the layout released within FromText, on the calling thread.
#include <vantrel/sprites/SpriteSheet.h>

#include "sprites/CharsLayout.h"
#include "text/TextLayout.h"

#include <cmath>

namespace Vantrel {

class SpriteSheetImpl {
public:
    SpriteSheetImpl()
        : surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr)), context(cairo_create(surface)),
          charsLayout(new CharsLayoutBitmap()) {}
    ~SpriteSheetImpl() {
        cairo_destroy(context);
        cairo_surface_destroy(surface);
    }
    SpriteSheetImpl(SpriteSheetImpl const &) = delete;
    SpriteSheetImpl &operator=(SpriteSheetImpl const &) = delete;

    // Attempts at full resolution, then half, down to 1/64, each from
    // scratch; the last attempt's items stay when none fits.
    void build(PangoLayout *layout, Point const &scale, Point const &origin) {
        cairo_save(context);
        cairo_scale(context, scale.x, scale.y);
        for (double trial = 1.0; trial > 0.01; trial *= 0.5) {
            bitmapScale = trial;
            charsLayout.reset(new CharsLayoutBitmap());
            charsLayout->bitmapScale = trial;
            if (buildCharsLayout(*charsLayout, context, layout, scale, trial, origin))
                break;
        }
        cairo_restore(context);
    }

    cairo_surface_t *surface; // a recording surface: outlines are built on it, nothing is painted
    cairo_t *context;
    std::unique_ptr<CharsLayoutBitmap> charsLayout;
    Rect layoutRect;
    double bitmapScale = 1.0;
};

namespace {

// A scale that cairo can set: finite and above 0, with a finite product
// above 0 (otherwise its matrix has no inverse and the context stops).
bool usableScale(Point const &scale) {
    auto usable = [](double v) { return std::isfinite(v) && v > 0; };
    double const product = scale.x * scale.y;
    return usable(scale.x) && usable(scale.y) && std::isfinite(product) && product > 0;
}

} // namespace

std::shared_ptr<SpriteSheet> SpriteSheet::FromText(TextCalloutProperties const &properties,
                                                   TextAttributeList const &attributes, Point const &scale,
                                                   bool fitToBox, double margin, bool unlimitedHeight) {
    std::shared_ptr<SpriteSheet> sheet(new SpriteSheet());
    sheet->impl = std::make_shared<SpriteSheetImpl>();
    Rect const &box = properties.textRect;
    sheet->impl->layoutRect = Rect(box.topLeft.MultipliedBy(scale), box.bottomRight.MultipliedBy(scale));
    if (!usableScale(scale))
        return sheet;
    PangoLayout *layout = buildTextLayout(
        properties, attributes, LayoutOptions().fitted(fitToBox).withMargin(margin).ofBoxHeight(!unlimitedHeight));
    cairo_matrix_t matrix;
    textLayoutMatrix(properties, &matrix, layout);
    // Only the translation: flips move the text but mirror no cell.
    sheet->impl->build(layout, scale, Point(matrix.x0 * scale.x, matrix.y0 * scale.y));
    g_object_unref(layout);
    return sheet;
}

int SpriteSheet::NumItems() const { return int(impl->charsLayout->items.size()); }

SpriteSheetLayoutItem SpriteSheet::LayoutItem(int index) const {
    CharsLayoutBitmap const &chars = *impl->charsLayout;
    double const bitmapScale = impl->bitmapScale;
    if (index < 0 || size_t(index) >= chars.items.size())
        return {Rect(), Point(), Point(), Rect(), -1, -1, bitmapScale};
    SpriteItemRecord const &item = chars.items[size_t(index)];
    // A sheet that fitted at no scale has no cells: its items show nothing.
    CharsLayoutBitmap::Cell const cell = item.shapeIndex >= 0 && size_t(item.shapeIndex) < chars.cells.size()
                                             ? chars.cells[size_t(item.shapeIndex)]
                                             : CharsLayoutBitmap::Cell{Rect(), Point()};
    Point const origin = item.origin + cell.offset / bitmapScale;
    Rect const piece = Rect(Point(0, 0), cell.bitmapRect.Size() / bitmapScale) + origin;
    double const lineCenter = item.lineIndex >= 0 && size_t(item.lineIndex) < chars.lines.size()
                                  ? chars.lines[size_t(item.lineIndex)].rect.Center().y
                                  : piece.Center().y;
    return {cell.bitmapRect, origin,     Point(0, lineCenter - piece.Center().y), item.rect, item.wordIndex,
            item.lineIndex,  bitmapScale};
}

std::vector<SpriteSheetLayoutItem> SpriteSheet::LayoutItems() const {
    std::vector<SpriteSheetLayoutItem> all;
    for (int i = 0; i < NumItems(); ++i)
        all.push_back(LayoutItem(i));
    return all;
}

std::vector<SpriteSheetLineItem> SpriteSheet::LineItems() const { return impl->charsLayout->lines; }

Rect SpriteSheet::LayoutRect() const { return impl->layoutRect; }

Bitmap SpriteSheet::TheBitmap() const {
    std::shared_ptr<Bitmap> const &bitmap = impl->charsLayout->bitmap;
    return bitmap ? bitmap->shallowCopy() : Bitmap(0, 0);
}

} // namespace Vantrel
