#include "support/TextSupport.h"

#include "drawing/BoundsFinder.h"

#include <cfloat>
#include <cmath>
#include <memory>

using namespace Vantrel;
using VantrelTest::Canvas;
using VantrelTest::TextTest;

namespace {

Color const kInk(0, 0, 0);

void draw(TextCallout const &callout, Canvas &canvas, DrawOutputMetaData *metadata = nullptr) {
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionText, Rect(), -1, metadata);
}

bool sameBitmaps(Bitmap const &a, Bitmap const &b) {
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (VantrelTest::pixel(a, x, y) != VantrelTest::pixel(b, x, y))
                return false;
    return true;
}

} // namespace

TEST_F(TextTest, ColourComesFromTheAttributesAndInkStaysInTheBox) {
    std::string text = "Hello, world";
    Canvas uncoloured(120, 60);
    uncoloured.context.Clear(Color(1, 0, 0));
    TextCallout plain(Rect(), box(text, Rect(10, 10, 110, 50)), attributes(text, 16, Color()));
    DrawOutputMetaData metadata;
    draw(plain, uncoloured, &metadata);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 120; ++x)
            ASSERT_EQ(uncoloured.at(x, y), 0xFFFF0000u);
    EXPECT_EQ(metadata.clusterRects.size(), text.size()); // still filled
    EXPECT_EQ(metadata.clusterBaselines.size(), text.size());
    EXPECT_GT(metadata.layoutWidth, 0);

    // Large text in a box at half pixels: ink only inside the floored, rounded box.
    Canvas canvas(120, 60);
    TextCalloutProperties p = box("WWWWWWWWWW", Rect(10.5, 10.5, 90.9, 40.9));
    p.resizeBehavior = "none";
    draw(TextCallout(Rect(), p, attributes(p.text, 40)), canvas);
    Rect ink = VantrelTest::inkBounds(canvas.bitmap);
    EXPECT_GE(ink.Left(), 11);
    EXPECT_GE(ink.Top(), 11);
    EXPECT_LE(ink.Right(), 91);
    EXPECT_LE(ink.Bottom(), 41);
}

TEST_F(TextTest, FlipsMirrorTheGlyphsInsideTheClip) {
    std::string text = "L";
    TextCalloutProperties p = box(text, Rect(0, 0, 60, 60));
    p.horizontalAlignment = Left;
    Canvas normal(60, 60), flipped(60, 60);
    draw(TextCallout(Rect(), p, attributes(text, 40)), normal);
    p.flipHorizontally = true;
    draw(TextCallout(Rect(), p, attributes(text, 40)), flipped);
    Rect a = VantrelTest::inkBounds(normal.bitmap), b = VantrelTest::inkBounds(flipped.bitmap);
    EXPECT_NEAR(a.Left(), 60 - b.Right(), 1);
    EXPECT_NEAR(a.Top(), b.Top(), 1);
    // The stem of the L is on the left normally, on the right when mirrored.
    EXPECT_GT(VantrelTest::alphaAt(normal.bitmap, int(a.Left()) + 2, int(a.Top()) + 2), 0);
    EXPECT_GT(VantrelTest::alphaAt(flipped.bitmap, int(b.Right()) - 3, int(b.Top()) + 2), 0);
}

TEST_F(TextTest, CaretAndSelection) {
    std::string text = "abcdef ghijkl";
    TextCalloutProperties p = box(text, Rect(0, 0, 70, 60));
    p.resizeBehavior = "none";
    TextCallout callout(Rect(), p, attributes(text, 14, Color()));
    Canvas caret(70, 60);
    callout.drawSelectionIntoContext(&caret.context, Range(2, 2), Color(0, 0, 1), Color(1, 0, 0));
    Rect mark = VantrelTest::inkBounds(caret.bitmap);
    EXPECT_EQ(mark.Width(), 2);
    EXPECT_EQ(caret.at(int(mark.Left()), int(mark.Center().y)), 0xFFFF0000u);

    Canvas forward(70, 60), backward(70, 60);
    callout.drawSelectionIntoContext(&forward.context, Range(3, 10), Color(0, 0, 1, 0.5f), Color(1, 0, 0));
    callout.drawSelectionIntoContext(&backward.context, Range(10, 3), Color(0, 0, 1, 0.5f), Color(1, 0, 0));
    EXPECT_TRUE(sameBitmaps(forward.bitmap, backward.bitmap));
    // Over two lines: ink on both.
    Rect band = VantrelTest::inkBounds(forward.bitmap);
    EXPECT_GT(band.Height(), 25);
    // Past the end and before the start: cut to the text.
    Canvas wild(70, 60);
    callout.drawSelectionIntoContext(&wild.context, Range(-5, 1000000), Color(0, 0, 1), Color(1, 0, 0));
    callout.drawSelectionIntoContext(&wild.context, Range(500, 500), Color(0, 0, 1), Color(1, 0, 0));
}

TEST_F(TextTest, MisspellingMarksSitBelowTheBaseline) {
    std::string text = "wrongg word";
    TextCalloutProperties p = box(text, Rect(0, 0, 200, 40));
    p.horizontalAlignment = Left;
    p.verticalAlignment = Top;
    p.resizeBehavior = "none";
    TextCallout callout(Rect(), p, attributes(text, 20, Color()));
    Canvas canvas(200, 40), metrics(200, 40);
    DrawOutputMetaData metadata;
    draw(callout, metrics, &metadata);
    callout.drawMisspelledRangesIntoContext(&canvas.context, {Range(0, 6), Range(8, 8)}, Color(1, 0, 0));
    Rect marks = VantrelTest::inkBounds(canvas.bitmap);
    int baseline = metadata.clusterBaselines[0];
    EXPECT_GE(marks.Top(), baseline);
    EXPECT_LE(marks.Bottom(), baseline + 5);
    EXPECT_NEAR(marks.Left(), metadata.clusterRects[0].Left(), 3);
    EXPECT_LT(marks.Right(), metadata.clusterRects[7].Left()); // the empty range draws nothing
    EXPECT_LE(marks.Height(), 3); // a line width of 2 at this size, over at most three pixel rows
}

TEST_F(TextTest, TextCalloutMeasuresItsBox) {
    std::string text = "Some text that overflows its small box by far";
    TextCalloutProperties p = box(text, Rect(-40, -20, 40, 20));
    p.resizeBehavior = "none";
    TextCallout callout(Rect(-50, -30, 50, 30), p, attributes(text, 30));
    EXPECT_EQ(callout.boundingRect(), Rect(-40, -20, 40, 20)); // the box, whatever the glyphs do
    TextCalloutProperties moved = p;
    moved.textRect = Rect(0, 0, 10, 10);
    callout.setTextCalloutProperties(moved);
    EXPECT_EQ(callout.boundingRect(), Rect(-40, -20, 40, 20)); // cached
    std::unique_ptr<TextCallout> copy(callout.clone());
    EXPECT_EQ(copy->boundingRect(), Rect(-40, -20, 40, 20));
    EXPECT_TRUE(callout.pathAsPolygons(Rect()).polygons.empty());
    EXPECT_EQ(callout.offsetOfTextBoxCenterFromTrackingRectCenter(), Point(-5, -5));

    // Options without the text bit draw nothing.
    Canvas canvas(100, 60);
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionBody, Rect(), -1, nullptr);
    EXPECT_EQ(VantrelTest::inkBounds(canvas.bitmap), Rect());
}

TEST_F(TextTest, BadTextAndRangesSurvive) {
    std::string bad = "ab\xFF\xFE\xC3 c\xE2\x82";
    TextAttributeList a = attributes(bad, 14);
    a.addFontWeightAttribute(Range(5, 500), 700);
    a.addFGColorAttribute(Range(-3, 1000), Color(0, 1, 0));
    for (Rect r : {Rect(0, 0, 80, 40), Rect(0, 0, 0, 0), Rect(10, 10, -10, -10), Rect(0, 0, 1e12, 1e12)}) {
        TextCallout callout(Rect(), box(bad, r), a);
        Canvas canvas(80, 40);
        DrawOutputMetaData metadata;
        draw(callout, canvas, &metadata);
        callout.drawSelectionIntoContext(&canvas.context, Range(1, 900), Color(0, 0, 1), Color(1, 0, 0));
        callout.drawMisspelledRangesIntoContext(&canvas.context, {Range(-4, 3), Range(2, 99)}, Color(1, 0, 0));
        CrossPlatformDrawingContext::calculateDrawingFontScale(callout.textCalloutProperties(), a);
        TextCalloutUtil::lineRanges(callout.textCalloutProperties(), a);
    }
}

// Sizes at the ends of pango's int units: the library's own arithmetic on
// them stays defined (the sanitizer build checks), and drawing goes on.
TEST_F(TextTest, ExtremeSpacingAndWidthsStayDefined) {
    std::string text = "abc def\nghi";
    struct Case {
        char const *what;
        double verticalSpace, size, characterSpacing;
        bool wordWrap;
    };
    for (Case c :
         {Case{"line spacing 1e9", 1e9, 14, 0, true}, Case{"a layout about INT_MAX units wide", 0, 1, DBL_MAX, false},
          Case{"negative spacing", -1e9, 14, -DBL_MAX, false}}) {
        SCOPED_TRACE(c.what);
        TextCalloutProperties p = box(text, Rect(0, 0, 80, 40));
        p.verticalSpace = c.verticalSpace;
        p.wordWrap = c.wordWrap;
        p.resizeBehavior = "none";
        p.horizontalAlignment = Center;
        TextAttributeList a = attributes(text, c.size);
        a.addCharacterSpacingAttribute(Range(0, int(text.size())), c.characterSpacing);
        TextCallout callout(Rect(), p, a);
        Canvas canvas(80, 40);
        DrawOutputMetaData metadata;
        draw(callout, canvas, &metadata);
        callout.drawSelectionIntoContext(&canvas.context, Range(0, 9), Color(0, 0, 1), Color(1, 0, 0));
        callout.drawMisspelledRangesIntoContext(&canvas.context, {Range(0, 9)}, Color(1, 0, 0));
        for (Rect const &r : metadata.clusterRects)
            EXPECT_TRUE(std::isfinite(r.Left()) && std::isfinite(r.Right()));
    }
}
