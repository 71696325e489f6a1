// The process-wide font state: families found by the library's own scan of
// the font folders and registered with fontconfig, and the one PangoCairo
// font map of FreeType fonts at 72 dpi (a point is a pixel).
//
// Memory. The state grows with what text asks for and is never released,
// since the font map lasts as long as the process. Drawing the same families
// again costs nothing more: a session of redraws settles after its first few
// hundred draws (half a megabyte of pango and fontconfig caches for a handful
// of families) and stays there. Every distinct family name, found or not,
// costs once: the library remembers the name and its search, and pango's font
// map keeps the patterns and fontset it built for it, some 30 to 50 KB per
// name. A host that passes family names its users type should keep their
// number bounded, for instance by mapping names it does not offer to one it
// does.
#pragma once

#include <vantrel/VantrelExport.h>

namespace Vantrel {

class VANTREL_EXPORT PangoFonts {
public:
    // Whether every layout first makes sure of the six fallback families
    // ("Arial", "Yu Gothic", "Malgun Gothic", "Microsoft Yahei", "Leelawadee",
    // "Geeza Pro"). Takes effect at the next layout; fonts already registered
    // stay. Set it before drawing: it is not guarded.
    static void setLoadFallbackFonts(bool load);
};

} // namespace Vantrel
