// Runs every fuzz harness over its seed corpus and over the inputs that once
// made it fail (fuzz/regressions/NAME/), each file once. A harness aborts on
// a failed property, and the sanitizers of this build catch the rest.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int replay_svg(uint8_t const *, size_t);
extern "C" int replay_custompath(uint8_t const *, size_t);
extern "C" int replay_colour(uint8_t const *, size_t);
extern "C" int replay_attributes(uint8_t const *, size_t);
extern "C" int replay_utf8(uint8_t const *, size_t);
extern "C" int replay_textoffsets(uint8_t const *, size_t);
extern "C" int replay_union(uint8_t const *, size_t);
extern "C" int replay_callouts(uint8_t const *, size_t);

namespace {

struct Harness {
    char const *name;
    int (*run)(uint8_t const *, size_t);
};

class FuzzReplay : public ::testing::TestWithParam<Harness> {};

TEST_P(FuzzReplay, SeedsAndRegressionsPass) {
    namespace fs = std::filesystem;
    int files = 0;
    for (char const *folder : {"corpus", "regressions"}) {
        fs::path const dir = fs::path(VANTREL_FUZZ_DIR) / folder / GetParam().name;
        if (!fs::is_directory(dir))
            continue;
        for (auto const &entry : fs::directory_iterator(dir)) {
            if (!entry.is_regular_file() || entry.path().filename().string()[0] == '.')
                continue;
            SCOPED_TRACE(entry.path().string());
            std::ifstream in(entry.path(), std::ios::binary);
            std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            EXPECT_EQ(GetParam().run(bytes.data(), bytes.size()), 0);
            ++files;
        }
    }
    EXPECT_GT(files, 0) << "no seed inputs for " << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(Harnesses, FuzzReplay,
                         ::testing::Values(Harness{"svg", replay_svg}, Harness{"custompath", replay_custompath},
                                           Harness{"colour", replay_colour}, Harness{"attributes", replay_attributes},
                                           Harness{"utf8", replay_utf8}, Harness{"textoffsets", replay_textoffsets},
                                           Harness{"union", replay_union}, Harness{"callouts", replay_callouts}),
                         [](::testing::TestParamInfo<Harness> const &info) { return std::string(info.param.name); });

} // namespace
