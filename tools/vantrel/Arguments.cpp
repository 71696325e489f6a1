#include "Arguments.h"

#include <algorithm>
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

namespace {

bool setTextOption(Settings &s, std::string const &a, std::string const &v) {
    if (a == "--text") {
        s.text = v;
    } else if (a == "--font") {
        s.font = v;
    } else if (a == "--font-size") {
        s.fontSize = numbers(a, v, 1)[0];
    } else if (a == "--color") {
        s.color = colour(a, v);
    } else if (a == "--box") {
        std::vector<double> b = numbers(a, v, 4);
        s.box = Rect(b[0], b[1], b[2], b[3]);
    } else if (a == "--align") {
        std::string t = oneOf(a, v, {"left", "center", "right"});
        s.align = t == "left" ? Left : t == "center" ? Center : Right;
    } else {
        return false;
    }
    return true;
}

} // namespace

void readOptions(std::vector<std::string> const &args, std::string const &verb, Settings &settings,
                 std::vector<std::string> const &switches,
                 std::function<bool(std::string const &option, std::string const &value)> const &set) {
    for (size_t i = 0; i < args.size(); ++i) {
        std::string const &a = args[i];
        if (std::find(switches.begin(), switches.end(), a) != switches.end()) {
            set(a, "");
            continue;
        }
        if (i + 1 >= args.size())
            throw UsageError(a.size() > 1 && a[0] == '-' ? "option " + a + " needs a value"
                                                         : "unexpected argument '" + a + "'");
        std::string const &v = args[++i];
        if (!setTextOption(settings, a, v) && !set(a, v))
            throw UsageError("unknown option '" + a + "' for " + verb);
    }
}

} // namespace VantrelTool
