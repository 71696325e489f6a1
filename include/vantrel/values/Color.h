// Colours in floats and in pixel bytes, and the linear gradient description.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Point.h>

#include <cstdint>
#include <string>
#include <vector>

typedef struct _PangoColor PangoColor;

namespace Vantrel {

// Four floats, not premultiplied and not clamped.
struct VANTREL_EXPORT Color {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 0.0f;

    // Transparent black.
    Color() = default;
    Color(float r, float g, float b) : red(r), green(g), blue(b), alpha(1.0f) {}
    Color(float r, float g, float b, float a) : red(r), green(g), blue(b), alpha(a) {}
    // Exactly six hexadecimal characters "RRGGBB", each pair read with strtol;
    // any other length gives opaque black. There is no '#' form and no alpha.
    explicit Color(std::string const &hex);

    // 0xAARRGGBB, each channel clamped to 0..255 and rounded; not premultiplied.
    uint32_t ToPacked() const;
    static Color FromPango(PangoColor const &c);
};

inline bool operator==(Color const &a, Color const &b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
}
inline bool operator!=(Color const &a, Color const &b) { return !(a == b); }

// One pixel of a Bitmap: blue, green, red, alpha in memory, which is the
// little-endian word 0xAARRGGBB. All arithmetic rounds half away from zero and
// keeps the low 8 bits: nothing saturates.
struct VANTREL_EXPORT Color32 {
    uint8_t b = 0;
    uint8_t g = 0;
    uint8_t r = 0;
    uint8_t a = 0;

    Color32() = default;
    Color32(uint8_t r_, uint8_t g_, uint8_t b_, uint8_t a_) : b(b_), g(g_), r(r_), a(a_) {}
    static Color32 FromPacked(uint32_t argb) {
        return Color32(uint8_t(argb >> 16), uint8_t(argb >> 8), uint8_t(argb), uint8_t(argb >> 24));
    }
    uint32_t packed() const { return uint32_t(a) << 24 | uint32_t(r) << 16 | uint32_t(g) << 8 | b; }

    // Every byte multiplied by k.
    Color32 alphaMult(double k) const;
    // Paints o over this colour (both premultiplied).
    Color32 blendWith(Color32 const &o) const;
    // Colour bytes moved the fraction t towards o; alpha becomes 255.
    Color32 interpolate24With(Color32 const &o, double t) const;
    // All four bytes moved the fraction t towards o.
    Color32 interpolateWith(Color32 const &o, double t) const;
};

inline bool operator==(Color32 const &x, Color32 const &y) { return x.packed() == y.packed(); }
inline bool operator!=(Color32 const &x, Color32 const &y) { return !(x == y); }

struct VANTREL_EXPORT GradientStop {
    double offset = 0.0;
    Color color;

    GradientStop() = default;
    GradientStop(double o, Color const &c) : offset(o), color(c) {}
};

// A linear gradient from start to end. Stops stay in the order appended and
// are handed to cairo so; they are neither sorted nor deduplicated.
struct VANTREL_EXPORT GradientPattern {
    Point start;
    Point end;
    std::vector<GradientStop> stops;

    GradientPattern() = default;
    GradientPattern(Point const &s, Point const &e) : start(s), end(e) {}
    void AddStop(double offset, Color const &c) { stops.emplace_back(offset, c); }
};

} // namespace Vantrel
