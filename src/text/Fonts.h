// Finding, matching and registering font files, and the font map. Every
// function but fontMap() runs under the layout lock, which the caller holds.
#pragma once

#include <string>
#include <vector>

typedef struct _PangoFontMap PangoFontMap;

namespace Vantrel {

class TextAttributeList;

// The process-wide font map, made at first use; not an added reference.
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
