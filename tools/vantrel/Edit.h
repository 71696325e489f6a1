// `vantrel edit`: a text editing session replayed from the command line.
#pragma once

#include <vantrel/Vantrel.h>

#include <string>
#include <vector>

namespace VantrelTool {

// Runs the verb with the arguments after "edit"; returns the exit status
// (0, 1 when the file cannot be written, 2 for a bad option or value).
int runEdit(std::vector<std::string> const &args);

std::string editUsage();

// One operation of --keys, such as "shift+word-right" or "click:40,12",
// run on the session; the text and attributes are what "grow" installs
// again. Throws UsageError for an operation it does not know.
void runEditingOperation(Vantrel::TextEditingSession &session, std::string const &operation);

} // namespace VantrelTool
