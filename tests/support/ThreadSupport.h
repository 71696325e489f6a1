// Threaded tests run for a time rather than a number of rounds: a few
// seconds in `make test`, as long as VANTREL_THREAD_SECONDS says under
// `make tsan-soak`.
#pragma once

#include <vantrel/Vantrel.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

namespace VantrelTest {

inline double threadSeconds() {
    char const *set = std::getenv("VANTREL_THREAD_SECONDS");
    double const seconds = set ? std::atof(set) : 0;
    return seconds > 0 ? seconds : 3;
}

// Runs work(thread, round) on `threads` threads, round after round, until the
// time is up; every thread runs at least `minimumRounds`. Returns the rounds
// run in all.
template <class Work> long runThreadsForAWhile(int threads, Work work, int minimumRounds = 2) {
    auto const end = std::chrono::steady_clock::now() + std::chrono::duration<double>(threadSeconds());
    std::atomic<long> rounds{0};
    std::vector<std::thread> running;
    for (int t = 0; t < threads; ++t)
        running.emplace_back([t, end, minimumRounds, &work, &rounds] {
            for (int round = 0; round < minimumRounds || std::chrono::steady_clock::now() < end; ++round) {
                work(t, round);
                ++rounds;
            }
        });
    for (std::thread &t : running)
        t.join();
    return rounds;
}

// Runs work(variant) for each variant on this thread, then on `threads`
// threads for a while, each round another variant; returns how many results
// of those threads differed from this thread's.
template <class Work> int mismatchesAcrossThreads(int threads, int variants, Work work) {
    std::vector<decltype(work(0))> expected;
    for (int v = 0; v < variants; ++v)
        expected.push_back(work(v));
    std::atomic<int> mismatches{0};
    runThreadsForAWhile(threads, [&](int t, int round) {
        int const v = (t + round) % variants;
        mismatches += !(work(v) == expected[v]);
    });
    return mismatches;
}

// A hash of every pixel, for comparing drawings made on different threads.
inline unsigned long long pixelHash(Vantrel::Bitmap const &bitmap) {
    unsigned long long h = 1469598103934665603ull;
    for (int y = 0; y < bitmap.height(); ++y)
        for (int x = 0; x < bitmap.width(); ++x)
            for (int c = 0; c < 4; ++c)
                h = (h ^ bitmap.bufAt(x, y)[c]) * 1099511628211ull;
    return h;
}

} // namespace VantrelTest
