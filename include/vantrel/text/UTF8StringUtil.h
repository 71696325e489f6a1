// Conversions between the two units text is counted in: UTF-8 byte offsets
// (attribute and line ranges) and character offsets (selections, carets).
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Range.h>

#include <cstddef>
#include <string>

namespace Vantrel {

// None of these reads outside the text: offsets beyond the text count as its
// end, negative offsets as its start, and a character cut off by the end of
// the text ends there. Results for offsets inside valid UTF-8 are glib's.
class VANTREL_EXPORT UTF8StringUtil {
public:
    static int byteOffsetFromCharacterOffset(std::string const &text, int characterOffset);
    static int characterOffsetFromByteOffset(std::string const &text, int byteOffset);
    // Both ends converted, over the text up to its first zero byte.
    static Range byteOffsetRangeFromCharacterOffsetRange(std::string const &text, Range const &characters);
    // (0, byte count of all characters).
    static Range byteOffsetRangeOfText(std::string const &text);
    // Characters, counted by g_utf8_strlen over the string's size.
    static int length(std::string const &text);
    // Erases a range of characters. A start before the text or past its end
    // throws std::out_of_range, as std::string::erase does; the length is cut
    // to what the text holds.
    static void removeCharacterRange(std::string &text, Range const &characters);
    // Whether the first character is strongly or weakly right-to-left.
    static bool isRightToLeftLanguage(std::string const &text);
    static bool isRightToLeftLanguage(std::nullptr_t const &) { return false; }
};

} // namespace Vantrel
