// The first text a host draws makes sure of six fallback families, all
// missing on a plain Debian machine. Measured in a fresh process over a search
// folder of at least 500 font files, against one plain pass that opens each
// candidate file with FreeType and reads its names.
#include "BenchTargets.h"

#include <vantrel/Vantrel.h>

#include "platform/FontFolders.h"
#include "text/Fonts.h"

#include <cstdlib>
#include <filesystem>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SFNT_NAMES_H
#include <iostream>
#include <string>
#include <unistd.h>

using namespace Vantrel;
namespace fs = std::filesystem;

namespace {

std::string gFolder;

// A folder of links to the installed fonts under distinct names.
std::string makeFontFolder(int count) {
    std::vector<fs::path> sources;
    std::error_code error;
    for (auto const &entry : fs::recursive_directory_iterator("/usr/share/fonts", error))
        if (entry.path().extension() == ".ttf")
            sources.push_back(entry.path());
    std::string folder = (fs::temp_directory_path() / ("vantrel-bench-fonts-" + std::to_string(getpid()))).string();
    fs::create_directories(folder);
    for (int i = 0; i < count && !sources.empty(); ++i)
        fs::create_symlink(sources[size_t(i) % sources.size()], folder + "/face-" + std::to_string(i) + ".ttf", error);
    return folder;
}

// What any search must do once: open every face of every candidate and read its names.
size_t plainPass(std::vector<std::string> const &files) {
    FT_Library library;
    FT_Init_FreeType(&library);
    size_t names = 0;
    for (std::string const &path : files) {
        for (FT_Long index = 0, faces = 1; index < faces; ++index) {
            FT_Face face;
            if (FT_New_Face(library, path.c_str(), index, &face) != 0)
                break;
            faces = face->num_faces;
            names += FT_Get_Postscript_Name(face) != nullptr;
            FT_UInt count = FT_Get_Sfnt_Name_Count(face);
            for (FT_UInt i = 0; i < count; ++i) {
                FT_SfntName entry;
                names += FT_Get_Sfnt_Name(face, i, &entry) == 0;
            }
            FT_Done_Face(face);
        }
    }
    FT_Done_FreeType(library);
    return names;
}

void BM_OnePlainScan(benchmark::State &state) {
    std::vector<std::string> files = fontCandidates({gFolder});
    state.counters["files"] = double(files.size());
    for (auto _ : state)
        benchmark::DoNotOptimize(plainPass(files));
}

// Only the first call searches; the process is fresh when this runs.
void BM_FirstFallbackLoad(benchmark::State &state) {
    for (auto _ : state)
        loadFallbackFonts(fontSearchFolders());
}

} // namespace

BENCHMARK(BM_OnePlainScan)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FirstFallbackLoad)->Iterations(1)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv) {
    gFolder = makeFontFolder(512);
    CrossPlatformDrawingContext::addFontSearchFolder(gFolder);
    plainPass(fontCandidates({gFolder})); // the files in the page cache for both
    std::cerr << "(the six warnings below are expected: no fallback family is installed)\n";
    int status = VantrelBench::runWithTargets(
        argc, argv,
        {{"first-text-vs-one-scan", {"BM_FirstFallbackLoad/iterations:1"}, {"BM_OnePlainScan/iterations:3"}}});
    std::error_code error;
    fs::remove_all(gFolder, error);
    return status;
}
