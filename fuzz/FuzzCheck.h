// What the harnesses share: a property check that stops the run where a
// property fails, a small canvas to draw on, text offsets, and an export
// observer that checks where exported text lies.
#pragma once

#include <vantrel/Vantrel.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace VantrelFuzz {

// Aborts, so that libFuzzer (or the replay test) reports the input.
inline void check(bool holds, char const *property) {
    if (!holds) {
        std::fprintf(stderr, "property failed: %s\n", property);
        std::abort();
    }
}

// A cleared 64 by 64 bitmap with a context over it.
struct Canvas {
    Vantrel::Bitmap bitmap{64, 64};
    Vantrel::CrossPlatformDrawingContext context{(bitmap.clear(), &bitmap)};

    bool blank() const {
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x)
                if (bitmap.bufAt(x, y)[3] != 0)
                    return false;
        return true;
    }
};

// An offset near a text of textSize bytes most of the time, anywhere in the
// int range else.
inline int offset(FuzzedDataProvider &in, int textSize) {
    if (in.ConsumeIntegralInRange<int>(0, 7) == 0)
        return in.ConsumeIntegral<int>();
    return in.ConsumeIntegralInRange<int>(-4, textSize + 4);
}

// Checks that ExportText hands over only text and breaks inside a text of
// size bytes.
struct ExportedInside : Vantrel::ICaptionExportObserver {
    explicit ExportedInside(int textSize) : size(textSize) {}
    int size;
    void exportText(int position, std::string const &text) override {
        check(position >= 0 && position + int(text.size()) <= size, "exported text lies in the text");
    }
    void exportLineBreak(int position, bool) override {
        check(position >= 0 && position <= size, "breaks lie in the text");
    }
    void exportBold(int, bool) override {}
    void exportItalic(int, bool) override {}
};

} // namespace VantrelFuzz
