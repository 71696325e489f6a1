// SVG documents for the sketch motion callout: only the reader's own
// exceptions may leave, the locale is restored, and the reveal at 0 draws
// nothing.
#include "FuzzCheck.h"

#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

using namespace Vantrel;

namespace {

bool describedMessage(std::string const &m) {
    return m == "Invalid SVG command" || m == "error reading SVG" ||
           (m.rfind("SVG command ", 0) == 0 && m.size() == std::strlen("SVG command x has no parameters") &&
            m.compare(13, std::string::npos, " has no parameters") == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    std::string const text(reinterpret_cast<char const *>(data), size);
    std::string const locale = std::setlocale(LC_ALL, nullptr);
    std::unique_ptr<SketchMotionCallout> sketch;
    try {
        sketch = std::make_unique<SketchMotionCallout>(text);
    } catch (boost::property_tree::ptree_bad_path const &) {
    } catch (boost::property_tree::xml_parser::xml_parser_error const &) {
    } catch (std::runtime_error const &e) {
        VantrelFuzz::check(describedMessage(e.what()), "only the described messages");
    }
    VantrelFuzz::check(locale == std::setlocale(LC_ALL, nullptr), "the locale is restored");
    if (!sketch)
        return 0;

    double const length = sketch->totalPathLength();
    for (double progress : {0.0, 0.5, 1.0}) {
        VantrelFuzz::Canvas canvas;
        sketch->drawProgressIntoContext(&canvas.context, progress, Color(0, 0, 0), 2, Rect(0, 0, 64, 64));
        if (progress == 0.0)
            VantrelFuzz::check(canvas.blank(), "nothing stands at progress 0");
    }
    double const after = sketch->totalPathLength();
    VantrelFuzz::check(after == length || (std::isnan(after) && std::isnan(length)), "drawing keeps the picture");
    return 0;
}
