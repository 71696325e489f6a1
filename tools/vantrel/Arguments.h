// Reading the values of command-line options, shared by the verbs.
#pragma once

#include <vantrel/values/Color.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace VantrelTool {

// A bad option or value: the message names it. The verbs exit with status 2.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// count finite numbers separated by commas.
std::vector<double> numbers(std::string const &option, std::string const &text, size_t count);
// #RRGGBB or #RRGGBBAA.
Vantrel::Color colour(std::string const &option, std::string const &text);
// "a, b or c".
std::string oneOfList(std::vector<std::string> const &words);
// text when it is one of words.
std::string oneOf(std::string const &option, std::string const &text, std::vector<std::string> const &words);

} // namespace VantrelTool
