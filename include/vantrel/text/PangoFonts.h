// The process-wide font state: families found by the library's own scan of
// the font folders and registered with fontconfig, and the one PangoCairo
// font map of FreeType fonts at 72 dpi (a point is a pixel).
#pragma once

namespace Vantrel {

class PangoFonts {
public:
    // Whether every layout first makes sure of the six fallback families
    // ("Arial", "Yu Gothic", "Malgun Gothic", "Microsoft Yahei", "Leelawadee",
    // "Geeza Pro"). Takes effect at the next layout; fonts already registered
    // stay. Set it before drawing: it is not guarded.
    static void setLoadFallbackFonts(bool load);
};

} // namespace Vantrel
