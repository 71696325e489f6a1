// Runs the registered benchmarks and prints one "target NAME: VALUE" line per
// speed target, each a ratio of two benchmarks measured in the same run (or
// an absolute figure in nanoseconds).
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace VantrelBench {

// The figure is the largest ratio measured[i] / reference[i]: the slowest case
// against its own reference. Without references it is the largest absolute
// time of measured, in nanoseconds.
struct Target {
    std::string name;
    std::vector<std::string> measured;
    std::vector<std::string> reference;
};

class CollectingReporter : public benchmark::ConsoleReporter {
public:
    CollectingReporter() : ConsoleReporter(OO_None) {}
    void ReportRuns(std::vector<Run> const &runs) override {
        for (Run const &run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                nanoseconds[run.benchmark_name()] =
                    run.GetAdjustedRealTime() * (run.time_unit == benchmark::kNanosecond    ? 1.0
                                                 : run.time_unit == benchmark::kMicrosecond ? 1e3
                                                 : run.time_unit == benchmark::kMillisecond ? 1e6
                                                                                            : 1e9);
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> nanoseconds;
};

using Times = std::map<std::string, double>;

// Runs the benchmarks, lets report print what it likes from the times (in
// nanoseconds, by benchmark name), then prints the target lines.
inline int runWithTargets(int argc, char **argv, std::vector<Target> const &targets,
                          std::function<void(Times const &)> const &report = nullptr) {
    benchmark::Initialize(&argc, argv);
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    if (report)
        report(reporter.nanoseconds);
    auto time = [&](std::string const &name, double &out) {
        auto it = reporter.nanoseconds.find(name);
        if (it == reporter.nanoseconds.end())
            return false;
        out = it->second;
        return true;
    };
    for (Target const &t : targets) {
        double worst = 0;
        bool complete = true; // a filtered run lacks some figures: no target then
        for (size_t i = 0; i < t.measured.size(); ++i) {
            double value = 0, reference = 1;
            complete = complete && time(t.measured[i], value);
            if (!t.reference.empty())
                complete = complete && i < t.reference.size() && time(t.reference[i], reference);
            if (complete)
                worst = std::max(worst, value / reference);
        }
        if (!complete)
            continue;
        char line[200];
        std::snprintf(line, sizeof line, t.reference.empty() ? "target %s: %.1f" : "target %s: %.3f", t.name.c_str(),
                      worst);
        std::cout << line << std::endl;
    }
    return 0;
}

} // namespace VantrelBench
