// `vantrel sketch`: an SVG drawing revealed by a pen at a progress, or as a
// numbered sequence of frames, and what the reader found in it.
#pragma once

#include <string>
#include <vector>

namespace VantrelTool {

// Runs the verb with the arguments after "sketch"; returns the exit status
// (0, 1 when the drawing cannot be read or a file written, 2 for a bad
// option or value).
int runSketch(std::vector<std::string> const &args);
std::string sketchUsage();

// The drawing the gallery shows and the verb draws without a file: lines, H
// and V, C, S and Q, relative commands, in two path elements.
extern char const *const kSampleDrawing;

} // namespace VantrelTool
