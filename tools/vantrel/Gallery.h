// The gallery: every callout the library can draw, on one picture.
#pragma once

#include <string>

namespace VantrelTool {

// Draws the gallery and writes it as a PNG; returns false if the file could not be written.
bool writeGallery(std::string const &path);

} // namespace VantrelTool
