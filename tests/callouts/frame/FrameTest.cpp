// The callout frame: bounds and outlines come from the one drawing routine,
// the gradient of every "gradient" fill, and the factory steps of the text
// callouts.
#include "support/CalloutChecks.h"

#include "callouts/frame/TextCalloutFactory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace Vantrel;
using VantrelTest::Canvas;
using VantrelTest::expectBoundsMatchInk;

namespace {

// A body triangle and two tails, honouring the option bits and the tail index
// as the bubbles do; it counts how often it is drawn.
class TwoTailCallout : public BaseCallout {
public:
    TwoTailCallout(double strokeWidth, std::string style) : width(strokeWidth), strokeStyle(std::move(style)) {}
    void drawIntoContext(DrawingContext *c, DrawOptions options, Rect, int tailIndex,
                         DrawOutputMetaData *) const override {
        ++draws;
        if (options & DrawOptionBody) {
            c->Fill(Color(0, 0, 1), body);
            if (width > 0)
                c->Stroke(Color(0, 0, 0), width, strokeStyle, body);
        }
        if (options & DrawOptionTail)
            for (int i = 0; i < 2; ++i)
                if (tailIndex == -1 || tailIndex == i)
                    c->Fill(Color(1, 0, 0), tails[i]);
    }
    TwoTailCallout *clone() const { return new TwoTailCallout(*this); }

    mutable int draws = 0;
    double width;
    std::string strokeStyle;
    // A sharp corner at (-40, 0), whose miter reaches far beyond the vertex.
    Polygon body{Point(-40, 0), Point(40, -12), Point(40, 12)};
    Polygon tails[2] = {Polygon{Point(40, -5), Point(60, 30), Point(45, 0)},
                        Polygon{Point(-10, 5), Point(-20, 35), Point(0, 6)}};
};

} // namespace

TEST(Measurement, BoundingRectMatchesRenderedInk) {
    for (double width : {0.0, 1.0, 4.0, 11.0})
        for (char const *style : {"solid", "dash", "dot", "dashdotdot"}) {
            std::string what = std::to_string(width) + " " + style;
            expectBoundsMatchInk(TwoTailCallout(width, style), "triangle " + what);
            expectBoundsMatchInk(OvalShape(Color(0, 1, 0), "gradient", Point(1, 1), Color(0, 0, 0), width, style,
                                           Rect(-60, -30, 50, 45)),
                                 "oval " + what);
        }
}

TEST(Measurement, BoundsAreCachedForLifeAndCopiedByClone) {
    TwoTailCallout callout(2, "solid");
    Rect first = callout.boundingRect();
    EXPECT_EQ(callout.draws, 1);
    callout.body.points[0] = Point(-100, 0); // later changes do not reach the cache
    EXPECT_EQ(callout.boundingRect(), first);
    EXPECT_EQ(callout.boundingSize(), first.Size());
    EXPECT_EQ(callout.draws, 1);
    std::unique_ptr<TwoTailCallout> copy(callout.clone());
    copy->draws = 0;
    EXPECT_EQ(copy->boundingRect(), first);
    EXPECT_EQ(copy->draws, 0);
    // The default tracking rect is the bounds; one centred elsewhere grows to hold them.
    EXPECT_EQ(callout.trackingRect(), first);
}

TEST(Measurement, OutlineQueriesSelectTheirPiece) {
    TwoTailCallout callout(3, "dash");
    Polygons all = callout.pathAsPolygons(Rect());
    ASSERT_EQ(all.polygons.size(), 4u); // body filled, body stroked, two tails
    EXPECT_EQ(all.polygons[0]->points, callout.body.points);
    EXPECT_EQ(all.polygons[1]->points, callout.body.points);
    Polygons body = callout.bodyPathAsPolygons(Rect());
    EXPECT_EQ(body.polygons.size(), 2u);
    Polygons second = callout.tailPathAsPolygons(1, Rect());
    ASSERT_EQ(second.polygons.size(), 1u);
    EXPECT_EQ(second.polygons[0]->points, callout.tails[1].points);
    EXPECT_EQ(callout.tailPathAsPolygons(-1, Rect()).polygons.size(), 2u);
    EXPECT_TRUE(callout.tailPathAsPolygons(2, Rect()).polygons.empty());

    // An oval's outline is its ellipse, once for the fill and once for the stroke.
    OvalShape oval(Color(1, 0, 0), "gradient", Point(0, 1), Color(0, 0, 0), 2, "dot", Rect(-20, -10, 20, 10));
    Polygons ovalOutline = oval.pathAsPolygons(Rect());
    ASSERT_EQ(ovalOutline.polygons.size(), 2u);
    EXPECT_NEAR(ovalOutline.polygons[0]->BoundingRect().Width(), 40, 1e-6);
    OvalShape gradientOnly(Color(1, 0, 0), "gradient", Point(0, 1), Color(0, 0, 0), 0, "dot", Rect(-20, -10, 20, 10));
    EXPECT_EQ(gradientOnly.pathAsPolygons(Rect()).polygons.size(), 1u);
}

TEST(Measurement, TrackingRectAroundACentre) {
    struct Offcentre : TwoTailCallout {
        Offcentre() : TwoTailCallout(0, "solid") {}
        Rect around(Point c) const { return trackingRectAround(c); }
    } callout;
    Rect b = callout.boundingRect();
    Rect t = callout.around(Point(0, 0));
    EXPECT_EQ(t.Center(), Point(0, 0));
    EXPECT_GE(t.Right(), b.Right());
    EXPECT_LE(t.Left(), b.Left());
    EXPECT_EQ(t.Width(), 2 * std::max(b.Right(), -b.Left()));
    EXPECT_EQ(t.Height(), 2 * std::max(b.Bottom(), -b.Top()));
}

TEST(Measurement, HostileGeometryMeasuresWithoutHanging) {
    for (Rect r : {Rect(0, 0, 0, 0), Rect(-1e15, -1e15, 1e15, 1e15), Rect(0, 0, std::nan(""), 4), Rect(5, 5, -5, -5),
                   Rect(0, 0, 1e-300, 1e-300)}) {
        OvalShape oval(Color(1, 0, 0), "gradient", Point(0, 0), Color(0, 0, 0), 3, "dot", r);
        oval.boundingRect();
        Canvas canvas(64, 64);
        oval.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        Polygons outline = oval.pathAsPolygons(Rect());
        for (auto const &p : outline.polygons)
            EXPECT_LE(p->points.size(), 100000u);
    }
}

TEST(MakeGradientPattern, SpansTheProjectionOfTheRect) {
    GradientPattern g = makeGradientPattern(Color(1, 1, 1, 0.5f), Rect(10, 10, 30, 20), Point(1, 0));
    EXPECT_EQ(g.start, Point(10, 0));
    EXPECT_EQ(g.end, Point(30, 0));
    ASSERT_EQ(g.stops.size(), 3u);
    EXPECT_EQ(g.stops[1].color, Color(1, 1, 1, 0.5f));
    EXPECT_EQ(g.stops[2].color, Color(0.65f, 0.65f, 0.65f, 0.5f));
    GradientPattern black = makeGradientPattern(Color(0, 0, 0), Rect(0, 0, 1, 1), Point(0, 1));
    EXPECT_EQ(black.stops[0].color, Color(0.35f, 0.35f, 0.35f));

    GradientPattern diagonal = makeGradientPattern(Color(0, 0, 0), Rect(0, 0, 10, 10), Point(-3, -3));
    EXPECT_NEAR(diagonal.start.x, 10, 1e-12); // the largest projection is at the far corner
    EXPECT_NEAR(diagonal.end.x, 0, 1e-12);

    // Without a direction the gradient runs top to bottom.
    for (Point none : {Point(0, 0), Point(std::nan(""), 1)}) {
        GradientPattern g0 = makeGradientPattern(Color(0, 0, 0), Rect(0, 5, 10, 25), none);
        EXPECT_EQ(g0.start, Point(0, 5));
        EXPECT_EQ(g0.end, Point(0, 25));
    }
}

namespace {

// A text callout made the way the themed ones are, by createWithTextBox.
class BoxedText : public TextCallout {
public:
    using TextCallout::TextCallout;
    static BoxedText *createWithTextBox(Rect const &r, CalloutProperties const &p, Point tail) {
        BoxedText *made = new BoxedText(r);
        made->style = p;
        made->tail = tail;
        return made;
    }
    CalloutProperties style;
    Point tail;
};

} // namespace

TEST(TextCalloutFactory, TheThemeTablePicksMakesAndInstalls) {
    ThemeTable<Point> const table{
        {&makeTextCallout<BoxedText, Point>, nullptr, &makeTextCallout<BoxedText, Point>, nullptr, nullptr}};
    TextCalloutProperties text;
    text.text = "hi";
    TextAttributeList attributes;
    attributes.addFontSizeAttribute(Range(0, 2), 30);
    TextCalloutRequest const request{
        CalloutProperties(Color(1, 0, 0), "gradient", Point(0, 1), Color(0, 0, 0), 2, "dash"), Rect(-50, -20, 50, 20),
        text, attributes};
    std::unique_ptr<BaseCallout> made(table.make(Presets::ThemeUrban, request, Point(3, 4)));
    auto *boxed = dynamic_cast<BoxedText *>(made.get());
    ASSERT_NE(boxed, nullptr);
    EXPECT_EQ(boxed->tail, Point(3, 4));
    EXPECT_EQ(boxed->style.fillStyle, "gradient");
    EXPECT_EQ(boxed->bodyRect(), request.bodyRect);
    EXPECT_EQ(boxed->textCalloutProperties().text, "hi");
    EXPECT_EQ(boxed->textAttributeList().pangoAttributes().size(), 1u);
    for (int theme : {int(Presets::ThemeModern), int(Presets::ThemeBold), -1, 5}) {
        SCOPED_TRACE(theme);
        EXPECT_EQ(table.make(Presets::Theme(theme), request, Point()), nullptr);
    }
}
