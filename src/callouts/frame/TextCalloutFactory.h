// How the Presets factories of the text callouts make one: every family's
// factory is a line of its theme table on these two helpers.
#pragma once

#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/frame/TextCallout.h>

namespace Vantrel {

// What every text-callout factory is given besides its theme and its own
// extra arguments (a tail point, a head length).
struct TextCalloutRequest {
    CalloutProperties style;
    Rect bodyRect;
    TextCalloutProperties const &text;
    TextAttributeList const &attributes;
};

// A factory's own arguments as a request: the six style values, the body
// rect and the text.
inline TextCalloutRequest textCalloutRequest(Color const &fill, std::string const &fillStyle,
                                             Point const &gradientDirection, Color const &stroke, double strokeWidth,
                                             std::string const &strokeStyle, Rect const &rect,
                                             TextCalloutProperties const &text, TextAttributeList const &attributes) {
    return {CalloutProperties(fill, fillStyle, gradientDirection, stroke, strokeWidth, strokeStyle), rect, text,
            attributes};
}

// The four steps: the class is the template argument, the style values are
// in the request, createWithTextBox(bodyRect, style, extra...) makes it, and
// the text goes in before the attributes.
template <class Callout, class... Extra>
BaseCallout *makeTextCallout(TextCalloutRequest const &request, Extra... extra) {
    Callout *callout = Callout::createWithTextBox(request.bodyRect, request.style, extra...);
    callout->setTextCalloutProperties(request.text);
    callout->setTextAttributeList(request.attributes);
    return callout;
}

// One maker per theme, in the order of Presets::Theme; a null maker, a
// theme without one (Modern) and an unknown theme all give null.
template <class... Extra> struct ThemeTable {
    using Maker = BaseCallout *(*)(TextCalloutRequest const &, Extra...);
    Maker makers[5];

    BaseCallout *make(Presets::Theme theme, TextCalloutRequest const &request, Extra... extra) const {
        if (theme < Presets::ThemeBasic || theme > Presets::ThemeAbstract || !makers[theme])
            return nullptr;
        return makers[theme](request, extra...);
    }
};

} // namespace Vantrel
