// Text offsets where text is laid out: any bytes as the text of a callout
// and a caption, with any offsets as selection and misspelling marks, the
// caption's wrap and split indexes through ExportText, and an editing
// session's moves and clicks. Indexes and selections stay inside the text;
// reads outside it are AddressSanitizer's to catch.
#include "FuzzCheck.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <string>
#include <vector>

using namespace Vantrel;
using VantrelFuzz::offset;

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    PangoFonts::setLoadFallbackFonts(false);
    FuzzedDataProvider in(data, size);
    std::string const text = in.ConsumeRandomLengthString(200);
    int const n = int(text.size());
    int const characters = UTF8StringUtil::characterOffsetFromByteOffset(text, n);

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
    VantrelFuzz::ExportedInside observer(n);
    Caption::ExportText(observer, text, attributes, indexes);

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
