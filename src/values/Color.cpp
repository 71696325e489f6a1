#include <vantrel/values/Color.h>

#include <cmath>
#include <cstdlib>
#include <pango/pango.h>

namespace Vantrel {

namespace {

float hexPair(std::string const &s, size_t at) {
    std::string pair = s.substr(at, 2);
    return float(std::strtol(pair.c_str(), nullptr, 16)) / 255.0f;
}

uint32_t packChannel(float c) {
    double p = double(c * 255.0f);
    if (p < 0.0)
        return 0;
    if (p > 255.0)
        return 255;
    if (!(p == p))
        return 0; // NaN: neither above nor below, and lround would not be defined
    return uint32_t(std::lround(p));
}

// Rounds half away from zero and keeps the low 8 bits, wrapping instead of saturating.
uint8_t wrapByte(double v) {
    if (!std::isfinite(v) || std::fabs(v) > 9e18)
        return 0;
    return uint8_t(std::llround(v) & 0xFF);
}

} // namespace

Color::Color(std::string const &hex) : red(0), green(0), blue(0), alpha(1) {
    if (hex.size() != 6)
        return;
    red = hexPair(hex, 0);
    green = hexPair(hex, 2);
    blue = hexPair(hex, 4);
}

uint32_t Color::ToPacked() const {
    return packChannel(alpha) << 24 | packChannel(red) << 16 | packChannel(green) << 8 | packChannel(blue);
}

Color Color::FromPango(PangoColor const &c) { return Color(c.red / 65535.0f, c.green / 65535.0f, c.blue / 65535.0f); }

Color32 Color32::alphaMult(double k) const {
    return Color32(wrapByte(r * k), wrapByte(g * k), wrapByte(b * k), wrapByte(a * k));
}

Color32 Color32::blendWith(Color32 const &o) const {
    double s = 1.0 - o.a / 255.0;
    return Color32(wrapByte(r * s + o.r), wrapByte(g * s + o.g), wrapByte(b * s + o.b), wrapByte(a * s + o.a));
}

namespace {
uint8_t lerpByte(uint8_t c, uint8_t o, double t) { return uint8_t(c + wrapByte((int(o) - int(c)) * t)); }
} // namespace

Color32 Color32::interpolate24With(Color32 const &o, double t) const {
    return Color32(lerpByte(r, o.r, t), lerpByte(g, o.g, t), lerpByte(b, o.b, t), 255);
}

Color32 Color32::interpolateWith(Color32 const &o, double t) const {
    return Color32(lerpByte(r, o.r, t), lerpByte(g, o.g, t), lerpByte(b, o.b, t), lerpByte(a, o.a, t));
}

} // namespace Vantrel
