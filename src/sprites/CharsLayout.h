// The cutting of a layout into clusters, the sharing of like clusters and
// the packing of their outlines into one bitmap.
#pragma once

#include <vantrel/sprites/SpriteSheet.h>
#include <vantrel/values/Bitmap.h>
#include <vantrel/values/Color.h>

#include <cairo.h>
#include <memory>
#include <pango/pango.h>
#include <vector>

namespace Vantrel {

// A copy of a context's current path.
class CairoPath {
public:
    explicit CairoPath(cairo_t *context) : path(cairo_copy_path(context)) {}
    virtual ~CairoPath() { cairo_path_destroy(path); }
    CairoPath(CairoPath const &) = delete;
    CairoPath &operator=(CairoPath const &) = delete;

    bool isEmpty() const { return path->num_data == 0; }
    void replaceCurrentPath(cairo_t *context) const {
        cairo_new_path(context);
        cairo_append_path(context, path);
    }
    void appendTo(cairo_t *context) const { cairo_append_path(context, path); }

private:
    cairo_path_t *path;
};

struct SpriteItemRecord {
    int shapeIndex;
    Rect rect;
    int wordIndex;
    int lineIndex;
    Point origin; // the cluster's left and baseline, in layout coordinates
};

class CharsLayoutBase {
public:
    virtual ~CharsLayoutBase() = default;
    // Takes the context's current path as the outline of a new shape; its
    // index, or -1 for an empty path.
    virtual int addShape(cairo_t *context, Color const &color, Point const &scale) = 0;
    // A shape whose outline would leave cairo's coordinate range at this
    // scale, so is never outlined: it fits no sheet. -1 where nothing is packed.
    virtual int addOversizedShape(Color const &, Point const &) { return -1; }
    // Places and rasterises the shapes; false when they do not fit.
    virtual bool finishLayout(cairo_t *) { return true; }
    // The shape's outline extents, relative to the cluster's origin, unscaled.
    virtual Rect shapeRect(int) const { return Rect(); }

    std::vector<SpriteItemRecord> items;
    std::vector<SpriteSheetLineItem> lines;
    double bitmapScale = 1.0;
};

class CharsLayoutBitmap : public CharsLayoutBase {
public:
    struct Shape {
        std::shared_ptr<CairoPath> path;
        Color color;
        Point scale;
        Rect extents;
        int left, top, right, bottom; // pixels, one beyond the rounded ink
    };
    struct Cell {
        Rect bitmapRect;
        Point offset; // the shape's left and top
    };

    int addShape(cairo_t *context, Color const &color, Point const &scale) override;
    int addOversizedShape(Color const &color, Point const &scale) override;
    bool finishLayout(cairo_t *context) override;
    Rect shapeRect(int index) const override;

    std::vector<Shape> shapes;
    int maximumBitmapSize = 4096;
    std::shared_ptr<Bitmap> bitmap;
    std::vector<Cell> cells;
};

// The items and lines of the layout, each distinct cluster outlined once on
// context (which is scaled by scale) and added to chars, on the thread that
// built the layout. A cluster whose outline would reach beyond
// kMaxOutlineCoordinate pixels from its origin at this scale is not
// outlined: cairo keeps paths in 24.8 fixed point, and beyond about 8.4
// million its coordinates wrap. Such a cluster is far too large for the
// largest sheet at the smallest bitmap scale anyway, so the attempt fails.
constexpr double kMaxOutlineCoordinate = 4194304.0;
bool buildCharsLayout(CharsLayoutBase &chars, cairo_t *context, PangoLayout *layout, Point const &scale,
                      double bitmapScale, Point const &origin);

} // namespace Vantrel
