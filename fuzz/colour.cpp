// Colour strings: six characters are three pairs, each read as strtol reads
// it in base 16; any other length is opaque black.
#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace Vantrel;

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    std::string const text(reinterpret_cast<char const *>(data), size);
    Color const c(text);
    if (size != 6) {
        VantrelFuzz::check(c.red == 0 && c.green == 0 && c.blue == 0 && c.alpha == 1, "opaque black");
        return 0;
    }
    float const channels[] = {c.red, c.green, c.blue};
    for (int i = 0; i < 3; ++i) {
        char pair[3] = {text[size_t(2 * i)], text[size_t(2 * i + 1)], 0};
        long const value = std::strtol(pair, nullptr, 16);
        VantrelFuzz::check(value >= -255 && value <= 255, "a pair reads at most two digits");
        VantrelFuzz::check(channels[i] == float(value) / 255.0f, "each pair as strtol reads it");
    }
    VantrelFuzz::check(c.alpha == 1, "opaque");
    uint32_t const packed = c.ToPacked();
    VantrelFuzz::check(packed >> 24 == 255, "packs opaque");
    return 0;
}
