#pragma once

#include "tests/support/controls/RecordingView.h"
#include "tests/support/model/WatchedStation.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {

using Lines = std::vector<std::string>;

inline Lines Joined(const std::vector<Lines>& parts)
{
    Lines all;
    for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// What happens to one of several objects: every line after its name.
inline Lines Prefixed(const std::string& name, Lines lines)
{
    for (std::string& line : lines) line.insert(0, name);
    return lines;
}

/// A station with eleven places in each rack, a handler that keeps its selection, and what else takes part in a mode.
class StationStage {
public:
    explicit StationStage(const reference::StationData& plain = EmptyStation(vxStationKindCentral, 2))
        : station(MakeStation(plain))
    {
        handler->VxHWStation(station);
        TakeLines();
    }

    WatchedStationPtr MakeStation(const reference::StationData& plain) const
    {
        reference::StationServices asked;
        asked.clipboard = services.host->clipboard;
        return std::make_shared<WatchedStation>(
            services.log, std::make_shared<reference::Station>(SampleContext(), plain, std::move(asked)));
    }
    Lines TakeLines() { return std::exchange(services.Lines(), {}); }
    Lines LinesOf(const std::function<void()>& operation)
    {
        services.Lines().clear();
        operation();
        return TakeLines();
    }
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

    std::string Selection() const { return KeysOf(services.log, handler->SelPlaces()); }
    /// Selects the places (rack, place) and tells it.
    void Select(const std::vector<std::pair<std::int32_t, std::int32_t>>& places) const
    {
        const auto oPlaces = handler->SelPlaces();
        oPlaces->Clear();
        for (const auto& [lRack, lPlace] : places) oPlaces->Add(station->Place(lRack, lPlace));
        handler->SelChangeComplete();
    }
    void FocusAndAnchor(std::int32_t lFocus, std::int32_t lAnchor) const
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
    WatchedStationPtr station;
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
