// UTF-8 offsets: the offset conversions with any offsets on any bytes, and
// ExportText with any indexes. Nothing here lays out text, so inputs run
// fast; the users of these offsets that lay out text have a harness of
// their own (textoffsets.cpp). Results are offsets of the text; reads outside
// it are AddressSanitizer's to catch.
#include "FuzzCheck.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Vantrel;
using VantrelFuzz::offset;

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    FuzzedDataProvider in(data, size);
    std::string const text = in.ConsumeRandomLengthString(200);
    int const n = int(text.size());
    // length() stops at a zero byte, as g_utf8_strlen does; the walk over all
    // bytes counts the characters an offset can name.
    int const characters = UTF8StringUtil::characterOffsetFromByteOffset(text, n);
    int const length = UTF8StringUtil::length(text);
    VantrelFuzz::check(length >= 0 && length <= characters && characters <= n, "at most one character per byte");
    for (int k = 0; k < 4; ++k) {
        int const b = UTF8StringUtil::byteOffsetFromCharacterOffset(text, offset(in, characters));
        VantrelFuzz::check(b >= 0 && b <= n, "byte offsets lie in the text");
        int const c = UTF8StringUtil::characterOffsetFromByteOffset(text, offset(in, n));
        VantrelFuzz::check(c >= 0 && c <= characters, "character offsets lie in the text");
        Range const r = UTF8StringUtil::byteOffsetRangeFromCharacterOffsetRange(
            text, Range(offset(in, characters), offset(in, characters)));
        (void)r;
    }
    std::string shorter = text;
    Range const removed(offset(in, characters), offset(in, characters));
    try {
        UTF8StringUtil::removeCharacterRange(shorter, removed);
        VantrelFuzz::check(shorter.size() <= text.size(), "a removal removes");
    } catch (std::out_of_range const &) {
        // As std::string::erase: a start outside the text.
        VantrelFuzz::check(removed.start() < 0 || removed.start() > length, "only a start outside throws");
    }
    (void)UTF8StringUtil::isRightToLeftLanguage(text);

    TextAttributeList attributes;
    for (int k = in.ConsumeIntegralInRange<int>(0, 3); k > 0; --k) {
        Range const r(offset(in, n), offset(in, n));
        if (in.ConsumeBool())
            attributes.addFontWeightAttribute(r, in.ConsumeBool() ? 700 : 400);
        else
            attributes.addFontItalicAttribute(r, in.ConsumeBool() ? 1 : 0);
    }
    std::vector<int> indexes;
    for (int k = in.ConsumeIntegralInRange<int>(0, 6); k > 0; --k)
        indexes.push_back(offset(in, n));
    VantrelFuzz::ExportedInside observer(n);
    Caption::ExportText(observer, text, attributes, indexes);
    (void)Caption::CharacterIndexFromUTF8Index(text, offset(in, n));
    (void)Caption::UTF8IndexFromCharacterIndex(text, offset(in, characters));
    return 0;
}
