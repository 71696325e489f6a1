#include "Picture.h"

#include "Arguments.h"

#include <cairo.h>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <vector>

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

namespace {

// One %d (with flags and a width at most), and no other conversion.
bool isFramePattern(std::string const &pattern) {
    int conversions = 0;
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%')
            continue;
        size_t j = i + 1;
        while (j < pattern.size() && (std::isdigit((unsigned char)pattern[j]) || pattern[j] == '-'))
            ++j;
        if (j >= pattern.size() || pattern[j] != 'd' || j - i > 4)
            return false;
        ++conversions;
        i = j;
    }
    return conversions == 1;
}

} // namespace

int frameCount(std::string const &option, std::string const &value) {
    double const n = numbers(option, value, 1)[0];
    if (!(n >= 1 && n <= 1000) || n != int(n))
        throw UsageError("bad value for " + option + ": expected a whole number from 1 to 1000");
    return int(n);
}

int writeFrames(std::string const &pattern, int frames,
                std::function<int(double progress, std::string const &path)> const &write) {
    if (!isFramePattern(pattern))
        throw UsageError("--frames needs an output pattern with one %d, such as a-%03d.png");
    for (int k = 0; k < frames; ++k) {
        std::vector<char> name(pattern.size() + 16);
        std::snprintf(name.data(), name.size(), pattern.c_str(), k);
        if (int status = write(frames == 1 ? 1.0 : double(k) / (frames - 1), name.data()))
            return status;
    }
    return 0;
}

} // namespace VantrelTool
