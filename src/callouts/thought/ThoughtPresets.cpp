// The thought bubble factories: a line of each design's theme table. The
// Basic clouds are always made uniform.
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/thought/ThoughtBubbles.h>

#include "callouts/frame/TextCalloutFactory.h"

namespace Vantrel {

namespace {

template <class Cloud> BaseCallout *makeUniformCloud(TextCalloutRequest const &request, Point const &tail) {
    return makeTextCallout<Cloud, Point const &, bool>(request, tail, true);
}

} // namespace

BaseCallout *Presets::createThoughtBubble(Theme theme, Color const &fill, std::string const &fillStyle,
                                          Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                          std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                          TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<Point const &> const table{
        {&makeUniformCloud<BasicThoughtBubble>, nullptr, &makeTextCallout<UrbanThoughtBubble, Point const &>,
         &makeTextCallout<BoldThoughtBubble, Point const &>, &makeTextCallout<AbstractThoughtBubble, Point const &>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      tailPoint);
}

BaseCallout *Presets::createThoughtBubbleTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                             Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                             std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                             TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<Point const &> const table{{&makeUniformCloud<BasicThoughtBubbleTwo>, nullptr,
                                                  &makeTextCallout<UrbanThoughtBubbleTwo, Point const &>,
                                                  &makeTextCallout<BoldThoughtBubbleTwo, Point const &>,
                                                  &makeTextCallout<AbstractThoughtBubbleTwo, Point const &>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      tailPoint);
}

} // namespace Vantrel
