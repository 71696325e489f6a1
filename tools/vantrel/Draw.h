// `vantrel draw`: one callout, rendered from the command line to a PNG.
#pragma once

#include <string>
#include <vector>

namespace VantrelTool {

// Runs the verb with the arguments after "draw"; returns the exit status
// (0, 1 when the file cannot be written, 2 for a bad option or value).
int runDraw(std::vector<std::string> const &args);

// The usage text of the verb, made from the catalogue and the option table.
std::string drawUsage();

} // namespace VantrelTool
