// Sketch motion against plain cairo: revealing a drawing of about 2,000
// commands frame by frame, against one stroke of the same fitted paths; the
// first frame at a new size, against a frame from the fitted copy; and the
// time to read a 1 MB document.
#include "BenchTargets.h"

#include <vantrel/Vantrel.h>

#include <cairo.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <sstream>

using namespace Vantrel;

namespace {

int const kFrames = 20;
int const kOneMegabyteOfCommands = 90000; // about 12 bytes each
Rect const kRect(0, 0, 512, 512);
double const kPen = 3;

// Wandering strokes of every command kind, absolute and relative: each path
// element opens with a move and holds about 40 commands.
std::string drawing(int commands) {
    std::ostringstream d;
    d << "<svg xmlns=\"http://www.w3.org/2000/svg\">\n";
    unsigned seed = 12345;
    auto next = [&seed](int range) {
        seed = seed * 1103515245u + 12345u;
        return int(seed >> 8) % range;
    };
    for (int made = 0; made < commands;) {
        // Absolute points stay near the element's own centre: a scribble per element.
        int const cx = next(900) + 50, cy = next(900) + 50;
        auto x = [&] { return cx + next(100) - 50; };
        auto y = [&] { return cy + next(100) - 50; };
        auto step = [&] { return next(40) - 20; };
        d << "<path d=\"M" << x() << ' ' << y();
        for (int i = 0; i < 40; ++i, ++made) {
            switch (i % 7) {
            case 0:
                d << " L" << x() << ' ' << y();
                break;
            case 1:
                d << " h" << step();
                break;
            case 2:
                d << " v" << step();
                break;
            case 3:
                d << " C" << x() << ' ' << y() << ' ' << x() << ' ' << y() << ' ' << x() << ' ' << y();
                break;
            case 4:
                d << " s" << step() << ' ' << step() << ' ' << step() << ' ' << step();
                break;
            case 5:
                d << " Q" << x() << ' ' << y() << ' ' << x() << ' ' << y();
                break;
            default:
                d << " l" << step() << ' ' << step();
                break;
            }
        }
        d << "\"/>\n";
    }
    d << "</svg>\n";
    return d.str();
}

std::string const &sample() {
    static std::string const text = drawing(2000);
    return text;
}

void frame(benchmark::State &state) {
    SketchMotionCallout sketch(sample());
    CrossPlatformDrawingContextWithBuiltInBitmap context(512, 512);
    double const progress = double(state.range(0)) / kFrames;
    sketch.drawProgressIntoContext(&context, progress, Color(0, 0, 0), kPen, kRect); // fits once
    for (auto _ : state)
        sketch.drawProgressIntoContext(&context, progress, Color(0, 0, 0), kPen, kRect);
}

// Keeps each list's fitted path, in device coordinates, as the library strokes it.
class PathCopier : public CrossPlatformDrawingContext {
public:
    explicit PathCopier(Bitmap *bitmap) : CrossPlatformDrawingContext(bitmap) {}
    ~PathCopier() override {
        for (cairo_path_t *p : paths)
            cairo_path_destroy(p);
    }
    void StrokeCurrentPath(Color const &c, double w, std::string const &style, LineCapTypes cap, LineJoinTypes join,
                           bool close) override {
        cairo_t *cr = Get();
        cairo_save(cr);
        cairo_identity_matrix(cr);
        paths.push_back(cairo_copy_path(cr));
        cairo_restore(cr);
        CrossPlatformDrawingContext::StrokeCurrentPath(c, w, style, cap, join, close);
    }
    std::vector<cairo_path_t *> paths;
};

// The whole picture as cairo strokes of the same fitted paths.
void plainStroke(benchmark::State &state) {
    SketchMotionCallout sketch(sample());
    Bitmap copyTarget(512, 512);
    PathCopier copier(&copyTarget);
    sketch.drawProgressIntoContext(&copier, 1, Color(0, 0, 0), kPen, kRect);
    CrossPlatformDrawingContextWithBuiltInBitmap context(512, 512);
    cairo_t *cr = context.Get();
    for (auto _ : state) {
        cairo_save(cr);
        cairo_set_source_rgb(cr, 0, 0, 0);
        cairo_set_line_width(cr, kPen);
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
        cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
        for (cairo_path_t *p : copier.paths) {
            cairo_new_path(cr);
            cairo_append_path(cr, p);
            cairo_stroke(cr);
        }
        cairo_restore(cr);
    }
}

// Each frame at a size other than the last one: the fitted copy is made anew.
void resizedFrame(benchmark::State &state) {
    SketchMotionCallout sketch(sample());
    CrossPlatformDrawingContextWithBuiltInBitmap context(512, 512);
    Rect const other(0, 0, 511, 512);
    bool flip = false;
    for (auto _ : state) {
        sketch.drawProgressIntoContext(&context, 1, Color(0, 0, 0), kPen, flip ? other : kRect);
        flip = !flip;
    }
}

void readOneMegabyte(benchmark::State &state) {
    std::string const text = drawing(kOneMegabyteOfCommands);
    for (auto _ : state)
        benchmark::DoNotOptimize(SketchMotionCallout(text).totalPathLength());
    state.counters["bytes"] = double(text.size());
}

} // namespace

BENCHMARK(frame)->DenseRange(1, kFrames)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainStroke)->Unit(benchmark::kMicrosecond);
BENCHMARK(resizedFrame)->Unit(benchmark::kMicrosecond);
BENCHMARK(readOneMegabyte)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv) {
    std::vector<std::string> frames, strokes;
    for (int k = 1; k <= kFrames; ++k) {
        frames.push_back("frame/" + std::to_string(k));
        strokes.push_back("plainStroke");
    }
    return VantrelBench::runWithTargets(
        argc, argv,
        {{"sketch-frame-vs-stroke", frames, strokes}, {"sketch-resize-vs-frame", {"resizedFrame"}, {"frame/20"}}},
        [](VantrelBench::Times const &t) {
            auto read = t.find("readOneMegabyte");
            if (read != t.end())
                std::printf("reading a 1 MB document: %.1f ms (%zu bytes)\n", read->second / 1e6,
                            drawing(kOneMegabyteOfCommands).size());
        });
}
