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

namespace Vantrel {

// A point with its origin at the top-left of trackingRect, in the layout's
// own space: moved to the box, the flips undone about the centre of the
// whole-pixel box, the alignment offsets taken off.
Point layoutPointForPoint(TextCalloutProperties const &properties, Rect const &trackingRect, PangoLayout *layout,
                          Point const &point);

// The caret offset for a point of layout space. A click on the blank at
// which a line wrapped lands in front of it; the side of the character's
// middle decides before or behind it, in either direction of text. The
// result may lie one outside the text.
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

// A caret moved by d characters, or a selection collapsed to its smaller
// end (d below 0) or larger end (d above 0) without moving further.
Range caretMovedBy(Range const &selection, int d);

// The box grown to a text of width by height pixels: its proportions kept,
// centred on the origin, never shrunk. A side that is not a finite number
// above 0 takes the text's size instead, the other side growing to the text.
Rect grownTextRect(Rect const &box, int width, int height);

} // namespace Vantrel
