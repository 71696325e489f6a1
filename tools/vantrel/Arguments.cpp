#include "Arguments.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <sstream>

using namespace Vantrel;

namespace VantrelTool {

std::vector<double> numbers(std::string const &option, std::string const &text, size_t count) {
    std::vector<double> values;
    std::stringstream in(text);
    std::string item;
    while (std::getline(in, item, ',')) {
        char *end = nullptr;
        double v = std::strtod(item.c_str(), &end);
        if (item.empty() || *end != '\0' || !std::isfinite(v))
            throw UsageError("bad value '" + text + "' for " + option);
        values.push_back(v);
    }
    if (values.size() != count)
        throw UsageError("bad value '" + text + "' for " + option + ": expected " + std::to_string(count) +
                         " numbers separated by commas");
    return values;
}

Color colour(std::string const &option, std::string const &text) {
    std::string hex = !text.empty() && text[0] == '#' ? text.substr(1) : text;
    bool ok = hex.size() == 6 || hex.size() == 8;
    for (char c : hex)
        ok = ok && std::isxdigit(static_cast<unsigned char>(c));
    if (!ok)
        throw UsageError("bad colour '" + text + "' for " + option + ": expected #RRGGBB or #RRGGBBAA");
    Color c(hex.substr(0, 6));
    if (hex.size() == 8)
        c.alpha = float(std::strtol(hex.substr(6).c_str(), nullptr, 16)) / 255.0f;
    return c;
}

// "a, b or c".
std::string oneOfList(std::vector<std::string> const &words) {
    std::string list;
    for (size_t i = 0; i < words.size(); ++i)
        list += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    return list;
}

std::string oneOf(std::string const &option, std::string const &text, std::vector<std::string> const &words) {
    for (std::string const &w : words)
        if (w == text)
            return text;
    throw UsageError("bad value '" + text + "' for " + option + ": expected one of " + oneOfList(words));
}

} // namespace VantrelTool
