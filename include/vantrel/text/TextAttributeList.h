// Ranged text styling: a deep-copying owner of a PangoAttrList, with a fixed
// vocabulary of attributes, a private proportional character spacing, and the
// edits that keep ranges right while the text changes. Every position is a
// UTF-8 byte offset.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Range.h>

#include <atomic>
#include <boost/shared_ptr.hpp>
#include <stdexcept>
#include <string>
#include <vector>

typedef struct _PangoAttribute PangoAttribute;
typedef struct _PangoAttrList PangoAttrList;

namespace Vantrel {

// Owns one PangoAttribute, destroyed with its last shared reference.
class VANTREL_EXPORT PangoAttributeContainer {
public:
    explicit PangoAttributeContainer(PangoAttribute *attribute) : mAttribute(attribute) {}
    ~PangoAttributeContainer();
    PangoAttributeContainer(PangoAttributeContainer const &) = delete;
    PangoAttributeContainer &operator=(PangoAttributeContainer const &) = delete;
    PangoAttribute *attribute() const { return mAttribute; }

private:
    PangoAttribute *mAttribute;
};

// A list of attributes behind a spin lock of its own. Copies are deep. A list
// being edited belongs to one thread at a time: the attributes handed out by
// pangoAttributes() are the list's own and are used outside the lock; an edit
// that rebuilds the list (removeAttributes, and a shift that has to reorder
// it) leaves earlier pointers dangling.
//
// Offsets from a host are never an error. Every Range is read with its ends
// swapped if it is reversed and with negative offsets as 0, so the default
// Range (-1, -1) is empty, and an add over an empty range adds nothing. A
// length at or below 0 inserts or removes nothing; an insertion at a negative
// position is one at 0, and a removal removes only the bytes of
// (start, start + length) that lie at or after 0. Offsets that a shift or an
// extension would carry below 0 or past the unsigned range stop there. The
// list handed to pango is always ordered by start, with no start after its end.
class VANTREL_EXPORT TextAttributeList {
public:
    // pango's PangoAttrType numbers; CustomCharacterSpacing is the number the
    // private "vtl_character_spacing" type was registered under. The type is
    // int-based, so every registered number is one of its values.
    enum AttributeType : int {
        Language = 1,
        FontFamily = 2,
        FontStyle = 3,
        FontWeight = 4,
        FontVariant = 5,
        FontStretch = 6,
        FontSize = 7,
        FontDescription = 8,
        ForegroundColor = 9,
        BackgroundColor = 10,
        Underline = 11,
        Strikethrough = 12,
        Rise = 13,
        FontFallback = 16,
        LetterSpacing = 17,
        UnderlineColor = 18,
        StrikethroughColor = 19,
        AbsoluteSize = 20,
        Gravity = 21,
        GravityHint = 22,
    };
    static AttributeType customCharacterSpacingType();

    TextAttributeList();
    TextAttributeList(TextAttributeList const &other);
    TextAttributeList &operator=(TextAttributeList const &other);
    ~TextAttributeList();

    // Each add replaces attributes of the same type in the range and merges
    // equal neighbours (pango_attr_list_change).
    // Red, green and blue as 16-bit channels, each cut to 0..1 first; alpha
    // is not stored.
    void addFGColorAttribute(Range const &range, Color const &color);
    void addFontNameAttribute(Range const &range, std::string const &family);
    // Points, stored in pango units (PANGO_SCALE to a point), truncated. A
    // layout holds sizes to 1/1024 .. 65535 points, what cairo and FreeType
    // can make a font of.
    void addFontSizeAttribute(Range const &range, double points);
    void addFontWeightAttribute(Range const &range, int weight);
    void addFontItalicAttribute(Range const &range, int italic);
    void addUnderlineAttribute(Range const &range, int underline);
    void addStrikethroughAttribute(Range const &range, int strikethrough);
    // A factor of the font size: 0.1 on 20-point text spaces letters by 2 points.
    void addCharacterSpacingAttribute(Range const &range, double factor);
    void addFontFallbackAttribute(Range const &range, bool fallback);
    // Takes ownership of a ready attribute; its range stays as created, but
    // for a reversed one, whose ends are swapped. A null attribute is ignored.
    void addPangoAttribute(PangoAttribute *attribute);

    // The attributes of the sixteen listed types that are topmost somewhere,
    // each once, in no meaningful order. The pointers are the list's own.
    std::vector<PangoAttribute *> pangoAttributes() const;
    // Every attribute of every type, cut into copies at each change of the
    // attribute set.
    std::vector<boost::shared_ptr<PangoAttributeContainer>> attributeRuns() const;
    // A new list with the listed attributes clipped to range; offsets stay absolute.
    TextAttributeList attributeListForSubRange(Range const &range) const;
    // Text of length bytes was inserted at position: attributes covering the
    // byte before it grow, everything behind moves up.
    void extendAttributes(int position, int length);
    // length bytes were removed at start: ranges shrink and move back. The
    // list is rebuilt from what pangoAttributes() lists: other types are lost.
    void removeAttributes(int start, int length);
    // Moves every listed attribute by offset; unlisted types stay where they
    // are, and the list is reordered by start where that leaves it out of order.
    void shiftAllAttributesByOffset(int offset);
    TextAttributeList textAttributeListBySettingFontSize(double points, Range const &range) const;
    // Turns the spacing factors into letter spacing of the font size beneath,
    // on this list (meant for a private copy made for one layout).
    void applyCharacterSpacing();

    static bool isCustomCharacterSpacingAttribute(PangoAttribute const *attribute);
    static AttributeType typeOfPangoAttribute(PangoAttribute const *attribute);
    static Range rangeOfPangoAttribute(PangoAttribute const *attribute);
    // int, double, std::string or Color, by the attribute's type; any other
    // combination throws std::runtime_error("Invalid template parameter").
    template <class T> static T valueOfPangoAttribute(PangoAttribute const *attribute);

    PangoAttrList *pangoAttrList() const;

private:
    struct Cell;
    class ListGuard; // holds lock for a scope
    void lockList() const;
    void unlockList() const;
    void change(PangoAttribute *attribute, Range const &range);
    void replaceList(PangoAttrList *list);
    void keepSorted();

    Cell *attrList;
    mutable std::atomic<int> lock{0};
};

template <> int TextAttributeList::valueOfPangoAttribute<int>(PangoAttribute const *attribute);
template <> double TextAttributeList::valueOfPangoAttribute<double>(PangoAttribute const *attribute);
template <> std::string TextAttributeList::valueOfPangoAttribute<std::string>(PangoAttribute const *attribute);
template <> Color TextAttributeList::valueOfPangoAttribute<Color>(PangoAttribute const *attribute);

template <class T> T TextAttributeList::valueOfPangoAttribute(PangoAttribute const *) {
    throw std::runtime_error("Invalid template parameter");
}

// The boolean style flags of hosts and the integers stored in attributes.
class VANTREL_EXPORT TextAttributeListHelper {
public:
    static int BoldToFontWeight(bool bold) { return bold ? 700 : 400; }
    static bool FontWeightToBold(int weight) { return weight >= 700; }
    static bool ToBoolItalic(int value) { return value > 0; }
    static bool ToBoolUnderline(int value) { return value > 0; }
    static bool ToBoolStrikethrough(int value) { return value > 0; }
    static int ToIntItalic(bool value) { return value ? 1 : 0; }
    static int ToIntUnderline(bool value) { return value ? 1 : 0; }
    static int ToIntStrikethrought(bool value) { return value ? 1 : 0; }
};

} // namespace Vantrel
