#include "Sprites.h"

#include "Arguments.h"
#include "Catalogue.h"
#include "Picture.h"

#include <algorithm>
#include <cairo.h>
#include <fstream>
#include <iostream>
#include <sstream>

using namespace Vantrel;

namespace VantrelTool {

namespace {

struct SpritesRequest {
    Settings settings;
    Point scale = Point(1, 1);
    std::string output, reassemble;
};

SpritesRequest parse(std::vector<std::string> const &args) {
    SpritesRequest r;
    r.settings.text = "Hello sprite world";
    r.settings.fontSize = 48;
    r.settings.box = Rect(-300, -80, 300, 80);
    r.settings.color = kInk;
    readOptions(args, "sprites", r.settings, {}, [&](std::string const &a, std::string const &v) {
        if (a == "-o" || a == "--output") {
            r.output = v;
        } else if (a == "--reassemble") {
            r.reassemble = v;
        } else if (a == "--scale") {
            std::vector<double> s = numbers(a, v, 2);
            r.scale = Point(s[0], s[1]);
        } else {
            return false;
        }
        return true;
    });
    if (r.output.empty())
        throw UsageError("sprites needs -o FILE.png");
    return r;
}

std::string json(Rect const &r) {
    std::ostringstream out;
    out << "[" << r.Left() << ", " << r.Top() << ", " << r.Right() << ", " << r.Bottom() << "]";
    return out.str();
}

std::string json(Point const &p) {
    std::ostringstream out;
    out << "[" << p.x << ", " << p.y << "]";
    return out.str();
}

// The layout rectangle, the scale and every item and line, each field by its name.
std::string layoutJson(SpriteSheet const &sheet) {
    std::ostringstream out;
    std::vector<SpriteSheetLayoutItem> const items = sheet.LayoutItems();
    out << "{\n  \"layoutRect\": " << json(sheet.LayoutRect())
        << ",\n  \"bitmapScale\": " << (items.empty() ? 1.0 : items.front().bitmapScale) << ",\n  \"items\": [";
    for (size_t i = 0; i < items.size(); ++i) {
        SpriteSheetLayoutItem const &k = items[i];
        out << (i ? "," : "") << "\n    {\"bitmapRect\": " << json(k.bitmapRect) << ", \"origin\": " << json(k.origin)
            << ", \"lineCenterOffset\": " << json(k.lineCenterOffset) << ", \"rect\": " << json(k.rect)
            << ", \"wordIndex\": " << k.wordIndex << ", \"lineIndex\": " << k.lineIndex
            << ", \"bitmapScale\": " << k.bitmapScale << "}";
    }
    out << "\n  ],\n  \"lines\": [";
    std::vector<SpriteSheetLineItem> const lines = sheet.LineItems();
    for (size_t i = 0; i < lines.size(); ++i) {
        SpriteSheetLineItem const &l = lines[i];
        out << (i ? "," : "") << "\n    {\"rect\": " << json(l.rect) << ", \"baseline\": " << l.baseline
            << ", \"inkTop\": " << l.inkTop << ", \"firstItem\": " << l.firstItem << ", \"itemCount\": " << l.itemCount
            << "}";
    }
    out << "\n  ]\n}\n";
    return out.str();
}

// The sheet's bitmap as it is; a sheet without pixels as one transparent pixel.
int writeSheet(SpriteSheet const &sheet, std::string const &path) {
    Bitmap pixels = sheet.TheBitmap();
    CrossPlatformDrawingContextWithBuiltInBitmap picture(std::max(1, pixels.width()), std::max(1, pixels.height()));
    picture.builtInBitmap()->clear();
    if (pixels.width() > 0 && pixels.height() > 0)
        picture.DrawBitmap(pixels, Point(0, 0), 1.0);
    return writePng(picture, path);
}

int writeReassembled(SpriteSheet const &sheet, std::string const &path) {
    auto picture = pictureOver(sheet.LayoutRect().Expanded(10), "the layout rect");
    drawReassembled(*picture, sheet);
    return writePng(*picture, path);
}

} // namespace

void drawReassembled(DrawingContext &context, SpriteSheet const &sheet) {
    Bitmap const cells = sheet.TheBitmap();
    for (SpriteSheetLayoutItem const &i : sheet.LayoutItems())
        if (i.bitmapRect.Width() > 0)
            context.DrawBitmap(cells.subRect(i.bitmapRect.ToRectIntRound()),
                               Rect(i.origin, i.origin + i.bitmapRect.Size() / i.bitmapScale), 1.0);
}

void drawSheetWithCells(DrawingContext &context, SpriteSheet const &sheet, Point const &topLeft) {
    Bitmap const cells = sheet.TheBitmap();
    if (cells.width() > 0 && cells.height() > 0)
        context.DrawBitmap(cells, topLeft, 1.0);
    context.Stroke(Color(0.6f, 0.6f, 0.65f), 1, "solid",
                   Polygon(Rect(topLeft, topLeft + Point(cells.width(), cells.height())).Expanded(0.5)));
    std::vector<Rect> drawn;
    for (SpriteSheetLayoutItem const &i : sheet.LayoutItems())
        if (i.bitmapRect.Width() > 0 && std::find(drawn.begin(), drawn.end(), i.bitmapRect) == drawn.end()) {
            drawn.push_back(i.bitmapRect);
            context.Stroke(kOrange, 1, "solid", Polygon((i.bitmapRect + topLeft).Expanded(-0.5)));
        }
}

std::string spritesUsage() {
    return "usage: vantrel sprites [OPTIONS] -o SHEET.png\n\n"
           "Cuts a text into its glyph clusters: writes the sprite sheet, like clusters sharing\n"
           "one cell, and its layout (every item and line) as JSON beside it, SHEET.json.\n\n"
           "Options:\n"
           "  --text TEXT               the text, UTF-8 (default 'Hello sprite world')\n"
           "  --font FAMILY             font family (default DejaVu Sans)\n"
           "  --font-size N             size in points (default 48)\n"
           "  --color COLOR             #RRGGBB or #RRGGBBAA\n"
           "  --box L,T,R,B             the text box (default -300,-80,300,80)\n"
           "  --align A                 left, center or right (default center)\n"
           "  --scale X,Y               the sheet's scale (default 1,1)\n"
           "  --reassemble FILE.png     also draw each item from the sheet at its place\n"
           "  -o, --output SHEET.png    where to write the sheet (required)\n";
}

int runSprites(std::vector<std::string> const &args) {
    for (std::string const &a : args)
        if (a == "-h" || a == "--help") {
            std::cout << spritesUsage();
            return 0;
        }
    try {
        SpritesRequest r = parse(args);
        std::shared_ptr<SpriteSheet> sheet =
            SpriteSheet::FromText(textProperties(r.settings), textAttributes(r.settings), r.scale, true, 0, true);
        std::string jsonPath = r.output;
        if (jsonPath.size() > 4 && jsonPath.compare(jsonPath.size() - 4, 4, ".png") == 0)
            jsonPath.resize(jsonPath.size() - 4);
        jsonPath += ".json";
        std::ofstream out(jsonPath);
        out << layoutJson(*sheet);
        if (!out) {
            std::cerr << "vantrel: could not write '" << jsonPath << "'\n";
            return 1;
        }
        Bitmap const pixels = sheet->TheBitmap();
        std::cout << sheet->NumItems() << " items, " << sheet->LineItems().size() << " lines, sheet " << pixels.width()
                  << " by " << pixels.height() << " pixels\n";
        if (int status = writeSheet(*sheet, r.output))
            return status;
        return r.reassemble.empty() ? 0 : writeReassembled(*sheet, r.reassemble);
    } catch (UsageError const &e) {
        std::cerr << "vantrel: " << e.what() << " (see 'vantrel sprites --help')\n";
        return 2;
    }
}

} // namespace VantrelTool
