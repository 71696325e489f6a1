// Checks shared by the callout suites.
#pragma once

#include "support/LoggingContext.h"
#include "support/PixelProbe.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace VantrelTest {

// The measured bounds of a callout against the ink of the same callout drawn
// into a Bitmap (centred at (width/2, height/2)), within one pixel.
inline void expectBoundsMatchInk(Vantrel::BaseCallout const &callout, std::string const &what, int width = 300,
                                 int height = 200) {
    Vantrel::Rect bounds = callout.boundingRect();
    Canvas canvas(width, height);
    Vantrel::Point centre(width / 2, height / 2);
    canvas.context.Translate(centre);
    callout.drawIntoContext(&canvas.context, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
    Vantrel::Rect ink = inkBounds(canvas.bitmap).OffsettedRect(-centre);
    EXPECT_NEAR(bounds.Left(), ink.Left(), 1.0) << what;
    EXPECT_NEAR(bounds.Top(), ink.Top(), 1.0) << what;
    EXPECT_NEAR(bounds.Right(), ink.Right(), 1.0) << what;
    EXPECT_NEAR(bounds.Bottom(), ink.Bottom(), 1.0) << what;
}

// The style the callout family tests draw in: a blue fill, a dark ink.
Vantrel::Color const kFill(0.3f, 0.6f, 0.95f);
Vantrel::Color const kInk(0.1f, 0.1f, 0.3f);

// A callout's text: the text in box at size points (no family), as the
// factories take it.
struct CalloutText {
    Vantrel::TextCalloutProperties properties;
    Vantrel::TextAttributeList attributes;
};
inline CalloutText calloutText(std::string const &text, Vantrel::Rect const &box, double size) {
    CalloutText t;
    t.properties.text = text;
    t.properties.textRect = box;
    t.attributes.addFontSizeAttribute(Vantrel::Range(0, int(text.size())), size);
    return t;
}

// The box of every point of an outline.
inline Vantrel::Rect outlineBounds(Vantrel::Polygons const &outline) {
    std::vector<Vantrel::Point> all;
    for (auto const &polygon : outline.polygons)
        all.insert(all.end(), polygon->points.begin(), polygon->points.end());
    return Vantrel::Rect::BoundingRectOfPoints(all);
}

// The drawing calls a callout makes, one line each (LoggingContext).
inline std::vector<std::string>
drawingCalls(Vantrel::BaseCallout const &callout,
             Vantrel::BaseCallout::DrawOptions options = Vantrel::BaseCallout::DrawOptionAll) {
    LoggingContext log;
    callout.drawIntoContext(&log, options, Vantrel::Rect(), -1, nullptr);
    return log.calls;
}

} // namespace VantrelTest
