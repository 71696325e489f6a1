// Runs the registered benchmarks and prints one "target NAME: VALUE" line per
// speed target, each a ratio of two benchmarks measured in the same run (or
// an absolute figure in nanoseconds).
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace VantrelBench {

struct Target {
    std::string name;
    std::vector<std::string> measured; // the slowest of these counts
    std::string reference;             // empty: the figure is absolute nanoseconds
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

inline int runWithTargets(int argc, char **argv, std::vector<Target> const &targets) {
    benchmark::Initialize(&argc, argv);
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    for (Target const &t : targets) {
        double worst = 0;
        bool found = true;
        for (std::string const &m : t.measured) {
            auto it = reporter.nanoseconds.find(m);
            found = found && it != reporter.nanoseconds.end();
            if (found)
                worst = std::max(worst, it->second);
        }
        auto ref = reporter.nanoseconds.find(t.reference);
        if (!found || (!t.reference.empty() && ref == reporter.nanoseconds.end()))
            continue; // filtered out of this run
        char line[200];
        if (t.reference.empty())
            std::snprintf(line, sizeof line, "target %s: %.1f", t.name.c_str(), worst);
        else
            std::snprintf(line, sizeof line, "target %s: %.3f", t.name.c_str(), worst / ref->second);
        std::cout << line << std::endl;
    }
    return 0;
}

} // namespace VantrelBench
