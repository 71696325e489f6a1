// The cairo context's text operations. Until the text engine stands they
// leave the surface untouched.
#include "../drawing/CrossPlatformDrawingContextImpl.h"

namespace Vantrel {

void CrossPlatformDrawingContext::DrawTextW(TextCalloutProperties const &, TextAttributeList const &,
                                            DrawOutputMetaData *) {}

void CrossPlatformDrawingContext::DrawTextSelection(TextCalloutProperties const &, TextAttributeList const &,
                                                    Range const &, Color const &, Color const &) {}

void CrossPlatformDrawingContext::DrawMisspelledRanges(TextCalloutProperties const &, TextAttributeList const &,
                                                       std::vector<Range> const &, Color const &) {}

void CrossPlatformDrawingContext::DrawPangoLayout(PangoLayout *) {}

void CrossPlatformDrawingContext::DrawPangoLayoutOutline(PangoLayout *) {}

void CrossPlatformDrawingContext::DrawPangoLayoutLine(PangoLayoutLine *) {}

void CrossPlatformDrawingContext::DrawPangoLayoutLineOutline(PangoLayoutLine *) {}

} // namespace Vantrel
