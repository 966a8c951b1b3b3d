#pragma once

#include "tests/support/Samples.h"
#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/reference/diag/Plant.h"
#include "zqbchwcx/reference/diag/Simulation.h"

namespace zqbchwcx::reference {

/// "PS CPU IM CNT3(2 sub-modules) -" in rack 0; rack 1 is not present.
inline StationData DiagStation()
{
    StationData data = zqbchwcx::testing::EmptyStation(0, 2, 7);
    zqbchwcx::testing::PlainStation plain(data);
    plain.Place(G_PlacePosition(0, 1), zqbchwcx::testing::Block("PS CPU IM CNT3 + +"));
    data = plain.Data();
    auto absent = std::make_shared<RackData>(*data.racks[1]);
    absent->state = 0;
    data.racks[1] = absent;
    return data;
}

/// A plant whose clock is set by the test.
struct DiagStage {
    explicit DiagStage(StationData data = DiagStation())
        : station(std::move(data)), simulation(station),
          plant(std::make_shared<Plant>(RegisterMap(station), [this] { return now; }))
    {
        telling = plant->Changed.Connect([this](const PlantChange& change) { told.push_back(change); });
    }

    /// What a reader of the simulated plant sees after the command.
    void Do(const std::string& command)
    {
        simulation.Apply(std::get<PlantCommand>(ParsePlantCommand(command, plant->Map())));
        plant->Take(0, simulation.Registers());
    }

    StationData station;
    Time now{std::chrono::hours(1)};
    Simulation simulation;
    PlantPtr plant;
    std::vector<PlantChange> told;
    EventConnection telling;
};

} // namespace zqbchwcx::reference
