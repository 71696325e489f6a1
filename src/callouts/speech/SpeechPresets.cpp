// The speech bubble factories: a line of each design's theme table.
#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/speech/SpeechBubbles.h>

#include "callouts/frame/TextCalloutFactory.h"

namespace Vantrel {

BaseCallout *Presets::createSpeechBubble(Theme theme, Color const &fill, std::string const &fillStyle,
                                         Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                         std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                         TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<Point const &> const table{{&makeTextCallout<BasicSpeechBubble, Point const &>, nullptr,
                                                  &makeTextCallout<UrbanSpeechBubble, Point const &>,
                                                  &makeTextCallout<BoldSpeechBubble, Point const &>,
                                                  &makeTextCallout<AbstractSpeechBubble, Point const &>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      tailPoint);
}

BaseCallout *Presets::createSpeechBubbleTwo(Theme theme, Color const &fill, std::string const &fillStyle,
                                            Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                            std::string const &strokeStyle, Rect const &rect, Point const &tailPoint,
                                            TextCalloutProperties const &text, TextAttributeList const &attributes) {
    static ThemeTable<Point const &> const table{{&makeTextCallout<BasicSpeechBubbleTwo, Point const &>, nullptr,
                                                  &makeTextCallout<UrbanSpeechBubbleTwo, Point const &>,
                                                  &makeTextCallout<BoldSpeechBubbleTwo, Point const &>,
                                                  &makeTextCallout<AbstractSpeechBubbleTwo, Point const &>}};
    return table.make(theme,
                      textCalloutRequest(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle, rect,
                                         text, attributes),
                      tailPoint);
}

} // namespace Vantrel
