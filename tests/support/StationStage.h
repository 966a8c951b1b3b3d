#pragma once

#include "tests/support/controls/RecordingView.h"
#include "tests/support/model/FakeStation.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {

using Lines = std::vector<std::string>;

/// A station with eleven places in each rack, a handler that keeps its selection, and what else takes part in a mode.
class StationStage {
public:
    explicit StationStage(std::int32_t lRacks = 2) : station(std::make_shared<FakeStation>(services.log, lRacks, 11))
    {
        station->clipboard = services.host->clipboard;
        handler->VxHWStation(station);
        TakeLines();
    }

    Lines TakeLines() { return std::exchange(services.Lines(), {}); }
    Lines TakeReports() { return services.host->TakeReports(); }

    template <class Controller>
    std::shared_ptr<Controller> MakeController()
    {
        auto controller = std::make_shared<Controller>();
        controller->VxHWStation(station);
        controller->VxHWSelectionHandler(handler);
        services.Lines().clear();
        return controller;
    }

    FakeRackPlaces& SelPlaces() const { return AsFake(handler->SelPlaces()); }
    std::string Selection() const { return SelPlaces().Keys(); }
    /// Selects the places (rack, place) and tells it.
    void Select(const std::vector<std::pair<std::int32_t, std::int32_t>>& places)
    {
        SelPlaces().members.clear();
        for (const auto& [lRack, lPlace] : places) SelPlaces().members.push_back(station->Place(lRack, lPlace));
        handler->SelChangeComplete();
    }
    void FocusAndAnchor(std::int32_t lFocus, std::int32_t lAnchor)
    {
        handler->FocusPosition(lFocus);
        handler->ShiftSelPosition(lAnchor);
    }
    /// Selection, focus and anchor in one string, as in "0/4 0/5 | 8 | 8".
    std::string Marks() const
    {
        return Selection() + " | " + std::to_string(handler->FocusPosition()) + " | " +
               std::to_string(handler->ShiftSelPosition());
    }

    TestServices services;
    FakeStationPtr station;
    VxHWSelectionHandlerPtr handler = std::make_shared<VxHWSelectionHandler>();
    std::shared_ptr<RecordingView> overview = std::make_shared<RecordingView>(services.log, "overview");
    std::shared_ptr<RecordingView> table = std::make_shared<RecordingView>(services.log, "table");
    std::shared_ptr<FakeDataObject> data = std::make_shared<FakeDataObject>(services.log);
};

/// A test that provokes errors takes them with `TakeReports`; any other report fails it.
class StationFixture : public ::testing::Test, public StationStage {
protected:
    using StationStage::StationStage;

    void TearDown() override { EXPECT_EQ(TakeReports(), Lines{}); }
};

} // namespace zqbchwcx::testing
