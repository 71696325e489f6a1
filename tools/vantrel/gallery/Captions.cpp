// Captions: blocks standing on the bottom of their boxes, cut by lines,
// aligned and centred, with backgrounds, glyph outlines and styled runs.
#include "CaptionDraw.h"
#include "gallery/Sheet.h"

#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

struct CaptionSample {
    Settings settings;
    CaptionRequest request;
    TextAttributeList attributes;
};

CaptionSample sample(std::string const &text, double fontSize = 16) {
    CaptionSample s;
    s.settings.text = text;
    s.settings.box = Rect(-85, -55, 85, 55);
    s.settings.fontSize = fontSize;
    s.settings.color = kInk;
    s.settings.align = Left;
    return s;
}

// The caption over its rect, outlined; the label tells its split.
Tile captionTile(std::string const &label, CaptionSample const &s) {
    auto caption = std::make_shared<Caption>(captionProperties(s.settings, s.request), s.attributes, s.request.margin);
    int const split = caption->SplitUTF8Index();
    return {label + (split < 0 ? "" : ", split at " + std::to_string(split)),
            [caption, s](CrossPlatformDrawingContext &c) {
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid", Polygon(s.settings.box.Expanded(0.5)));
                caption->DrawIntoContext(&c);
            }};
}

} // namespace

void addCaptionSections(std::vector<Section> &all) {
    Section shape{"Captions: lines on the bottom of the box, cut by lines, aligned (centered moves the block)", {}};
    shape.tiles.push_back(captionTile("one line in a tall box", sample("On the bottom")));
    CaptionSample cut = sample("Three lines of a caption of which only two are shown");
    cut.request.maxLines = 2;
    shape.tiles.push_back(captionTile("2 of 3 lines", cut));
    CaptionSample fits = sample("Three lines of a caption of which all are shown");
    shape.tiles.push_back(captionTile("every line fits", fits));
    for (bool centered : {false, true})
        for (auto alignment : {Left, Center, Right}) {
            CaptionSample s = sample("Aligned lines\nof a block");
            s.settings.box = Rect(-85, -55, 85, 55);
            s.settings.align = alignment;
            s.request.centered = centered;
            std::string name = alignment == Left ? "left" : alignment == Center ? "center" : "right";
            shape.tiles.push_back(captionTile(name + (centered ? ", centered" : ""), s));
        }
    all.push_back(shape);

    Section looks{"Captions: background, outline and styles", {}};
    for (double margin : {10.0, 0.0}) {
        CaptionSample s = sample("On a background", 18);
        s.settings.color = Color(1, 1, 1);
        s.request.background = Color(0.1f, 0.1f, 0.15f, 0.75f);
        s.request.margin = margin;
        s.request.centered = true;
        looks.tiles.push_back(captionTile("background, margin " + std::to_string(int(margin)), s));
    }
    CaptionSample outlined = sample("Outlined", 34);
    outlined.settings.color = kYellow;
    outlined.request.outline = kInk;
    outlined.request.outlineWidth = 4;
    outlined.request.centered = true;
    looks.tiles.push_back(captionTile("glyph outline 4", outlined));
    CaptionSample styled = sample("Bold and italic runs survive", 18);
    styled.attributes.addFontWeightAttribute(Range(0, 4), 700);
    styled.attributes.addFontItalicAttribute(Range(9, 15), 1);
    styled.attributes.addFontNameAttribute(Range(0, 28), "DejaVu Serif"); // the caption's font wins
    looks.tiles.push_back(captionTile("bold and italic", styled));
    all.push_back(looks);
}

} // namespace VantrelTool
