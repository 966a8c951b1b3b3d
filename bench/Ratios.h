#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace quillon_ed::bench {

/// Keeps the processor time of every benchmark, beside printing it. With repetitions it keeps the median.
class TimesReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const bool bSingle = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
            if (bSingle || run.aggregate_name == "median")
                mcolSeconds[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Prints how many times the one is of the other; false when it is more than the limit, or when one did not run.
    bool Check(const std::string& measured, const std::string& reference, double limit) const
    {
        const auto one = mcolSeconds.find(measured);
        const auto other = mcolSeconds.find(reference);
        if (one == mcolSeconds.end() || other == mcolSeconds.end()) return false;
        const double ratio = one->second / other->second;
        const bool bKept = ratio <= limit;
        std::printf("%-16s / %-12s = %6.3f   limit %5.2f   %s\n", measured.c_str(), reference.c_str(), ratio, limit,
                    bKept ? "kept" : "EXCEEDED");
        return bKept;
    }

private:
    std::map<std::string, double> mcolSeconds;
};

} // namespace quillon_ed::bench
