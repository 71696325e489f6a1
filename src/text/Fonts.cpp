#include "text/Fonts.h"

#include "platform/FontFolders.h"
#include "text/TextLayout.h"

#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/text/PangoFonts.h>
#include <vantrel/text/TextAttributeList.h>

#include <atomic>
#include <cctype>
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SFNT_NAMES_H
#include <iostream>
#include <locale>
#include <map>
#include <mutex>
#include <pango/pangocairo.h>
#include <set>
#include <unordered_map>

namespace Vantrel {

namespace {

// Registrations so far: a thread's font map made before the latest one is
// made anew, since a font map reads fontconfig's fonts once.
unsigned sRegistrations = 0;
std::mutex sFontMapMutex;
std::set<std::string> sLoadedFonts;
std::set<std::string> sFailedFonts;
std::vector<std::string> sFontSearchFolders;
std::atomic<bool> sLoadFallbackFonts{true}; // a host may set it from any thread

PangoFontMap *newFontMap() {
    PangoFontMap *map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72.0);
    // The map copies fontconfig's font list at its first use; listing the
    // families makes that happen now, under the layout lock, where no
    // registration can change the list halfway.
    PangoFontFamily **families = nullptr;
    int count = 0;
    pango_font_map_list_families(map, &families, &count);
    g_free(families);
    return map;
}

// The font map of one thread, released when the thread ends. Layouts keep a
// reference to their map through their context, so one made before a
// replacement stays valid.
struct ThreadFontMap {
    PangoFontMap *map = nullptr;
    unsigned registrations = 0;
    ~ThreadFontMap() {
        if (map)
            g_object_unref(map);
    }
};
thread_local ThreadFontMap tFontMap;

// Lower case through the global locale's ctype, byte by byte.
std::string lowered(std::string text) {
    std::use_facet<std::ctype<char>>(std::locale()).tolower(&text[0], &text[0] + text.size());
    return text;
}

std::string withoutWhitespace(std::string const &text) {
    std::string out;
    for (char c : text)
        if (!std::isspace(static_cast<unsigned char>(c)))
            out += c;
    return out;
}

// The names of font files that matching looks at are read once per process,
// and each distinct name is kept once: font files repeat their copyright and
// licence texts by the hundred. A family searched for later is matched
// against these instead of opening every file again, with the same results.
class NamePool {
public:
    uint32_t intern(std::string name) {
        auto found = ids.emplace(std::move(name), uint32_t(raw.size()));
        if (found.second)
            raw.push_back(&found.first->first);
        return found.first->second;
    }
    size_t size() const { return raw.size(); }
    // The name lowered by the global locale; lowered again if the locale changed.
    std::string const &loweredName(uint32_t id, std::string const &localeName) {
        if (loweredIn != localeName) {
            lowered.clear();
            loweredIn = localeName;
        }
        while (lowered.size() <= id)
            lowered.push_back(Vantrel::lowered(*raw[lowered.size()]));
        return lowered[id];
    }

private:
    std::unordered_map<std::string, uint32_t> ids;
    std::vector<std::string const *> raw;
    std::vector<std::string> lowered;
    std::string loweredIn;
};

NamePool sNames;

struct FaceNames {
    bool hasPostScriptName = false;
    uint32_t postScriptName = 0; // without whitespace
    bool hasFamilyName = false;
    uint32_t familyAndStyle = 0;    // family, a blank and the style
    std::vector<uint32_t> rawNames; // every name table entry, as raw bytes
};

// The faces read, in order. Matching goes through them and then fails; a face
// that could not be opened ends the list.
using FileNames = std::vector<FaceNames>;

std::unordered_map<std::string, FileNames> sFileNames;

FileNames readNames(std::string const &path, FT_Library library) {
    FileNames faces;
    FT_Face face = nullptr;
    if (FT_New_Face(library, path.c_str(), 0, &face) != 0)
        return faces;
    for (FT_Long index = 0;;) {
        if (face->num_faces < 1)
            break;
        FaceNames f;
        if (char const *ps = FT_Get_Postscript_Name(face)) {
            f.hasPostScriptName = true;
            f.postScriptName = sNames.intern(withoutWhitespace(ps));
        }
        if (face->family_name) {
            f.hasFamilyName = true;
            f.familyAndStyle =
                sNames.intern(std::string(face->family_name) + " " + (face->style_name ? face->style_name : ""));
        }
        FT_UInt count = FT_Get_Sfnt_Name_Count(face);
        f.rawNames.reserve(count);
        for (FT_UInt i = 0; i < count; ++i) {
            FT_SfntName entry;
            if (FT_Get_Sfnt_Name(face, i, &entry) == 0)
                f.rawNames.push_back(
                    sNames.intern(std::string(reinterpret_cast<char const *>(entry.string), entry.string_len)));
        }
        faces.push_back(std::move(f));
        FT_Long faceCount = face->num_faces;
        FT_Done_Face(face);
        face = nullptr;
        if (++index >= faceCount || FT_New_Face(library, path.c_str(), index, &face) != 0)
            break;
    }
    if (face)
        FT_Done_Face(face);
    return faces;
}

// One family's search: its needles, and whether each name of the pool holds
// them, found at most once per name.
class FamilySearch {
public:
    explicit FamilySearch(std::string const &family)
        : lower(lowered(family)), compactLower(lowered(withoutWhitespace(family))), localeName(std::locale().name()) {}

    // Matching ignores case: both sides are lowered by the global locale, byte
    // by byte, and an empty family matches anything.
    bool matches(std::string const &path, FT_Library library) {
        // The whole path counts, folders included: a family named in a folder's
        // name matches every file below it, without opening any.
        if (lowered(path).find(lower) != std::string::npos)
            return true;
        auto cached = sFileNames.find(path);
        if (cached == sFileNames.end())
            cached = sFileNames.emplace(path, readNames(path, library)).first;
        for (FaceNames const &face : cached->second) {
            if (face.hasPostScriptName && holds(compactMemo, face.postScriptName, compactLower))
                return true;
            if (face.hasFamilyName && holds(memo, face.familyAndStyle, lower))
                return true;
            for (uint32_t raw : face.rawNames)
                if (holds(memo, raw, lower))
                    return true;
        }
        return false;
    }

private:
    bool holds(std::vector<signed char> &known, uint32_t id, std::string const &needle) {
        if (known.size() <= id)
            known.resize(sNames.size(), -1);
        if (known[id] < 0)
            known[id] = sNames.loweredName(id, localeName).find(needle) != std::string::npos;
        return known[id] != 0;
    }

    std::string lower, compactLower, localeName;
    std::vector<signed char> memo, compactMemo;
};

char const *const kFallbackFamilies[] = {"Arial",           "Yu Gothic",  "Malgun Gothic",
                                         "Microsoft Yahei", "Leelawadee", "Geeza Pro"};

} // namespace

void PangoFonts::setLoadFallbackFonts(bool load) { sLoadFallbackFonts = load; }

void CrossPlatformDrawingContext::addFontSearchFolder(std::string const &folder) {
    // Under the layout lock, which every reader of the list holds.
    std::lock_guard<std::mutex> guard(layoutLock());
    sFontSearchFolders.push_back(folder);
}

PangoFontMap *fontMap() {
    unsigned registrations;
    {
        std::lock_guard<std::mutex> guard(sFontMapMutex);
        registrations = sRegistrations;
    }
    if (!tFontMap.map || tFontMap.registrations != registrations) {
        if (tFontMap.map)
            g_object_unref(tFontMap.map);
        tFontMap.map = newFontMap();
        tFontMap.registrations = registrations;
    }
    return tFontMap.map;
}

std::vector<std::string> fontSearchFolders() { return sFontSearchFolders; }

namespace {

std::vector<std::string> matchingFiles(std::string const &family, std::vector<std::string> const &candidates) {
    std::vector<std::string> matches;
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return matches;
    FamilySearch search(family);
    for (std::string const &path : candidates)
        if (search.matches(path, library))
            matches.push_back(path);
    FT_Done_FreeType(library);
    return matches;
}

// loadFont over a candidate list already made: the fallback families share one listing.
bool loadFontFrom(std::string const &family, std::vector<std::string> const &candidates) {
    if (sFailedFonts.count(family))
        return false;
    if (sLoadedFonts.count(family))
        return true;
    int registered = 0;
    for (std::string const &path : matchingFiles(family, candidates)) {
        if (!FcConfigAppFontAddFile(nullptr, reinterpret_cast<FcChar8 const *>(path.c_str())))
            continue;
        ++registered;
        // Every thread's next layout makes its map anew and so sees the file.
        std::lock_guard<std::mutex> guard(sFontMapMutex);
        ++sRegistrations;
    }
    if (registered < 1) {
        sFailedFonts.insert(family);
        std::cerr << "WARNING: PangoUtil couldn't load font: '" << family << "'" << std::endl;
        return false;
    }
    sLoadedFonts.insert(family);
    return true;
}

} // namespace

std::vector<std::string> findFontFiles(std::string const &family, std::vector<std::string> const &folders) {
    return matchingFiles(family, fontCandidates(folders));
}

bool loadFont(std::string const &family, std::vector<std::string> const &folders) {
    if (sFailedFonts.count(family) || sLoadedFonts.count(family))
        return sLoadedFonts.count(family) != 0; // decided before: no listing needed
    return loadFontFrom(family, fontCandidates(folders));
}

void loadFallbackFonts(std::vector<std::string> const &folders) {
    if (!sLoadFallbackFonts)
        return;
    std::vector<std::string> candidates;
    bool listed = false;
    for (char const *family : kFallbackFamilies) {
        if (sFailedFonts.count(family) || sLoadedFonts.count(family))
            continue;
        if (!listed) {
            candidates = fontCandidates(folders);
            listed = true;
        }
        loadFontFrom(family, candidates);
    }
}

bool loadFontsOfAttributes(TextAttributeList const &attributes) {
    std::vector<std::string> folders = fontSearchFolders();
    PangoAttrIterator *it = pango_attr_list_get_iterator(attributes.pangoAttrList());
    bool ok = true;
    do {
        PangoFontDescription *description = pango_font_description_new();
        pango_attr_iterator_get_font(it, description, nullptr, nullptr);
        char const *name = pango_font_description_get_family(description);
        std::string family = name ? name : "";
        pango_font_description_free(description);
        if (!family.empty() && !loadFont(family, folders)) {
            ok = false;
            break;
        }
    } while (pango_attr_iterator_next(it));
    pango_attr_iterator_destroy(it);
    return ok;
}

} // namespace Vantrel
