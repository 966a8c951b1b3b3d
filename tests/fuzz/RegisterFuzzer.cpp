#include "tests/fuzz/FuzzInput.h"
#include "zqbchwcx/reference/diag/PlantFinding.h"
#include "zqbchwcx/reference/files/StationReader.h"

#include <utility>

using namespace zqbchwcx::reference;

/// Any registers, wherever they are said to begin, leave a plant of which everything can be told, and told twice they
/// change nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const StationData station =
        LoadStation(QUILLON_SOURCE_DIR "/examples/bottling-filler.station.json", FuzzCatalogue()).data;
    static const RegisterMap map(station);
    const auto word = [&](std::size_t at) {
        const auto value = static_cast<std::uint16_t>((data[at] << 8U) | data[at + 1]);
        return value;
    };
    if (size < 2) return 0;
    std::vector<std::uint16_t> values = map.FreshRegisters();
    for (std::size_t i = 2; i + 1 < size && i / 2 <= values.size(); i += 2) values[i / 2 - 1] = word(i);
    static_cast<void>(map.Against(values));

    Plant plant(map, [] { return Time(); });
    const std::size_t first = word(0);
    plant.Take(first, values);
    std::size_t told = 0;
    const auto telling = plant.Changed.Connect([&](const PlantChange&) { ++told; });
    plant.Take(first, values);
    Demand(told == 0, "what is known already changes nothing");
    for (const ModuleFindings& module : ModulesOf(plant, station, FuzzCatalogue(), Language::German))
        Demand(!module.finding || !module.finding->what.de.empty(), "a finding has a text");
    static_cast<void>(plant.ComponentVersions());
    return 0;
}
