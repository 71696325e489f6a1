// The steps of a text editing session as plain functions of a layout and
// its text: from a point to layout space, the hit test, the ends of lines,
// the moves between lines and words. Offsets are in characters; bytes appear
// only on the way to and from pango.
//
// The text is the one the layout was built from. Every byte read is bounded
// by the layout's own text and every index handed to pango lies within it,
// so a text that has changed since, or an offset past its end, gives some
// offset, never a read outside. The functions that take a layout run on the
// thread that built it.
#pragma once

#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/values/Point.h>
#include <vantrel/values/Range.h>
#include <vantrel/values/Rect.h>

#include <pango/pango.h>
#include <string>
#include <vector>

namespace Vantrel {

// A point with its origin at the top-left of trackingRect, in the layout's
// own space: moved to the box, the flips undone about the centre of the
// whole-pixel box, the alignment offsets taken off.
Point layoutPointForPoint(TextCalloutProperties const &properties, Rect const &trackingRect, PangoLayout *layout,
                          Point const &point);

// Where the caret may stand: for each character offset 0 .. length of the
// text, whether it is one of pango's cursor positions (a grapheme cluster
// boundary), so that the caret never splits a letter from its vowel sign or
// an emoji sequence. Where every character is a cluster of its own, every
// offset is a stop. Offsets where the layout's text and the text disagree
// (a text changed since the layout) are stops.
std::vector<bool> cursorStops(PangoLayout *layout, std::string const &text);
// offset + d, then on in the same direction to the next stop. Offsets outside
// the stops move by d alone; d of 0 stays.
int steppedToStop(std::vector<bool> const &stops, int offset, int d);
// The offset if it is a stop, else the next stop in the direction of d.
int nearestStop(std::vector<bool> const &stops, int offset, int d);

// The caret offset for a point of layout space. A click on the blank at
// which a line wrapped lands in front of it; the side of the cluster's
// middle decides before or behind it, in either direction of text. The
// result is a stop, and may lie one outside the text.
int characterAtLayoutPoint(PangoLayout *layout, std::string const &text, Point const &point);

int startOfLineOffset(PangoLayout *layout, std::string const &text, int offset);
// In front of the blank where a line wrapped, at the line feed of a line
// that ends with one, at the end of the text on the last line.
int endOfLineOffset(PangoLayout *layout, std::string const &text, int offset);
// The height of line n in pango units, 0 when the layout has no such line.
int lineHeightAt(PangoLayout *layout, int n);
// The caret's x on the line above or below; 0 from the first line, the end
// of the line from the last.
int lineAboveOffset(PangoLayout *layout, std::string const &text, int offset);
int lineBelowOffset(PangoLayout *layout, std::string const &text, int offset);

// Word ends and starts, with blank, line feed and carriage return the only
// separators. Offsets outside the text are taken at its nearer end.
int wordEndOffset(std::string const &text, int offset);
int wordStartOffset(std::string const &text, int offset);

// A caret moved by d characters and on to the next stop, or a selection
// collapsed to its smaller end (d below 0) or larger end (d above 0)
// without moving further.
Range caretMovedBy(Range const &selection, int d, std::vector<bool> const &stops);

// The box grown to a text of width by height pixels: its proportions kept,
// centred on the origin, never shrunk. A side that is not a finite number
// above 0 takes the text's size instead, the other side growing to the text.
Rect grownTextRect(Rect const &box, int width, int height);

} // namespace Vantrel
