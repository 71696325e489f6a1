// Sprite sheets: a text's sheet with its cells outlined beside the text put
// together again from the pieces.
#include "Sprites.h"
#include "gallery/Sheet.h"

#include <functional>
#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

std::shared_ptr<SpriteSheet> sampleSheet(std::string const &text, double size,
                                         std::function<void(TextAttributeList &)> const &style = nullptr) {
    Settings s;
    s.text = text;
    s.box = Rect(-85, -50, 85, 50);
    s.fontSize = size;
    s.color = kInk;
    TextAttributeList all = textAttributes(s);
    if (style)
        style(all);
    return SpriteSheet::FromText(textProperties(s), all, Point(1, 1), true, 0, true);
}

Tile sheetTile(std::string const &label, std::shared_ptr<SpriteSheet> sheet) {
    Bitmap const pixels = sheet->TheBitmap();
    return {label + " (" + std::to_string(pixels.width()) + " by " + std::to_string(pixels.height()) + ")",
            [sheet, pixels](CrossPlatformDrawingContext &c) {
                drawSheetWithCells(c, *sheet, Point(-pixels.width() / 2, -pixels.height() / 2));
            }};
}

Tile reassembledTile(std::string const &label, std::shared_ptr<SpriteSheet> sheet) {
    return {label + ", " + std::to_string(sheet->NumItems()) + " pieces", [sheet](CrossPlatformDrawingContext &c) {
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid", Polygon(sheet->LayoutRect().Expanded(0.5)));
                drawReassembled(c, *sheet);
            }};
}

} // namespace

void addSpriteSections(std::vector<Section> &all) {
    std::string const text = "banana RED under";
    std::shared_ptr<SpriteSheet> styled = sampleSheet(text, 24, [](TextAttributeList &a) {
        a.addFGColorAttribute(Range(7, 10), kRed);
        a.addUnderlineAttribute(Range(11, 16), 1);
    });
    std::shared_ptr<SpriteSheet> repeated = sampleSheet("mississippi", 26);
    all.push_back({"Sprite sheets: cells outlined (shared by like clusters), the text put together from them",
                   {sheetTile("sheet", styled), reassembledTile("reassembled", styled),
                    sheetTile("four letters, four cells", repeated), reassembledTile("reassembled", repeated)}});
}

} // namespace VantrelTool
