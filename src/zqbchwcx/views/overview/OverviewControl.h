#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropCtrlEvents.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/DragPointer.h"
#include "zqbchwcx/views/overview/FocusArrow.h"
#include "zqbchwcx/views/overview/FocusMarks.h"
#include "zqbchwcx/views/overview/KeyInput.h"
#include "zqbchwcx/views/overview/ModulePictures.h"
#include "zqbchwcx/views/overview/OverviewItems.h"
#include "zqbchwcx/views/overview/PictureGround.h"
#include "zqbchwcx/views/overview/PictureInput.h"
#include "zqbchwcx/views/overview/PlacePainter.h"
#include "zqbchwcx/views/overview/PlaceTooltips.h"
#include "zqbchwcx/views/shared/ControlBinding.h"
#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/SelectionSnapshot.h"

#include <functional>
#include <memory>

namespace zqbchwcx {

/// What one kind of overview is made of. Layout and style outlive the overview.
struct OverviewKind {
    using MakeGround =
        std::function<std::unique_ptr<PictureGround>(const ViewContext&, const Canvas&, const SinglePictures&)>;

    std::string_view className;
    std::string_view pictureName; ///< of the picture box that shows the places
    const PlaceLayout& layout;
    const PlaceStyle& style;
    std::int32_t lTableHeader = 0;        ///< for the arrow: the height of the table's header, in logical pixels
    std::int32_t lTableHeaderCompare = 0; ///< the same in the compare style
    MakeGround makeGround;
    KeyInput::CursorTarget cursorTarget;
    FocusArrow::TableRow tableRow;
};

/// The graphical view of a station: its places, each with what it holds. This is all that the overviews of the
/// different kinds of station have in common; what they differ in is their `OverviewKind`, and what lies around the
/// picture.
///
/// It decides nothing itself: every input is turned into a place position and handed to the controllers, and it draws
/// again what the station, the selection handler and the drag-and-drop controller report as changed. The first
/// `Refresh` after a station was set draws the racks and places. Every member reports its own errors.
class OverviewControl : public ControlBinding, public IVxHWDragDropCtrlEvents, protected UserControlEvents {
public:
    ~OverviewControl() override;
    OverviewControl(const OverviewControl&) = delete;
    OverviewControl& operator=(const OverviewControl&) = delete;

    std::intptr_t hWnd() const noexcept;
    /// Draws everything anew and raises `FocusChange`.
    void Refresh() noexcept override;
    /// Draws one place of the station anew, in every style: for hosts that know which place changed where model events
    /// wait for `Refresh`. While the station's drawing is off, everything waits until it is on again. A place that has
    /// become visible or hidden takes a `Refresh`.
    void RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept;
    /// What the picture shows, for screen readers. The items last as long as the view.
    const OverviewItems& Items() const noexcept { return mItems; }

    Event<> ContentChange;
    Event<> SelChange;
    Event<> FocusChange;

    // IVxHWDragDropCtrlEvents
    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override;

protected:
    /// The view fills the control, which outlives it, and makes its children with the service root's toolkit.
    OverviewControl(UserControl& oControl, OverviewKind kind) noexcept;

    /// Makes the box that shows the places.
    void CreatePicture(Toolkit& toolkit, UserControl& parent, const Rect& rect);
    /// Makes what lies above the picture, and begins to listen to the user.
    void CreateRest(Toolkit& toolkit, std::int32_t lArrowIndentation);
    /// Gives the control its minimum size where it is smaller, and returns its size, both in logical pixels.
    Size KeepMinimumSize(Size minimum);

    // What an overview may do besides.
    /// The station was set, or there is none any more; nothing of it is drawn yet.
    virtual void Arrange() = 0;
    /// The pictures of places and modules of the station; null for none.
    virtual const PictureStrip* PlacePictures() const = 0;
    /// Shows the place or gap wholly, where the picture can be scrolled.
    virtual void BringIntoView(const PositionInfo& /*position*/) {}
    virtual void OnPlaceDrawn(std::int32_t /*lPlace*/) {}
    virtual void OnDragActive(bool /*bActive*/) {}

    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;
    void P_SetBackground();

    // UserControlEvents
    void KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;

private:
    InstanceRegistration mRegistration;

protected:
    TextModuleUse mTexts;
    UserControl& mControl;
    const OverviewKind mKind;
    Canvas mCanvas;
    RedrawGate mGate;
    SysInfoPtr msysinfMain;

private:
    void P_LoadImageLists() noexcept;
    void sysinf_Main_SysColorsChanged() noexcept;

    // ControlBinding
    void OnLocked() override { sysinf_Main_SysColorsChanged(); }
    void OnStyle() override;
    void OnStationLeaves() override;
    void OnStation() override;
    void moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept override;
    void moHWStation_TotalRefresh() noexcept override;
    void moSelHandler_SelChange() noexcept override;
    void moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept override;

    Point MenuPoint();
    void DrawPlace(const VxHWRackPlacePtr& oPlace);
    void DrawCoveredGapMark(std::int32_t lRack, std::int32_t lPlace);
    void DrawFocusMark();
    void RedrawPlace(std::int32_t lRack, std::int32_t lPlace) noexcept;
    void DrawOutdatedSelection();
    void P_SetBorderSelection(const VxHWModulePtr& oParentModule) noexcept;

    SinglePictures mSinglePictures;
    ModulePictures mModulePictures;
    std::unique_ptr<PictureGround> moGround;
    PlacePainter mPlacePainter;
    FocusMarks mFocusMarks;
    SelectionSnapshot mSelection;
    PlaceMenu mMenu;
    DragPointer mDragPointer;
    PlaceTooltips mTooltips;
    OverviewItems mItems;
    KeyInput mKeyInput;
    /// The focus that was brought into view last: it is not again while the user looks elsewhere.
    std::int32_t mlFocusShown = vxNoPosition;

protected:
    PictureInput mInput;
    FocusArrow mArrow;
};

} // namespace zqbchwcx
