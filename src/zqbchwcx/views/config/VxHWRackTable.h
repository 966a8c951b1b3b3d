#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropCtrlEvents.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/shared/ControlBinding.h"
#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/table/CellEditing.h"
#include "zqbchwcx/views/table/SubModuleForm.h"
#include "zqbchwcx/views/table/TableContent.h"
#include "zqbchwcx/views/table/TableInput.h"

#include <cstdint>

namespace zqbchwcx {

/// The table of a central station: one tab for each rack, one row for each place of the rack that is shown. Addresses
/// and comments are edited in place; beside an overview, its rows are where the overview's arrow points.
///
/// It changes the model only by writing an edited cell; everything else goes to the controllers. Every member reports
/// its own errors.
class VxHWRackTable : public ControlBinding,
                      public IVxHWDragDropCtrlEvents,
                      private UserControlEvents,
                      private TabStripEvents {
public:
    static constexpr std::int32_t TabCount = 4;
    /// Logical pixels from the top of the control to the first row.
    static constexpr std::int32_t HeaderBottom = 41;

    /// The view fills the control, which outlives it, and makes its children with the service root's toolkit.
    explicit VxHWRackTable(UserControl& oControl) noexcept;
    ~VxHWRackTable() override;
    VxHWRackTable(const VxHWRackTable&) = delete;
    VxHWRackTable& operator=(const VxHWRackTable&) = delete;

    std::intptr_t hWnd() const noexcept;
    /// The rack that is shown. A put takes focus and selection along to the same places of the rack, as a press on its
    /// tab does; a rack that the station does not have is reported and changes nothing.
    std::int32_t ActiveRack() const noexcept { return mContent.ActiveRack(); }
    void ActiveRack(std::int32_t lRack) noexcept;
    /// Fills everything anew.
    void Refresh() noexcept override;

    /// The drawing of the grid; False holds it back until it is True again.
    bool AutoRefresh() const noexcept;
    void AutoRefresh(bool bRefresh) noexcept;

    /// A typed value that the model did not take.
    Event<const RefusedEdit&> EditRefused;

    // IVxHWControl
    /// Always 0: the view is for central stations only. Writes are ignored.
    VxEnumStationType StationType() const noexcept override { return vxStationTypeCentral; }
    void StationType(VxEnumStationType /*eStationType*/) noexcept override {}

    // IVxHWDragDropCtrlEvents
    void StateChange(VxEnumDragDropStates /*ePreviousValue*/) noexcept override {}

private:
    // UserControlEvents. The grid has the keyboard.
    void KeyDown(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void KeyUp(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void Resize() noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;

    // TabStripEvents
    void TabClick(std::int32_t lTab) noexcept override;
    void TabHover(std::int32_t lTab) noexcept override;
    void TabDragHover(std::int32_t lTab) noexcept override;

    // ControlBinding
    void OnLocked() override;
    void OnStyle() override;
    void OnStationLeaves() override;
    void OnStation() override;
    void moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept override;
    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;
    void moHWStation_TotalRefresh() noexcept override;
    void moSelHandler_SelChange() noexcept override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;

    enum class Selection { Carry, Leave };

    void CreateTabs();
    void P_GridInit();
    void P_SetLanguageTexts() noexcept;
    void P_ChangeRack(std::int32_t lRack, Selection eSelection) noexcept;
    void CarrySelection(std::int32_t lRack);
    void ShowRack(std::int32_t lRack);
    void SetTabs();
    void ShowContent();
    void sysinf_Main_SysColorsChanged() noexcept;
    Point MenuPoint() const;

    InstanceRegistration mRegistration;
    TextModuleUse mTexts;
    UserControl& mControl;
    CentralRowMap mRows;
    RedrawGate mGate;
    TabStripPtr mvxtabMain;
    GridPtr mvxgrdMain;
    SysInfoPtr msysinfMain;
    PlaceMenu mMenu;
    TableContent mContent;
    CellEditing mEditing;
    frm_SubModules mfrmSubModules;
    TableInput mInput;
    EventConnection mRefusedConnection;
    bool mbChangingRack = false;
};

} // namespace zqbchwcx
