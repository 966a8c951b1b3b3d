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

    bool Has(const std::string& name) const { return mcolSeconds.contains(name); }
    /// Of a benchmark that has run.
    double Seconds(const std::string& name) const { return mcolSeconds.at(name); }

    /// Prints how many times the one is of the other; false when it is more than the limit. What a filter left out is
    /// not judged.
    bool Check(const std::string& measured, const std::string& reference, double limit) const
    {
        if (!Has(measured) || !Has(reference)) return true;
        return CheckRatio(measured + " / " + reference, Seconds(measured) / Seconds(reference), limit);
    }

    static bool CheckRatio(const std::string& what, double ratio, double limit)
    {
        const bool bKept = ratio <= limit;
        std::printf("%-30s = %7.3f   limit %6.2f   %s\n", what.c_str(), ratio, limit, bKept ? "kept" : "EXCEEDED");
        return bKept;
    }

private:
    std::map<std::string, double> mcolSeconds;
};

} // namespace quillon_ed::bench
