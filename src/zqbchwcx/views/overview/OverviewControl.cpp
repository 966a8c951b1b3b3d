#include "zqbchwcx/views/overview/OverviewControl.h"

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
#include "zqbchwcx/views/shared/DragThreshold.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {

OverviewControl::OverviewControl(UserControl& oControl, OverviewKind kind) noexcept
    : ControlBinding(kind.className), mRegistration(kind.className), mTexts(kind.className), mControl(oControl),
      mKind(std::move(kind)), mCanvas(mKind.className),
      mGate(mContext, {[this] { Refresh(); }, [this] { DrawOutdatedSelection(); }}),
      mSinglePictures(mKind.className, mTexts), mModulePictures(mKind.className),
      moGround(mKind.makeGround(mContext, mCanvas, mSinglePictures)),
      mPlacePainter(mContext, mKind.style, mKind.layout, mCanvas, mModulePictures, mSinglePictures),
      mFocusMarks(mContext, mKind.layout, mCanvas, *moGround,
                  [this](std::int32_t lRack, std::int32_t lPlace) { RedrawPlace(lRack, lPlace); }),
      mMenu(mContext, mTexts, [this] { return MenuPoint(); }),
      mDragPointer(mContext, mKind.style, mCanvas, mModulePictures), mTooltips(mContext, mKind.layout, mTexts),
      mItems(mContext, mKind.layout, mCanvas, mSelection, mTooltips),
      mKeyInput(mContext, mMenu, mGate, mKind.cursorTarget),
      mInput(mContext, mKind.layout, mCanvas, mMenu, mDragPointer, mGate, mKind.pictureName,
             [this] { DrawFocusMark(); }),
      mArrow(mContext, mKind.style, mKind.layout, mCanvas, mKind.tableRow)
{
    mInput.DragThreshold(G_DragThreshold(mContext.className));
}

OverviewControl::~OverviewControl()
{
    G_Trap(mContext.className, "UserControl_Terminate", [&] {
        mTooltips.Disconnect();
        mControl.Events(nullptr);
        if (mCanvas.HasBox()) mCanvas.Box().Events(nullptr);
    });
}

void OverviewControl::CreatePicture(Toolkit& toolkit, UserControl& parent, const Rect& rect)
{
    mCanvas.Use(toolkit.CreatePictureBox(parent, mKind.pictureName, rect));
}

void OverviewControl::CreateRest(Toolkit& toolkit, std::int32_t lArrowIndentation)
{
    mArrow.Create(toolkit, mControl, lArrowIndentation);
    auto picDrag = toolkit.CreatePictureBox(mControl, "pic_Drag",
                                            MakeRect(0, 0, mKind.style.place.width, mKind.style.place.height));
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

Size OverviewControl::KeepMinimumSize(Size minimum)
{
    const std::int32_t lWidth = std::max(mControl.Width(), minimum.width * vxTwipsPerPixel);
    const std::int32_t lHeight = std::max(mControl.Height(), minimum.height * vxTwipsPerPixel);
    if (lWidth != mControl.Width() || lHeight != mControl.Height()) mControl.Size(lWidth, lHeight);
    return {lWidth / vxTwipsPerPixel, lHeight / vxTwipsPerPixel};
}

Point OverviewControl::MenuPoint()
{
    const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
    BringIntoView(focus);
    return mCanvas.InControl(mKind.layout.MenuPointOf(focus));
}

std::intptr_t OverviewControl::hWnd() const noexcept
{
    return G_TrapValue(mContext.className, "hWnd", std::intptr_t{0}, [&] { return mControl.hWnd(); });
}

void OverviewControl::OnStyle()
{
    const VxEnumStyle eStyle = mContext.eStyle;
    if (eStyle != vxStyleHWCompare && eStyle != vxStyleHWConfig && eStyle != vxStyleHWDiag) return;
    mArrow.HeaderHeight(eStyle == vxStyleHWCompare ? mKind.lTableHeaderCompare : mKind.lTableHeader);
    mGate.DrawOnModelEvents(eStyle == vxStyleHWConfig);
}

void OverviewControl::OnStationLeaves()
{
    mTooltips.Disconnect();
    mSelection.Clear();
    mGate.Forget();
}

void OverviewControl::OnStation()
{
    Arrange();
    mlFocusShown = vxNoPosition;
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

void OverviewControl::P_LoadImageLists() noexcept
{
    G_Trap(mContext.className, "P_LoadImageLists", [&] {
        const PictureStrip* pPictures = PlacePictures();
        if (pPictures != nullptr) mModulePictures.Load(*mTexts, *pPictures);
        else mModulePictures.Forget();
        moGround->Load(*mTexts);
    });
}

void OverviewControl::P_SetBackground()
{
    const std::int32_t lDisplayMode = mContext.Station()->DisplayMode();
    if (mContext.bLocked) mContext.backColor = G_ColorDisabledBackground();
    else if (lDisplayMode == vxDisplayModeOffline) mContext.backColor = vxColorWindowBackground;
    else if (lDisplayMode == vxDisplayModeOnline1 || lDisplayMode == vxDisplayModeOnline2)
        mContext.backColor = G_ColorOnlineBackground;
    const DrawingBracket drawing(mCanvas);
    moGround->DrawEmpty();
}

void OverviewControl::sysinf_Main_SysColorsChanged() noexcept
{
    G_Trap(mContext.className, "sysinf_Main_SysColorsChanged", [&] {
        if (!mContext.oStation) return;
        const DrawingBracket drawing(mCanvas);
        P_SetBackground();
        Refresh();
    });
}

void OverviewControl::Refresh() noexcept
{
    G_Trap(mContext.className, "Refresh", [&] {
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

void OverviewControl::RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "RefreshPlace", [&] {
        ContentChange.Raise();
        mGate.CatchUp();
        if (mGate.MayDrawNow()) DrawPlace(oPlace);
    });
}

void OverviewControl::moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept
{
    G_Trap(mContext.className, "moHWStation_RackChange", [&] {
        if (!mGate.MayDrawModelEvent()) return;
        const DrawingBracket drawing(mCanvas);
        moGround->DrawRack(*oRack);
    });
}

void OverviewControl::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "moHWStation_RackPlaceChange", [&] {
        if (!mGate.IsRefreshing()) ContentChange.Raise();
        if (mGate.MayDrawModelEvent()) DrawPlace(oPlace);
    });
}

void OverviewControl::moHWStation_TotalRefresh() noexcept
{
    G_Trap(mContext.className, "moHWStation_TotalRefresh", [&] {
        if (mGate.DrawsModelEvents()) Refresh();
    });
}

void OverviewControl::DrawPlace(const VxHWRackPlacePtr& oPlace)
{
    const std::int32_t lPlace = oPlace->Number();
    const std::int32_t lRack = oPlace->Rack()->Number();
    if (!mKind.layout.Shows(lRack, lPlace)) return;
    const DrawingBracket drawing(mCanvas);
    const bool bSelected = mSelection.IsSelected(lRack, lPlace);
    if (bSelected) ContentChange.Raise();
    mPlacePainter.Draw(oPlace, bSelected);
    // Until a pending selection is drawn as a whole, the frames of its groups are not.
    if (!mGate.IsSelectionPending()) mSelection.MarkDrawn(lRack, lPlace);

    DrawCoveredGapMark(lRack, lPlace);
    OnPlaceDrawn(lPlace);
}

void OverviewControl::DrawCoveredGapMark(std::int32_t lRack, std::int32_t lPlace)
{
    // The stem of the mark in the gap at the right of a place lies on the place.
    const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
    if (focus.eType != vxPositionGap || focus.lRack != lRack || !mKind.layout.ShowsGap(lRack, focus.lNumber)) return;
    if (mKind.layout.PlacesBeside(lRack, focus.lNumber).lLeft == lPlace) mFocusMarks.Set(focus);
}

void OverviewControl::DrawFocusMark()
{
    if (!mContext.oStation) return;
    const DrawingBracket drawing(mCanvas);
    mFocusMarks.Set(G_PositionInfo(mContext.FocusPosition()));
}

void OverviewControl::RedrawPlace(std::int32_t lRack, std::int32_t lPlace) noexcept
{
    // A place that cannot be drawn does not keep the others from it.
    G_Trap(mContext.className, "moHWStation_RackPlaceChange", [&] {
        if (!mGate.IsRefreshing()) ContentChange.Raise();
        if (mGate.MayDrawNow()) DrawPlace(mContext.Place(lRack, lPlace));
    });
}

void OverviewControl::moSelHandler_SelChange() noexcept
{
    G_Trap(mContext.className, "moSelHandler_SelChange", [&] {
        SelChange.Raise();
        mSelection.Take(mContext.SelHandler()->SelPlacesArray());
        mGate.SelectionChanged();
    });
}

void OverviewControl::DrawOutdatedSelection()
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

void OverviewControl::P_SetBorderSelection(const VxHWModulePtr& oParentModule) noexcept
{
    G_Trap(mContext.className, "P_SetBorderSelection", [&] {
        const auto oPlaces = mContext.Station()->ParentModulePlaces(oParentModule);
        for (const auto& oPlace : oPlaces) {
            const std::int32_t lRack = oPlace->Rack()->Number();
            const std::int32_t lPlace = oPlace->Number();
            if (!mKind.layout.Shows(lRack, lPlace)) continue;
            mPlacePainter.DrawGroupFrame(oPlace);
            DrawCoveredGapMark(lRack, lPlace);
        }
    });
}

void OverviewControl::StateChange(VxEnumDragDropStates /*ePreviousValue*/) noexcept
{
    G_Trap(mContext.className, "IVxHWDragDropCtrlEvents_StateChange", [&] { OnDragActive(mContext.IsDragActive()); });
    // A drag that ends in a drop ends while drawing is off; its markings go as soon as it is on again.
    if (mContext.oStation) mGate.EverythingChanged();
}

void OverviewControl::moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept
{
    G_Trap(mContext.className, "moSelHandler_FocusChange", [&] {
        mGate.CatchUp();
        if (mContext.oStation) {
            const DrawingBracket drawing(mCanvas);
            mFocusMarks.Reset(G_PositionInfo(lPreviousFocus));
            DrawFocusMark();
        }
        if (std::exchange(mlFocusShown, mContext.FocusPosition()) != mlFocusShown)
            BringIntoView(G_PositionInfo(mlFocusShown));
        mArrow.Update();
        FocusChange.Raise();
    });
}

void OverviewControl::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                                  std::int16_t nShift, float /*x*/, float /*y*/, std::int16_t nState) noexcept
{
    G_Trap(mContext.className, "UserControl_OLEDragOver", [&] {
        mContext.DragDropCtrl()->OLEDragOver(vxNoPosition, oData, lEffect, nButton, nShift, nState);
        mGate.CatchUp();
    });
}

void OverviewControl::KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    mKeyInput.KeyDown(nKeyCode, nShift);
}

void OverviewControl::KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    mKeyInput.KeyUp(nKeyCode, nShift);
}

} // namespace zqbchwcx
