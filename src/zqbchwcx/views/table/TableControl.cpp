#include "zqbchwcx/views/table/TableControl.h"

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/views/table/RedrawOff.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::int32_t MenuInset = 3;

constexpr std::int32_t TextResetColumns = 1008;

} // namespace

TableControl::TableControl(UserControl& oControl, TableKind kind) noexcept
    : ControlBinding(kind.className), mRegistration(kind.className), mTexts(kind.className), mControl(oControl),
      mGate(mContext, {[this] { Refresh(); }, [this] { mContent.ShowSelection(); }}),
      mContent(mContext, mTexts, kind.rows, kind.layoutSuffix), mEditing(mContext, mContent),
      mMenu(mContext, mTexts, [this] { return MenuPoint(); }),
      mInput(mContext, mTexts, mContent, mEditing, mfrmSubModules, mMenu, mGate, std::move(kind.cursorTarget))
{
    mContext.eStyle = vxStyleHWConfig;
    mRefusedConnection = mEditing.Refused.Connect([this](const RefusedEdit& edit) { EditRefused.Raise(edit); });
}

TableControl::~TableControl()
{
    G_Trap(mContext.className, "UserControl_Terminate", [&] {
        mfrmSubModules.Unload();
        mControl.Events(nullptr);
        if (mvxgrdMain) mvxgrdMain->Events(nullptr);
    });
}

void TableControl::P_GridInit()
{
    auto& toolkit = *G_ServiceRoot().toolkit;
    mvxgrdMain = toolkit.CreateGrid(mControl, "vxgrd_Main", {});
    mvxgrdMain->RowHeight(RowHeight);
    mvxgrdMain->Events(&mInput);
    mContent.Use(*mvxgrdMain);
    mfrmSubModules.Create(toolkit, mControl);
    mMenu.Create(toolkit, mControl);
    msysinfMain = toolkit.CreateSysInfo(mControl);
    msysinfMain->OnSysColorsChanged([this] { sysinf_Main_SysColorsChanged(); });
    mControl.Events(this);
    Resize();
}

void TableControl::MoveGrid(const Rect& rect, std::int32_t lHeaderHeight)
{
    mGridRect = rect;
    mContent.Grid().Move(rect);
    mContent.Grid().HeaderHeight(lHeaderHeight);
}

std::intptr_t TableControl::hWnd() const noexcept
{
    return G_TrapValue(mContext.className, "hWnd", std::intptr_t{0}, [&] { return mControl.hWnd(); });
}

bool TableControl::AutoRefresh() const noexcept
{
    return G_TrapValue(mContext.className, "AutoRefresh", true, [&] { return mContent.Grid().Redraw(); });
}

void TableControl::AutoRefresh(bool bRefresh) noexcept
{
    G_Trap(mContext.className, "AutoRefresh", [&] { mContent.Grid().Redraw(bRefresh); });
}

void TableControl::Refresh() noexcept
{
    G_Trap(mContext.className, "Refresh", [&] {
        static_cast<void>(mContext.Station());
        const RedrawGate::RefreshBracket refreshing(mGate);
        const RedrawOff redrawOff(mContext.className, mContent.Grid());
        BeforeRefresh();
        ShowContent();
    });
}

void TableControl::RefreshPlace(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "RefreshPlace", [&] {
        mGate.CatchUp();
        if (mGate.MayDrawNow()) mContent.FillPlace(oPlace);
    });
}

void TableControl::ShowContent()
{
    if (mContext.oSelHandler) mContent.TakeSelection();
    mContent.FillAll();
    mContent.ShowFocus({});
}

void TableControl::OnStyle()
{
    mGate.DrawOnModelEvents(mContext.eStyle == vxStyleHWConfig);
}

void TableControl::OnStationLeaves()
{
    mfrmSubModules.Unload();
    mContent.Grid().EndEditing(false);
    mEditing.Forget();
    mGate.Forget();
    if (mContext.oStation) mContent.SaveColumns();
}

void TableControl::OnStation()
{
    mContent.ActiveRack(0);
    mContent.ResetSelection();
    mContent.SetBackColor();
    BeforeInitialize();
    mContent.InitializeGrid();
    mContent.Grid().ResetColumnsCaption(mTexts->Text(TextResetColumns));
    OnGridInitialized();
}

void TableControl::sysinf_Main_SysColorsChanged() noexcept
{
    G_Trap(mContext.className, "sysinf_Main_SysColorsChanged", [&] {
        mContent.SetBackColor();
        if (mContext.oStation) Refresh();
    });
}

void TableControl::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "moHWStation_RackPlaceChange", [&] {
        if (mGate.MayDrawModelEvent()) mContent.FillPlace(oPlace);
    });
}

void TableControl::moHWStation_TotalRefresh() noexcept
{
    G_Trap(mContext.className, "moHWStation_TotalRefresh", [&] {
        if (mContext.Station()->IsDrawable()) Refresh();
    });
}

void TableControl::moSelHandler_SelChange() noexcept
{
    G_Trap(mContext.className, "moSelHandler_SelChange", [&] {
        mContent.TakeSelection();
        mGate.SelectionChanged();
    });
}

void TableControl::moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept
{
    G_Trap(mContext.className, "moSelHandler_FocusChange", [&] {
        if (!mContext.oStation) return;
        mGate.CatchUp();
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        if (focus.eType != vxPositionNone && focus.lRack != mContent.ActiveRack()) ShowRackOfFocus(focus.lRack);
        mContent.ShowFocus(G_PositionInfo(lPreviousFocus));
        mContent.P_EnsureVisibleFocus();
    });
}

void TableControl::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                               std::int16_t nShift, float /*x*/, float /*y*/, std::int16_t nState) noexcept
{
    G_Trap(mContext.className, "UserControl_OLEDragOver",
           [&] { mContext.DragDropCtrl()->OLEDragOver(vxNoPosition, oData, lEffect, nButton, nShift, nState); });
    mGate.CatchUp();
}

Point TableControl::MenuPoint() const
{
    const std::int32_t lRow = mContent.RowOf(G_PositionInfo(mContext.FocusPosition()));
    const Rect row = mContent.Grid().CellRect({std::max(lRow, 1), 1});
    return {mGridRect.left + row.left + MenuInset, mGridRect.top + row.bottom};
}

} // namespace zqbchwcx
