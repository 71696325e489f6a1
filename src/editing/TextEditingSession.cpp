// The session keeps its layout in a KeptLayout, with what it was built
// from: a session handed to another thread builds it again there from the
// same inputs before its first use.
#include <vantrel/editing/TextEditingSession.h>

#include "editing/EditingLayout.h"
#include "text/KeptLayout.h"
#include "text/TextLayout.h"

#include <vantrel/text/UTF8StringUtil.h>

#include <algorithm>

namespace Vantrel {

TextEditingSessionObserver::~TextEditingSessionObserver() = default;

ScopedDeferredTextEditingSessionObserver::ScopedDeferredTextEditingSessionObserver(TextEditingSessionObserver *target_)
    : target(target_) {}

ScopedDeferredTextEditingSessionObserver::~ScopedDeferredTextEditingSessionObserver() {
    if (!target)
        return;
    if (textChangePending)
        target->textChanged();
    if (selectionChangePending)
        target->selectionChanged();
}

bool ScopedDeferredTextEditingSessionObserver::isRightToLeftLanguage(std::string const &text) {
    return target ? target->isRightToLeftLanguage(text) : UTF8StringUtil::isRightToLeftLanguage(text);
}

struct TextEditingSession::Impl {
    TextCallout *callout;
    Range selection;
    // The layout, and what it was last built from.
    mutable KeptLayout kept;
    TextCalloutProperties builtProperties;
    TextAttributeList builtAttributes;
    bool builtFitted = true;
    TextEditingSessionObserver *observer;
    // What a session without a callout edits: an empty text in an empty box.
    TextCallout nothing{Rect()};

    Impl(TextCallout *callout_, TextEditingSessionObserver *observer_) : callout(callout_), observer(observer_) {}

    // The layout, built again on the calling thread if another built it.
    PangoLayout *layout() const {
        if (!kept.isHome())
            kept.reset(buildTextLayout(builtProperties, builtAttributes, LayoutOptions().fitted(builtFitted)));
        return kept.get();
    }

    TextCallout &edited() { return callout ? *callout : nothing; }
    TextCallout const &edited() const { return callout ? *callout : nothing; }
    TextCalloutProperties &properties() { return edited().textCalloutProperties(); }
    TextCalloutProperties const &properties() const { return edited().textCalloutProperties(); }
    std::string const &text() const { return properties().text; }
    int length() const { return UTF8StringUtil::length(text()); }

    // The one place a selection changes.
    void applySelection(Range const &range) {
        int const n = length();
        selection = Range(std::max(0, std::min(range.start(), n)), std::max(0, std::min(range.end(), n)));
        if (observer)
            observer->selectionChanged();
    }

    void rebuild(bool fitToBox) {
        builtProperties = properties();
        builtAttributes = edited().textAttributeList();
        builtFitted = fitToBox;
        kept.reset(buildTextLayout(builtProperties, builtAttributes, LayoutOptions().fitted(fitToBox)));
        PangoLayout *const layout = kept.get();
        if (fitToBox)
            return;
        // The box grows to the text instead; the layout stays as built.
        int width = 0, height = 0;
        pango_layout_get_pixel_size(layout, &width, &height);
        TextCalloutProperties &p = properties();
        p.isRightToLeft = UTF8StringUtil::isRightToLeftLanguage(p.text);
        p.textRect = grownTextRect(p.textRect, width, height);
    }

    void rebuildAndTell(bool fitToBox) {
        rebuild(fitToBox);
        if (observer)
            observer->textChanged();
    }

    int hitTest(Point const &point) const {
        Rect const tracking = edited().trackingRect();
        PangoLayout *const layout = this->layout();
        return characterAtLayoutPoint(layout, text(), layoutPointForPoint(properties(), tracking, layout, point));
    }

    // Left and right change places for right-to-left text, with an observer only.
    bool reversed() const { return observer && UTF8StringUtil::isRightToLeftLanguage(text()); }

    // A line helper of the layout (lineAboveOffset, endOfLineOffset, ...) at offset.
    int onLine(int (*helper)(PangoLayout *, std::string const &, int), int offset) const {
        return helper(layout(), text(), offset);
    }
    // Where the caret may stand (cursorStops).
    std::vector<bool> stops() const { return cursorStops(layout(), text()); }
    // A word's end, or the next stop beyond it: a word may end in a cluster
    // that begins with a blank.
    int wordLeft(int offset) const {
        int const t = reversed() ? wordEndOffset(text(), offset) : wordStartOffset(text(), offset);
        return nearestStop(stops(), t, reversed() ? 1 : -1);
    }
    int wordRight(int offset) const {
        int const t = reversed() ? wordStartOffset(text(), offset) : wordEndOffset(text(), offset);
        return nearestStop(stops(), t, reversed() ? -1 : 1);
    }
    // The caret, or the selection's end, moved by one cluster.
    Range caretStep(int d) const { return caretMovedBy(selection, d, stops()); }
    int endStep(int d) const { return steppedToStop(stops(), e(), d); }

    int s() const { return selection.start(); }
    int e() const { return selection.end(); }
    void caretTo(int t) { applySelection(Range(t, t)); }
};

TextEditingSession::TextEditingSession(TextCallout *callout, TextEditingSessionObserver *observer)
    : impl(new Impl(callout, observer)) {
    impl->rebuild(true);
}

TextEditingSession::~TextEditingSession() = default;

TextCallout *TextEditingSession::textCallout() const { return impl->callout; }
void TextEditingSession::setObserver(TextEditingSessionObserver *observer) { impl->observer = observer; }
Range TextEditingSession::selection() const { return impl->selection; }
void TextEditingSession::setSelection(Range const &selection) { impl->applySelection(selection); }
void TextEditingSession::selectAll() { impl->applySelection(Range(0, impl->length())); }

Range TextEditingSession::selectionRangeForPoint(Point const &point) const {
    int const t = impl->hitTest(point);
    return Range(t, t);
}

void TextEditingSession::handleMouseDown(Point const &point) { impl->caretTo(impl->hitTest(point)); }
void TextEditingSession::handleMouseDrag(Point const &point) {
    impl->applySelection(Range(impl->s(), impl->hitTest(point)));
}
void TextEditingSession::handleMouseUp(Point const &) {}

void TextEditingSession::setTextHorizontalAlignment(TextHorizontalAlignment alignment) {
    impl->properties().horizontalAlignment = alignment;
    impl->rebuildAndTell(true);
}

void TextEditingSession::setTextVerticalAlignment(TextVerticalAlignment alignment) {
    impl->properties().verticalAlignment = alignment;
    impl->rebuildAndTell(true);
}

void TextEditingSession::setVerticalSpace(double verticalSpace) {
    impl->properties().verticalSpace = verticalSpace;
    impl->rebuildAndTell(true);
}

void TextEditingSession::updateTextAndAttributes(std::string const &text, TextAttributeList const &attributes,
                                                 bool fitToBox) {
    TextCalloutProperties &p = impl->properties();
    p.text = text;
    p.isRightToLeft = UTF8StringUtil::isRightToLeftLanguage(text);
    impl->edited().setTextAttributeList(attributes);
    // The selection stays as it is, unclamped, until the host sets it.
    impl->rebuildAndTell(fitToBox);
}

void TextEditingSession::moveSelectionLeft() { impl->applySelection(impl->caretStep(impl->reversed() ? 1 : -1)); }
void TextEditingSession::moveSelectionRight() { impl->applySelection(impl->caretStep(impl->reversed() ? -1 : 1)); }
void TextEditingSession::moveSelectionLeftAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->endStep(-1)));
}
void TextEditingSession::moveSelectionRightAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->endStep(1)));
}
void TextEditingSession::moveSelectionUp() { impl->caretTo(impl->onLine(lineAboveOffset, impl->s())); }
void TextEditingSession::moveSelectionUpAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->onLine(lineAboveOffset, impl->e())));
}
void TextEditingSession::moveSelectionDown() { impl->caretTo(impl->onLine(lineBelowOffset, impl->e())); }
void TextEditingSession::moveSelectionDownAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->onLine(lineBelowOffset, impl->e())));
}
void TextEditingSession::moveSelectionToBeginning() { impl->caretTo(0); }
void TextEditingSession::moveSelectionToBeginningAndModifySelection() {
    impl->applySelection(Range(0, std::max(impl->s(), impl->e())));
}
void TextEditingSession::moveSelectionToEnd() { impl->caretTo(impl->length()); }
void TextEditingSession::moveSelectionToEndAndModifySelection() {
    impl->applySelection(Range(std::min(impl->s(), impl->e()), impl->length()));
}
void TextEditingSession::moveSelectionToBeginningOfLine() { impl->caretTo(impl->onLine(startOfLineOffset, impl->s())); }
void TextEditingSession::moveSelectionToBeginningOfLineAndModifySelection() {
    int const s = impl->s(), e = impl->e();
    impl->applySelection(s < e ? Range(impl->onLine(startOfLineOffset, s), e)
                               : Range(s, impl->onLine(startOfLineOffset, e)));
}
void TextEditingSession::moveSelectionToEndOfLine() { impl->caretTo(impl->onLine(endOfLineOffset, impl->e())); }
void TextEditingSession::moveSelectionToEndOfLineAndModifySelection() {
    int const s = impl->s(), e = impl->e();
    impl->applySelection(s > e ? Range(impl->onLine(endOfLineOffset, s), e)
                               : Range(s, impl->onLine(endOfLineOffset, e)));
}
void TextEditingSession::moveSelectionWordLeft() { impl->caretTo(impl->wordLeft(impl->s())); }
void TextEditingSession::moveSelectionWordLeftAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->wordLeft(impl->e())));
}
void TextEditingSession::moveSelectionWordRight() { impl->caretTo(impl->wordRight(impl->s())); }
void TextEditingSession::moveSelectionWordRightAndModifySelection() {
    impl->applySelection(Range(impl->s(), impl->wordRight(impl->e())));
}

} // namespace Vantrel
