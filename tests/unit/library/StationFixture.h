#pragma once

#include "controllers/interfaces/IVxHWController.h"
#include "selection/VxHWSelectionHandler.h"
#include "tests/support/model/FakeStation.h"
#include "tests/support/services/TestServices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// A station of two racks with eleven places each, and a handler that keeps its selection. A test that provokes errors
/// takes them with `TakeReports`; any other report fails it.
class StationFixture : public ::testing::Test {
protected:
    StationFixture()
    {
        station->clipboard = services.objects->clipboard;
        handler->VxHWStation(station);
        services.Lines().clear();
    }
    void TearDown() override { EXPECT_EQ(TakeReports(), std::vector<std::string>{}); }

    /// The sources of the errors reported so far.
    std::vector<std::string> TakeReports()
    {
        std::vector<std::string> sources;
        for (const auto& report : std::exchange(services.errors->reports, {})) sources.push_back(report.source);
        return sources;
    }
    std::vector<std::string> TakeLines() { return std::exchange(services.Lines(), {}); }

    template <class Controller>
    std::shared_ptr<Controller> MakeController()
    {
        auto controller = std::make_shared<Controller>();
        controller->VxHWStation(station);
        controller->VxHWSelectionHandler(handler);
        services.Lines().clear();
        return controller;
    }

    FakeRackPlaces& SelPlaces() const { return dynamic_cast<FakeRackPlaces&>(*handler->SelPlaces()); }
    std::string Selection() const { return SelPlaces().Keys(); }
    /// Selects the places (rack, place) and tells it.
    void Select(const std::vector<std::pair<std::int32_t, std::int32_t>>& places)
    {
        SelPlaces().places.clear();
        for (const auto& [lRack, lPlace] : places) SelPlaces().places.push_back(station->Place(lRack, lPlace));
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
    FakeStationPtr station = std::make_shared<FakeStation>(services.log, 2, 11);
    VxHWSelectionHandlerPtr handler = std::make_shared<VxHWSelectionHandler>();
};

} // namespace zqbchwcx::testing
