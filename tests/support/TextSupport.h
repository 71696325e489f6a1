// Text tests use DejaVu Sans and no fallback families.
#pragma once

#include "support/PixelProbe.h"

#include <gtest/gtest.h>

namespace VantrelTest {

class TextTest : public ::testing::Test {
protected:
    TextTest() { Vantrel::PangoFonts::setLoadFallbackFonts(false); }

public:

    // DejaVu Sans at size points over the whole text, in the colour given (none when alpha is 0).
    static Vantrel::TextAttributeList attributes(std::string const &text, double size,
                                                 Vantrel::Color colour = Vantrel::Color(0, 0, 0)) {
        Vantrel::TextAttributeList list;
        Vantrel::Range all(0, int(text.size()));
        list.addFontNameAttribute(all, "DejaVu Sans");
        list.addFontSizeAttribute(all, size);
        if (colour.alpha > 0)
            list.addFGColorAttribute(all, colour);
        return list;
    }

    static Vantrel::TextCalloutProperties box(std::string const &text, Vantrel::Rect r) {
        Vantrel::TextCalloutProperties p;
        p.text = text;
        p.textRect = r;
        return p;
    }
};

} // namespace VantrelTest
