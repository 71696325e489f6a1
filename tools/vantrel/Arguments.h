// Reading the values of command-line options, shared by the verbs.
#pragma once

#include "Catalogue.h"

#include <vantrel/values/Color.h>

#include <functional>

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

// The options of a verb: each switch named takes no value and is handed to
// set with an empty one; every other option takes the next argument. The
// text options --text, --font, --font-size, --color, --box and --align are
// read into settings; set gets the rest and returns false for an option it
// does not know, which is a UsageError naming the verb.
void readOptions(std::vector<std::string> const &args, std::string const &verb, Settings &settings,
                 std::vector<std::string> const &switches,
                 std::function<bool(std::string const &option, std::string const &value)> const &set);

} // namespace VantrelTool
