// Reads the path data of an SVG document into lists of pen commands: the
// d attributes of the path children of the svg element, nothing else.
#pragma once

#include "sketch/SVGCommands.h"

#include <functional>
#include <string>
#include <vector>

namespace Vantrel {

struct SketchMotionPaths;

// Called once per command letter with the numbers behind it; firstOfPath
// is true for the first letter of a path element's data.
using PathCommandCallback = std::function<void(bool firstOfPath, char letter, std::vector<double> const &params)>;

// Reads svgText in the classic locale, restoring the process's locale on
// every exit. Text before the first "<" is skipped. Throws what the XML
// reader throws for text that is no XML
// (boost::property_tree::xml_parser_error), ptree_bad_path for a document
// without an svg element or a path without d, and what the callback throws.
//
// The XML reader recurses once per level of nesting, so a document whose
// elements nest deeper than kMaxNesting is refused with an xml_parser_error
// before it is read: no drawing nests so deep, and a thread's stack would
// not hold it. Reads are serialised: the locale is the process's, and two
// reads at once would otherwise restore each other's classic locale. While
// a document is read, every thread of the process sees the classic locale.
void readSVGPaths(std::string const &svgText, PathCommandCallback const &callback);
constexpr int kMaxNesting = 256;

// The tokeniser. A letter is any character that is not white space; the
// numbers behind it are separated by one comma or one blank (and any white
// space after that), or by nothing before a sign. A newline or tab right
// after a number ends the numbers, as does a point right after one (1.5.5):
// what follows is taken as the next letter. The data ends at its first zero
// byte.
//
// Numbers are decimal as in SVG: strtod's other forms are not numbers here.
// "inf", "nan" and the like are letters, and a hexadecimal "0x1" is the
// number 0 followed by the letter x. A number beyond the range of a double
// throws std::runtime_error("error reading SVG"). Numbers are read in the
// process's locale, which readSVGPaths makes the classic one.
void parsePathData(std::string const &data, PathCommandCallback const &callback);

// What appendPathCommand builds on over a whole document: the lists, where
// the pen is, the last command made, and whether anything was drawn yet.
struct PathCommandState {
    explicit PathCommandState(SketchMotionPaths &paths) : paths(paths) {}
    SketchMotionPaths &paths;
    Point current;
    boost::shared_ptr<SVGCommand> previous;
    bool hasDrawn = false;
};

// Makes the commands of one letter and its numbers and appends them to the
// last list (a new one when firstOfPath, or when there is none yet). Further
// pairs behind a move are lines. Throws std::runtime_error with "Invalid SVG
// command" for a letter other than C, H, L, M, Q, S, V, Z in either case
// (bytes beyond ASCII included), "SVG command " + letter + " has no
// parameters" for a letter other than Z without numbers, and "error reading
// SVG" when the numbers run out within a command. Numbers behind a Z are
// ignored: a close reads none, and they would otherwise repeat it forever.
void appendPathCommand(PathCommandState &state, bool firstOfPath, char letter, std::vector<double> const &params);

} // namespace Vantrel
