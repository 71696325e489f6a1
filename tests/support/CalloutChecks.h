// Checks shared by the callout suites.
#pragma once

#include "support/PixelProbe.h"

#include <gtest/gtest.h>

#include <string>

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

} // namespace VantrelTest
