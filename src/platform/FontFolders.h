// The operating system's part of the font search: where fonts live and how a
// folder is listed. Everything else of the search is portable.
#pragma once

#include <string>
#include <vector>

namespace Vantrel {

// The per-user font folders ($XDG_DATA_HOME/fonts, or ~/.local/share/fonts,
// then ~/.fonts), then the system ones (/usr/share/fonts,
// /usr/local/share/fonts), those that exist, in that order. Without
// XDG_DATA_HOME and HOME the per-user folders are skipped and
// "Error: Unable to get path to known folder" is written to the standard
// error stream.
std::vector<std::string> knownFontFolders();

// The candidate font files of the known folders, then of the host's folders,
// each folder in the order the system lists it: every entry that is not a
// directory, does not begin with "." and whose extension (the text after the
// last dot) is not exactly "fon". Paths are the folder, "/" and the name. The
// known folders are walked recursively, since Linux nests its fonts, with a
// guard against directory loops (a folder reached twice is walked once); a
// host's folder is listed flat. A folder that cannot be read adds nothing,
// and nothing here throws.
std::vector<std::string> fontCandidates(std::vector<std::string> const &hostFolders);

} // namespace Vantrel
