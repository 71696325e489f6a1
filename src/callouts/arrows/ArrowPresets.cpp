// The text arrow factories: a line of each design's theme table. The
// progress reaches the Urban arrows alone.
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/arrows/TextArrows.h>

#include "callouts/frame/TextCalloutFactory.h"

namespace Vantrel {

namespace {

template <class Arrow> BaseCallout *withoutProgress(TextCalloutRequest const &request, double) {
    return makeTextCallout<Arrow>(request);
}

} // namespace

BaseCallout *Presets::createTextArrow(Theme theme, Color const &fill, std::string const &fillStyle,
                                      Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                      std::string const &strokeStyle, Rect const &rect, double progress,
                                      TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<double> const table{{&withoutProgress<BasicTextArrow>, nullptr,
                                           &makeTextCallout<UrbanTextArrow, double>, &withoutProgress<BoldTextArrow>,
                                           &withoutProgress<AbstractTextArrow>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      progress);
}

BaseCallout *Presets::createTextArrowTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                         Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                         std::string const &strokeStyle, Rect const &rect, double progress,
                                         TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<double> const table{{&withoutProgress<BasicTextArrowTwo>, nullptr,
                                           &makeTextCallout<UrbanTextArrowTwo, double>,
                                           &withoutProgress<BoldTextArrowTwo>, &withoutProgress<AbstractTextArrowTwo>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      progress);
}

} // namespace Vantrel
