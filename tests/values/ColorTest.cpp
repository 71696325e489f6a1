#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>
#include <pango/pango.h>

#include <cmath>

using namespace Vantrel;

TEST(Color, FromHexText) {
    Color black(0, 0, 0);
    for (char const *bad : {"", "ABC", "#ABCDEF", "ABCDEF00"})
        EXPECT_EQ(Color(std::string(bad)), black) << bad;
    Color orange(std::string("ff8000"));
    EXPECT_EQ(orange, Color(std::string("FF8000")));
    EXPECT_EQ(orange, Color(1.0f, 128 / 255.0f, 0.0f, 1.0f));
    // Each pair goes through strtol as it is: junk reads what strtol reads.
    EXPECT_EQ(Color(std::string("1GzzFF")), Color(1 / 255.0f, 0, 1.0f));
    EXPECT_EQ(Color(std::string(" f-1+2")), Color(15 / 255.0f, -1 / 255.0f, 2 / 255.0f));
    EXPECT_NE(Color(), Color(0, 0, 0));
}

TEST(Color, PackedWordClampsAndRounds) {
    EXPECT_EQ(Color(1, 0.5f, 0).ToPacked(), 0xFFFF8000u);
    EXPECT_EQ(Color(2, -1, 0.2f, 0.5f).ToPacked(), 0x80FF0033u);
    EXPECT_EQ(Color(std::nanf(""), 0, 0, 1).ToPacked(), 0xFF000000u);
    PangoColor pc = {65535, 0, 32768};
    Color c = Color::FromPango(pc);
    EXPECT_EQ(c.red, 1.0f);
    EXPECT_EQ(c.blue, 32768 / 65535.0f);
    EXPECT_EQ(c.alpha, 1.0f);
}

TEST(Color32, ArithmeticWrapsAtEightBits) {
    Color32 c(200, 100, 10, 255);
    EXPECT_EQ(c.alphaMult(2.0).r, 144);
    EXPECT_EQ(c.alphaMult(0.5), Color32(100, 50, 5, 128));
    EXPECT_EQ(c.alphaMult(-0.01).b, 0); // -0.1 rounds to 0
    EXPECT_EQ(c.alphaMult(-1.0).g, 156);

    // Opaque over anything is the source; transparent over anything is the destination.
    Color32 src(10, 20, 30, 255), transparent;
    EXPECT_EQ(c.blendWith(src), src);
    EXPECT_EQ(c.blendWith(transparent), c);
    Color32 half(50, 0, 0, 128);
    Color32 mixed = Color32(0, 200, 0, 255).blendWith(half);
    EXPECT_EQ(mixed, Color32(50, 100, 0, 255));                                  // 200 * (1 - 128/255) = 99.6
    EXPECT_EQ(Color32(200, 0, 0, 200).blendWith(Color32(200, 0, 0, 100)).r, 66); // 321.6 wraps

    Color32 from(0, 100, 200, 10), to(255, 0, 100, 250);
    EXPECT_EQ(from.interpolateWith(to, 0.0), from);
    EXPECT_EQ(from.interpolateWith(to, 1.0), to);
    EXPECT_EQ(from.interpolateWith(to, 0.5), Color32(128, 50, 150, 130));
    EXPECT_EQ(from.interpolate24With(to, 0.0).a, 255);
    EXPECT_EQ(from.interpolate24With(to, 0.5), Color32(128, 50, 150, 255));
    EXPECT_EQ(from.interpolateWith(to, 2.0).r, 254); // 0 + 510 wraps
}

TEST(Color32, MemoryOrderIsThePixelWord) {
    Color32 c = Color32::FromPacked(0x80402010u);
    uint8_t const *bytes = reinterpret_cast<uint8_t const *>(&c);
    EXPECT_EQ(bytes[0], 0x10);
    EXPECT_EQ(bytes[1], 0x20);
    EXPECT_EQ(bytes[2], 0x40);
    EXPECT_EQ(bytes[3], 0x80);
    EXPECT_EQ(c.packed(), 0x80402010u);
}

TEST(GradientPattern, StopsKeepTheirOrder) {
    GradientPattern g(Point(0, 0), Point(0, 10));
    g.AddStop(1.0, Color(1, 0, 0));
    g.AddStop(0.0, Color(0, 1, 0));
    g.AddStop(1.0, Color(0, 0, 1));
    ASSERT_EQ(g.stops.size(), 3u);
    EXPECT_EQ(g.stops[0].offset, 1.0);
    EXPECT_EQ(g.stops[2].color, Color(0, 0, 1));
}
