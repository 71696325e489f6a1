#include "support/TextSupport.h"

#include "sprites/CharsLayout.h"

#include <vantrel/Vantrel.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

using namespace Vantrel;

namespace {

class SpriteTest : public VantrelTest::TextTest {
protected:
    static std::shared_ptr<SpriteSheet> sheet(std::string const &text, double size = 40, Point scale = Point(1, 1),
                                              Rect box = Rect(0, 0, 400, 200)) {
        TextCalloutProperties p = VantrelTest::TextTest::box(text, box);
        p.horizontalAlignment = Left;
        p.verticalAlignment = Top;
        return SpriteSheet::FromText(p, attributes(text, size), scale, true, 0, true);
    }
    static std::shared_ptr<SpriteSheet> sheet(TextCalloutProperties const &p, TextAttributeList const &a) {
        return SpriteSheet::FromText(p, a, Point(1, 1), true, 0, true);
    }
    static int cells(SpriteSheet const &s) {
        std::vector<Rect> distinct;
        for (SpriteSheetLayoutItem const &i : s.LayoutItems())
            if (std::find(distinct.begin(), distinct.end(), i.bitmapRect) == distinct.end())
                distinct.push_back(i.bitmapRect);
        return int(distinct.size());
    }
};

TEST_F(SpriteTest, LikeClustersShareACellAndEachDifferenceMakesOne) {
    TextCalloutProperties const p = box("aa a", Rect(0, 0, 400, 200));
    TextAttributeList coloured = attributes("aa a", 40), underlined = attributes("aa a", 40);
    coloured.addFGColorAttribute(Range(1, 2), Color(1, 0, 0));
    underlined.addUnderlineAttribute(Range(3, 4), 1);
    struct Case {
        char const *name;
        std::shared_ptr<SpriteSheet> sheet;
        int items, cells;
    } const cases[] = {
        {"one letter three times", sheet("aa a"), 3, 1},
        {"two letters", sheet("ab"), 2, 2},
        {"a second colour", sheet(p, coloured), 3, 2},
        {"an underline", sheet(p, underlined), 3, 2},
        {"blanks only", sheet("   "), 0, 0},
        {"empty", sheet(""), 0, 0},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        EXPECT_EQ(k.sheet->NumItems(), k.items);
        EXPECT_EQ(cells(*k.sheet), k.cells);
        EXPECT_EQ(k.sheet->TheBitmap().width(), k.cells ? k.sheet->TheBitmap().width() : 32);
    }
    EXPECT_EQ(cases[4].sheet->TheBitmap().height(), 0);
    // The underlined cell reaches below the plain one.
    std::vector<SpriteSheetLayoutItem> items = cases[3].sheet->LayoutItems();
    EXPECT_GT(items[2].bitmapRect.Height(), items[0].bitmapRect.Height());
}

TEST_F(SpriteTest, WordsAndLinesAreNumberedByCharacter) {
    std::shared_ptr<SpriteSheet> two = sheet("a b");
    ASSERT_EQ(two->NumItems(), 2);
    EXPECT_EQ(two->LayoutItem(0).wordIndex, 0);
    EXPECT_EQ(two->LayoutItem(1).wordIndex, 1);

    // Wrapped lines: every letter of a word has the word's number and its line's.
    std::shared_ptr<SpriteSheet> wrapped = sheet("alpha beta gamma", 30, Point(1, 1), Rect(0, 0, 110, 300));
    std::vector<SpriteSheetLineItem> lines = wrapped->LineItems();
    ASSERT_EQ(lines.size(), 3u);
    std::vector<int> words, lineOf;
    for (SpriteSheetLayoutItem const &i : wrapped->LayoutItems()) {
        words.push_back(i.wordIndex);
        lineOf.push_back(i.lineIndex);
    }
    EXPECT_EQ(words, (std::vector<int>{0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 2}));
    EXPECT_EQ(lineOf, (std::vector<int>{0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 2}));
    EXPECT_EQ(lines[1].firstItem, 5);
    EXPECT_EQ(lines[1].itemCount, 4);
    for (SpriteSheetLineItem const &l : lines) {
        EXPECT_LT(l.inkTop, l.baseline);
        EXPECT_GE(l.inkTop, l.rect.Top() - 1);
    }
}

TEST_F(SpriteTest, ScaleDoublesCellsAndPlacesButFlipsMirrorNoCell) {
    std::shared_ptr<SpriteSheet> one = sheet("Wo"), two = sheet("Wo", 40, Point(2, 2));
    ASSERT_EQ(one->NumItems(), 2);
    ASSERT_EQ(two->NumItems(), 2);
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(i);
        SpriteSheetLayoutItem a = one->LayoutItem(i), b = two->LayoutItem(i);
        // Each side has a pixel of margin and a rounding at either scale.
        EXPECT_NEAR(b.bitmapRect.Width(), 2 * a.bitmapRect.Width(), 4);
        EXPECT_NEAR(b.bitmapRect.Height(), 2 * a.bitmapRect.Height(), 4);
        EXPECT_EQ(b.rect, a.rect * 2.0);
        EXPECT_NEAR(b.origin.x, 2 * a.origin.x, 1.5);
    }
    EXPECT_EQ(two->LineItems()[0].baseline, 2 * one->LineItems()[0].baseline);
    EXPECT_EQ(two->LayoutRect(), Rect(0, 0, 800, 400));

    // Flipped, the text moves; its cells are the same pixels.
    TextCalloutProperties p = box("Wo", Rect(0, 0, 400, 200));
    p.horizontalAlignment = Left;
    std::shared_ptr<SpriteSheet> plain = sheet(p, attributes("Wo", 40));
    p.flipHorizontally = true;
    std::shared_ptr<SpriteSheet> flipped = sheet(p, attributes("Wo", 40));
    Bitmap a = plain->TheBitmap(), b = flipped->TheBitmap();
    ASSERT_EQ(a.size(), b.size());
    for (int y = 0; y < a.height(); ++y)
        ASSERT_EQ(std::memcmp(a.bufAt(0, y), b.bufAt(0, y), size_t(a.width()) * 4), 0);
    double const shift = flipped->LayoutItem(0).origin.x - plain->LayoutItem(0).origin.x;
    EXPECT_GT(shift, 100);
    EXPECT_DOUBLE_EQ(flipped->LayoutItem(1).origin.x - plain->LayoutItem(1).origin.x, shift);
}

TEST_F(SpriteTest, RightToLeftItemsComeInTheRunsOrderEachAtItsOwnCharacter) {
    std::shared_ptr<SpriteSheet> s = sheet("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D");
    ASSERT_EQ(s->NumItems(), 4);
    for (int i = 1; i < 4; ++i)
        EXPECT_LT(s->LayoutItem(i).rect.Left(), s->LayoutItem(i - 1).rect.Left());
}

TEST_F(SpriteTest, TheReassembledPiecesShowTheText) {
    std::string const text = "Sprites, like letters!";
    std::shared_ptr<SpriteSheet> s = sheet(text, 36, Point(1, 1), Rect(0, 0, 500, 120));
    VantrelTest::Canvas pieces(500, 120), drawn(500, 120);
    Bitmap const cells = s->TheBitmap();
    for (SpriteSheetLayoutItem const &i : s->LayoutItems()) {
        Bitmap cell = cells.subRect(i.bitmapRect.ToRectIntRound());
        pieces.context.DrawBitmap(cell, Rect(i.origin, i.origin + i.bitmapRect.Size() / i.bitmapScale), 1.0);
    }
    TextCalloutProperties p = box(text, Rect(0, 0, 500, 120));
    p.horizontalAlignment = Left;
    p.verticalAlignment = Top;
    drawn.context.DrawTextW(p, attributes(text, 36), nullptr);
    Rect a = VantrelTest::inkBounds(pieces.bitmap), b = VantrelTest::inkBounds(drawn.bitmap);
    EXPECT_NEAR(a.Left(), b.Left(), 1);
    EXPECT_NEAR(a.Top(), b.Top(), 1);
    EXPECT_NEAR(a.Right(), b.Right(), 1);
    EXPECT_NEAR(a.Bottom(), b.Bottom(), 1);
    int strong = 0, missed = 0;
    for (int y = 0; y < 120; ++y)
        for (int x = 0; x < 500; ++x)
            if (VantrelTest::alphaAt(drawn.bitmap, x, y) > 200) {
                ++strong;
                missed += VantrelTest::alphaAt(pieces.bitmap, x, y) < 60 ? 1 : 0;
            }
    EXPECT_LT(missed, strong / 50);
}

TEST_F(SpriteTest, LargeGlyphsFallBackToSmallerCellsOrToNoBitmap) {
    std::shared_ptr<SpriteSheet> half = sheet("W", 5000, Point(1, 1), Rect(0, 0, 8000, 8000));
    ASSERT_EQ(half->NumItems(), 1);
    SpriteSheetLayoutItem w = half->LayoutItem(0);
    EXPECT_EQ(w.bitmapScale, 0.5);
    EXPECT_GT(w.bitmapRect.Width(), 2048);
    EXPECT_LE(w.bitmapRect.Width(), 4096);
    EXPECT_GT(w.bitmapRect.Width() / w.bitmapScale, 4096);

    std::shared_ptr<SpriteSheet> huge = sheet("W", 20000, Point(1, 1), Rect(0, 0, 30000, 30000));
    EXPECT_EQ(huge->LayoutItem(0).bitmapScale, 0.125);

    // Too large at every scale: underlines 400,000 pixels long leave no
    // bitmap, and items without cells.
    TextCalloutProperties wide = box("Wx", Rect(0, 0, 1000000, 100));
    TextAttributeList spaced = attributes("Wx", 20);
    spaced.addCharacterSpacingAttribute(Range(0, 2), 40000);
    spaced.addUnderlineAttribute(Range(0, 2), 1);
    std::shared_ptr<SpriteSheet> none = SpriteSheet::FromText(wide, spaced, Point(1, 1), false, 0, true);
    EXPECT_EQ(none->TheBitmap().width(), 0);
    ASSERT_EQ(none->NumItems(), 2);
    EXPECT_EQ(none->LayoutItem(1).bitmapRect, Rect());
    EXPECT_EQ(none->LayoutItem(1).bitmapScale, 0.015625);
    EXPECT_EQ(none->LayoutItem(2).lineIndex, -1);
    EXPECT_EQ(none->LayoutItem(-1).wordIndex, -1);

    // Packing: a shape millions of pixels wide stops the doubling.
    CharsLayoutBitmap chars;
    chars.shapes.push_back({nullptr, Color(), Point(1, 1), Rect(), -3000000, 0, 3000000, 10});
    EXPECT_FALSE(chars.finishLayout(nullptr));
    CharsLayoutBitmap empty;
    EXPECT_TRUE(empty.finishLayout(nullptr));
    EXPECT_EQ(empty.bitmap->size(), PointInt(32, 0));
}

TEST_F(SpriteTest, WordsAreNumberedInReadingOrderInEitherDirection) {
    // Each case: the text, then each word's number of items from the left
    // of the line, as (word, items) in the order the words stand on screen.
    struct Case {
        char const *name;
        std::string text;
        std::vector<std::pair<int, int>> fromTheLeft;
    } const cases[] = {
        {"right-to-left", "\xD7\x90\xD7\x91 \xD7\x92\xD7\x93", {{1, 2}, {0, 2}}},
        {"right-to-left, words of two and three letters",
         "\xD7\x90\xD7\x91 \xD7\x92\xD7\x93\xD7\x94",
         {{1, 3}, {0, 2}}},
        {"mixed", "abc \xD7\x90\xD7\x91 \xD7\x92\xD7\x93\xD7\x94 xy", {{0, 3}, {2, 3}, {1, 2}, {3, 2}}},
    };
    for (Case const &c : cases) {
        SCOPED_TRACE(c.name);
        std::shared_ptr<SpriteSheet> s = sheet(c.text, 30, Point(1, 1), Rect(0, 0, 800, 100));
        std::vector<SpriteSheetLayoutItem> items = s->LayoutItems();
        std::sort(items.begin(), items.end(), [](SpriteSheetLayoutItem const &a, SpriteSheetLayoutItem const &b) {
            return a.rect.Left() < b.rect.Left();
        });
        std::vector<std::pair<int, int>> words;
        for (SpriteSheetLayoutItem const &i : items) {
            if (words.empty() || words.back().first != i.wordIndex)
                words.push_back({i.wordIndex, 0});
            ++words.back().second;
        }
        EXPECT_EQ(words, c.fromTheLeft);
    }
}

TEST_F(SpriteTest, LargeScalesTakeSmallerBitmapScales) {
    // A 20-point title cut at scale 40, as for a 4K frame: glyphs of about 800 pixels.
    std::shared_ptr<SpriteSheet> title = sheet("Title", 20, Point(40, 40), Rect(0, 0, 200, 40));
    ASSERT_EQ(title->NumItems(), 5);
    EXPECT_GT(title->TheBitmap().width(), 0);
    EXPECT_GT(title->LayoutItem(0).bitmapRect.Height() / title->LayoutItem(0).bitmapScale, 400);
    // An em dash 20 points wide at 250 by 10: 5,000 pixels wide, so half.
    std::shared_ptr<SpriteSheet> dash = sheet("\xE2\x80\x94", 20, Point(250, 10), Rect(0, 0, 100, 40));
    ASSERT_EQ(dash->NumItems(), 1);
    EXPECT_EQ(dash->LayoutItem(0).bitmapScale, 0.5);
    EXPECT_GT(dash->TheBitmap().width(), 2048);
}

TEST_F(SpriteTest, HostileInputGivesBoundedSheets) {
    double const nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
    for (Point scale :
         {Point(0, 1), Point(-1, 1), Point(nan, 1), Point(inf, inf), Point(1e300, 1e300), Point(1e-200, 1e-200)}) {
        SCOPED_TRACE(scale);
        std::shared_ptr<SpriteSheet> s = sheet("abc", 20, scale);
        EXPECT_EQ(s->NumItems(), 0);
        EXPECT_TRUE(s->LineItems().empty());
        EXPECT_EQ(s->TheBitmap().width(), 0);
    }
    // Glyphs beyond cairo's coordinate range at this scale are never
    // outlined: no bitmap, items without cells.
    std::shared_ptr<SpriteSheet> far = sheet("abc", 20, Point(1e300, 1));
    EXPECT_EQ(far->TheBitmap().width(), 0);
    EXPECT_EQ(far->NumItems(), 3);
    EXPECT_EQ(far->LayoutItem(0).bitmapRect, Rect());
    // Many scripts, 100,000 characters: like clusters still share cells.
    std::string const scripts = "Latin \xCE\x95\xCE\xBB\xCE\xBB\xCE\xB7\xCE\xBD \xD0\xA0\xD1\x83\xD1\x81 "
                                "\xD7\xA2\xD7\x91 \xD8\xB9\xD8\xB1\xD8\xA8 \xE4\xB8\xAD\xE6\x96\x87 "
                                "\xF0\x9F\x98\x80 \xFF\xFE ";
    std::string many;
    while (UTF8StringUtil::length(many) < 100000)
        many += scripts;
    // Not fitted to the box: the fit search would lay such a text out nine times.
    std::shared_ptr<SpriteSheet> big =
        SpriteSheet::FromText(box(many, Rect(0, 0, 2000, 100)), attributes(many, 12), Point(1, 1), false, 0, true);
    EXPECT_GT(big->NumItems(), 50000);
    EXPECT_LT(cells(*big), 200);
    EXPECT_LE(big->TheBitmap().width(), 4096);
}

} // namespace
