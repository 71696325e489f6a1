#include <vantrel/Vantrel.h>

#include "text/Fonts.h"

#include <glib-object.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <unistd.h>

using namespace Vantrel;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

namespace {

std::string const kFixture = VANTREL_TEST_FONTS_DIR;

bool contains(std::vector<std::string> const &files, std::string const &name) {
    return std::any_of(files.begin(), files.end(), [&](std::string const &f) {
        return f.size() >= name.size() && f.compare(f.size() - name.size(), name.size(), name) == 0;
    });
}

int count(std::string const &text, std::string const &part) {
    int n = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++n;
    return n;
}

} // namespace

TEST(Fonts, CandidateFilesAndMatchingRules) {
    std::vector<std::string> folders{kFixture};
    // A family in the path matches without opening the file.
    EXPECT_TRUE(contains(findFontFiles("vantreltestfamily", folders), "/VantrelTestFamily-Regular.ttf"));
    // "fon" is no candidate; "FON" is, and matches by its names.
    std::vector<std::string> mono = findFontFiles("DejaVu Sans Mono", folders);
    EXPECT_TRUE(contains(mono, "/mono-uppercase.FON"));
    EXPECT_FALSE(contains(mono, "/mono-lowercase.fon"));
    // A PostScript name matches a family without its blanks.
    EXPECT_TRUE(contains(findFontFiles("DejaVu SansMono", folders), "/mono-uppercase.FON"));
    // Family and style together.
    EXPECT_TRUE(contains(findFontFiles("dejavu sans book", folders), "/VantrelTestFamily-Regular.ttf"));
    // Raw name table entries, whatever their id: the copyright names Bitstream.
    EXPECT_TRUE(contains(findFontFiles("Bitstream", folders), "/VantrelTestFamily-Regular.ttf"));
    // Hidden files, subfolders of a host folder and files that are not fonts take no part.
    std::vector<std::string> all = findFontFiles("", folders);
    EXPECT_FALSE(contains(all, "/.hidden-serif.ttf"));
    EXPECT_FALSE(contains(all, "/nested-bold.ttf"));
    EXPECT_TRUE(contains(all, "/notes.txt")); // an empty family matches every candidate by path
    EXPECT_FALSE(contains(findFontFiles("not a font", folders), "/notes.txt"));
    // A missing folder gives no files and no error.
    EXPECT_TRUE(findFontFiles("VantrelTestFamily", {"/no/such/folder"}).empty());
}

TEST(Fonts, FamiliesAreSearchedOncePerProcess) {
    std::vector<std::string> folders{kFixture};
    CaptureStderr();
    EXPECT_FALSE(loadFont("Vantrel Missing Once", folders));
    EXPECT_FALSE(loadFont("Vantrel Missing Once", folders));
    EXPECT_FALSE(loadFont("vantrel missing once", folders)); // remembered by exact text
    std::string err = GetCapturedStderr();
    EXPECT_EQ(count(err, "WARNING: PangoUtil couldn't load font: 'Vantrel Missing Once'\n"), 1);
    EXPECT_EQ(count(err, "WARNING: PangoUtil couldn't load font: 'vantrel missing once'\n"), 1);

    // A failed family is not revived by a folder added later.
    CaptureStderr();
    EXPECT_FALSE(loadFont("VantrelTestFamily-Late", {}));
    EXPECT_FALSE(loadFont("VantrelTestFamily-Late", folders));
    EXPECT_EQ(count(GetCapturedStderr(), "WARNING"), 1);

    // A family found in the fixture registers its file and replaces the font map.
    PangoFontMap *before = fontMap();
    g_object_ref(before);
    EXPECT_TRUE(loadFont("VantrelTestFamily", folders));
    EXPECT_NE(fontMap(), before);
    EXPECT_TRUE(loadFont("VantrelTestFamily", {}));
    g_object_unref(before);
}

TEST(Fonts, FallbackFamilies) {
    // In a process of its own, so that no earlier search is remembered: switched
    // off nothing is searched; switched on, the six families missing on this
    // machine warn once each, in order, and never again.
    EXPECT_EXIT(
        {
            PangoFonts::setLoadFallbackFonts(false);
            loadFallbackFonts({});
            std::fputs("MARK\n", stderr);
            PangoFonts::setLoadFallbackFonts(true);
            loadFallbackFonts({});
            loadFallbackFonts({});
            std::exit(0);
        },
        testing::ExitedWithCode(0),
        "^MARK\nWARNING: PangoUtil couldn't load font: 'Arial'\n(WARNING[^\n]*\n){4}"
        "WARNING: PangoUtil couldn't load font: 'Geeza Pro'\n$");
}

TEST(Fonts, FontsOfAttributes) {
    TextAttributeList attributes;
    attributes.addFontNameAttribute(Range(0, 4), "Vantrel Attribute Missing");
    attributes.addFontNameAttribute(Range(4, 8), "Vantrel Attribute Later");
    CaptureStderr();
    EXPECT_FALSE(loadFontsOfAttributes(attributes)); // stops at the first failure
    EXPECT_FALSE(loadFontsOfAttributes(attributes));
    std::string err = GetCapturedStderr();
    EXPECT_EQ(count(err, "Vantrel Attribute Missing"), 1);
    EXPECT_EQ(count(err, "Vantrel Attribute Later"), 0);
    TextAttributeList plain;
    plain.addFontSizeAttribute(Range(0, 3), 12);
    EXPECT_TRUE(loadFontsOfAttributes(plain));
}

namespace {

long residentKilobytes() {
    long size = 0, resident = 0;
    if (FILE *f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%ld %ld", &size, &resident) != 2)
            resident = 0;
        std::fclose(f);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void drawText(CrossPlatformDrawingContext &context, std::string const &family) {
    TextCalloutProperties p;
    p.text = "Redrawn on every mouse move";
    p.textRect = Rect(0, 0, 120, 60);
    TextAttributeList a;
    Range all(0, int(p.text.size()));
    a.addFontNameAttribute(all, family);
    a.addFontSizeAttribute(all, 14);
    a.addFGColorAttribute(all, Color(0, 0, 0));
    context.DrawTextW(p, a, nullptr);
}

} // namespace

// pango's caches fill in the first draws and then hold: a long session of
// redraws, unknown families included, keeps its memory. Under
// AddressSanitizer freed memory waits in quarantine, so only the leak check
// at exit speaks there.
TEST(Fonts, RepeatedDrawsHoldTheirMemory) {
    PangoFonts::setLoadFallbackFonts(false);
#if defined(__SANITIZE_ADDRESS__)
    bool const measured = false;
    int const draws = 400;
#else
    bool const measured = true;
    int const draws = 10000;
#endif
    Bitmap bitmap(120, 60);
    CrossPlatformDrawingContext context(&bitmap);
    char const *const families[] = {"DejaVu Sans", "No Such Family A", "DejaVu Serif", "No Such Family B"};
    CaptureStderr(); // the unknown families are reported once each
    for (int i = 0; i < 400; ++i)
        drawText(context, families[i % 4]);
    long const settled = residentKilobytes();
    for (int i = 0; i < draws; ++i)
        drawText(context, families[i % 4]);
    long const after = residentKilobytes();
    // Each new unknown family costs its own search and fontset, once.
    for (int i = 0; i < 100; ++i)
        drawText(context, "Unknown Family " + std::to_string(i));
    long const afterUnknown = residentKilobytes();
    GetCapturedStderr();
    if (measured) {
        EXPECT_LT(after - settled, 512) << "kB grown over " << draws << " draws";
        EXPECT_LT(afterUnknown - after, 100 * 128) << "kB for 100 unknown families";
    }
}
