// Editing a callout's text in place: the session a host keeps while the user
// clicks, drags and moves the caret in a TextCallout.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/TextCallout.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/values/Point.h>
#include <vantrel/values/Range.h>

#include <memory>
#include <string>

namespace Vantrel {

// What a session tells its host. The session calls textChanged and
// selectionChanged; it never calls isRightToLeftLanguage, which is there for
// the host's own use.
class VANTREL_EXPORT TextEditingSessionObserver {
public:
    virtual ~TextEditingSessionObserver();
    // The text, its attributes or a property that shapes the layout changed,
    // and the layout was rebuilt.
    virtual void textChanged() = 0;
    // The selection was set, whether or not its value changed.
    virtual void selectionChanged() = 0;
    virtual bool isRightToLeftLanguage(std::string const &text) = 0;
};

// Put in with setObserver around a batch of changes: it only takes note, and
// its destructor passes the batch on to the target as at most one
// textChanged and then at most one selectionChanged. A null target hears
// nothing.
class VANTREL_EXPORT ScopedDeferredTextEditingSessionObserver : public TextEditingSessionObserver {
public:
    explicit ScopedDeferredTextEditingSessionObserver(TextEditingSessionObserver *target);
    ~ScopedDeferredTextEditingSessionObserver() override;
    ScopedDeferredTextEditingSessionObserver(ScopedDeferredTextEditingSessionObserver const &) = delete;
    ScopedDeferredTextEditingSessionObserver &operator=(ScopedDeferredTextEditingSessionObserver const &) = delete;

    void textChanged() override { textChangePending = true; }
    void selectionChanged() override { selectionChangePending = true; }
    // The target's answer, or the library's right-to-left test without a target.
    bool isRightToLeftLanguage(std::string const &text) override;

private:
    TextEditingSessionObserver *target;
    bool textChangePending = false;
    bool selectionChangePending = false;
};

// One callout's text under edit. The session keeps the selection in
// character offsets (start is the anchor, end the moving end, so end may be
// below start) and a layout of the text that hit tests and line moves read.
// It inserts and deletes nothing: the host works out the new text and hands
// it over with updateTextAndAttributes. The callout draws the caret or the
// selection with drawSelectionIntoContext.
//
// The callout is not owned and must outlive the session; a null callout
// gives a session over an empty text. The layout is rebuilt only by the
// session's own changes: a text changed behind its back leaves it on the old
// layout until the next of them. Every setter of the selection clamps it to
// the text; updateTextAndAttributes does not, and a host calls setSelection
// after it before it moves the caret again. Offsets left past the end of a
// shorter text, and points anywhere (NaN, far outside the int range), still
// give offsets of the text (or the unclamped neighbours that the setters
// then clamp), never a read outside it.
//
// A session and its callout belong to one thread at a time. The session
// owns its layout, so it can be neither copied nor moved; keep it by pointer.
//
// Threads: a session may be handed to another thread between calls. Each
// thread lays text out with a font map of its own, so a session used on
// another thread than the one that last laid its text out lays it out again
// there, from the same text, attributes and properties, with the same
// results; the old layout is released by the thread that made it.
class VANTREL_EXPORT TextEditingSession {
public:
    // The selection starts as (-1, -1); the layout is fitted to the box.
    TextEditingSession(TextCallout *callout, TextEditingSessionObserver *observer);
    ~TextEditingSession();
    TextEditingSession(TextEditingSession const &) = delete;
    TextEditingSession &operator=(TextEditingSession const &) = delete;

    TextCallout *textCallout() const;
    // Null is allowed: nothing is told then.
    void setObserver(TextEditingSessionObserver *observer);

    // As set, not normalised.
    Range selection() const;
    void setSelection(Range const &selection);
    void selectAll();

    // Points have their origin at the top-left corner of the callout's
    // trackingRect(). The caret place a click there would give, as (t, t);
    // the selection does not change. No click counting: a double click
    // selects no word unless the host sets the selection itself.
    Range selectionRangeForPoint(Point const &point) const;
    void handleMouseDown(Point const &point);
    // Keeps the anchor and moves the end.
    void handleMouseDrag(Point const &point);
    void handleMouseUp(Point const &point);

    // Each stores the value, rebuilds the layout fitted to the box and tells
    // textChanged.
    void setTextHorizontalAlignment(TextHorizontalAlignment alignment);
    void setTextVerticalAlignment(TextVerticalAlignment alignment);
    void setVerticalSpace(double verticalSpace);

    // Installs the text and attributes, rebuilds the layout and tells
    // textChanged. With fitToBox the text shrinks to the box; without, the
    // box grows to the text, keeping its proportions, centred on the origin,
    // and never shrinks. A box with a side that is not a finite number above
    // 0 has no proportions to keep: such a side takes the text's size, the
    // other grows to it if smaller. The callout's bounds already measured
    // are not cleared.
    void updateTextAndAttributes(std::string const &text, TextAttributeList const &attributes, bool fitToBox);

    // Caret moves. Left and right exchange their meaning in right-to-left
    // text, but only while an observer is set. The plain forms collapse the
    // selection (a non-empty one to its nearer end first, for left and
    // right); the AndModifySelection forms keep the anchor and move the end,
    // except that the moves to the beginning or end of the text or of the
    // line keep the far end instead. Up and down take the caret's x on the
    // line above or below, with no remembered column. Words are separated by
    // blanks, line feeds and carriage returns only.
    //
    // The caret moves by grapheme cluster, not by code point: moves, the
    // ends of word moves and hit tests land only on pango's cursor positions
    // (PangoLogAttr.is_cursor_position), so that the caret never stands
    // between a Thai or Devanagari letter and its vowel sign, nor inside an
    // emoji sequence joined by zero-width joiners or a flag. Where every
    // character is a cluster of its own, as in Latin, Greek, Cyrillic,
    // Hebrew or CJK text, that is one character at a time. Offsets stay
    // character offsets; a selection set by the host is kept as it is given.
    void moveSelectionLeft();
    void moveSelectionRight();
    void moveSelectionLeftAndModifySelection();
    void moveSelectionRightAndModifySelection();
    void moveSelectionUp();
    void moveSelectionUpAndModifySelection();
    void moveSelectionDown();
    void moveSelectionDownAndModifySelection();
    void moveSelectionToBeginning();
    void moveSelectionToBeginningAndModifySelection();
    void moveSelectionToEnd();
    void moveSelectionToEndAndModifySelection();
    void moveSelectionToBeginningOfLine();
    void moveSelectionToBeginningOfLineAndModifySelection();
    void moveSelectionToEndOfLine();
    void moveSelectionToEndOfLineAndModifySelection();
    void moveSelectionWordLeft();
    void moveSelectionWordLeftAndModifySelection();
    void moveSelectionWordRight();
    void moveSelectionWordRightAndModifySelection();

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};

} // namespace Vantrel
