// UTF-8 offsets: the offset conversions with any offsets on any bytes, then
// the same text through selection and misspelling marks, caption wrap and
// split indexes and ExportText, and editing moves. Results are offsets of
// the text; reads outside it are AddressSanitizer's to catch.
#include "FuzzCheck.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Vantrel;
using VantrelFuzz::offset;

namespace {

struct Exported : ICaptionExportObserver {
    int size = 0;
    void exportText(int position, std::string const &text) override {
        VantrelFuzz::check(position >= 0 && position + int(text.size()) <= size, "exported text lies in the text");
    }
    void exportLineBreak(int position, bool) override {
        VantrelFuzz::check(position >= 0 && position <= size, "breaks lie in the text");
    }
    void exportBold(int, bool) override {}
    void exportItalic(int, bool) override {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    PangoFonts::setLoadFallbackFonts(false);
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
    attributes.addFontNameAttribute(Range(0, n), "DejaVu Sans");
    attributes.addFontSizeAttribute(Range(0, n), 10);
    TextCalloutProperties properties;
    properties.text = text;
    properties.textRect = Rect(0, 0, 64, 64);
    VantrelFuzz::Canvas canvas;
    Range const selection(offset(in, characters), offset(in, characters));
    canvas.context.DrawTextSelection(properties, attributes, selection, Color(0, 0, 1, 0.5f), Color(0, 0, 0));
    std::vector<Range> misspelled;
    for (int k = in.ConsumeIntegralInRange<int>(0, 3); k > 0; --k)
        misspelled.emplace_back(offset(in, characters), offset(in, characters));
    canvas.context.DrawMisspelledRanges(properties, attributes, misspelled, Color(1, 0, 0));

    CaptionProperties caption;
    caption.text = text;
    caption.rect = Rect(0, 0, 120, 40);
    caption.fontName = "DejaVu Sans";
    caption.fontSize = 10;
    Caption shown(caption, TextAttributeList(), 2);
    std::vector<int> indexes = shown.GetWordWrapUTF8Indexes();
    for (int i : indexes)
        VantrelFuzz::check(i >= 0 && i <= n, "wrap indexes lie in the text");
    int const split = shown.SplitUTF8Index();
    VantrelFuzz::check(split >= -1 && split <= n, "the split lies in the text");
    (void)shown.GetWordWrapCharacterIndexes();
    for (int k = in.ConsumeIntegralInRange<int>(0, 3); k > 0; --k)
        indexes.push_back(offset(in, n));
    Exported observer;
    observer.size = n;
    Caption::ExportText(observer, text, attributes, indexes);
    (void)Caption::CharacterIndexFromUTF8Index(text, offset(in, n));
    (void)Caption::UTF8IndexFromCharacterIndex(text, offset(in, characters));

    TextCallout callout(Rect(-40, -20, 40, 20), properties, attributes);
    TextEditingSession session(&callout, nullptr);
    for (int step = 0; step < 8 && in.remaining_bytes() > 0; ++step) {
        switch (in.ConsumeIntegralInRange<int>(0, 7)) {
        case 0:
            session.setSelection(Range(offset(in, characters), offset(in, characters)));
            break;
        case 1:
            session.handleMouseDown(Point(in.ConsumeFloatingPoint<double>(), in.ConsumeFloatingPoint<double>()));
            break;
        case 2:
            session.moveSelectionRightAndModifySelection();
            break;
        case 3:
            session.moveSelectionWordLeft();
            break;
        case 4:
            session.moveSelectionDownAndModifySelection();
            break;
        case 5:
            session.moveSelectionToEndOfLine();
            break;
        case 6:
            session.moveSelectionUp();
            break;
        default:
            session.selectAll();
            break;
        }
        Range const s = session.selection();
        bool const unset = s.start() == -1 && s.end() == -1;
        VantrelFuzz::check(unset ||
                               (s.start() >= 0 && s.start() <= characters && s.end() >= 0 && s.end() <= characters),
                           "the selection lies in the text");
    }
    callout.drawSelectionIntoContext(&canvas.context, session.selection(), Color(0, 0, 1, 0.5f), Color(0, 0, 0));
    return 0;
}
