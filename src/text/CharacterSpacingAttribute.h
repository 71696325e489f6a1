// The private pango attribute for proportional character spacing: a factor
// of the font size that layout turns into letter spacing.
#pragma once

#include <cstring>
#include <pango/pango.h>

namespace Vantrel {

// The type number registered under "vtl_character_spacing", asked for once.
// Registered numbers lie outside the values of the PangoAttrType enumeration,
// so type numbers are handled as ints throughout.
int characterSpacingType();

// An attribute's type number, read without loading it as an enumeration value.
inline int attributeType(PangoAttribute const *attribute) {
    int type;
    static_assert(sizeof(type) == sizeof(attribute->klass->type), "PangoAttrType is an int");
    std::memcpy(&type, &attribute->klass->type, sizeof type);
    return type;
}
PangoAttribute *newCharacterSpacingAttribute(double value);
double characterSpacingValue(PangoAttribute const *attribute);

} // namespace Vantrel
