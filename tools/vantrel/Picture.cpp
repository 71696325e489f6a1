#include "Picture.h"

#include "Arguments.h"

#include <cairo.h>
#include <cstdint>
#include <iostream>

using namespace Vantrel;

namespace VantrelTool {

std::unique_ptr<CrossPlatformDrawingContextWithBuiltInBitmap> pictureOver(Rect const &r, std::string const &what) {
    RectInt pixels = r.ToContainingRectInt();
    int64_t width = int64_t(pixels.right) - pixels.left, height = int64_t(pixels.bottom) - pixels.top;
    if (width <= 0 || height <= 0 || width > 16000 || height > 16000)
        throw UsageError(what + " " + std::to_string(width) + " by " + std::to_string(height) +
                         " pixels does not make a picture (at most 16000 on a side)");
    auto picture = std::make_unique<CrossPlatformDrawingContextWithBuiltInBitmap>(int(width), int(height));
    picture->builtInBitmap()->clear();
    picture->Translate(Point(-pixels.left, -pixels.top));
    return picture;
}

int writePng(CrossPlatformDrawingContext &picture, std::string const &path) {
    cairo_surface_t *surface = cairo_get_target(picture.Get());
    cairo_surface_flush(surface);
    if (cairo_surface_write_to_png(surface, path.c_str()) != CAIRO_STATUS_SUCCESS) {
        std::cerr << "vantrel: could not write '" << path << "'\n";
        return 1;
    }
    return 0;
}

} // namespace VantrelTool
