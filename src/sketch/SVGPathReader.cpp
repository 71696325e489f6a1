#include "sketch/SVGPathReader.h"

#include <vantrel/sketch/SketchMotionCallout.h>

#include <boost/make_shared.hpp>
#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <mutex>
#include <stdexcept>
#include <streambuf>
#include <string_view>

namespace Vantrel {

namespace {

// White space as the classic locale has it, whatever the process's locale.
bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads a decimal number at p as strtod would, after any white space, and
// leaves end behind it. Returns false where no decimal number starts.
bool readNumber(char const *p, char const *&end, double &value) {
    while (isSpace(*p))
        ++p;
    char const *q = p;
    if (*q == '+' || *q == '-')
        ++q;
    bool digits = false;
    for (; isDigit(*q); ++q)
        digits = true;
    if (*q == '.')
        for (++q; isDigit(*q); ++q)
            digits = true;
    if (!digits)
        return false;
    if (*q == 'e' || *q == 'E') {
        char const *r = q + 1;
        if (*r == '+' || *r == '-')
            ++r;
        if (isDigit(*r)) {
            while (isDigit(*r))
                ++r;
            q = r;
        }
    }
    char *parsed = nullptr;
    value = std::strtod(p, &parsed);
    if (parsed != q) // strtod read on into a hexadecimal form: only the decimal part counts
        value = std::strtod(std::string(p, q).c_str(), nullptr);
    if (!std::isfinite(value))
        throw std::runtime_error("error reading SVG");
    end = q;
    return true;
}

boost::shared_ptr<SVGCommand> makeCommand(char upper, SVGCommandList const &list) {
    switch (upper) {
    case 'M':
        return boost::make_shared<MoveCommand>();
    case 'L':
        return boost::make_shared<LineSegmentCommand>();
    case 'H':
        return boost::make_shared<HorizontalLineCommand>();
    case 'V':
        return boost::make_shared<VerticalLineCommand>();
    case 'C':
        return boost::make_shared<BezierSegmentCommand>();
    case 'S':
        return boost::make_shared<ShortcutBezierSegmentCommand>();
    case 'Q':
        return boost::make_shared<QuadraticBezierSegmentCommand>();
    case 'Z': {
        // To the start of the list's first segment, not of the subpath.
        Point closingPoint;
        for (auto const &command : list)
            if (command->isSegment()) {
                closingPoint = command->startPoint();
                break;
            }
        return boost::make_shared<ClosePathCommand>(closingPoint);
    }
    default:
        throw std::runtime_error("Invalid SVG command");
    }
}

// Switches the process to the classic locale and back again.
class ClassicLocale {
public:
    ClassicLocale() {
        char const *current = std::setlocale(LC_ALL, nullptr);
        saved = current ? current : "C";
        std::setlocale(LC_ALL, "C");
    }
    ~ClassicLocale() { std::setlocale(LC_ALL, saved.c_str()); }
    ClassicLocale(ClassicLocale const &) = delete;
    ClassicLocale &operator=(ClassicLocale const &) = delete;

private:
    std::string saved;
};

std::mutex &readMutex() {
    static std::mutex mutex;
    return mutex;
}

// A read-only stream over text held elsewhere, so that a large document is
// not copied once more on its way to the XML reader.
class TextBuffer : public std::streambuf {
public:
    explicit TextBuffer(std::string_view text) {
        char *begin = const_cast<char *>(text.data());
        setg(begin, begin, begin + text.size());
    }
};

// Refuses a document whose elements nest deeper than kMaxNesting, counting
// start and end tags and stepping over comments, CDATA, declarations and
// quoted attribute values. Malformed text is left to the XML reader.
void refuseDeepNesting(std::string_view xml) {
    int depth = 0;
    size_t p = 0;
    auto skipPast = [&](std::string_view what, size_t from) {
        size_t found = xml.find(what, from);
        return found == std::string_view::npos ? xml.size() : found + what.size();
    };
    while ((p = xml.find('<', p)) != std::string_view::npos) {
        std::string_view rest = xml.substr(p);
        if (rest.substr(0, 4) == "<!--") {
            p = skipPast("-->", p + 4);
        } else if (rest.substr(0, 9) == "<![CDATA[") {
            p = skipPast("]]>", p + 9);
        } else if (rest.substr(0, 2) == "<!" || rest.substr(0, 2) == "<?") {
            p = skipPast(">", p + 2);
        } else if (rest.substr(0, 2) == "</") {
            depth = std::max(depth - 1, 0);
            p = skipPast(">", p + 2);
        } else {
            size_t q = p + 1;
            char quote = 0;
            for (; q < xml.size(); ++q) {
                char c = xml[q];
                if (quote) {
                    if (c == quote)
                        quote = 0;
                } else if (c == '"' || c == '\'') {
                    quote = c;
                } else if (c == '>') {
                    break;
                }
            }
            if (q >= xml.size())
                return;
            if (xml[q - 1] != '/' && ++depth > kMaxNesting) {
                unsigned long line = 1 + std::count(xml.begin(), xml.begin() + p, '\n');
                throw boost::property_tree::xml_parser::xml_parser_error(
                    "elements nest deeper than " + std::to_string(kMaxNesting) + " levels", "", line);
            }
            p = q + 1;
        }
    }
}

} // namespace

void readSVGPaths(std::string const &svgText, PathCommandCallback const &callback) {
    std::lock_guard<std::mutex> lock(readMutex());
    ClassicLocale classic;

    size_t first = svgText.find('<');
    std::string_view xml = first == std::string::npos ? std::string_view() : std::string_view(svgText).substr(first);
    refuseDeepNesting(xml);

    boost::property_tree::ptree tree;
    {
        TextBuffer buffer(xml);
        std::istream stream(&buffer);
        boost::property_tree::read_xml(stream, tree);
    }
    for (auto const &child : tree.get_child("svg"))
        if (child.first == "path")
            parsePathData(child.second.get_child("<xmlattr>.d").data(), callback);
}

void parsePathData(std::string const &data, PathCommandCallback const &callback) {
    char const *p = data.c_str();
    char const *end = p + std::strlen(p);
    if (p == end)
        return;
    bool firstOfPath = true;
    std::vector<double> params;
    for (;;) {
        params.clear();
        char letter;
        do
            letter = *p++;
        while (isSpace(letter) && p != end);
        if (isSpace(letter))
            return;

        char const *after = nullptr;
        double value = 0.0;
        while (readNumber(p, after, value)) {
            p = after;
            params.push_back(value);
            if (*p == ',' || *p == ' ')
                ++p;
            else if (*p != '+' && *p != '-')
                break;
        }
        callback(firstOfPath, letter, params);
        firstOfPath = false;
        if (p == end)
            return;
    }
}

void appendPathCommand(PathCommandState &state, bool firstOfPath, char letter, std::vector<double> const &params) {
    bool absolute = letter >= 'A' && letter <= 'Z';
    auto &lists = state.paths.commandLists;
    if (firstOfPath || lists.empty())
        lists.emplace_back();
    ParameterCursor cursor(params);
    for (;;) {
        char upper = letter >= 'a' && letter <= 'z' ? char(letter - 'a' + 'A') : letter;
        boost::shared_ptr<SVGCommand> command = makeCommand(upper, lists.back());
        if (upper != 'Z' && params.empty())
            throw std::runtime_error(std::string("SVG command ") + letter + " has no parameters");
        state.current = command->parse(absolute, state.current, cursor, state.previous);
        if (command->isSegment())
            state.hasDrawn = true;
        if (!state.hasDrawn)
            command->collapseStart();
        lists.back().push_back(command);
        state.previous = command;
        if (letter == 'M')
            letter = 'L';
        else if (letter == 'm')
            letter = 'l';
        if (upper == 'Z' || size_t(cursor.index) >= params.size())
            return;
    }
}

} // namespace Vantrel
