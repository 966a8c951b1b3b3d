#pragma once

#include "managers/VxHWConfigManager.h"
#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {

/// Configuration mode as a host sets it up: a station with some modules, two views, and the manager between them.
class ConfigWorld : public StationStage {
public:
    explicit ConfigWorld(bool bReadOnly = false, std::int32_t lDisplayMode = vxDisplayModeOffline)
    {
        station->readOnly = bReadOnly;
        station->displayMode = lDisplayMode;
        station->Put(0, 2, "A")->hasParamDialog = true;
        station->Put(0, 3, "B");
        station->Put(0, 5, "W", 3);
    }

    void Initialize()
    {
        manager = std::make_shared<VxHWConfigManager>();
        manager->Initialize(vxStationTypeCentral, overview, table, station);
        handler = manager->VxHWSelectionHandler();
    }
    IVxHWMouseInputController& Mouse() const { return *overview->VxHWMouseInputController(); }
    IVxHWKeyInputController& Key() const { return *overview->VxHWKeyInputController(); }
    IVxHWDragDropController& DragDrop() const { return *overview->VxHWDragDropController(); }

    /// Selects place 2, which holds module A, and place 3, which holds B; the focus is on the first.
    void SelectTwoModules()
    {
        FocusAndAnchor(4, 4);
        Select({{0, 2}, {0, 3}});
    }
    /// Selects a member of the module W, which spans the places 5 to 7.
    void SelectMember()
    {
        handler->FocusPosition(12);
        Select({{0, 6}});
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
    void Complete() const
    {
        std::int32_t lEffect = vxDropEffectMove;
        DragDrop().OLECompleteDrag(lEffect);
    }
    std::ptrdiff_t LineCount(std::string_view line) const
    {
        return std::count(services.Lines().begin(), services.Lines().end(), line);
    }

    std::shared_ptr<VxHWConfigManager> manager;
};

} // namespace zqbchwcx::testing
