#include <vantrel/text/TextAttributeList.h>

#include "CharacterSpacingAttribute.h"

#include <algorithm>
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

guint16 channel(float c) { return guint16(c * 65535.0f); }

} // namespace

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
    other.lockList();
    attrList->list = pango_attr_list_copy(other.attrList->list);
    other.unlockList();
    if (!attrList->list) // pango gives null for a copy of an empty list
        attrList->list = pango_attr_list_new();
}

TextAttributeList &TextAttributeList::operator=(TextAttributeList const &other) {
    if (this == &other)
        return *this;
    lockList();
    pango_attr_list_unref(attrList->list);
    attrList->list = pango_attr_list_copy(other.attrList->list);
    if (!attrList->list)
        attrList->list = pango_attr_list_new();
    unlockList();
    return *this;
}

TextAttributeList::~TextAttributeList() {
    pango_attr_list_unref(attrList->list);
    delete attrList;
    attrList = nullptr;
}

PangoAttrList *TextAttributeList::pangoAttrList() const { return attrList->list; }

void TextAttributeList::change(PangoAttribute *attribute, Range const &range) {
    attribute->start_index = guint(range.start());
    attribute->end_index = guint(range.end());
    lockList();
    pango_attr_list_change(attrList->list, attribute);
    unlockList();
}

void TextAttributeList::addFGColorAttribute(Range const &range, Color const &color) {
    change(pango_attr_foreground_new(channel(color.red), channel(color.green), channel(color.blue)), range);
}

void TextAttributeList::addFontNameAttribute(Range const &range, std::string const &family) {
    change(pango_attr_family_new(family.c_str()), range);
}

void TextAttributeList::addFontSizeAttribute(Range const &range, double points) {
    double units = points * 1024.0;
    // Truncated; sizes beyond what an int holds saturate rather than being undefined.
    int size = units >= 2147483647.0    ? 2147483647
               : units <= -2147483648.0 ? -2147483647 - 1
               : units == units         ? int(units)
                                        : 0;
    change(pango_attr_size_new(size), range);
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
    lockList();
    pango_attr_list_change(attrList->list, attribute);
    unlockList();
}

std::vector<PangoAttribute *> TextAttributeList::pangoAttributes() const {
    static std::vector<int> const types = listedTypes();
    std::set<PangoAttribute *> found;
    lockList();
    PangoAttrIterator *it = pango_attr_list_get_iterator(attrList->list);
    do {
        for (int type : types)
            if (PangoAttribute *a = pango_attr_iterator_get(it, PangoAttrType(type)))
                found.insert(a);
    } while (pango_attr_iterator_next(it));
    pango_attr_iterator_destroy(it);
    unlockList();
    return std::vector<PangoAttribute *>(found.begin(), found.end());
}

std::vector<boost::shared_ptr<PangoAttributeContainer>> TextAttributeList::attributeRuns() const {
    std::vector<boost::shared_ptr<PangoAttributeContainer>> runs;
    lockList();
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
    unlockList();
    return runs;
}

TextAttributeList TextAttributeList::attributeListForSubRange(Range const &range) const {
    TextAttributeList sub;
    for (PangoAttribute *a : pangoAttributes()) {
        PangoAttribute *copy = pango_attribute_copy(a);
        copy->start_index = std::max(copy->start_index, guint(range.start()));
        copy->end_index = std::min(copy->end_index, guint(range.end()));
        if (copy->end_index > copy->start_index) {
            sub.lockList();
            pango_attr_list_change(sub.attrList->list, copy);
            sub.unlockList();
        } else {
            pango_attribute_destroy(copy);
        }
    }
    return sub;
}

void TextAttributeList::extendAttributes(int position, int length) {
    lockList();
    PangoAttrList *empty = pango_attr_list_new();
    pango_attr_list_splice(attrList->list, empty, position - 1 > 0 ? position - 1 : 0, length);
    pango_attr_list_unref(empty);
    unlockList();
}

void TextAttributeList::removeAttributes(int start, int length) {
    Range removed(start, int(int64_t(start) + length));
    for (PangoAttribute *a : pangoAttributes()) {
        Range before = Range(0, int(a->start_index)).intersection(removed);
        Range inside = Range(int(a->start_index), int(a->end_index)).intersection(removed);
        if (before.length() > 0) {
            a->start_index -= guint(before.length());
            a->end_index -= guint(before.length());
        }
        if (inside.length() > 0)
            a->end_index -= guint(inside.length());
    }
    PangoAttrList *rebuilt = pango_attr_list_new();
    for (PangoAttribute *a : pangoAttributes())
        pango_attr_list_insert(rebuilt, pango_attribute_copy(a));
    lockList();
    pango_attr_list_unref(attrList->list);
    attrList->list = rebuilt;
    unlockList();
}

void TextAttributeList::shiftAllAttributesByOffset(int offset) {
    for (PangoAttribute *a : pangoAttributes()) {
        a->start_index += guint(offset);
        a->end_index += guint(offset);
    }
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
            int points = reinterpret_cast<PangoAttrSize *>(s)->size / 1024;
            double units = points * characterSpacingValue(c) * 1024.0;
            int spacing = units >= 2147483647.0    ? 2147483647
                          : units <= -2147483648.0 ? -2147483647 - 1
                          : units == units         ? int(units)
                                                   : 0;
            PangoAttribute *letterSpacing = pango_attr_letter_spacing_new(spacing);
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
        return reinterpret_cast<PangoAttrSize const *>(attribute)->size / 1024;
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
        PangoColor const &c = reinterpret_cast<PangoAttrColor const *>(attribute)->color;
        return Color(c.red / 65535.0f, c.green / 65535.0f, c.blue / 65535.0f, 1.0f);
    }
    default:
        throw std::runtime_error("Invalid template parameter");
    }
}

} // namespace Vantrel
