// What every TextAttributeList keeps: its attributes, of every type, in the
// order of their starts, none starting after its end. pango's iterators and
// its change and splice operations take that order for granted. The list
// restores it after the edits that move attributes in place; the tests and
// the attribute fuzz harness check it after every edit.
#pragma once

#include <vantrel/text/TextAttributeList.h>

#include <pango/pango.h>

namespace Vantrel {

bool verifyAttributeOrder(PangoAttrList *list);

inline bool verifyTextAttributeList(TextAttributeList const &list) {
    return verifyAttributeOrder(list.pangoAttrList());
}

} // namespace Vantrel
