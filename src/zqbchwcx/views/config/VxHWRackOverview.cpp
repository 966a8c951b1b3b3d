#include "zqbchwcx/views/config/VxHWRackOverview.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/overview/CentralCursor.h"
#include "zqbchwcx/views/shared/DragThreshold.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackOverview";

constexpr Rect PictureRect = MakeRect(4, 0, 238, 392);
constexpr std::int32_t MinimumWidth = 3525; // twips
constexpr std::int32_t MinimumHeight = 5880;

constexpr std::int32_t ArrowIndentation = 238;
constexpr std::int32_t ArrowHeaderHeight = 41;
constexpr std::int32_t ArrowHeaderHeightCompare = 61;

} // namespace

VxHWRackOverview::VxHWRackOverview(UserControl& oControl) noexcept
    : ControlBinding(ClassName), mRegistration(ClassName), mTexts(ClassName), mControl(oControl), mCanvas(ClassName),
      mGate(mContext, {[this] { Refresh(); }, [this] { DrawOutdatedSelection(); }}), mSinglePictures(ClassName, mTexts),
      mModulePictures(ClassName), mRackPainter(mContext, mCanvas, mSinglePictures),
      mPlacePainter(mContext, G_CentralPlaceStyle, mLayout, mCanvas, mModulePictures, mSinglePictures),
      mFocusMarks(mContext, mLayout, mCanvas, mRackPainter,
                  [this](std::int32_t lRack, std::int32_t lPlace) { RedrawPlace(lRack, lPlace); }),
      mLinks(mContext),
      mMenu(mContext, mTexts,
            [this] { return mCanvas.InControl(mLayout.MenuPointOf(G_PositionInfo(mContext.FocusPosition()))); }),
      mDragPointer(mContext, G_CentralPlaceStyle, mCanvas, mModulePictures), mTooltips(mContext, mLayout, mTexts),
      mItems(mContext, mLayout, mCanvas, mSelection, mTooltips),
      mKeyInput(mContext, mMenu, mGate, G_CentralCursorTarget),
      mInput(mContext, mLayout, mCanvas, mMenu, mDragPointer, mGate, "pic_Main", [this] { DrawFocusMark(); }),
      mArrow(mContext, G_CentralPlaceStyle, mLayout, mCanvas)
{
    mInput.DragThreshold(G_DragThreshold(ClassName));
    G_Trap(ClassName, "UserControl_Initialize", [&] { CreateChildren(); });
}

VxHWRackOverview::~VxHWRackOverview()
{
    G_Trap(ClassName, "UserControl_Terminate", [&] {
        mTooltips.Disconnect();
        mControl.Events(nullptr);
        if (mCanvas.HasBox()) mCanvas.Box().Events(nullptr);
    });
}

void VxHWRackOverview::CreateChildren()
{
    auto& toolkit = *G_ServiceRoot().toolkit;
    mControl.Font("Tahoma", 8.25);
    mCanvas.Use(toolkit.CreatePictureBox(mControl, "pic_Main", PictureRect));
    mLinks.Create(toolkit, mControl);
    mArrow.Create(toolkit, mControl, ArrowIndentation);
    auto picDrag = toolkit.CreatePictureBox(
        mControl, "pic_Drag", MakeRect(0, 0, G_CentralPlaceStyle.place.width, G_CentralPlaceStyle.place.height));
    picDrag->Visible(false);
    mDragPointer.Use(std::move(picDrag));
    mMenu.Create(toolkit, mControl);
    msysinfMain = toolkit.CreateSysInfo(mControl);
    msysinfMain->OnSysColorsChanged([this] { sysinf_Main_SysColorsChanged(); });

    mCanvas.Box().BackColor(mContext.backColor);
    mCanvas.Box().Events(&mInput);
    mControl.Events(this);
    Resize();
}

std::intptr_t VxHWRackOverview::hWnd() const noexcept
{
    return G_TrapValue(ClassName, "hWnd", std::intptr_t{0}, [&] { return mControl.hWnd(); });
}

void VxHWRackOverview::CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept
{
    G_Trap(ClassName, "CoordinatesByPosition", [&] {
        const Point at = mCanvas.InControl(mLayout.PointOf(G_PositionInfo(lPosition)));
        X = at.x;
        Y = at.y;
    });
}

void VxHWRackOverview::PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept
{
    G_Trap(ClassName, "PositionByCoordinates", [&] { lPosition = mLayout.PositionAt(mCanvas.InPicture({X, Y})); });
}

void VxHWRackOverview::OnStyle()
{
    const VxEnumStyle eStyle = mContext.eStyle;
    if (eStyle != vxStyleHWCompare && eStyle != vxStyleHWConfig && eStyle != vxStyleHWDiag) return;
    mArrow.HeaderHeight(eStyle == vxStyleHWCompare ? ArrowHeaderHeightCompare : ArrowHeaderHeight);
    mGate.DrawOnModelEvents(eStyle == vxStyleHWConfig);
}

void VxHWRackOverview::OnStationLeaves()
{
    mTooltips.Disconnect();
    mSelection.Clear();
    mGate.Forget();
}

void VxHWRackOverview::OnStation()
{
    mLinks.Hide();
    if (!mContext.oStation) {
        mContext.backColor = mContext.bLocked ? G_ColorDisabledBackground() : vxColorWindowBackground;
        mArrow.Hide();
        const DrawingBracket drawing(mCanvas);
        mCanvas.Box().BackColor(mContext.backColor);
        return;
    }
    mTooltips.Connect(mCanvas.Box().hWnd());
    P_LoadImageLists();
    const auto oRacks = mContext.Station()->Racks();
    mSelection.Reset(oRacks->Count(), oRacks->Item(0)->Places()->Count());
    P_SetBackground();
}

void VxHWRackOverview::P_LoadImageLists() noexcept
{
    G_Trap(ClassName, "P_LoadImageLists", [&] {
        mModulePictures.Load(*mTexts, G_CentralPlaceStyle.pictures);
        mRackPainter.Load(*mTexts);
    });
}

void VxHWRackOverview::P_SetBackground()
{
    const std::int32_t lDisplayMode = mContext.Station()->DisplayMode();
    if (mContext.bLocked) mContext.backColor = G_ColorDisabledBackground();
    else if (lDisplayMode == vxDisplayModeOffline) mContext.backColor = vxColorWindowBackground;
    else if (lDisplayMode == vxDisplayModeOnline1 || lDisplayMode == vxDisplayModeOnline2)
        mContext.backColor = G_ColorOnlineBackground;
    const DrawingBracket drawing(mCanvas);
    mRackPainter.DrawEmptyRails();
}

void VxHWRackOverview::sysinf_Main_SysColorsChanged() noexcept
{
    G_Trap(ClassName, "sysinf_Main_SysColorsChanged", [&] {
        if (!mContext.oStation) return;
        const DrawingBracket drawing(mCanvas);
        P_SetBackground();
        Refresh();
    });
}

void VxHWRackOverview::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        const DrawingBracket drawing(mCanvas);
        const auto oStation = mContext.Station();
        const RedrawGate::RefreshBracket refreshing(mGate);
        if (mContext.oSelHandler) mSelection.Take(mContext.oSelHandler->SelPlacesArray());
        for (const auto& oRack : oStation->Racks()) {
            moHWStation_RackChange(oRack);
            for (const auto& oPlace : oRack->Places()) moHWStation_RackPlaceChange(oPlace);
        }
        moSelHandler_FocusChange(vxNoPosition);
    });
}

void VxHWRackOverview::moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept
{
    G_Trap(ClassName, "moHWStation_RackChange", [&] {
        if (!mGate.MayDrawModelEvent()) return;
        if (!CentralPlaceLayout::ShowsRack(oRack->Number())) return;
        const DrawingBracket drawing(mCanvas);
        mRackPainter.DrawNumber(*oRack);
    });
}

void VxHWRackOverview::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(ClassName, "moHWStation_RackPlaceChange", [&] {
        if (!mGate.IsRefreshing()) ContentChange.Raise();
        if (mGate.MayDrawModelEvent()) DrawPlace(oPlace);
    });
}

void VxHWRackOverview::moHWStation_TotalRefresh() noexcept
{
    G_Trap(ClassName, "moHWStation_TotalRefresh", [&] {
        if (mGate.DrawsModelEvents()) Refresh();
    });
}

void VxHWRackOverview::DrawPlace(const VxHWRackPlacePtr& oPlace)
{
    const std::int32_t lPlace = oPlace->Number();
    const std::int32_t lRack = oPlace->Rack()->Number();
    if (!mLayout.Shows(lRack, lPlace)) return;
    const DrawingBracket drawing(mCanvas);
    const bool bSelected = mSelection.IsSelected(lRack, lPlace);
    if (bSelected) ContentChange.Raise();
    mPlacePainter.Draw(oPlace, bSelected);
    // Until a pending selection is drawn as a whole, the frames of its groups are not.
    if (!mGate.IsSelectionPending()) mSelection.MarkDrawn(lRack, lPlace);

    DrawCoveredGapMark(lRack, lPlace);
    if (lPlace == InterfaceModuleLinks::PlaceNumber) mLinks.Update();
}

void VxHWRackOverview::DrawCoveredGapMark(std::int32_t lRack, std::int32_t lPlace)
{
    // The stem of the mark in the gap at the right of a place lies on the place.
    const std::int32_t lFocus = mContext.FocusPosition();
    if (lFocus == G_GapPosition(lRack, lPlace)) mFocusMarks.Set(G_PositionInfo(lFocus));
}

void VxHWRackOverview::DrawFocusMark()
{
    if (!mContext.oStation) return;
    const DrawingBracket drawing(mCanvas);
    mFocusMarks.Set(G_PositionInfo(mContext.FocusPosition()));
}

void VxHWRackOverview::RedrawPlace(std::int32_t lRack, std::int32_t lPlace) noexcept
{
    // A place that cannot be drawn does not keep the others from it.
    G_Trap(ClassName, "moHWStation_RackPlaceChange", [&] {
        if (!mGate.IsRefreshing()) ContentChange.Raise();
        if (mGate.MayDrawNow()) DrawPlace(mContext.Place(lRack, lPlace));
    });
}

void VxHWRackOverview::moSelHandler_SelChange() noexcept
{
    G_Trap(ClassName, "moSelHandler_SelChange", [&] {
        SelChange.Raise();
        mSelection.Take(mContext.SelHandler()->SelPlacesArray());
        mGate.SelectionChanged();
    });
}

void VxHWRackOverview::DrawOutdatedSelection()
{
    const DrawingBracket drawing(mCanvas);
    const auto oParents = G_ServiceRoot().modelFactory->CreateModules();
    for (const auto& [lRack, lPlace] : mSelection.Outdated()) {
        const auto oModule = mContext.Place(lRack, lPlace)->Module();
        RedrawPlace(lRack, lPlace);
        if (oModule->IndexInParent() == 0) continue;
        const auto oParent = oModule->ParentModule();
        if (!oParents->Contains(oParent)) oParents->Add(oParent, true);
    }
    for (const auto& oParent : oParents) P_SetBorderSelection(oParent);
}

void VxHWRackOverview::P_SetBorderSelection(const VxHWModulePtr& oParentModule) noexcept
{
    G_Trap(ClassName, "P_SetBorderSelection", [&] {
        const auto oPlaces = mContext.Station()->ParentModulePlaces(oParentModule);
        for (const auto& oPlace : oPlaces) {
            const std::int32_t lRack = oPlace->Rack()->Number();
            const std::int32_t lPlace = oPlace->Number();
            if (!mLayout.Shows(lRack, lPlace)) continue;
            mPlacePainter.DrawGroupFrame(oPlace);
            DrawCoveredGapMark(lRack, lPlace);
        }
    });
}

void VxHWRackOverview::StateChange(VxEnumDragDropStates /*ePreviousValue*/) noexcept
{
    // A drag that ends in a drop ends while drawing is off; its markings go as soon as it is on again.
    if (mContext.oStation) mGate.EverythingChanged();
}

void VxHWRackOverview::moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept
{
    G_Trap(ClassName, "moSelHandler_FocusChange", [&] {
        mGate.CatchUp();
        if (mContext.oStation) {
            const DrawingBracket drawing(mCanvas);
            mFocusMarks.Reset(G_PositionInfo(lPreviousFocus));
            DrawFocusMark();
        }
        mArrow.Update();
        FocusChange.Raise();
    });
}

void VxHWRackOverview::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const std::int32_t lWidth = std::max(mControl.Width(), MinimumWidth);
        const std::int32_t lHeight = std::max(mControl.Height(), MinimumHeight);
        if (lWidth != mControl.Width() || lHeight != mControl.Height()) mControl.Size(lWidth, lHeight);
        mArrow.Cover(lWidth, lHeight);
    });
}

void VxHWRackOverview::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                                   std::int16_t nShift, float /*x*/, float /*y*/, std::int16_t nState) noexcept
{
    G_Trap(ClassName, "UserControl_OLEDragOver", [&] {
        mContext.DragDropCtrl()->OLEDragOver(vxNoPosition, oData, lEffect, nButton, nShift, nState);
        mGate.CatchUp();
    });
}

void VxHWRackOverview::KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    mKeyInput.KeyDown(nKeyCode, nShift);
}

void VxHWRackOverview::KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    mKeyInput.KeyUp(nKeyCode, nShift);
}

} // namespace zqbchwcx
