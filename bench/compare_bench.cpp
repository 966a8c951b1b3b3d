// How long comparing the largest stations takes, against reading them. Ends with the ratios; fails when a limit is
// exceeded.

#include "app/host/ShippedData.h"
#include "bench/LargeStation.h"
#include "bench/Ratios.h"
#include "zqbchwcx/reference/compare/CompareReportText.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/files/StationWriter.h"

#include <string>

using namespace zqbchwcx::reference;
using quillon_ed::bench::LargeStation;
using quillon_ed::bench::TimesReporter;

namespace {

/// Every module has another comment, and none has the comment of another one.
StationData Commented(const StationData& station)
{
    StationData changed = station;
    std::int32_t lNumber = 0;
    for (RackDataPtr& rack : changed.racks) {
        auto copy = std::make_shared<RackData>(*rack);
        for (PlaceData& place : copy->places) {
            ModuleData module = *place.module;
            module.comment = "Changed " + std::to_string(++lNumber);
            place.module = std::make_shared<const ModuleData>(std::move(module));
        }
        rack = std::move(copy);
    }
    return changed;
}

} // namespace

int main(int argc, char** argv)
{
    const Catalogue catalogue = quillon_ed::ShippedCatalogue();
    const std::string text = WriteStation(LargeStation(MaxRacks));
    const auto read = [&] { return ParseStation(text, "large.station.json", catalogue); };
    // Read twice: nothing is shared between them.
    const StationData first = read();
    const StationData second = read();
    const StationData changed = Commented(second);

    benchmark::RegisterBenchmark("ReadBoth", [&](benchmark::State& state) {
        for (auto step : state) {
            benchmark::DoNotOptimize(read());
            benchmark::DoNotOptimize(read());
        }
    });
    const auto compare = [&](const char* name, const StationData& other) {
        benchmark::RegisterBenchmark(name, [&](benchmark::State& state) {
            for (auto step : state) benchmark::DoNotOptimize(CompareStations(first, other, catalogue));
        });
    };
    compare("CompareShared", first);
    compare("CompareEqual", second);
    compare("CompareDifferent", changed);
    benchmark::RegisterBenchmark("ReportDifferent", [&](benchmark::State& state) {
        for (auto step : state)
            benchmark::DoNotOptimize(
                WriteCompareReport(ReportOf(first, changed, {"a", "b"}, catalogue, {}, Language::English),
                                   ReportFormat::Text, Language::English));
    });
    benchmark::Initialize(&argc, argv);
    TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = times.Check("CompareShared", "ReadBoth", 0.01);
    bKept = times.Check("CompareEqual", "ReadBoth", 0.5) && bKept;
    bKept = times.Check("CompareDifferent", "ReadBoth", 0.5) && bKept;
    bKept = times.Check("ReportDifferent", "ReadBoth", 1) && bKept;
    return bKept ? 0 : 1;
}
