#include "text/CharacterSpacingAttribute.h"

#include <mutex>

namespace Vantrel {

namespace {

struct CharacterSpacing {
    PangoAttribute head;
    double value;
};

PangoAttribute *copySpacing(PangoAttribute const *attribute);

void destroySpacing(PangoAttribute *attribute) { g_slice_free1(sizeof(CharacterSpacing), attribute); }

// Equal values, whatever the ranges: pango merges equal neighbours.
gboolean equalSpacing(PangoAttribute const *a, PangoAttribute const *b) {
    return reinterpret_cast<CharacterSpacing const *>(a)->value == reinterpret_cast<CharacterSpacing const *>(b)->value;
}

PangoAttrClass const &spacingClass() {
    static PangoAttrClass klass;
    static std::once_flag once;
    std::call_once(once, [] {
        int type = characterSpacingType();
        std::memcpy(&klass.type, &type, sizeof type);
        klass.copy = copySpacing;
        klass.destroy = destroySpacing;
        klass.equal = equalSpacing;
    });
    return klass;
}

CharacterSpacing *allocate(double value) {
    auto *a = static_cast<CharacterSpacing *>(g_slice_alloc(sizeof(CharacterSpacing)));
    pango_attribute_init(&a->head, &spacingClass());
    a->value = value;
    return a;
}

PangoAttribute *copySpacing(PangoAttribute const *attribute) {
    CharacterSpacing *copy = allocate(reinterpret_cast<CharacterSpacing const *>(attribute)->value);
    copy->head.start_index = attribute->start_index;
    copy->head.end_index = attribute->end_index;
    return &copy->head;
}

// The private attribute type is registered at load, so that it exists before
// any list is built.
struct LoadTimeSetUp {
    LoadTimeSetUp() { characterSpacingType(); }
} const loadTimeSetUp;

} // namespace

int characterSpacingType() {
    static int const type = int(pango_attr_type_register("vtl_character_spacing"));
    return type;
}

PangoAttribute *newCharacterSpacingAttribute(double value) { return &allocate(value)->head; }

double characterSpacingValue(PangoAttribute const *attribute) {
    return reinterpret_cast<CharacterSpacing const *>(attribute)->value;
}

} // namespace Vantrel
