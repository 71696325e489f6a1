// Four editing sessions at once, each on its own callout and thread,
// clicking, moving and updating: each ends where the same script ends on one
// thread.
#include "support/TextSupport.h"
#include "support/ThreadSupport.h"

using namespace Vantrel;
using VantrelTest::TextTest;

namespace {

struct Outcome {
    std::string text;
    std::vector<Range> selections;
    uint64_t pixels = 0;
    bool operator==(Outcome const &o) const {
        return text == o.text && selections == o.selections && pixels == o.pixels;
    }
};

struct Counting : TextEditingSessionObserver {
    int changes = 0;
    void textChanged() override { ++changes; }
    void selectionChanged() override { ++changes; }
    bool isRightToLeftLanguage(std::string const &text) override { return UTF8StringUtil::isRightToLeftLanguage(text); }
};

Outcome edit(int script) {
    std::string text = script % 2 ? "Click here, then move word by word" : "Zwei Zeilen: über Wörter gehen";
    TextCallout callout(Rect(-70, -30, 70, 30), TextTest::box(text, Rect(-70, -30, 70, 30)),
                        TextTest::attributes(text, 14));
    Counting observer;
    TextEditingSession session(&callout, &observer);
    Outcome o;
    session.handleMouseDown(Point(-40 + 7 * script, -10));
    session.handleMouseDrag(Point(10 + script, 12));
    session.handleMouseUp(Point(10 + script, 12));
    o.selections.push_back(session.selection());
    session.moveSelectionWordRightAndModifySelection();
    session.moveSelectionDown();
    o.selections.push_back(session.selection());
    session.moveSelectionToEndOfLineAndModifySelection();
    o.selections.push_back(session.selection());
    text += " +" + std::to_string(script);
    session.updateTextAndAttributes(text, TextTest::attributes(text, 14), script % 3 == 0);
    session.moveSelectionToBeginning();
    session.moveSelectionWordRight();
    session.moveSelectionUpAndModifySelection();
    o.selections.push_back(session.selection());
    o.text = callout.textCalloutProperties().text;
    VantrelTest::Canvas canvas(160, 80);
    canvas.context.Translate(Point(80, 40));
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    callout.drawSelectionIntoContext(&canvas.context, session.selection(), Color(0, 0, 1, 0.3f), Color(0, 0, 0));
    o.pixels = VantrelTest::pixelHash(canvas.bitmap);
    return o;
}

} // namespace

TEST(Threads, FourEditingSessionsEndAsOnOneThread) {
    PangoFonts::setLoadFallbackFonts(false);
    EXPECT_EQ(VantrelTest::mismatchesAcrossThreads(4, 6, edit), 0);
}
