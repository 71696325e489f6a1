// Two threads reading SVG documents at once: reading switches the process
// to the classic locale, so reads take turns, and each thread gets the
// pictures and frames one thread gets.
#include "support/PixelProbe.h"
#include "support/ThreadSupport.h"

#include <gtest/gtest.h>

#include <clocale>
#include <stdexcept>
#include <string>

using namespace Vantrel;

namespace {

std::string document(int variant) {
    std::string d = "M0 0";
    for (int i = 1; i <= 40 + 10 * variant; ++i)
        d += " L" + std::to_string(i) + "." + std::to_string(variant) + " " + std::to_string((i * 7) % 23) + ".5";
    return "<svg><path d=\"" + d + " C10 10 20 30 5.25 6.5 Z\"/><path d=\"m3 3 h10 v10 q5 5 10 0\"/></svg>";
}

struct Outcome {
    double length = 0;
    uint64_t frame = 0;
    bool failed = false;
    bool operator==(Outcome const &o) const { return length == o.length && frame == o.frame && failed == o.failed; }
};

Outcome readDocument(int variant) {
    Outcome o;
    SketchMotionCallout picture(document(variant));
    o.length = picture.totalPathLength();
    VantrelTest::Canvas canvas(64, 64);
    picture.drawProgressIntoContext(&canvas.context, 0.5 + 0.1 * variant, Color(0, 0, 0), 2, Rect(2, 2, 62, 62));
    o.frame = VantrelTest::pixelHash(canvas.bitmap);
    try {
        SketchMotionCallout bad("<svg><path d=\"M0 0 X1 1\"/></svg>");
    } catch (std::runtime_error const &) {
        o.failed = true;
    }
    return o;
}

} // namespace

TEST(Threads, TwoThreadsReadDocumentsAsOneDoes) {
    std::string const before = std::setlocale(LC_ALL, nullptr);
    ASSERT_TRUE(readDocument(0).failed);
    EXPECT_EQ(VantrelTest::mismatchesAcrossThreads(2, 3, readDocument), 0);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}
