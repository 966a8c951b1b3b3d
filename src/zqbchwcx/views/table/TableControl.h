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
#include <string_view>

namespace zqbchwcx {

/// What one kind of table is made of. The rows outlive the table.
struct TableKind {
    std::string_view className;
    std::string_view layoutSuffix; ///< ends the names of the parameters that keep the columns
    const RowMap& rows;
    TableInput::CursorTarget cursorTarget;
};

/// The table of a station's places, one row for each place of the rack that is shown. Addresses and comments are edited
/// in place; beside an overview, its rows are where the overview's arrow points. This is all that the tables of the
/// different kinds of station have in common; what they differ in is their `TableKind`, and what lies around the grid.
///
/// It changes the model only by writing an edited cell; everything else goes to the controllers. Every member reports
/// its own errors.
class TableControl : public ControlBinding, public IVxHWDragDropCtrlEvents, protected UserControlEvents {
public:
    ~TableControl() override;
    TableControl(const TableControl&) = delete;
    TableControl& operator=(const TableControl&) = delete;

    std::intptr_t hWnd() const noexcept;
    /// Fills everything anew.
    void Refresh() noexcept override;
    /// Fills the row of one place of the station anew, in every style: for hosts that know which place changed where
    /// model events wait for `Refresh`. Does nothing for a place without a row. While the station's drawing is off,
    /// everything waits until it is on again.
    void RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept;

    /// The drawing of the grid; False holds it back until it is True again.
    bool AutoRefresh() const noexcept;
    void AutoRefresh(bool bRefresh) noexcept;

    /// A typed value that the model did not take.
    Event<const RefusedEdit&> EditRefused;

    // IVxHWDragDropCtrlEvents
    void StateChange(VxEnumDragDropStates /*ePreviousValue*/) noexcept override {}

protected:
    static constexpr std::int32_t MinimumWidth = 5760; ///< twips
    static constexpr std::int32_t RowHeight = 15;

    /// The view fills the control, which outlives it, and makes its children with the service root's toolkit.
    TableControl(UserControl& oControl, TableKind kind) noexcept;

    /// Makes the grid and what belongs to it, and begins to listen to the user.
    void P_GridInit();
    /// Lays the grid there, in logical pixels of the control, its header included.
    void MoveGrid(const Rect& rect, std::int32_t lHeaderHeight);
    void ShowContent();

    // What a table may do besides.
    /// Everything is about to be filled anew.
    virtual void BeforeRefresh() {}
    /// The station was set, or there is none any more; the grid is not made anew yet.
    virtual void BeforeInitialize() {}
    /// The grid has its columns, and empty rows.
    virtual void OnGridInitialized() {}
    /// The focus is on another rack than the one that is shown.
    virtual void ShowRackOfFocus(std::int32_t /*lRack*/) {}

    // ControlBinding
    void OnLocked() override { sysinf_Main_SysColorsChanged(); }
    void OnStation() override;
    void moSelHandler_SelChange() noexcept override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;
    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;

private:
    InstanceRegistration mRegistration;

protected:
    TextModuleUse mTexts;
    UserControl& mControl;
    RedrawGate mGate;
    TableContent mContent;
    CellEditing mEditing;
    frm_SubModules mfrmSubModules;

private:
    // UserControlEvents. The grid has the keyboard.
    void KeyDown(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void KeyUp(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;

    // ControlBinding
    void OnStyle() override;
    void OnStationLeaves() override;
    void moHWStation_TotalRefresh() noexcept override;

    void sysinf_Main_SysColorsChanged() noexcept;
    Point MenuPoint() const;

    GridPtr mvxgrdMain;
    SysInfoPtr msysinfMain;
    PlaceMenu mMenu;
    Rect mGridRect;
    EventConnection mRefusedConnection;

protected:
    TableInput mInput;
};

} // namespace zqbchwcx
