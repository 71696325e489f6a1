// `vantrel sprites`: a text's sprite sheet, its layout as JSON, and the text
// put together again from the sheet's pieces.
#pragma once

#include <vantrel/Vantrel.h>

#include <string>
#include <vector>

namespace VantrelTool {

// Runs the verb with the arguments after "sprites"; returns the exit status
// (0, 1 when a file cannot be written, 2 for a bad option or value).
int runSprites(std::vector<std::string> const &args);
std::string spritesUsage();

// Each item's cell of the sheet drawn at its displayed place, in layout coordinates.
void drawReassembled(Vantrel::DrawingContext &context, Vantrel::SpriteSheet const &sheet);
// The sheet's bitmap with its top-left at topLeft, each cell outlined.
void drawSheetWithCells(Vantrel::DrawingContext &context, Vantrel::SpriteSheet const &sheet,
                        Vantrel::Point const &topLeft);

} // namespace VantrelTool
