// Finding, matching and registering font files, and the font maps. Every
// function here runs under the layout lock, which the caller holds.
//
// Each thread lays text out with a font map of its own, since pango does
// not make a font map safe to share between threads. What stays
// process-wide is the font search: files are found and registered once with
// fontconfig as application fonts, which every font map reads, and the memo
// sets remember each family once. A font map reads fontconfig's font list
// once, so a registration makes every thread's map stale: its next layout
// makes the map anew and sees the new file, whichever thread registered it.
#pragma once

#include <string>
#include <vector>

typedef struct _PangoFontMap PangoFontMap;

namespace Vantrel {

class TextAttributeList;

// The calling thread's font map, made at its first text work (at 72 dots per
// inch) and anew after a font file was registered; not an added reference.
// Released when the thread ends.
PangoFontMap *fontMap();
// A copy of the host's search folders, in the order added.
std::vector<std::string> fontSearchFolders();
// Makes sure of the six fallback families, unless that is switched off.
void loadFallbackFonts(std::vector<std::string> const &folders);
// Loads the family of each segment of the list; false if it stopped at one
// that could not be loaded.
bool loadFontsOfAttributes(TextAttributeList const &attributes);
// Whether the family is available: found and registered now or before. A
// family is searched for once per process; one that failed stays failed.
bool loadFont(std::string const &family, std::vector<std::string> const &folders);
// Every candidate file that matches the family, in search order.
std::vector<std::string> findFontFiles(std::string const &family, std::vector<std::string> const &folders);

} // namespace Vantrel
