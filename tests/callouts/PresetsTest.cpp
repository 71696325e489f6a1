// The whole decision table of Presets: every function with every theme value
// from -1 to 6, the class it makes or null, the style and text it installs.
#include "support/LoggingContext.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <typeindex>

using namespace Vantrel;

namespace {

Color const kFill(0.25f, 0.5f, 0.75f);
Color const kInk(0.1f, 0.1f, 0.3f);
Rect const kBox(-60, -20, 60, 20);

TextCalloutProperties text() {
    TextCalloutProperties p;
    p.text = "table";
    p.textRect = kBox;
    return p;
}

TextAttributeList attributes() {
    TextAttributeList a;
    a.addFontSizeAttribute(Range(0, 5), 13);
    return a;
}

using Make = std::function<BaseCallout *(Presets::Theme)>;

struct Row {
    char const *function;
    Make make;
    // The class for Basic, Modern, Urban, Bold and Abstract; void for null.
    std::type_index classes[5];
    std::type_index outside; // for -1, 5 and 6
    bool text;               // a text callout with the text installed
};

std::type_index const none = typeid(void);

template <class Text> Make bubble(Text f) {
    return [f](Presets::Theme t) {
        return f(t, kFill, "solid", Point(0, 1), kInk, 2, "dash", kBox, Point(90, 70), text(), attributes());
    };
}
template <class Arrow> Make textArrow(Arrow f) {
    return [f](Presets::Theme t) {
        return f(t, kFill, "solid", Point(0, 1), kInk, 2, "dash", kBox, 0.5, text(), attributes());
    };
}
template <class Shape> Make longShape(Shape f) {
    return [f](Presets::Theme t) { return f(t, kFill, "solid", Point(0, 1), kInk, 2, "dash", kBox); };
}
template <class Shape> Make shortShape(Shape f) {
    return [f](Presets::Theme t) { return f(t, kFill, kInk, 2, "dash", kBox); };
}

std::vector<Row> const &table() {
    using BC = BaseCallout *(*)(Presets::Theme, Color const &, std::string const &, Point const &, Color const &,
                                double, std::string const &, Rect const &);
    using SC =
        BaseCallout *(*)(Presets::Theme, Color const &, Color const &, double, std::string const &, Rect const &);
    static std::vector<Row> const rows = {
        {"createShapeOval",
         longShape<BC>(Presets::createShapeOval),
         {typeid(OvalShape), typeid(OvalShape), typeid(OvalShape), typeid(OvalShape), typeid(OvalShape)},
         typeid(OvalShape),
         false},
        {"createShapeOval short",
         shortShape<SC>(Presets::createShapeOval),
         {typeid(OvalShape), typeid(OvalShape), typeid(OvalShape), typeid(OvalShape), typeid(OvalShape)},
         typeid(OvalShape),
         false},
        {"createShapeRectangle",
         longShape<BC>(Presets::createShapeRectangle),
         {typeid(RectangleShape), none, typeid(RectangleShape), typeid(RectangleShape), typeid(RectangleShape)},
         none,
         false},
        {"createShapeRectangle short",
         shortShape<SC>(Presets::createShapeRectangle),
         {typeid(RectangleShape), none, typeid(RectangleShape), typeid(RectangleShape), typeid(RectangleShape)},
         none,
         false},
        {"createShapeOctagon",
         longShape<BC>(Presets::createShapeOctagon),
         {typeid(RegularPolygonShape), none, typeid(RegularPolygonShape), typeid(RegularPolygonShape),
          typeid(RegularPolygonShape)},
         none,
         false},
        {"createShapeTriangle short",
         shortShape<SC>(Presets::createShapeTriangle),
         {typeid(RegularPolygonShape), none, typeid(RegularPolygonShape), typeid(RegularPolygonShape),
          typeid(RegularPolygonShape)},
         none,
         false},
        {"createShapeStar",
         longShape<BC>(Presets::createShapeStar),
         {typeid(StarShape), none, typeid(StarShape), typeid(StarShape), typeid(StarShape)},
         none,
         false},
        {"createLine",
         [](Presets::Theme t) { return Presets::createLine(t, kFill, Point(-50, 10), Point(50, -10)); },
         {typeid(BoldLine), none, typeid(UrbanLine), typeid(BoldLine), typeid(AbstractLine)},
         none,
         false},
        {"createArrow",
         [](Presets::Theme t) {
             return Presets::createArrow(t, kFill, 6, "solid", Point(-50, 10), "", Point(50, -10), "");
         },
         {typeid(BoldDoubleArrow), none, typeid(UrbanArrow), typeid(BoldDoubleArrow), typeid(AbstractDoubleArrow)},
         none,
         false},
        {"createLine with caps",
         [](Presets::Theme t) -> BaseCallout * {
             return Presets::createLine(t, kFill, 6, Point(-50, 10), Point(50, -10), Presets::LineShaftSolid,
                                        Presets::LineEndCapArrow, Presets::LineEndCapDot);
         },
         {typeid(LineWithCaps), typeid(LineWithCaps), typeid(LineWithCaps), typeid(LineWithCaps), typeid(LineWithCaps)},
         typeid(LineWithCaps),
         false},
        {"createSpeechBubble",
         bubble(Presets::createSpeechBubble),
         {typeid(BasicSpeechBubble), none, typeid(UrbanSpeechBubble), typeid(BoldSpeechBubble),
          typeid(AbstractSpeechBubble)},
         none,
         true},
        {"createSpeechBubbleTwo",
         bubble(Presets::createSpeechBubbleTwo),
         {typeid(BasicSpeechBubbleTwo), none, typeid(UrbanSpeechBubbleTwo), typeid(BoldSpeechBubbleTwo),
          typeid(AbstractSpeechBubbleTwo)},
         none,
         true},
        {"createThoughtBubble",
         bubble(Presets::createThoughtBubble),
         {typeid(BasicThoughtBubble), none, typeid(UrbanThoughtBubble), typeid(BoldThoughtBubble),
          typeid(AbstractThoughtBubble)},
         none,
         true},
        {"createThoughtBubbleTwo",
         bubble(Presets::createThoughtBubbleTwo),
         {typeid(BasicThoughtBubbleTwo), none, typeid(UrbanThoughtBubbleTwo), typeid(BoldThoughtBubbleTwo),
          typeid(AbstractThoughtBubbleTwo)},
         none,
         true},
        {"createTextArrow",
         textArrow(Presets::createTextArrow),
         {typeid(BasicTextArrow), none, typeid(UrbanTextArrow), typeid(BoldTextArrow), typeid(AbstractTextArrow)},
         none,
         true},
        {"createTextArrowTwo",
         textArrow(Presets::createTextArrowTwo),
         {typeid(BasicTextArrowTwo), none, typeid(UrbanTextArrowTwo), typeid(BoldTextArrowTwo),
          typeid(AbstractTextArrowTwo)},
         none,
         true},
        {"createTextRectangle",
         [](Presets::Theme t) {
             return Presets::createTextRectangle(t, kFill, "solid", Point(0, 1), kInk, 2, "dash", kBox, text(),
                                                 attributes());
         },
         {typeid(BasicTextRectangle), none, typeid(UrbanTextRectangle), typeid(BoldTextRectangle),
          typeid(AbstractTextRectangle)},
         none,
         true},
    };
    return rows;
}

} // namespace

TEST(Presets, EveryFunctionWithEveryThemeMakesTheTablesClass) {
    for (Row const &row : table())
        for (int theme = -1; theme <= 6; ++theme) {
            SCOPED_TRACE(std::string(row.function) + " theme " + std::to_string(theme));
            std::unique_ptr<BaseCallout> made(row.make(Presets::Theme(theme)));
            std::type_index const expected = theme >= 0 && theme <= 4 ? row.classes[theme] : row.outside;
            if (expected == none) {
                EXPECT_EQ(made, nullptr);
                continue;
            }
            ASSERT_NE(made, nullptr);
            EXPECT_EQ(std::type_index(typeid(*made)), expected);
            // The style: the fill's colour in every fill, a stroke of width 2.
            VantrelTest::LoggingContext log;
            made->drawIntoContext(&log, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
            for (Color const &c : log.fillColours)
                EXPECT_TRUE(c.red == kFill.red && c.green == kFill.green && c.blue == kFill.blue);
            if (!row.text)
                continue;
            EXPECT_TRUE(std::any_of(log.calls.begin(), log.calls.end(),
                                    [](std::string const &c) { return c.rfind("stroke", 0) == 0; }));
            auto *t = dynamic_cast<TextCallout *>(made.get());
            ASSERT_NE(t, nullptr);
            EXPECT_EQ(t->bodyRect(), kBox);
            EXPECT_EQ(t->textCalloutProperties().text, "table");
            EXPECT_EQ(t->textAttributeList().pangoAttributes().size(), 1u);
            EXPECT_EQ(log.calls.back(), "text");
        }
}
