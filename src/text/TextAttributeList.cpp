#include <vantrel/text/TextAttributeList.h>

#include "text/AttributeListInvariant.h"
#include "text/CharacterSpacingAttribute.h"
#include "values/Rounding.h"

#include <algorithm>
#include <cstdint>
#include <pango/pango.h>
#include <set>

namespace Vantrel {

struct TextAttributeList::Cell {
    PangoAttrList *list;
};

PangoAttributeContainer::~PangoAttributeContainer() { pango_attribute_destroy(mAttribute); }

namespace {

// The types pangoAttributes asks for, in order; the last is the private spacing type.
std::vector<int> listedTypes() {
    return {PANGO_ATTR_LANGUAGE,        PANGO_ATTR_FAMILY,
            PANGO_ATTR_STYLE,           PANGO_ATTR_WEIGHT,
            PANGO_ATTR_STRETCH,         PANGO_ATTR_SIZE,
            PANGO_ATTR_FONT_DESC,       PANGO_ATTR_FOREGROUND,
            PANGO_ATTR_BACKGROUND,      PANGO_ATTR_UNDERLINE,
            PANGO_ATTR_STRIKETHROUGH,   PANGO_ATTR_LETTER_SPACING,
            PANGO_ATTR_UNDERLINE_COLOR, PANGO_ATTR_STRIKETHROUGH_COLOR,
            PANGO_ATTR_ABSOLUTE_SIZE,   characterSpacingType()};
}

// A channel outside 0..1 (a Color is not clamped) is cut to it; NaN is 0.
guint16 channel(float c) { return !(c > 0.0f) ? 0 : c >= 1.0f ? 65535 : guint16(c * 65535.0f); }

// Byte offsets as pango holds them: a reversed range with its ends swapped, a
// negative offset as 0. Pango must never see a start after its end.
void setByteRange(PangoAttribute *attribute, Range const &range) {
    Range const r = range.normalized();
    attribute->start_index = guint(std::max(0, r.start()));
    attribute->end_index = guint(std::max(0, r.end()));
}

// An offset moved by delta, kept within what pango's unsigned offsets hold.
guint movedOffset(guint offset, int64_t delta) {
    int64_t const moved = int64_t(offset) + delta;
    return moved < 0 ? 0 : moved > int64_t(G_MAXUINT) ? G_MAXUINT : guint(moved);
}

// A new list of copies of every attribute, in the order of their starts (of
// equal starts, the earlier first). Pango's iterators and its change and
// splice operations take the order for granted.
PangoAttrList *sortedCopy(PangoAttrList *list) {
    GSList *all = pango_attr_list_get_attributes(list);
    std::vector<PangoAttribute *> attributes;
    for (GSList *l = all; l; l = l->next)
        attributes.push_back(static_cast<PangoAttribute *>(l->data));
    g_slist_free(all);
    std::stable_sort(attributes.begin(), attributes.end(),
                     [](PangoAttribute const *a, PangoAttribute const *b) { return a->start_index < b->start_index; });
    PangoAttrList *sorted = pango_attr_list_new();
    for (PangoAttribute *a : attributes)
        pango_attr_list_insert(sorted, a);
    return sorted;
}

} // namespace

bool verifyAttributeOrder(PangoAttrList *list) {
    GSList *all = pango_attr_list_get_attributes(list);
    bool ordered = true;
    guint last = 0;
    for (GSList *l = all; l; l = l->next) {
        auto const *a = static_cast<PangoAttribute const *>(l->data);
        ordered = ordered && a->start_index >= last && a->start_index <= a->end_index;
        last = a->start_index;
    }
    g_slist_free_full(all, reinterpret_cast<GDestroyNotify>(pango_attribute_destroy));
    return ordered;
}

// Holds a list's spin lock for a scope, so that an exception (an allocation
// that fails while it is held) cannot leave it held.
class TextAttributeList::ListGuard {
public:
    explicit ListGuard(TextAttributeList const &list) : held(list) { held.lockList(); }
    ~ListGuard() { held.unlockList(); }
    ListGuard(ListGuard const &) = delete;
    ListGuard &operator=(ListGuard const &) = delete;

private:
    TextAttributeList const &held;
};

TextAttributeList::AttributeType TextAttributeList::customCharacterSpacingType() {
    return AttributeType(characterSpacingType());
}

void TextAttributeList::lockList() const {
    while (lock.exchange(1, std::memory_order_acquire) != 0) {
    }
}

void TextAttributeList::unlockList() const { lock.exchange(0, std::memory_order_release); }

TextAttributeList::TextAttributeList() : attrList(new Cell{pango_attr_list_new()}) {}

TextAttributeList::TextAttributeList(TextAttributeList const &other) : attrList(new Cell{nullptr}) {
    {
        ListGuard guard(other);
        attrList->list = pango_attr_list_copy(other.attrList->list);
    }
    if (!attrList->list) // pango gives null for a copy of an empty list
        attrList->list = pango_attr_list_new();
}

TextAttributeList &TextAttributeList::operator=(TextAttributeList const &other) {
    if (this == &other)
        return *this;
    ListGuard guard(*this);
    pango_attr_list_unref(attrList->list);
    attrList->list = pango_attr_list_copy(other.attrList->list);
    if (!attrList->list)
        attrList->list = pango_attr_list_new();
    return *this;
}

TextAttributeList::~TextAttributeList() {
    pango_attr_list_unref(attrList->list);
    delete attrList;
    attrList = nullptr;
}

PangoAttrList *TextAttributeList::pangoAttrList() const { return attrList->list; }

void TextAttributeList::replaceList(PangoAttrList *list) {
    ListGuard guard(*this);
    pango_attr_list_unref(attrList->list);
    attrList->list = list;
}

void TextAttributeList::keepSorted() {
    if (!verifyAttributeOrder(attrList->list))
        replaceList(sortedCopy(attrList->list));
}

void TextAttributeList::change(PangoAttribute *attribute, Range const &range) {
    setByteRange(attribute, range);
    ListGuard guard(*this);
    pango_attr_list_change(attrList->list, attribute);
}

void TextAttributeList::addFGColorAttribute(Range const &range, Color const &color) {
    change(pango_attr_foreground_new(channel(color.red), channel(color.green), channel(color.blue)), range);
}

void TextAttributeList::addFontNameAttribute(Range const &range, std::string const &family) {
    change(pango_attr_family_new(family.c_str()), range);
}

void TextAttributeList::addFontSizeAttribute(Range const &range, double points) {
    change(pango_attr_size_new(saturatingInt(points * PANGO_SCALE)), range);
}

void TextAttributeList::addFontWeightAttribute(Range const &range, int weight) {
    change(pango_attr_weight_new(PangoWeight(weight)), range);
}

void TextAttributeList::addFontItalicAttribute(Range const &range, int italic) {
    change(pango_attr_style_new(italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL), range);
}

void TextAttributeList::addUnderlineAttribute(Range const &range, int underline) {
    change(pango_attr_underline_new(underline ? PANGO_UNDERLINE_SINGLE : PANGO_UNDERLINE_NONE), range);
}

void TextAttributeList::addStrikethroughAttribute(Range const &range, int strikethrough) {
    change(pango_attr_strikethrough_new(strikethrough), range);
}

void TextAttributeList::addCharacterSpacingAttribute(Range const &range, double factor) {
    change(newCharacterSpacingAttribute(factor), range);
}

void TextAttributeList::addFontFallbackAttribute(Range const &range, bool fallback) {
    change(pango_attr_fallback_new(fallback), range);
}

void TextAttributeList::addPangoAttribute(PangoAttribute *attribute) {
    if (!attribute)
        return;
    if (attribute->start_index > attribute->end_index)
        std::swap(attribute->start_index, attribute->end_index);
    ListGuard guard(*this);
    pango_attr_list_change(attrList->list, attribute);
}

std::vector<PangoAttribute *> TextAttributeList::pangoAttributes() const {
    static std::vector<int> const types = listedTypes();
    std::set<PangoAttribute *> found;
    {
        ListGuard guard(*this);
        PangoAttrIterator *it = pango_attr_list_get_iterator(attrList->list);
        do {
            for (int type : types)
                if (PangoAttribute *a = pango_attr_iterator_get(it, PangoAttrType(type)))
                    found.insert(a);
        } while (pango_attr_iterator_next(it));
        pango_attr_iterator_destroy(it);
    }
    return std::vector<PangoAttribute *>(found.begin(), found.end());
}

std::vector<boost::shared_ptr<PangoAttributeContainer>> TextAttributeList::attributeRuns() const {
    std::vector<boost::shared_ptr<PangoAttributeContainer>> runs;
    ListGuard guard(*this);
    PangoAttrIterator *it = pango_attr_list_get_iterator(attrList->list);
    do {
        gint start = 0, end = 0;
        pango_attr_iterator_range(it, &start, &end);
        GSList *attrs = pango_attr_iterator_get_attrs(it);
        for (GSList *l = attrs; l; l = l->next) {
            PangoAttribute *copy = pango_attribute_copy(static_cast<PangoAttribute *>(l->data));
            copy->start_index = guint(start);
            copy->end_index = guint(end);
            runs.push_back(boost::shared_ptr<PangoAttributeContainer>(new PangoAttributeContainer(copy)));
            pango_attribute_destroy(static_cast<PangoAttribute *>(l->data));
        }
        g_slist_free(attrs);
    } while (pango_attr_iterator_next(it));
    pango_attr_iterator_destroy(it);
    return runs;
}

TextAttributeList TextAttributeList::attributeListForSubRange(Range const &range) const {
    TextAttributeList sub;
    PangoAttribute bounds;
    setByteRange(&bounds, range);
    for (PangoAttribute *a : pangoAttributes()) {
        PangoAttribute *copy = pango_attribute_copy(a);
        copy->start_index = std::max(copy->start_index, bounds.start_index);
        copy->end_index = std::min(copy->end_index, bounds.end_index);
        if (copy->end_index > copy->start_index) {
            ListGuard guard(sub);
            pango_attr_list_change(sub.attrList->list, copy);
        } else {
            pango_attribute_destroy(copy);
        }
    }
    return sub;
}

void TextAttributeList::extendAttributes(int position, int length) {
    if (length <= 0)
        return;
    ListGuard guard(*this);
    PangoAttrList *empty = pango_attr_list_new();
    pango_attr_list_splice(attrList->list, empty, position > 1 ? position - 1 : 0, length);
    pango_attr_list_unref(empty);
}

void TextAttributeList::removeAttributes(int start, int length) {
    // The removed bytes [from, to), in 64 bits: offsets are unsigned in pango.
    int64_t const from = std::max(0, start), to = std::max(from, int64_t(start) + length);
    auto overlap = [&](int64_t s, int64_t e) { return std::max<int64_t>(0, std::min(e, to) - std::max(s, from)); };
    for (PangoAttribute *a : pangoAttributes()) {
        int64_t const before = overlap(0, a->start_index);
        int64_t const inside = overlap(a->start_index, a->end_index);
        a->start_index = movedOffset(a->start_index, -before);
        a->end_index = movedOffset(a->end_index, -before - inside);
    }
    // Unlisted attributes stayed where they were; order the list again
    // before it is walked.
    keepSorted();
    PangoAttrList *rebuilt = pango_attr_list_new();
    for (PangoAttribute *a : pangoAttributes())
        pango_attr_list_insert(rebuilt, pango_attribute_copy(a));
    replaceList(rebuilt);
}

void TextAttributeList::shiftAllAttributesByOffset(int offset) {
    for (PangoAttribute *a : pangoAttributes()) {
        a->start_index = movedOffset(a->start_index, offset);
        if (a->end_index != PANGO_ATTR_INDEX_TO_TEXT_END)
            a->end_index = movedOffset(a->end_index, offset);
    }
    keepSorted();
}

TextAttributeList TextAttributeList::textAttributeListBySettingFontSize(double points, Range const &range) const {
    TextAttributeList copy(*this);
    copy.addFontSizeAttribute(range, points);
    return copy;
}

void TextAttributeList::applyCharacterSpacing() {
    std::vector<PangoAttribute *> all = pangoAttributes();
    std::vector<PangoAttribute *> sizes, spacings;
    for (PangoAttribute *a : all) {
        if (attributeType(a) == PANGO_ATTR_SIZE)
            sizes.push_back(a);
        else if (isCustomCharacterSpacingAttribute(a))
            spacings.push_back(a);
    }
    for (PangoAttribute *s : sizes)
        for (PangoAttribute *c : spacings) {
            if (!(c->start_index <= s->end_index && c->end_index >= s->start_index))
                continue;
            int points = reinterpret_cast<PangoAttrSize *>(s)->size / PANGO_SCALE;
            PangoAttribute *letterSpacing =
                pango_attr_letter_spacing_new(saturatingInt(points * characterSpacingValue(c) * PANGO_SCALE));
            letterSpacing->start_index = std::max(c->start_index, s->start_index);
            letterSpacing->end_index = std::min(c->end_index, s->end_index);
            pango_attr_list_insert(attrList->list, letterSpacing);
        }
}

bool TextAttributeList::isCustomCharacterSpacingAttribute(PangoAttribute const *attribute) {
    return attributeType(attribute) == characterSpacingType();
}

TextAttributeList::AttributeType TextAttributeList::typeOfPangoAttribute(PangoAttribute const *attribute) {
    return AttributeType(attributeType(attribute));
}

Range TextAttributeList::rangeOfPangoAttribute(PangoAttribute const *attribute) {
    return Range(int(attribute->start_index), int(attribute->end_index));
}

template <> int TextAttributeList::valueOfPangoAttribute<int>(PangoAttribute const *attribute) {
    switch (attributeType(attribute)) {
    case PANGO_ATTR_SIZE:
        return reinterpret_cast<PangoAttrSize const *>(attribute)->size / PANGO_SCALE;
    case PANGO_ATTR_STYLE:
    case PANGO_ATTR_WEIGHT:
    case PANGO_ATTR_VARIANT:
    case PANGO_ATTR_STRETCH:
    case PANGO_ATTR_UNDERLINE:
    case PANGO_ATTR_STRIKETHROUGH:
    case PANGO_ATTR_RISE:
    case PANGO_ATTR_FALLBACK:
    case PANGO_ATTR_LETTER_SPACING:
    case PANGO_ATTR_GRAVITY:
    case PANGO_ATTR_GRAVITY_HINT:
        return reinterpret_cast<PangoAttrInt const *>(attribute)->value;
    default:
        throw std::runtime_error("Invalid template parameter");
    }
}

template <> double TextAttributeList::valueOfPangoAttribute<double>(PangoAttribute const *attribute) {
    if (!isCustomCharacterSpacingAttribute(attribute))
        throw std::runtime_error("Invalid template parameter");
    return characterSpacingValue(attribute);
}

template <> std::string TextAttributeList::valueOfPangoAttribute<std::string>(PangoAttribute const *attribute) {
    if (attributeType(attribute) != PANGO_ATTR_FAMILY)
        throw std::runtime_error("Invalid template parameter");
    char const *value = reinterpret_cast<PangoAttrString const *>(attribute)->value;
    return value ? value : "";
}

template <> Color TextAttributeList::valueOfPangoAttribute<Color>(PangoAttribute const *attribute) {
    switch (attributeType(attribute)) {
    case PANGO_ATTR_FOREGROUND:
    case PANGO_ATTR_BACKGROUND:
    case PANGO_ATTR_UNDERLINE_COLOR:
    case PANGO_ATTR_STRIKETHROUGH_COLOR: {
        return Color::FromPango(reinterpret_cast<PangoAttrColor const *>(attribute)->color);
    }
    default:
        throw std::runtime_error("Invalid template parameter");
    }
}

} // namespace Vantrel
