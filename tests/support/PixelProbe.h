// Small helpers for tests that look at pixels.
#pragma once

#include <vantrel/Vantrel.h>

#include <cstring>

namespace VantrelTest {

inline uint32_t pixel(Vantrel::Bitmap const &b, int x, int y) {
    uint32_t v;
    std::memcpy(&v, b.bufAt(x, y), 4);
    return v;
}

inline int alphaAt(Vantrel::Bitmap const &b, int x, int y) { return pixel(b, x, y) >> 24; }

// Bounds of every pixel with some alpha, as a Rect of pixel edges; all zeros when there is no ink.
inline Vantrel::Rect inkBounds(Vantrel::Bitmap const &b) {
    int left = b.width(), top = b.height(), right = -1, bottom = -1;
    for (int y = 0; y < b.height(); ++y)
        for (int x = 0; x < b.width(); ++x)
            if (alphaAt(b, x, y) != 0) {
                left = x < left ? x : left;
                right = x > right ? x : right;
                top = y < top ? y : top;
                bottom = y > bottom ? y : bottom;
            }
    if (right < 0)
        return Vantrel::Rect();
    return Vantrel::Rect(left, top, right + 1, bottom + 1);
}

// A cleared Bitmap with a cairo context over it.
struct Canvas {
    Vantrel::Bitmap bitmap;
    Vantrel::CrossPlatformDrawingContext context;

    Canvas(int width, int height) : bitmap(width, height), context((bitmap.clear(), &bitmap)) {}
    uint32_t at(int x, int y) const { return pixel(bitmap, x, y); }
};

} // namespace VantrelTest
