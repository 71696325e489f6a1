// The process-wide font state: families found by the library's own scan of
// the font folders and registered with fontconfig once for the process, and
// a PangoCairo font map of FreeType fonts at 72 dpi (a point is a pixel) for
// each thread that lays text out, made at its first text work and released
// when the thread ends. Text work of different threads runs in parallel; a
// family registered by one thread is seen by every thread's next layout.
//
// Memory. The state grows with what text asks for. Drawing the same families
// again costs nothing more: a session of redraws settles after its first few
// hundred draws (half a megabyte of pango and fontconfig caches for a handful
// of families) and stays there. Every distinct family name, found or not,
// costs once: the library remembers the name and its search, and each
// thread's font map keeps the patterns and fontset it built for it, some 30
// to 50 KB per name and thread, for as long as the thread lives. A host that
// passes family names its users type should keep their number bounded, for
// instance by mapping names it does not offer to one it does.
#pragma once

#include <vantrel/VantrelExport.h>

namespace Vantrel {

class VANTREL_EXPORT PangoFonts {
public:
    // Whether every layout first makes sure of the six fallback families
    // ("Arial", "Yu Gothic", "Malgun Gothic", "Microsoft Yahei", "Leelawadee",
    // "Geeza Pro"). Takes effect at the next layout; fonts already registered
    // stay. Any thread may set it at any time.
    static void setLoadFallbackFonts(bool load);
};

} // namespace Vantrel
