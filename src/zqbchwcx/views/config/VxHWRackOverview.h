#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropCtrlEvents.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/DragPointer.h"
#include "zqbchwcx/views/overview/FocusArrow.h"
#include "zqbchwcx/views/overview/FocusMarks.h"
#include "zqbchwcx/views/overview/InterfaceModuleLinks.h"
#include "zqbchwcx/views/overview/KeyInput.h"
#include "zqbchwcx/views/overview/ModulePictures.h"
#include "zqbchwcx/views/overview/OverviewItems.h"
#include "zqbchwcx/views/overview/PictureInput.h"
#include "zqbchwcx/views/overview/PlacePainter.h"
#include "zqbchwcx/views/overview/PlaceTooltips.h"
#include "zqbchwcx/views/overview/RackPainter.h"
#include "zqbchwcx/views/shared/ControlBinding.h"
#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/SelectionSnapshot.h"

#include <memory>

namespace zqbchwcx {

/// The graphical view of a central station: up to four racks of eleven places each, one above the other.
///
/// It decides nothing itself: every input is turned into a place position and handed to the controllers, and it draws
/// again what the station, the selection handler and the drag-and-drop controller report as changed. The first
/// `Refresh` after a station was set draws the racks and places. Every member reports its own errors.
class VxHWRackOverview : public ControlBinding, public IVxHWDragDropCtrlEvents, private UserControlEvents {
public:
    /// The view fills the control, which outlives it, and makes its children with the service root's toolkit.
    explicit VxHWRackOverview(UserControl& oControl) noexcept;
    ~VxHWRackOverview() override;
    VxHWRackOverview(const VxHWRackOverview&) = delete;
    VxHWRackOverview& operator=(const VxHWRackOverview&) = delete;

    std::intptr_t hWnd() const noexcept;
    /// Draws everything anew and raises `FocusChange`.
    void Refresh() noexcept override;
    /// The point that stands for the position, in logical pixels of the control.
    void CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept;
    /// The position under the point, given in logical pixels of the control; -1 for none.
    void PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept;

    /// What the picture shows, for screen readers. The items last as long as the view.
    const OverviewItems& Items() const noexcept { return mItems; }

    Event<> ContentChange;
    Event<> SelChange;
    Event<> FocusChange;

    // IVxHWControl
    /// Always 0: the view is for central stations only. Writes are ignored.
    VxEnumStationType StationType() const noexcept override { return vxStationTypeCentral; }
    void StationType(VxEnumStationType /*eStationType*/) noexcept override {}

    // IVxHWDragDropCtrlEvents
    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override;

private:
    // UserControlEvents
    void KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void Resize() noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;

    void CreateChildren();
    void P_LoadImageLists() noexcept;
    void P_SetBackground();
    void sysinf_Main_SysColorsChanged() noexcept;

    // ControlBinding
    void OnLocked() override { sysinf_Main_SysColorsChanged(); }
    void OnStyle() override;
    void OnStationLeaves() override;
    void OnStation() override;
    void moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept override;
    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;
    void moHWStation_TotalRefresh() noexcept override;
    void moSelHandler_SelChange() noexcept override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;

    void DrawPlace(const VxHWRackPlacePtr& oPlace);
    void DrawCoveredGapMark(std::int32_t lRack, std::int32_t lPlace);
    void DrawFocusMark();
    void RedrawPlace(std::int32_t lRack, std::int32_t lPlace) noexcept;
    void DrawOutdatedSelection();
    void P_SetBorderSelection(const VxHWModulePtr& oParentModule) noexcept;

    InstanceRegistration mRegistration;
    TextModuleUse mTexts;
    UserControl& mControl;
    CentralPlaceLayout mLayout;
    Canvas mCanvas;
    RedrawGate mGate;
    SinglePictures mSinglePictures;
    ModulePictures mModulePictures;
    RackPainter mRackPainter;
    PlacePainter mPlacePainter;
    FocusMarks mFocusMarks;
    SelectionSnapshot mSelection;
    InterfaceModuleLinks mLinks;
    PlaceMenu mMenu;
    DragPointer mDragPointer;
    PlaceTooltips mTooltips;
    OverviewItems mItems;
    KeyInput mKeyInput;
    PictureInput mInput;
    FocusArrow mArrow;
    SysInfoPtr msysinfMain;
};

} // namespace zqbchwcx
