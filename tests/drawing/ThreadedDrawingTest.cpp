// Contexts and callouts on different threads share nothing: each thread
// draws its own callouts into its own Bitmap.
#include "support/PixelProbe.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Vantrel;

TEST(Threads, IndependentContextsDrawConcurrently) {
    int const kThreads = 4;
    std::vector<uint32_t> centre(kThreads, 0);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t, &centre] {
            VantrelTest::Canvas canvas(64, 64);
            for (int i = 0; i < 50; ++i) {
                OvalShape oval(Color(t / 4.0f, 0, 1), i % 2 ? "gradient" : "solid", Point(0, 1), Color(0, 0, 0), 2,
                               "dash", Rect(4, 4, 60, 60));
                oval.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                std::unique_ptr<DrawingContext> clone(canvas.context.CreateBlankClone());
                canvas.context.BlendWith(clone.get(), 0.5);
            }
            centre[t] = canvas.at(32, 32);
        });
    }
    for (std::thread &t : threads)
        t.join();
    for (int t = 0; t < kThreads; ++t)
        EXPECT_EQ(centre[t] >> 24, 255u) << t;
}
