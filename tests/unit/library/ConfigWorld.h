#pragma once

#include "managers/VxHWConfigManager.h"
#include "platform/Input.h"
#include "selection/VxHWSelectionHandler.h"
#include "tests/support/controls/RecordingControl.h"
#include "tests/support/model/FakeStation.h"
#include "tests/support/services/FakeDataObject.h"
#include "tests/support/services/TestServices.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>

namespace zqbchwcx::testing {

/// Configuration mode as a host sets it up: a station with some modules, two views, and the manager between them.
class ConfigWorld {
public:
    explicit ConfigWorld(bool bReadOnly = false, std::int32_t lDisplayMode = vxDisplayModeOffline)
    {
        station->clipboard = services.objects->clipboard;
        station->readOnly = bReadOnly;
        station->displayMode = lDisplayMode;
        station->Put(0, 2, "A")->hasParamDialog = true;
        station->Put(0, 3, "B");
        station->Put(0, 5, "W", 3);
    }

    void Initialize() { manager->Initialize(vxStationTypeCentral, overview, table, station); }
    VxHWSelectionHandler& Handler() const { return *overview->handler; }
    IVxHWMouseInputController& Mouse() const { return *overview->mouse; }
    IVxHWKeyInputController& Key() const { return *overview->key; }
    IVxHWDragDropController& DragDrop() const { return *overview->dragDrop; }
    FakeRackPlaces& SelPlaces() const { return dynamic_cast<FakeRackPlaces&>(*Handler().SelPlaces()); }

    /// Selects place 2, which holds module A, and place 3, which holds B; the focus is on the first.
    void SelectTwoModules() const
    {
        Handler().FocusPosition(4);
        Handler().ShiftSelPosition(4);
        SelPlaces().places = {station->Place(0, 2), station->Place(0, 3)};
        Handler().SelChangeComplete();
    }
    /// Selects a member of the module W, which spans the places 5 to 7.
    void SelectMember() const
    {
        Handler().FocusPosition(12);
        SelPlaces().places = {station->Place(0, 6)};
        Handler().SelChangeComplete();
    }
    void StartDrag(std::int32_t lPosition) const
    {
        std::int32_t lEffect = 0;
        DragDrop().OLEStartDrag(data, lEffect);
        DragDrop().OLESetData(data, FakeExchangeData::Format);
        Over(lPosition, vxDragEnter);
    }
    void Over(std::int32_t lPosition, std::int16_t nState) const
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        DragDrop().OLEDragOver(lPosition, data, lEffect, vxButtonLeft, 0, nState);
    }
    void Drop(std::int32_t lPosition, std::int16_t nShift) const
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        DragDrop().OLEDragDrop(lPosition, data, lEffect, vxButtonLeft, nShift);
    }
    std::ptrdiff_t LineCount(std::string_view line) const
    {
        return std::count(services.Lines().begin(), services.Lines().end(), line);
    }

    TestServices services;
    FakeStationPtr station = std::make_shared<FakeStation>(services.log, 2, 11);
    std::shared_ptr<RecordingControl> overview = std::make_shared<RecordingControl>(services.log, "overview");
    std::shared_ptr<RecordingControl> table = std::make_shared<RecordingControl>(services.log, "table");
    std::shared_ptr<FakeDataObject> data = std::make_shared<FakeDataObject>(services.log);
    std::shared_ptr<VxHWConfigManager> manager = std::make_shared<VxHWConfigManager>();
};

} // namespace zqbchwcx::testing
