// Text: alignments, fitting, styles, flips, the caret, selections and
// misspelling marks, on plain text callouts.
#include "gallery/Sheet.h"

using namespace Vantrel;

namespace VantrelTool {

namespace {

// A text callout in a box of 170 by 100 around the origin, the box outlined.
struct TextSample {
    TextCalloutProperties properties;
    TextAttributeList attributes;
};

TextSample sample(std::string const &text, double size, Color colour = kInk) {
    TextSample s;
    s.properties.text = text;
    s.properties.textRect = Rect(-85, -50, 85, 50);
    Range all(0, int(text.size()));
    s.attributes.addFontNameAttribute(all, "DejaVu Sans");
    s.attributes.addFontSizeAttribute(all, size);
    s.attributes.addFGColorAttribute(all, colour);
    return s;
}

Tile textTile(std::string label, TextSample s,
              std::function<void(CrossPlatformDrawingContext &, TextCallout &)> marks = nullptr) {
    return {label, [=](CrossPlatformDrawingContext &c) {
                TextCallout callout(s.properties.textRect, s.properties, s.attributes);
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid", Polygon(s.properties.textRect.Expanded(0.5)));
                if (marks)
                    marks(c, callout);
                drawCallout(c, callout);
            }};
}

} // namespace

void addTextSections(std::vector<Section> &all) {
    std::string const words = "Text in its box, aligned as asked";
    Section alignment{"Text: alignments", {}};
    for (auto h : {Left, Center, Right}) {
        TextSample s = sample(words, 15);
        s.properties.horizontalAlignment = h;
        alignment.tiles.push_back(textTile(h == Left ? "left" : h == Center ? "center" : "right", s));
    }
    for (auto v : {Top, Middle, Bottom}) {
        TextSample s = sample("One line", 18);
        s.properties.verticalAlignment = v;
        alignment.tiles.push_back(textTile(v == Top ? "top" : v == Middle ? "middle" : "bottom", s));
    }
    all.push_back(alignment);

    std::string const longText =
        "A long text that cannot fit this box at its own size is shrunk until it does, by the fit search.";
    TextSample fitted = sample(longText, 22);
    TextSample overflowing = sample(longText, 22);
    overflowing.properties.resizeBehavior = "none";
    TextSample styled = sample("Bold, italic, underlined, coloured", 17);
    styled.attributes.addFontWeightAttribute(Range(0, 4), 700);
    styled.attributes.addFontItalicAttribute(Range(6, 12), 1);
    styled.attributes.addUnderlineAttribute(Range(14, 24), 1);
    styled.attributes.addFGColorAttribute(Range(26, 34), kRed);
    TextSample spaced = sample("Spaced letters and tight ones", 16);
    spaced.attributes.addCharacterSpacingAttribute(Range(0, 14), 0.3);
    spaced.attributes.addCharacterSpacingAttribute(Range(19, 29), -0.05);
    TextSample rtl = sample("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xD7\xA2\xD7\x95\xD7\x9C\xD7\x9D", 22);
    rtl.properties.horizontalAlignment = Left;
    TextSample caps = sample("all caps on ascii letters", 16);
    caps.properties.allCaps = true;
    TextSample flipped = sample("Flipped both ways", 18, kBlue);
    flipped.properties.flipBoth = true;
    all.push_back({"Text: fitting and styles",
                   {textTile("resizeText: shrunk to fit", fitted), textTile("another resizeBehavior", overflowing),
                    textTile("bold, italic, underline, colour", styled), textTile("character spacing", spaced),
                    textTile("right-to-left base direction", rtl), textTile("all caps", caps)}});

    TextSample edited = sample("A caret, a selection over two lines, and misspelt wurds", 15);
    all.push_back({"Text: flips, caret, selection and misspelling marks",
                   {textTile("flipBoth", flipped),
                    textTile("caret before character 9", edited,
                             [](CrossPlatformDrawingContext &c, TextCallout &t) {
                                 t.drawSelectionIntoContext(&c, Range(9, 9), Color(), kRed);
                             }),
                    textTile("selection over two lines", edited,
                             [](CrossPlatformDrawingContext &c, TextCallout &t) {
                                 t.drawSelectionIntoContext(&c, Range(11, 32), Color(0.2f, 0.5f, 1, 0.35f), kRed);
                             }),
                    textTile("misspelling marks", edited, [](CrossPlatformDrawingContext &c, TextCallout &t) {
                        t.drawMisspelledRangesIntoContext(&c, {Range(40, 48), Range(49, 54)}, kRed);
                    })}});
}

} // namespace VantrelTool
