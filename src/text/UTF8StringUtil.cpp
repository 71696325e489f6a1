#include <vantrel/text/UTF8StringUtil.h>

#include <algorithm>
#include <cstring>
#include <glib.h>
#include <pango/pango.h>

namespace Vantrel {

namespace {

// Byte offset of the given number of characters from the start, walked with
// glib's skip table but never beyond size.
size_t advance(char const *text, size_t size, long characters) {
    size_t pos = 0;
    for (long i = 0; i < characters && pos < size; ++i)
        pos += size_t(g_utf8_skip[static_cast<unsigned char>(text[pos])]);
    return std::min(pos, size);
}

// Characters that begin before byte offset end.
int count(char const *text, size_t end) {
    int n = 0;
    for (size_t pos = 0; pos < end; pos += size_t(g_utf8_skip[static_cast<unsigned char>(text[pos])]))
        ++n;
    return n;
}

} // namespace

int UTF8StringUtil::byteOffsetFromCharacterOffset(std::string const &text, int characterOffset) {
    return int(advance(text.data(), text.size(), characterOffset));
}

int UTF8StringUtil::characterOffsetFromByteOffset(std::string const &text, int byteOffset) {
    size_t end = byteOffset <= 0 ? 0 : std::min(size_t(byteOffset), text.size());
    return count(text.data(), end);
}

Range UTF8StringUtil::byteOffsetRangeFromCharacterOffsetRange(std::string const &text, Range const &characters) {
    size_t size = std::strlen(text.c_str());
    return Range(int(advance(text.data(), size, characters.start())),
                 int(advance(text.data(), size, characters.end())));
}

Range UTF8StringUtil::byteOffsetRangeOfText(std::string const &text) {
    return Range(0, byteOffsetFromCharacterOffset(text, length(text)));
}

int UTF8StringUtil::length(std::string const &text) {
    if (text.empty())
        return 0;
    return int(g_utf8_strlen(text.c_str(), gssize(std::min(text.size(), size_t(G_MAXSSIZE)))));
}

void UTF8StringUtil::removeCharacterRange(std::string &text, Range const &characters) {
    if (characters.start() < 0 || characters.start() > length(text)) {
        text.erase(text.size() + 1, 0); // the string class's own out-of-range error
        return;
    }
    Range bytes = byteOffsetRangeFromCharacterOffsetRange(text, characters);
    size_t start = size_t(bytes.start());
    size_t count = bytes.length() > 0 ? size_t(bytes.length()) : 0;
    text.erase(start, std::min(count, text.size() - start));
}

bool UTF8StringUtil::isRightToLeftLanguage(std::string const &text) {
    if (text.empty())
        return false;
    gunichar c = g_utf8_get_char_validated(text.c_str(), gssize(std::min(text.size(), size_t(0x7fffffff))));
    // Deprecated in pango for its bidi algorithm, but exactly the per-character class wanted here.
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    PangoDirection direction = pango_unichar_direction(c);
    G_GNUC_END_IGNORE_DEPRECATIONS
    return direction == PANGO_DIRECTION_RTL || direction == PANGO_DIRECTION_WEAK_RTL;
}

} // namespace Vantrel
