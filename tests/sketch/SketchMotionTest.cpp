#include "sketch/SVGPathReader.h"
#include "sketch/SketchMotionAccess.h"
#include "support/PixelProbe.h"

#include <vantrel/Vantrel.h>

#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <sstream>

using namespace Vantrel;
using VantrelTest::Canvas;
using VantrelTest::inkBounds;

namespace {

SketchMotionPaths readData(std::string const &d) {
    SketchMotionPaths paths;
    PathCommandState state(paths);
    parsePathData(d, [&state](bool first, char letter, std::vector<double> const &params) {
        appendPathCommand(state, first, letter, params);
    });
    return paths;
}

std::string document(std::vector<std::string> const &ds) {
    std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\">";
    for (auto const &d : ds)
        text += "<path d=\"" + d + "\"/>";
    return text + "</svg>";
}

template <class T> T const &as(boost::shared_ptr<SVGCommand> const &c) {
    auto const *typed = dynamic_cast<T const *>(c.get());
    if (!typed)
        throw std::logic_error("unexpected command class");
    return *typed;
}

// Records the path calls of a drawing, and carries them out.
struct PathLog : CrossPlatformDrawingContext {
    PathLog() : CrossPlatformDrawingContext(nullptr) {}
    std::vector<std::string> calls;
    std::vector<Point> curveEnds, curveControls;
    void Save() override { calls.push_back("save"), CrossPlatformDrawingContext::Save(); }
    void Restore() override { calls.push_back("restore"), CrossPlatformDrawingContext::Restore(); }
    void StartPath() override { calls.push_back("start"), CrossPlatformDrawingContext::StartPath(); }
    void MoveToPointInCurrentPath(Point const &p) override {
        calls.push_back("move"), CrossPlatformDrawingContext::MoveToPointInCurrentPath(p);
    }
    void AddLineToCurrentPath(Point const &p) override {
        calls.push_back("line"), CrossPlatformDrawingContext::AddLineToCurrentPath(p);
    }
    void AddCurveToCurrentPath(Point const &c1, Point const &c2, Point const &e) override {
        calls.push_back("curve");
        curveControls.push_back(c1), curveControls.push_back(c2), curveEnds.push_back(e);
        CrossPlatformDrawingContext::AddCurveToCurrentPath(c1, c2, e);
    }
    void StrokeCurrentPath(Color const &c, double w, std::string const &style, LineCapTypes cap, LineJoinTypes join,
                           bool close) override {
        calls.push_back("stroke" + style + (cap == LineCapRound && join == LineJoinRound ? " round" : " other"));
        CrossPlatformDrawingContext::StrokeCurrentPath(c, w, style, cap, join, close);
    }
};

std::string const kTwoStrokes = document({"M10 10 L60 10 C80 10 80 40 60 40 S40 70 20 60", "m0 30 h40 v-20"});

TEST(SVGPathReaderTest, CommandsFromPathData) {
    struct Case {
        char const *d;
        int commands;
        int check; // index of the command whose end is checked
        Point end;
        double length;
    } const cases[] = {
        {"M10 20 30 40", 2, 1, {30, 40}, std::hypot(20, 20)},             // further pairs behind M are lines
        {"m10 20 5 5", 2, 1, {15, 25}, std::hypot(5, 5)},                 // and behind m relative lines
        {"M0 0L10-5", 2, 1, {10, -5}, std::hypot(10, 5)},                 // a sign separates
        {"M1,2,3,4", 2, 1, {3, 4}, std::hypot(2, 2)},                     // commas separate
        {"M0 0 L10 0 Z", 3, 2, {0, 0}, 10},                               // a close to the first segment's start
        {"M0 0 L10 0 M20 20 L30 20 Z", 5, 4, {0, 0}, std::hypot(30, 20)}, // of the list, not the subpath
        {"M5 5 Z", 2, 1, {0, 0}, std::hypot(5, 5)},                       // no segment: to the origin
        {"M0 0 L10 0 Z 5 5", 3, 2, {0, 0}, 10},                           // numbers behind a close are ignored
        {"M10 10 M20 20 L30 20", 3, 1, {20, 20}, 0},                      // moves before any ink cost nothing
        {"M0 0 L10 0 M10 20", 3, 2, {10, 20}, 20 * 0.7},                  // later moves cost 0.7 of their distance
        {"M1 2 H5 h1 V7 v-2", 5, 4, {6, 5}, 2},                           // H and V keep the other coordinate
        {"  M1 2 \n ", 1, 0, {1, 2}, 0},                                  // trailing white space ends the data
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.d);
        SketchMotionPaths paths = readData(k.d);
        ASSERT_EQ(paths.commandLists.size(), 1u);
        auto const &list = paths.commandLists[0];
        ASSERT_EQ(int(list.size()), k.commands);
        auto const &c = list[size_t(k.check)];
        Point end = c->isSegment() ? as<LineSegmentCommand>(c).end : as<MoveCommand>(c).end;
        EXPECT_EQ(end, k.end);
        EXPECT_NEAR(c->length(), k.length, 1e-9);
    }
    EXPECT_TRUE(readData("").commandLists.empty());
}

TEST(SVGPathReaderTest, CurvesLiftQuadraticsAndReflectControls) {
    SketchMotionPaths paths = readData("M0 0 L30 0 S60 30 90 0 Q120 30 150 0 s30 30 60 0 c10 0 20 0 30 0");
    auto const &list = paths.commandLists[0];
    auto const &afterLine = as<BezierSegmentCommand>(list[2]);
    EXPECT_EQ(afterLine.control1, afterLine.start);
    auto const &quad = as<BezierSegmentCommand>(list[3]);
    EXPECT_NEAR(quad.control1.x, 90 + 2 * (120 - 90) / 3.0, 1e-12);
    EXPECT_NEAR(quad.control1.y, 20, 1e-12);
    EXPECT_NEAR(quad.control2.x, 150 + 2 * (120 - 150) / 3.0, 1e-12);
    auto const &afterQuad = as<BezierSegmentCommand>(list[4]);
    EXPECT_NEAR(afterQuad.control1.x, 2 * 150 - quad.control2.x, 1e-12); // the lifted control, not the quadratic's
    EXPECT_NEAR(afterQuad.control1.y, -20, 1e-12);
    EXPECT_EQ(afterQuad.end, Point(210, 0));
    auto const &straight = as<BezierSegmentCommand>(list[5]);
    EXPECT_NEAR(straight.length(), 30, 1e-9); // 40 chords of a straight curve
}

TEST(SVGPathReaderTest, TokeniserLettersAndNumbers) {
    struct Case {
        char const *d;
        char const *tokens;
    } const cases[] = {
        {"M1.5.5", "M[1.5] .[5] "},               // a point right after a number ends it
        {"M 10\n20", "M[10] 2[0] "},              // so does a newline
        {"M1,\n 2 ,3", "M[1,2] ,[3] "},           // white space after one comma
        {"M0x1p3 1", "M[0] x[1] p[3,1] "},        // no hexadecimal numbers
        {"Minf 1", "M[] i[] n[] f[1] "},          // nor infinities
        {"L1e2 1e+1 -.5e-1", "L[100,10,-0.05] "}, // exponents
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.d);
        std::ostringstream s;
        parsePathData(k.d, [&s](bool, char letter, std::vector<double> const &params) {
            s << letter << '[';
            for (size_t i = 0; i < params.size(); ++i)
                s << (i ? "," : "") << params[i];
            s << "] ";
        });
        EXPECT_EQ(s.str(), k.tokens);
    }
}

TEST(SVGPathReaderTest, FailuresRaiseTheDescribedExceptions) {
    using boost::property_tree::ptree_bad_path;
    using boost::property_tree::xml_parser::xml_parser_error;
    std::string nested = "<svg>";
    for (int i = 0; i < 100000; ++i)
        nested += "<g>";
    struct Case {
        char const *name;
        std::string text;
        char const *kind;
        char const *message; // the start of what()
    } const cases[] = {
        {"unknown letter", document({"M0 0 X5 5"}), "runtime", "Invalid SVG command"},
        {"letter checked first", document({"X"}), "runtime", "Invalid SVG command"},
        {"T and A", document({"M0 0 T5 5"}), "runtime", "Invalid SVG command"},
        {"non-ASCII letter", document({"M0 0 \xC3\xA9 5"}), "runtime", "Invalid SVG command"},
        {"no numbers", document({"M0 0 L"}), "runtime", "SVG command L has no parameters"},
        {"relative, no numbers", document({"M0 0 c,"}), "runtime", "SVG command c has no parameters"},
        {"C with five numbers", document({"M0 0 C1 2 3 4 5"}), "runtime", "error reading SVG"},
        {"H without its number", document({"M0 0 H,"}), "runtime", "SVG command H has no parameters"},
        {"beyond a double", document({"M1e999 0"}), "runtime", "error reading SVG"},
        {"no svg element", "<html><path d=\"M0 0\"/></html>", "bad path", "No such node (svg)"},
        {"path without d", "<svg><path/></svg>", "bad path", "No such node (<xmlattr>.d)"},
        {"no XML", "<svg><path d=\"M0 0\"></svg>", "xml", ""},
        {"no tag at all", "just text", "bad path", "No such node (svg)"},
        {"nested too deep", nested, "xml", ""},
    };
    for (Case const &k : cases) {
        SCOPED_TRACE(k.name);
        std::string kind, what;
        try {
            SketchMotionCallout callout(k.text);
            kind = "none";
        } catch (xml_parser_error const &e) {
            kind = "xml", what = e.what();
        } catch (ptree_bad_path const &e) {
            kind = "bad path", what = e.what();
        } catch (std::runtime_error const &e) {
            kind = "runtime", what = e.what();
        }
        EXPECT_EQ(kind, k.kind);
        EXPECT_EQ(what.substr(0, std::string(k.message).size()), k.message);
    }
}

TEST(SVGPathReaderTest, DocumentsKeepPathChildrenAndCarryThePen) {
    std::string const text = "\xEF\xBB\xBF junk <?xml version=\"1.0\"?><!-- <path d=\"M9 9\"/> --><svg>"
                             "<path d=\"M0 0 L10 0\"/><g><path d=\"M5 5 L6 6\"/></g><path d=\"\"/>"
                             "<rect d=\"M1 1 L2 2\"/><path d=\"m0 20 l5 0\"/></svg>";
    SketchMotionCallout callout(text);
    auto const &lists = SketchMotionAccess::paths(callout).commandLists;
    ASSERT_EQ(lists.size(), 2u); // not the group's, not the empty one's, not the rect's
    auto const &move = as<MoveCommand>(lists[1][0]);
    EXPECT_EQ(move.start, Point(10, 0)); // relative to where the first element ended
    EXPECT_EQ(move.end, Point(10, 20));
    EXPECT_NEAR(move.length(), 14, 1e-12); // something was drawn before it
    EXPECT_NEAR(callout.totalPathLength(), 10 + 14 + 5, 1e-12);
    Rect const b = SketchMotionAccess::paths(callout).bounds;
    EXPECT_NEAR(b.topLeft.x, 0, 0.01);
    EXPECT_NEAR(b.topLeft.y, 0, 0.01);
    EXPECT_NEAR(b.bottomRight.x, 15, 0.01);
    EXPECT_NEAR(b.bottomRight.y, 20, 0.01);
}

TEST(SVGPathReaderTest, ReadsInTheClassicLocaleAndRestoresIt) {
    std::string const before = std::setlocale(LC_ALL, nullptr);
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8"))
        GTEST_SKIP() << "no locale with a decimal comma";
    std::string const german = std::setlocale(LC_ALL, nullptr);
    SketchMotionCallout callout(document({"M0.5 0.25 L10.5 0"}));
    EXPECT_EQ(as<MoveCommand>(SketchMotionAccess::paths(callout).commandLists[0][0]).end, Point(0.5, 0.25));
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), german);
    EXPECT_THROW(SketchMotionCallout(document({"M0.5 0.25 L"})), std::runtime_error);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), german);
    EXPECT_THROW(SketchMotionCallout("<svg"), boost::property_tree::xml_parser::xml_parser_error);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), german);
    std::setlocale(LC_ALL, before.c_str());
}

TEST(SketchMotionTest, ProgressRevealsStrokesInOrder) {
    SketchMotionCallout callout(kTwoStrokes);
    SketchMotionPaths const &paths = SketchMotionAccess::paths(callout);
    double const total = callout.totalPathLength();
    double first = 0.0;
    for (auto const &c : paths.commandLists[0])
        first += c->length();
    double const move = paths.commandLists[1][0]->length();
    ASSERT_GT(move, 1.0);

    auto calls = [&](double progress) {
        PathLog log;
        paths.drawPaths(&log, progress, Color(0, 0, 0), 3);
        std::string s;
        for (auto const &c : log.calls)
            s += c + " ";
        return s;
    };
    EXPECT_EQ(calls(0), "save restore ");
    EXPECT_EQ(calls(std::nan("")), "save restore ");
    EXPECT_EQ(calls(-1), "save restore ");
    std::string const whole =
        "save start move line curve curve stroke round start move line line stroke round restore ";
    EXPECT_EQ(calls(1), whole);
    EXPECT_EQ(calls(2), whole);
    EXPECT_EQ(calls(std::numeric_limits<double>::infinity()), whole);
    // Inside the move between the elements: the first stroke complete, nothing added.
    EXPECT_EQ(calls((first + move / 2) / total),
              "save start move line curve curve stroke round start move stroke round restore ");

    // At 1 every curve is passed whole.
    PathLog log;
    paths.drawPaths(&log, 1, Color(0, 0, 0), 3);
    ASSERT_EQ(log.curveEnds.size(), 2u);
    EXPECT_EQ(log.curveEnds[1], as<BezierSegmentCommand>(paths.commandLists[0][3]).end);
    EXPECT_EQ(log.curveControls[3], as<BezierSegmentCommand>(paths.commandLists[0][3]).control2);
    // Part way through a curve it is split: the end lies on the curve, short of its end.
    PathLog part;
    double const toCurve = paths.commandLists[0][0]->length() + paths.commandLists[0][1]->length();
    paths.drawPaths(&part, (toCurve + paths.commandLists[0][2]->length() / 2) / total, Color(0, 0, 0), 3);
    auto const &c = as<BezierSegmentCommand>(paths.commandLists[0][2]);
    ASSERT_EQ(part.curveEnds.size(), 1u);
    Point mid = bezierPoint(c.start, c.control1, c.control2, c.end, 0.5);
    EXPECT_NEAR((part.curveEnds[0] - mid).Length(), 0, 1.0);
}

TEST(SketchMotionTest, FitsMirrorsAndStaysInsideTheRect) {
    SketchMotionCallout callout(kTwoStrokes);
    double const total = callout.totalPathLength();
    Rect const rect(20, 30, 220, 130);
    auto draw = [&](double progress, bool flipX, bool flipY, double pen = 6) {
        auto canvas = std::make_unique<Canvas>(240, 160);
        callout.flipX = flipX, callout.flipY = flipY;
        callout.drawProgressIntoContext(&canvas->context, progress, Color(0, 0, 0), pen, rect);
        return canvas;
    };
    auto plain = draw(1, false, false);
    Rect ink = inkBounds(plain->bitmap);
    EXPECT_NEAR(ink.topLeft.x, 20, 1);
    EXPECT_NEAR(ink.topLeft.y, 30, 1);
    EXPECT_NEAR(ink.bottomRight.x, 220, 1);
    EXPECT_NEAR(ink.bottomRight.y, 130, 1);
    EXPECT_EQ(callout.totalPathLength(), total); // the scaled copy leaves the picture as read

    auto beyond = draw(1.5, false, false);
    EXPECT_EQ(std::memcmp(plain->bitmap.bufAt(0, 0), beyond->bitmap.bufAt(0, 0), size_t(240 * 160 * 4)), 0);

    // Mirrored about the centre of the rect (pixel centres shifted by half a pixel).
    auto mirrored = draw(1, true, false);
    auto flipped = draw(1, false, true);
    int mismatches = 0;
    for (int y = 30; y < 130; ++y)
        for (int x = 20; x < 220; ++x) {
            mismatches += std::abs(VantrelTest::alphaAt(plain->bitmap, x, y) -
                                   VantrelTest::alphaAt(mirrored->bitmap, 240 - x, y)) > 64;
            mismatches += std::abs(VantrelTest::alphaAt(plain->bitmap, x, y) -
                                   VantrelTest::alphaAt(flipped->bitmap, x, 160 - y)) > 64;
        }
    EXPECT_EQ(mismatches, 0);

    auto none = draw(0, false, false);
    EXPECT_EQ(inkBounds(none->bitmap), Rect());
    PathLog log;
    callout.drawProgressIntoContext(&log, 0, Color(0, 0, 0), 6, rect);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"save", "save", "restore", "restore"}));
}

TEST(SketchMotionTest, HostileInputDrawsADefinedResult) {
    double const inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    std::string tenMegabytes = "M0 0";
    for (int i = 0; tenMegabytes.size() < 10u << 20; ++i)
        tenMegabytes += " L" + std::to_string(i % 997) + ".123456789 " + std::to_string(i % 313) + ".987654321";
    struct Doc {
        char const *name;
        std::string text;
        int ink; // at progress 1 into a sensible rect: 1 some, 0 none, -1 either
    } const docs[] = {
        {"a flat line", document({"M0 50 L100 50"}), 1},
        {"a picture of length 0", document({"M5 5 L5 5 Z"}), 0},
        {"no path", "<svg/>", 0},
        {"only moves", document({"M5 5 M50 50", "m10 10"}), 0},
        {"huge coordinates", document({"M-1e300 0 L1e300 1e300 C1e308 0 -1e308 0 5 5"}), -1},
        {"ten megabytes of d", document({tenMegabytes}), 1},
    };
    struct Draw {
        double progress, pen;
        Rect rect;
    } const draws[] = {
        {1, 4, Rect(10, 10, 110, 90)},
        {nan, 4, Rect(10, 10, 110, 90)},
        {inf, 4, Rect(10, 10, 110, 90)},
        {-inf, 4, Rect(10, 10, 110, 90)},
        {-1, 4, Rect(10, 10, 110, 90)},
        {0.5, 4, Rect()},
        {0.5, 0, Rect()},
        {0.5, 4, Rect(110, 90, 10, 10)},
        {0.5, 4, Rect(nan, 0, 10, 10)},
        {0.5, 4, Rect(-1e308, -1e308, 1e308, 1e308)},
        {0.5, nan, Rect(10, 10, 110, 90)},
        {0.5, -3, Rect(10, 10, 110, 90)},
        {0.5, 1e300, Rect(10, 10, 110, 90)},
        {0.5, 4, Rect(10, 10, 14, 90)},
    };
    for (Doc const &doc : docs) {
        SCOPED_TRACE(doc.name);
        SketchMotionCallout callout(doc.text);
        Canvas canvas(120, 100);
        callout.drawProgressIntoContext(&canvas.context, 1, Color(0, 0, 0), 4, Rect(10, 10, 110, 90));
        if (doc.ink >= 0) {
            EXPECT_EQ(inkBounds(canvas.bitmap) != Rect(), doc.ink == 1);
        }
        for (Draw const &d : draws) {
            Canvas other(120, 100);
            callout.drawProgressIntoContext(&other.context, d.progress, Color(0, 0, 0), d.pen, d.rect);
            if (!(d.progress > 0)) {
                EXPECT_EQ(inkBounds(other.bitmap), Rect());
            }
        }
    }
    // A flat line stands in the middle of the rect.
    SketchMotionCallout flat(document({"M0 50 L100 50"}));
    Canvas canvas(120, 100);
    flat.drawProgressIntoContext(&canvas.context, 1, Color(0, 0, 0), 4, Rect(10, 10, 110, 90));
    Rect ink = inkBounds(canvas.bitmap);
    EXPECT_NEAR(ink.Center().y, 50.5, 1);
    EXPECT_NEAR(ink.Width(), 100, 1);
}

} // namespace
