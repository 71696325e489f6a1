// Drawing a TextCallout against a plain pango program that lays out and shows
// the same text with the same attributes, for a text that fits its box and
// for one that needs the fit search. Also the first text draw of a process,
// and the throughput of threads that each draw their own text callouts
// against that of one thread.
#include "BenchTargets.h"
#include "PlainReference.h"

#include <vantrel/Vantrel.h>

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <pango/pangocairo.h>
#include <thread>
#include <vector>

using namespace Vantrel;

namespace {

std::string const kShort = "A short caption that fits its box easily.";
std::string const kLong = "A longer text that does not fit its box at the size it asks for, so the library "
                          "searches for the scale at which it does, in eight rounds of bisection over the font size.";
Rect const kBox(20, 20, 380, 140);

TextAttributeList attributes(std::string const &text) {
    TextAttributeList a;
    Range all(0, int(text.size()));
    a.addFontNameAttribute(all, "DejaVu Sans");
    a.addFontSizeAttribute(all, 24);
    a.addFGColorAttribute(all, Color(0.1f, 0.1f, 0.3f));
    return a;
}

TextCallout callout(std::string const &text) {
    TextCalloutProperties p;
    p.text = text;
    p.textRect = kBox;
    return TextCallout(kBox, p, attributes(text));
}

void library(benchmark::State &state, std::string const &text) {
    Bitmap bitmap(400, 160);
    bitmap.clear();
    CrossPlatformDrawingContext context(&bitmap);
    TextCallout c = callout(text);
    for (auto _ : state)
        c.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

// One plain layout and show of the same text and attributes, on a font map of its own.
void plainPango(benchmark::State &state, std::string const &text) {
    Bitmap bitmap(400, 160);
    bitmap.clear();
    cairo_surface_t *surface = cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()),
                                                                   CAIRO_FORMAT_ARGB32, 400, 160, 400 * 4);
    cairo_t *cr = cairo_create(surface);
    PangoFontMap *map = VantrelBench::plainFontMap();
    TextAttributeList a = attributes(text);
    for (auto _ : state) {
        PangoContext *context = pango_font_map_create_context(map);
        PangoLayout *layout = VantrelBench::plainLayout(context, text, a, kBox.Width());
        cairo_save(cr);
        cairo_rectangle(cr, kBox.Left(), kBox.Top(), kBox.Width(), kBox.Height());
        cairo_clip(cr);
        cairo_move_to(cr, kBox.Left(), kBox.Top());
        pango_cairo_show_layout(cr, layout);
        cairo_restore(cr);
        g_object_unref(layout);
        g_object_unref(context);
    }
    g_object_unref(map);
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

// Workers kept for a whole benchmark, each with its own bitmap, context and
// pair of callouts (a fitting text and a fitted one), so that each thread
// makes its font map once and the rounds measure drawing alone.
class Crew {
public:
    explicit Crew(int workers) : size(workers) {
        for (int i = 0; i < workers; ++i)
            threads.emplace_back([this] { work(); });
    }
    ~Crew() {
        {
            std::lock_guard<std::mutex> lock(mutex);
            quit = true;
        }
        go.notify_all();
        for (std::thread &t : threads)
            t.join();
    }

    // Every worker draws its pair `count` times; returns the wall time in seconds.
    double run(int count) {
        auto const start = std::chrono::steady_clock::now();
        std::unique_lock<std::mutex> lock(mutex);
        rounds = count;
        pending = size;
        ++generation;
        go.notify_all();
        done.wait(lock, [this] { return pending == 0; });
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    void work() {
        Bitmap bitmap(400, 160);
        bitmap.clear();
        CrossPlatformDrawingContext context(&bitmap);
        TextCallout fits = callout(kShort), fitted = callout(kLong);
        int seen = 0;
        for (;;) {
            int count;
            {
                std::unique_lock<std::mutex> lock(mutex);
                go.wait(lock, [&] { return quit || generation != seen; });
                if (quit)
                    return;
                seen = generation;
                count = rounds;
            }
            for (int i = 0; i < count; ++i) {
                fits.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                fitted.drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
            }
            std::lock_guard<std::mutex> lock(mutex);
            if (--pending == 0)
                done.notify_all();
        }
    }

    int const size;
    std::vector<std::thread> threads;
    std::mutex mutex;
    std::condition_variable go, done;
    int generation = 0, pending = 0, rounds = 0;
    bool quit = false;
};

// The time per pair of callouts drawn, over all threads: the inverse of the
// throughput of N threads drawing at once.
void threads(benchmark::State &state) {
    int const workers = int(state.range(0)), kRounds = 4;
    Crew crew(workers);
    crew.run(1); // each thread's first text work: its font map and fonts
    for (auto _ : state)
        state.SetIterationTime(crew.run(kRounds) / (workers * kRounds));
}

int cores() { return std::max(1, int(std::thread::hardware_concurrency())); }

} // namespace

BENCHMARK(threads)->Arg(1)->Arg(2)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(library, fits, kShort);
BENCHMARK_CAPTURE(plainPango, fits, kShort);
BENCHMARK_CAPTURE(library, fitted, kLong);
BENCHMARK_CAPTURE(plainPango, fitted, kLong);

int main(int argc, char **argv) {
    // The first text draw of the process: fonts made sure of, the font map built.
    auto start = std::chrono::steady_clock::now();
    {
        Bitmap bitmap(400, 160);
        bitmap.clear();
        CrossPlatformDrawingContext context(&bitmap);
        callout(kShort).drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    }
    double first = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    std::cout << "first text draw in a fresh process: " << first << " ms (the six fallback warnings above are expected)"
              << std::endl;
    std::cout << "threads: " << cores() << " cores" << std::endl;
    if (cores() > 2) // N = the machine's cores, beside N = 2
        benchmark::RegisterBenchmark("threads", threads)->Arg(cores())->UseManualTime()->Unit(benchmark::kMicrosecond);
    std::string const one = "threads/1/manual_time", all = "threads/" + std::to_string(cores()) + "/manual_time";
    return VantrelBench::runWithTargets(argc, argv,
                                        {{"text-fits-vs-pango", {"library/fits"}, {"plainPango/fits"}},
                                         {"text-fitted-vs-one-layout", {"library/fitted"}, {"plainPango/fitted"}},
                                         // Throughput of two threads over that of one: one thread's time per
                                         // pair over the time per pair with two at work.
                                         {"text-threads2-speedup", {one}, {"threads/2/manual_time"}}},
                                        [&](VantrelBench::Times const &times) {
                                            if (times.count(one) && times.count(all))
                                                std::cout << "text throughput of " << cores()
                                                          << " threads over one: " << times.at(one) / times.at(all)
                                                          << std::endl;
                                        });
}
