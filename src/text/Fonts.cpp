#include "Fonts.h"

#include "platform/FontFolders.h"

#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/text/PangoFonts.h>
#include <vantrel/text/TextAttributeList.h>

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

namespace Vantrel {

namespace {

PangoFontMap *sFontMap = nullptr;
std::mutex sFontMapMutex;
std::set<std::string> sLoadedFonts;
std::set<std::string> sFailedFonts;
std::vector<std::string> sFontSearchFolders;
bool sLoadFallbackFonts = true;

PangoFontMap *newFontMap() {
    PangoFontMap *map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72.0);
    return map;
}

bool containsIgnoringCase(std::string text, std::string part) {
    std::ctype<char> const &ctype = std::use_facet<std::ctype<char>>(std::locale());
    for (char &c : text)
        c = ctype.tolower(c);
    for (char &c : part)
        c = ctype.tolower(c);
    return text.find(part) != std::string::npos;
}

std::string withoutWhitespace(std::string const &text) {
    std::string out;
    for (char c : text)
        if (!std::isspace(static_cast<unsigned char>(c)))
            out += c;
    return out;
}

// The names of a font file that matching looks at, read once per process:
// a family that is searched for later is matched against these instead of
// opening every file again, with the same results.
struct FaceNames {
    bool hasPostScriptName = false;
    std::string postScriptName; // without whitespace
    bool hasFamilyName = false;
    std::string familyAndStyle;        // family, a blank and the style
    std::vector<std::string> rawNames; // every name table entry, as raw bytes
};

struct FileNames {
    // The faces read, in order. Matching goes through them and then fails;
    // a face that could not be opened ends the list.
    std::vector<FaceNames> faces;
};

std::map<std::string, FileNames> sFileNames;

FileNames readNames(std::string const &path, FT_Library library) {
    FileNames names;
    FT_Face face = nullptr;
    if (FT_New_Face(library, path.c_str(), 0, &face) != 0)
        return names;
    for (FT_Long index = 0;;) {
        if (face->num_faces < 1)
            break;
        FaceNames f;
        if (char const *ps = FT_Get_Postscript_Name(face)) {
            f.hasPostScriptName = true;
            f.postScriptName = withoutWhitespace(ps);
        }
        if (face->family_name) {
            f.hasFamilyName = true;
            f.familyAndStyle = std::string(face->family_name) + " " + (face->style_name ? face->style_name : "");
        }
        FT_UInt count = FT_Get_Sfnt_Name_Count(face);
        for (FT_UInt i = 0; i < count; ++i) {
            FT_SfntName entry;
            if (FT_Get_Sfnt_Name(face, i, &entry) == 0)
                f.rawNames.emplace_back(reinterpret_cast<char const *>(entry.string), entry.string_len);
        }
        names.faces.push_back(std::move(f));
        FT_Long faces = face->num_faces;
        FT_Done_Face(face);
        face = nullptr;
        if (++index >= faces || FT_New_Face(library, path.c_str(), index, &face) != 0)
            break;
    }
    if (face)
        FT_Done_Face(face);
    return names;
}

bool fontFileMatches(std::string const &path, std::string const &family, FT_Library library) {
    // The whole path counts, folders included: a family named in a folder's
    // name matches every file below it, without opening any.
    if (containsIgnoringCase(path, family))
        return true;
    auto cached = sFileNames.find(path);
    if (cached == sFileNames.end())
        cached = sFileNames.emplace(path, readNames(path, library)).first;
    std::string const compactFamily = withoutWhitespace(family);
    for (FaceNames const &face : cached->second.faces) {
        if (face.hasPostScriptName && containsIgnoringCase(face.postScriptName, compactFamily))
            return true;
        if (face.hasFamilyName && containsIgnoringCase(face.familyAndStyle, family))
            return true;
        for (std::string const &raw : face.rawNames)
            if (containsIgnoringCase(raw, family))
                return true;
    }
    return false;
}

char const *const kFallbackFamilies[] = {"Arial",           "Yu Gothic",  "Malgun Gothic",
                                         "Microsoft Yahei", "Leelawadee", "Geeza Pro"};

} // namespace

void PangoFonts::setLoadFallbackFonts(bool load) { sLoadFallbackFonts = load; }

void CrossPlatformDrawingContext::addFontSearchFolder(std::string const &folder) {
    sFontSearchFolders.push_back(folder);
}

PangoFontMap *fontMap() {
    std::lock_guard<std::mutex> guard(sFontMapMutex);
    if (!sFontMap)
        sFontMap = newFontMap();
    return sFontMap;
}

std::vector<std::string> fontSearchFolders() { return sFontSearchFolders; }

std::vector<std::string> findFontFiles(std::string const &family, std::vector<std::string> const &folders) {
    std::vector<std::string> matches;
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return matches;
    for (std::string const &path : fontCandidates(folders))
        if (fontFileMatches(path, family, library))
            matches.push_back(path);
    FT_Done_FreeType(library);
    return matches;
}

bool loadFont(std::string const &family, std::vector<std::string> const &folders) {
    if (sFailedFonts.count(family))
        return false;
    if (sLoadedFonts.count(family))
        return true;
    int registered = 0;
    for (std::string const &path : findFontFiles(family, folders)) {
        if (!FcConfigAppFontAddFile(nullptr, reinterpret_cast<FcChar8 const *>(path.c_str())))
            continue;
        ++registered;
        // A new map sees the new file; contexts made from the old one keep their own reference.
        std::lock_guard<std::mutex> guard(sFontMapMutex);
        if (sFontMap)
            g_object_unref(sFontMap);
        sFontMap = newFontMap();
    }
    if (registered < 1) {
        sFailedFonts.insert(family);
        std::cerr << "WARNING: PangoUtil couldn't load font: '" << family << "'" << std::endl;
        return false;
    }
    sLoadedFonts.insert(family);
    return true;
}

void loadFallbackFonts(std::vector<std::string> const &folders) {
    if (!sLoadFallbackFonts)
        return;
    for (char const *family : kFallbackFamilies)
        loadFont(family, folders);
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
