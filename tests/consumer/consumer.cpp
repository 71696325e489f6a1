// An outside program: it sees only the installed headers and library.
#include <vantrel/Vantrel.h>

#include <cstdio>
#include <cstring>
#include <vector>

static uint32_t at(std::vector<uint32_t> const &buffer, int width, int x, int row) { return buffer[row * width + x]; }

int main() {
    int const width = 40, height = 30;
    int failures = 0;
    for (bool bottomUp : {false, true}) {
        std::vector<uint32_t> buffer(width * height, 0);
        Vantrel::Bitmap bitmap(buffer.data(), width, bottomUp ? -height : height, width * 4);
        Vantrel::CrossPlatformDrawingContext context(&bitmap);
        // An oval in the top half of the picture.
        Vantrel::OvalShape oval(Vantrel::Color(1, 0, 0), "solid", Vantrel::Point(0, 1), Vantrel::Color(0, 0, 0), 0,
                                "solid", Vantrel::Rect(0, 0, 40, 14));
        oval.drawIntoContext(&context, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
        int top = bottomUp ? height - 1 - 7 : 7; // memory row of the visual row 7
        int bottom = bottomUp ? height - 1 - 25 : 25;
        if (at(buffer, width, 20, top) != 0xFFFF0000u || at(buffer, width, 20, bottom) != 0u) {
            std::printf("%s buffer: unexpected pixels %08x %08x\n", bottomUp ? "bottom-up" : "top-down",
                        at(buffer, width, 20, top), at(buffer, width, 20, bottom));
            ++failures;
        }
    }
    std::printf(failures ? "consumer: FAILED\n" : "consumer: ok\n");
    return failures ? 1 : 0;
}
