// The private pango attribute for proportional character spacing: a factor
// of the font size that layout turns into letter spacing.
#pragma once

#include <pango/pango.h>

namespace Vantrel {

// The type number registered under "vtl_character_spacing", asked for once.
PangoAttrType characterSpacingType();
PangoAttribute *newCharacterSpacingAttribute(double value);
double characterSpacingValue(PangoAttribute const *attribute);

} // namespace Vantrel
