#include "platform/FontFolders.h"

#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace Vantrel {

namespace {

bool exists(std::string const &path) {
    std::error_code error;
    return std::filesystem::exists(path, error);
}

bool candidateName(std::string const &name) {
    if (name.empty() || name[0] == '.')
        return false;
    size_t dot = name.rfind('.');
    std::string extension = dot == std::string::npos ? name : name.substr(dot + 1);
    return extension != "fon";
}

// Deep enough for any real font tree, shallow enough to stop a runaway walk.
int const kMaxDepth = 16;

void walk(std::string const &folder, bool recursive, int depth, std::set<std::pair<dev_t, ino_t>> &visited,
          std::vector<std::string> &files) {
    struct stat folderInfo;
    if (stat(folder.c_str(), &folderInfo) != 0 || !visited.insert({folderInfo.st_dev, folderInfo.st_ino}).second)
        return; // unreadable, or a folder already walked (a link loop)
    DIR *dir = opendir(folder.c_str());
    if (!dir)
        return;
    std::vector<std::string> subfolders;
    while (dirent *entry = readdir(dir)) {
        std::string name = entry->d_name;
        if (name.empty() || name[0] == '.')
            continue;
        std::string path = folder + "/" + name;
        bool directory = entry->d_type == DT_DIR;
        if (entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK) {
            struct stat info;
            directory = stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
        }
        if (directory) {
            if (recursive && depth < kMaxDepth)
                subfolders.push_back(path);
            continue;
        }
        if (candidateName(name))
            files.push_back(path);
    }
    closedir(dir);
    for (std::string const &sub : subfolders)
        walk(sub, recursive, depth + 1, visited, files);
}

} // namespace

std::vector<std::string> knownFontFolders() {
    std::vector<std::string> folders;
    char const *xdg = std::getenv("XDG_DATA_HOME");
    char const *home = std::getenv("HOME");
    std::vector<std::string> candidates;
    if ((!xdg || !*xdg) && (!home || !*home)) {
        std::fputs("Error: Unable to get path to known folder\n", stderr);
    } else {
        candidates.push_back(xdg && *xdg ? std::string(xdg) + "/fonts" : std::string(home) + "/.local/share/fonts");
        if (home && *home)
            candidates.push_back(std::string(home) + "/.fonts");
    }
    candidates.push_back("/usr/share/fonts");
    candidates.push_back("/usr/local/share/fonts");
    for (std::string const &c : candidates)
        if (exists(c))
            folders.push_back(c);
    return folders;
}

std::vector<std::string> fontCandidates(std::vector<std::string> const &hostFolders) {
    std::vector<std::string> files;
    std::set<std::pair<dev_t, ino_t>> visited;
    for (std::string const &folder : knownFontFolders())
        walk(folder, true, 0, visited, files);
    for (std::string const &folder : hostFolders) {
        std::set<std::pair<dev_t, ino_t>> own; // a host folder is listed even if a known one held it
        walk(folder, false, 0, own, files);
    }
    return files;
}

} // namespace Vantrel
