#include "support/TextSupport.h"

#include "editing/EditingLayout.h"
#include "text/TextLayout.h"

#include <vantrel/Vantrel.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <mutex>

using namespace Vantrel;

namespace {

std::string const kHebrew = "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"; // four letters

struct Recorder : TextEditingSessionObserver {
    std::vector<std::string> calls;
    void textChanged() override { calls.push_back("text"); }
    void selectionChanged() override { calls.push_back("selection"); }
    bool isRightToLeftLanguage(std::string const &text) override {
        calls.push_back("rtl?");
        return UTF8StringUtil::isRightToLeftLanguage(text);
    }
};

using Move = void (TextEditingSession::*)();
struct NamedMove {
    char const *name;
    Move move;
};
std::vector<NamedMove> const kEveryMove = {
    {"Left", &TextEditingSession::moveSelectionLeft},
    {"Right", &TextEditingSession::moveSelectionRight},
    {"LeftModify", &TextEditingSession::moveSelectionLeftAndModifySelection},
    {"RightModify", &TextEditingSession::moveSelectionRightAndModifySelection},
    {"Up", &TextEditingSession::moveSelectionUp},
    {"UpModify", &TextEditingSession::moveSelectionUpAndModifySelection},
    {"Down", &TextEditingSession::moveSelectionDown},
    {"DownModify", &TextEditingSession::moveSelectionDownAndModifySelection},
    {"Beginning", &TextEditingSession::moveSelectionToBeginning},
    {"BeginningModify", &TextEditingSession::moveSelectionToBeginningAndModifySelection},
    {"End", &TextEditingSession::moveSelectionToEnd},
    {"EndModify", &TextEditingSession::moveSelectionToEndAndModifySelection},
    {"LineStart", &TextEditingSession::moveSelectionToBeginningOfLine},
    {"LineStartModify", &TextEditingSession::moveSelectionToBeginningOfLineAndModifySelection},
    {"LineEnd", &TextEditingSession::moveSelectionToEndOfLine},
    {"LineEndModify", &TextEditingSession::moveSelectionToEndOfLineAndModifySelection},
    {"WordLeft", &TextEditingSession::moveSelectionWordLeft},
    {"WordLeftModify", &TextEditingSession::moveSelectionWordLeftAndModifySelection},
    {"WordRight", &TextEditingSession::moveSelectionWordRight},
    {"WordRightModify", &TextEditingSession::moveSelectionWordRightAndModifySelection},
};

class EditingTest : public VantrelTest::TextTest {
protected:
    // Left and top aligned, so that layout space is box space.
    static TextCallout callout(std::string const &text, Rect r = Rect(0, 0, 300, 200), double size = 20) {
        TextCalloutProperties p = box(text, r);
        p.horizontalAlignment = Left;
        p.verticalAlignment = Top;
        return TextCallout(r, p, attributes(text, size));
    }

    // Where a character lies in the callout's own layout, in pixels.
    static Rect characterBox(TextCallout const &c, int offset) {
        PangoLayout *layout = buildTextLayout(c.textCalloutProperties(), c.textAttributeList(), true, 0, true);
        PangoRectangle pos;
        pango_layout_index_to_pos(
            layout, UTF8StringUtil::byteOffsetFromCharacterOffset(c.textCalloutProperties().text, offset), &pos);
        g_object_unref(layout);
        return Rect(pos.x / 1024.0, pos.y / 1024.0, (pos.x + pos.width) / 1024.0, (pos.y + pos.height) / 1024.0);
    }

    // The line-helper results straight from a layout of the callout.
    static int onLayout(TextCallout const &c, std::function<int(PangoLayout *, std::string const &)> const &f) {
        PangoLayout *layout = buildTextLayout(c.textCalloutProperties(), c.textAttributeList(), true, 0, true);
        int result = f(layout, c.textCalloutProperties().text);
        g_object_unref(layout);
        return result;
    }
};

TEST_F(EditingTest, ANewSessionHasNoSelectionAndEverySetterClampsAndNotifies) {
    TextCallout c = callout("Hello");
    Recorder recorder;
    TextEditingSession session(&c, &recorder);
    EXPECT_EQ(session.textCallout(), &c);
    EXPECT_EQ(session.selection(), Range(-1, -1));
    EXPECT_TRUE(recorder.calls.empty());
    session.moveSelectionLeft();
    EXPECT_EQ(session.selection(), Range(0, 0));
    session.setSelection(Range(-7, 99));
    EXPECT_EQ(session.selection(), Range(0, 5));
    session.selectAll();
    EXPECT_EQ(session.selection(), Range(0, 5));
    // Clamped back to where it was, and told all the same.
    session.setSelection(Range(3, 0));
    session.moveSelectionLeftAndModifySelection();
    EXPECT_EQ(session.selection(), Range(3, 0));
    EXPECT_EQ(recorder.calls, std::vector<std::string>(5, "selection"));
}

TEST_F(EditingTest, LeftAndRightCollapseASelectionToItsNearerEnd) {
    TextCallout c = callout("Hello world");
    TextEditingSession session(&c, nullptr);
    for (Range given : {Range(2, 7), Range(7, 2)}) {
        SCOPED_TRACE(given);
        session.setSelection(given);
        session.moveSelectionLeft();
        EXPECT_EQ(session.selection(), Range(2, 2));
        session.setSelection(given);
        session.moveSelectionRight();
        EXPECT_EQ(session.selection(), Range(7, 7));
    }
    session.moveSelectionRight();
    EXPECT_EQ(session.selection(), Range(8, 8));
}

TEST_F(EditingTest, RightToLeftTextSwapsLeftAndRightOnlyWithAnObserver) {
    TextCallout c = callout(kHebrew);
    Recorder recorder;
    TextEditingSession session(&c, nullptr);
    session.setSelection(Range(2, 2));
    session.moveSelectionLeft();
    EXPECT_EQ(session.selection(), Range(1, 1));
    session.setObserver(&recorder);
    session.setSelection(Range(2, 2));
    session.moveSelectionLeft();
    EXPECT_EQ(session.selection(), Range(3, 3));
    session.moveSelectionWordRight();
    EXPECT_EQ(session.selection(), Range(0, 0));
    // The modifying forms move by the offset whatever the direction.
    session.moveSelectionRightAndModifySelection();
    EXPECT_EQ(session.selection(), Range(0, 1));
    EXPECT_EQ(std::count(recorder.calls.begin(), recorder.calls.end(), "rtl?"), 0);
}

TEST_F(EditingTest, WordsAreSeparatedByBlanksLineFeedsAndCarriageReturnsOnly) {
    struct Case {
        std::string text;
        int offset, end, start;
    } const cases[] = {
        {"ab  cd", 2, 6, 0}, {"ab  cd", 4, 6, 0},   {"ab  cd", 1, 2, 0},     {"ab  cd", 6, 6, 4},
        {"ab  cd", 0, 2, 0}, {"a\tb,c d", 0, 5, 0}, {"ab\ncd\ref", 3, 5, 0}, {"ab\ncd\ref", 8, 8, 6},
        {"", 0, 0, 0},       {"ab cd", -5, 2, 0},   {"ab cd", 99, 5, 3},     {"h\xC3\xA9llo w\xC3\xB6rld", 1, 5, 0},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.text + " at " + std::to_string(k.offset));
        EXPECT_EQ(wordEndOffset(k.text, k.offset), k.end);
        EXPECT_EQ(wordStartOffset(k.text, k.offset), k.start);
    }
}

TEST_F(EditingTest, LineEndsSitBeforeTheWrapBlankAtTheLineFeedAndAtTheTextsEnd) {
    // Lines: "alpha " (wrapped), "beta " (wrapped), "gamma" (line feed), "delta".
    TextCallout c = callout("alpha beta gamma\ndelta", Rect(0, 0, 90, 400));
    std::vector<Range> lines = TextCalloutUtil::lineRanges(c.textCalloutProperties(), c.textAttributeList());
    ASSERT_EQ(lines.size(), 4u);
    ASSERT_EQ(lines[1], Range(6, 11));
    struct Case {
        int offset, start, end;
    } const cases[] = {{0, 0, 5}, {8, 6, 10}, {13, 11, 16}, {19, 17, 22}, {22, 17, 22}};
    TextEditingSession session(&c, nullptr);
    for (Case const &k : cases) {
        SCOPED_TRACE(k.offset);
        session.setSelection(Range(k.offset, k.offset));
        session.moveSelectionToEndOfLine();
        EXPECT_EQ(session.selection(), Range(k.end, k.end));
        session.setSelection(Range(k.offset, k.offset));
        session.moveSelectionToBeginningOfLine();
        EXPECT_EQ(session.selection(), Range(k.start, k.start));
    }
    // Up from the first line goes to 0, down from the last to its end.
    session.setSelection(Range(3, 3));
    session.moveSelectionUp();
    EXPECT_EQ(session.selection(), Range(0, 0));
    session.setSelection(Range(18, 18));
    session.moveSelectionDown();
    EXPECT_EQ(session.selection(), Range(22, 22));
    // Up starts from start, down from end; each lands on the line beside.
    session.setSelection(Range(13, 7));
    session.moveSelectionUp();
    EXPECT_EQ(onLayout(c, [](PangoLayout *l, std::string const &t) { return startOfLineOffset(l, t, 13); }), 11);
    EXPECT_GE(session.selection().start(), 6);
    EXPECT_LE(session.selection().start(), 10);
    session.setSelection(Range(13, 7));
    session.moveSelectionDown();
    EXPECT_GE(session.selection().start(), 11);
    EXPECT_LE(session.selection().start(), 16);
    EXPECT_EQ(onLayout(c, [](PangoLayout *l, std::string const &) { return lineHeightAt(l, 9); }), 0);
}

TEST_F(EditingTest, TheModifyingFormsKeepTheAnchorOrTheFarEnd) {
    TextCallout c = callout("ab  cd ef");
    TextEditingSession session(&c, nullptr);
    struct Case {
        Move move;
        Range from, to;
    } const cases[] = {
        {&TextEditingSession::moveSelectionToBeginningAndModifySelection, Range(3, 5), Range(0, 5)},
        {&TextEditingSession::moveSelectionToBeginningAndModifySelection, Range(5, 3), Range(0, 5)},
        {&TextEditingSession::moveSelectionToEndAndModifySelection, Range(5, 3), Range(3, 9)},
        {&TextEditingSession::moveSelectionToBeginningOfLineAndModifySelection, Range(3, 5), Range(0, 5)},
        {&TextEditingSession::moveSelectionToBeginningOfLineAndModifySelection, Range(5, 3), Range(5, 0)},
        {&TextEditingSession::moveSelectionToEndOfLineAndModifySelection, Range(5, 3), Range(9, 3)},
        {&TextEditingSession::moveSelectionToEndOfLineAndModifySelection, Range(3, 5), Range(3, 9)},
        {&TextEditingSession::moveSelectionWordLeftAndModifySelection, Range(3, 8), Range(3, 7)},
        {&TextEditingSession::moveSelectionWordRightAndModifySelection, Range(8, 1), Range(8, 2)},
        {&TextEditingSession::moveSelectionWordLeft, Range(8, 1), Range(7, 7)},
        {&TextEditingSession::moveSelectionWordRight, Range(1, 8), Range(2, 2)},
        {&TextEditingSession::moveSelectionLeftAndModifySelection, Range(4, 4), Range(4, 3)},
        {&TextEditingSession::moveSelectionToEnd, Range(1, 1), Range(9, 9)},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(::testing::Message() << &k - cases << " from " << k.from);
        session.setSelection(k.from);
        (session.*k.move)();
        EXPECT_EQ(session.selection(), k.to);
    }
}

TEST_F(EditingTest, AClickOnEachHalfOfALetterLandsInFrontOrBehindByItsDirection) {
    struct Case {
        std::string text;
        int character;
        int leftHalf, rightHalf;
    } const cases[] = {
        {"WAVE", 1, 1, 2},
        {"h\xC3\xA9llo", 1, 1, 2}, // offsets in characters, not bytes
        {kHebrew, 1, 2, 1},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.text);
        TextCallout c = callout(k.text, Rect(0, 0, 300, 200), 40);
        TextEditingSession session(&c, nullptr);
        Rect r = characterBox(c, k.character).Normalized();
        double y = r.Center().y;
        EXPECT_EQ(session.selectionRangeForPoint(Point(r.Left() + r.Width() * 0.25, y)), Range(k.leftHalf, k.leftHalf));
        session.handleMouseDown(Point(r.Left() + r.Width() * 0.75, y));
        EXPECT_EQ(session.selection(), Range(k.rightHalf, k.rightHalf));
    }
}

TEST_F(EditingTest, ClicksFollowTheFlipsTheBoxOffsetAndTheWrapBlank) {
    // Right-aligned text shows at the left of a horizontally flipped box.
    TextCallout c = callout("abc", Rect(0, 0, 300, 100), 20);
    c.textCalloutProperties().horizontalAlignment = Right;
    {
        TextEditingSession plain(&c, nullptr);
        EXPECT_EQ(plain.selectionRangeForPoint(Point(2, 10)), Range(0, 0));
    }
    c.textCalloutProperties().flipHorizontally = true;
    TextEditingSession flipped(&c, nullptr);
    EXPECT_EQ(flipped.selectionRangeForPoint(Point(2, 10)), Range(3, 3));
    EXPECT_EQ(flipped.selectionRangeForPoint(Point(298, 10)), Range(0, 0));

    // Past the end of a wrapped line: in front of the blank at the wrap.
    TextCallout wrapped = callout("alpha beta", Rect(0, 0, 80, 200));
    TextEditingSession session(&wrapped, nullptr);
    EXPECT_EQ(session.selectionRangeForPoint(Point(79, 5)), Range(5, 5));

    // Points are taken from the top-left of the tracking rect.
    TextCallout moved = callout("WAVE", Rect(0, 0, 300, 200), 40);
    Rect w = characterBox(moved, 0);
    moved.boundingRect(); // measured here, and stale once the box moves
    moved.textCalloutProperties().textRect = Rect(-150, -100, 150, 100);
    TextEditingSession away(&moved, nullptr);
    Point const inside = moved.trackingRect().topLeft - Rect(-150, -100, 150, 100).topLeft;
    EXPECT_EQ(away.selectionRangeForPoint(Point(w.Left() + w.Width() * 0.75, w.Center().y) - inside), Range(1, 1));
}

TEST_F(EditingTest, DragKeepsTheAnchorAndMouseUpDoesNothing) {
    TextCallout c = callout("WAVE WAVE", Rect(0, 0, 400, 200), 40);
    Recorder recorder;
    TextEditingSession session(&c, &recorder);
    Rect first = characterBox(c, 0), fourth = characterBox(c, 3);
    session.handleMouseDown(Point(first.Left() + 1, first.Center().y));
    session.handleMouseDrag(Point(fourth.Right() - 1, fourth.Center().y));
    EXPECT_EQ(session.selection(), Range(0, 4));
    session.handleMouseUp(Point(0, 0));
    EXPECT_EQ(session.selection(), Range(0, 4));
    EXPECT_EQ(recorder.calls.size(), 2u);
}

TEST_F(EditingTest, SettersRebuildTheLayoutAndTellTextChangedOnce) {
    std::string const text = "one\ntwo\nsix";
    TextCallout c = callout(text, Rect(0, 0, 300, 400));
    Recorder recorder;
    TextEditingSession session(&c, &recorder);
    session.setVerticalSpace(1.0);
    EXPECT_EQ(recorder.calls, std::vector<std::string>{"text"});
    EXPECT_EQ(c.textCalloutProperties().verticalSpace, 1.0);
    // A click on the middle line where the new spacing puts it.
    Rect two = characterBox(c, 5);
    int hit = session.selectionRangeForPoint(two.Center()).start();
    EXPECT_GE(hit, 4);
    EXPECT_LE(hit, 7);
    session.setSelection(Range(5, 5));
    session.moveSelectionDown();
    EXPECT_GE(session.selection().start(), 8);
    session.setTextHorizontalAlignment(Right);
    session.setTextVerticalAlignment(Bottom);
    EXPECT_EQ(c.textCalloutProperties().horizontalAlignment, Right);
    EXPECT_EQ(c.textCalloutProperties().verticalAlignment, Bottom);
    EXPECT_EQ(std::count(recorder.calls.begin(), recorder.calls.end(), "text"), 3);
}

TEST_F(EditingTest, ADeferredObserverPassesABatchOnAsOneCallOfEachTextFirst) {
    TextCallout c = callout("Hello world");
    Recorder target;
    TextEditingSession session(&c, &target);
    {
        ScopedDeferredTextEditingSessionObserver deferred(&target);
        session.setObserver(&deferred);
        session.moveSelectionRight();
        session.moveSelectionRight();
        session.moveSelectionWordRight();
        session.updateTextAndAttributes("Hello there", attributes("Hello there", 20), true);
        session.moveSelectionLeft();
        session.moveSelectionToEnd();
        EXPECT_TRUE(target.calls.empty());
        session.setObserver(&target);
    }
    EXPECT_EQ(target.calls, (std::vector<std::string>{"text", "selection"}));
    ScopedDeferredTextEditingSessionObserver nobody(nullptr);
    nobody.textChanged();
    EXPECT_TRUE(nobody.isRightToLeftLanguage(kHebrew));
}

TEST_F(EditingTest, UpdatingLeavesTheSelectionAndGrowsTheBoxWithoutFitting) {
    std::string const text = "A text wider than its box";
    TextCallout c = callout(text, Rect(-50, -25, 50, 25));
    c.textCalloutProperties().wordWrap = false;
    Recorder recorder;
    TextEditingSession session(&c, &recorder);
    session.setSelection(Range(20, 24));
    recorder.calls.clear();
    session.updateTextAndAttributes("A text", attributes("A text", 20), true);
    EXPECT_EQ(session.selection(), Range(20, 24));
    EXPECT_EQ(recorder.calls, std::vector<std::string>{"text"});
    EXPECT_EQ(c.textCalloutProperties().textRect, Rect(-50, -25, 50, 25));

    session.updateTextAndAttributes(text, attributes(text, 20), false);
    Point size = TextCalloutUtil::calculateDrawingDimensions(c.textCalloutProperties(), c.textAttributeList());
    double factor = std::fmax(size.x / 100, size.y / 50);
    ASSERT_GT(factor, 1.0);
    EXPECT_EQ(c.textCalloutProperties().textRect, Rect(-50 * factor, -25 * factor, 50 * factor, 25 * factor));
    EXPECT_FALSE(c.textCalloutProperties().isRightToLeft);

    struct Case {
        Rect box;
        int width, height;
        Rect grown;
    } const cases[] = {
        {Rect(0, 0, 100, 50), 200, 20, Rect(-100, -50, 100, 50)},
        {Rect(10, 10, 110, 60), 50, 10, Rect(10, 10, 110, 60)}, // never shrinks, never moves
        {Rect(0, 0, 0, 50), 80, 20, Rect(-40, -25, 40, 25)},
        {Rect(0, 0, 0, 0), 80, 20, Rect(-40, -10, 40, 10)},
        {Rect(0, 0, std::nan(""), 30), 80, 20, Rect(-40, -15, 40, 15)},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.box);
        EXPECT_EQ(grownTextRect(k.box, k.width, k.height), k.grown);
    }
}

TEST_F(EditingTest, HostileInputGivesOffsetsOfTheText) {
    struct Case {
        std::string name, text;
        Rect box;
    } const cases[] = {
        {"empty", "", Rect(0, 0, 300, 200)},
        {"invalid UTF-8", "\xFF\xFE ab\xC3 \xE2\x82 cd\xC3", Rect(0, 0, 300, 200)},
        {"embedded zero", std::string("ab\0cd ef", 8), Rect(0, 0, 300, 200)},
        {"zero box", "Hello world", Rect(0, 0, 0, 0)},
        {"lines", "one two three four five six\nseven", Rect(0, 0, 60, 400)},
    };
    double const inf = std::numeric_limits<double>::infinity();
    Point const points[] = {Point(std::nan(""), 5), Point(1e300, -1e300), Point(-inf, inf), Point(5, 5)};
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        TextCallout c = callout(k.text, k.box);
        Recorder recorder;
        TextEditingSession session(&c, &recorder);
        int const length = UTF8StringUtil::length(k.text);
        auto inText = [&](Range r) {
            return r.start() >= 0 && r.start() <= length && r.end() >= 0 && r.end() <= length;
        };
        for (Point const &p : points) {
            Range hit = session.selectionRangeForPoint(p);
            EXPECT_GE(hit.start(), -1);
            EXPECT_LE(hit.start(), length + 2); // a cut-off last character counts for the byte walk only
            session.handleMouseDown(p);
            session.handleMouseDrag(p);
            EXPECT_TRUE(inText(session.selection()));
        }
        for (NamedMove const &m : kEveryMove) {
            SCOPED_TRACE(m.name);
            session.selectAll();
            (session.*m.move)();
            EXPECT_TRUE(inText(session.selection()));
            session.setSelection(Range(length, length));
            (session.*m.move)();
            EXPECT_TRUE(inText(session.selection()));
        }
        // Offsets past the end of a shorter text, moved before any setter.
        for (NamedMove const &m : kEveryMove) {
            SCOPED_TRACE(m.name);
            session.setSelection(Range(length, length));
            session.updateTextAndAttributes("ab", attributes("ab", 20), true);
            (session.*m.move)();
            EXPECT_TRUE(session.selection().start() >= 0 && session.selection().end() <= 2);
            session.updateTextAndAttributes(k.text, attributes(k.text, 20), false);
        }
    }
    // A session without a callout edits nothing.
    TextEditingSession none(nullptr, nullptr);
    none.moveSelectionDown();
    none.handleMouseDown(Point(3, 3));
    none.updateTextAndAttributes("x", TextAttributeList(), false);
    EXPECT_EQ(none.textCallout(), nullptr);
    EXPECT_EQ(none.selection(), Range(0, 0));
}

} // namespace

TEST_F(EditingTest, TheCaretStopsOnlyBetweenClustersOfCombiningCharacters) {
    // Each text with the caret's places, in characters: moving right from the
    // start visits them in turn, moving left from the end visits them back,
    // and every click lands on one of them.
    struct Case {
        char const *name;
        std::string text;
        std::vector<int> stops;
    } const cases[] = {
        {"Latin, every character its own", "Wave", {0, 1, 2, 3, 4}},
        {"Devanagari with a virama and a vowel sign",
         "\xE0\xA4\xA8\xE0\xA4\xAE\xE0\xA4\xB8\xE0\xA5\x8D\xE0\xA4\xA4\xE0\xA5\x87", // नमस्ते
         {0, 1, 2, 4, 6}},
        {"family emoji joined by zero-width joiners",
         "a\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7"
         "b",
         {0, 1, 6, 7}},
        {"flag", "\xF0\x9F\x87\xAB\xF0\x9F\x87\xB7", {0, 2}},
        {"Thai letter with a tone mark", "\xE0\xB8\x94\xE0\xB9\x89x", {0, 2, 3}}, // ด้x
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        TextCallout c = callout(k.text, Rect(0, 0, 400, 100), 30);
        TextEditingSession session(&c, nullptr);
        session.setSelection(Range(0, 0));
        std::vector<int> rightward{0}, leftward;
        for (size_t i = 1; i < k.stops.size(); ++i) {
            session.moveSelectionRight();
            rightward.push_back(session.selection().end());
        }
        EXPECT_EQ(rightward, k.stops);
        for (size_t i = 1; i < k.stops.size(); ++i) {
            leftward.insert(leftward.begin(), session.selection().end());
            session.moveSelectionLeft();
        }
        leftward.insert(leftward.begin(), session.selection().end());
        EXPECT_EQ(leftward, k.stops);
        // The modifying forms move the selection's end the same way.
        session.setSelection(Range(0, 0));
        session.moveSelectionRightAndModifySelection();
        EXPECT_EQ(session.selection(), Range(0, k.stops[1]));
        session.moveSelectionToEnd();
        session.moveSelectionLeftAndModifySelection();
        EXPECT_EQ(session.selection().end(), k.stops[k.stops.size() - 2]);
        // Clicks across the whole line.
        for (double x = -5; x < 400; x += 1.5) {
            int const t = session.selectionRangeForPoint(Point(x, 15)).start();
            EXPECT_TRUE(std::find(k.stops.begin(), k.stops.end(), t) != k.stops.end()) << "x " << x << " gave " << t;
        }
    }
    // Word moves end on a stop too: a word that begins with a combining
    // accent on the blank before it begins in front of that blank.
    std::string const accented = "ab \xCC\x81"
                                 "cd"; // a combining acute on the blank
    TextCallout c = callout(accented);
    TextEditingSession session(&c, nullptr);
    session.moveSelectionToEnd();
    session.moveSelectionWordLeft();
    EXPECT_EQ(session.selection(), Range(2, 2));
}
