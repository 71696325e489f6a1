// Captions: a block of text in one font, size and colour that stands on the
// bottom of its rectangle, with an optional rounded background and glyph
// outline, showing the lines that fit; and a stream of a text's lines and
// styles to an observer.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Rect.h>

#include <memory>
#include <string>
#include <vector>

typedef struct _PangoLayout PangoLayout;

namespace Vantrel {

class DrawingContext;
class KeptLayout;

// What a caption shows and how. maxLines and fontSize have no natural
// default; a host sets both.
class VANTREL_EXPORT CaptionProperties {
public:
    std::string text; // UTF-8
    Rect rect;
    TextHorizontalAlignment alignment = Left; // of the lines among themselves
    bool centered = false;                    // the whole block centred in the box
    // Most lines shown; negative for as many as the box holds.
    int maxLines = -1;
    std::string fontName;
    // Points, held to 1 .. kMaxFontSize. Pixels are points here, and 65535
    // is the largest pixel size FreeType renders: above it cairo gives an
    // error font that draws nothing (and pango units would overflow an int
    // above 2,097,151).
    int fontSize = 24;
    Color textColor = Color(0, 0, 0);
    Color backgroundColor = Color(0, 0, 0, 0); // shown when its alpha is above 0
    Color outlineColor = Color(0, 0, 0, 0);    // shown when its alpha and outlineWidth are above 0
    double outlineWidth = 0.0;

    static constexpr int kMaxFontSize = 65535;
};

// Receives a text as ExportText walks it. Positions are byte offsets.
class VANTREL_EXPORT ICaptionExportObserver {
public:
    ICaptionExportObserver() = default;
    ICaptionExportObserver(ICaptionExportObserver const &) {}
    ICaptionExportObserver &operator=(ICaptionExportObserver const &) { return *this; }
    virtual ~ICaptionExportObserver();
    // The text at position, without line-ending characters.
    virtual void exportText(int position, std::string const &text) = 0;
    // A break at position: hard where the text holds a line ending, soft where it wrapped.
    virtual void exportLineBreak(int position, bool hard) = 0;
    virtual void exportBold(int position, bool bold) = 0;
    virtual void exportItalic(int position, bool italic) = 0;
};

// A caption is laid out once, when it is built, and is immutable after: a
// change means a new caption. Its font never shrinks to fit; text that is
// too long is cut by lines, and the wrap indexes tell the host where the
// rest begins. It owns its layout, so it is neither copied nor moved; share
// it by pointer. Like every object of the library it belongs to one thread
// at a time and may be handed to another between calls: each thread lays
// text out with a font map of its own, so a caption used on another thread
// than the one that last laid it out lays its text out again there, with the
// same results, and the old layout is released by the thread that made it.
//
// Input outside the contract: a margin larger than half the box leaves no
// room and no line fits (unless the box is of unlimited height). A margin
// whose single-precision value is not a finite number of at least 0 draws no
// background. A block that would stand farther than kMaxBlockOffset pixels
// from the origin, as that of MakeInfiniteHeightCaption does, is not drawn:
// cairo's coordinates do not reach it, and no surface would show it.
class VANTREL_EXPORT Caption {
public:
    // The caption's font, size (as a double) and colour, and font fallback,
    // are added over the whole text and replace what they overlap in the
    // list given, so bold, italic and the like survive.
    Caption(CaptionProperties const &properties, TextAttributeList const &attributes, double margin);
    virtual ~Caption();
    Caption(Caption const &) = delete;
    Caption &operator=(Caption const &) = delete;

    // The lines that fit, on the bottom of the box less the margin: the
    // background (the lines' bounds grown by the margin, with round
    // corners), then the glyph outlines, then the glyphs. Nothing when no
    // line fits or the lines have no width.
    void DrawIntoContext(DrawingContext *context) const;

    // The byte offset at which each shown line starts, and one entry more:
    // the start of the first line that does not fit, or the end of the text.
    std::vector<int> GetWordWrapUTF8Indexes() const;
    std::vector<int> GetWordWrapCharacterIndexes() const;
    // The byte offset of the first text not shown, or -1 when all is.
    int SplitUTF8Index() const;
    int SplitCharacterIndex() const;

    // The same caption with no line limit and a box without a bottom: every
    // line of the text fits, for the wrap indexes of the whole text.
    std::shared_ptr<Caption> MakeInfiniteHeightCaption() const;

    // Streams text to the observer in the lines that indexes (as
    // GetWordWrapUTF8Indexes gives them) break it into, with the bold and
    // italic runs of attributes. A leading 0 is skipped; the last index
    // ends the text without a break. An index below the walk's position
    // (out of order, or negative) counts as that position: an empty text and
    // a break there. An index past the text is never reached.
    static void ExportText(ICaptionExportObserver &observer, std::string const &text,
                           TextAttributeList const &attributes, std::vector<int> const &indexes);
    // The offset conversions of UTF8StringUtil; a negative index is returned unchanged.
    static int CharacterIndexFromUTF8Index(std::string const &text, int index);
    static int UTF8IndexFromCharacterIndex(std::string const &text, int index);

    // 2^23: cairo's fixed-point coordinates end there.
    static constexpr double kMaxBlockOffset = 8388608.0;

private:
    int lineCountOfLayout() const;
    PangoLayout *layout() const;

    TextAttributeList mAttributes;
    CaptionProperties mProperties;
    TextCalloutProperties mTextProperties;
    std::unique_ptr<KeptLayout> mLayout;
    Rect mTextBox;
    double mMargin;
    int mLineCount = 0;
};

} // namespace Vantrel
