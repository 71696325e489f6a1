// Contexts and callouts on different threads share nothing: each thread
// draws its own callouts into its own Bitmap.
#include "support/PixelProbe.h"
#include "support/ThreadSupport.h"

#include <gtest/gtest.h>

using namespace Vantrel;

TEST(Threads, IndependentContextsDrawConcurrently) {
    int const kThreads = 4;
    std::vector<int> unpainted(kThreads, 0);
    VantrelTest::runThreadsForAWhile(kThreads, [&](int t, int) {
        VantrelTest::Canvas canvas(64, 64);
        for (int i = 0; i < 50; ++i) {
            OvalShape oval(Color(t / 4.0f, 0, 1), i % 2 ? "gradient" : "solid", Point(0, 1), Color(0, 0, 0), 2, "dash",
                           Rect(4, 4, 60, 60));
            oval.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
            std::unique_ptr<DrawingContext> clone(canvas.context.CreateBlankClone());
            canvas.context.BlendWith(clone.get(), 0.5);
        }
        unpainted[t] += (canvas.at(32, 32) >> 24) != 255u;
    });
    for (int t = 0; t < kThreads; ++t)
        EXPECT_EQ(unpainted[t], 0) << t;
}
