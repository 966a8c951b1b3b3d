#include "zqbchwcx/views/config/VxHWRackTable.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/table/RedrawOff.h"
#include "zqbchwcx/views/table/TableCursor.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackTable";
constexpr std::string_view LayoutSuffix = "CRX";

constexpr std::int32_t MinimumWidth = 5760; // twips
constexpr std::int32_t Height = 3090;
constexpr std::int32_t RowHeight = 15;
constexpr std::int32_t MenuInset = 3;

constexpr std::int32_t TextTabCaption = 1000;
constexpr std::int32_t TextTabTooltip = 6117;
constexpr std::int32_t TextResetColumns = 1008;

} // namespace

VxHWRackTable::VxHWRackTable(UserControl& oControl) noexcept
    : ControlBinding(ClassName), mRegistration(ClassName), mTexts(ClassName), mControl(oControl),
      mGate(mContext, {[this] { Refresh(); }, [this] { mContent.ShowSelection(); }}),
      mMenu(mContext, mTexts, [this] { return MenuPoint(); }), mContent(mContext, mTexts, mRows, LayoutSuffix),
      mEditing(mContext, mContent),
      mInput(mContext, mTexts, mContent, mEditing, mfrmSubModules, mMenu, mGate, G_CentralTableCursorTarget)
{
    mContext.eStyle = vxStyleHWConfig;
    mRefusedConnection = mEditing.Refused.Connect([this](const RefusedEdit& edit) { EditRefused.Raise(edit); });
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        mControl.Font("Tahoma", 8.25);
        CreateTabs();
        P_GridInit();
        mControl.Events(this);
        Resize();
    });
}

VxHWRackTable::~VxHWRackTable()
{
    G_Trap(ClassName, "UserControl_Terminate", [&] {
        mfrmSubModules.Unload();
        mControl.Events(nullptr);
        if (mvxgrdMain) mvxgrdMain->Events(nullptr);
        if (mvxtabMain) mvxtabMain->Events(nullptr);
    });
}

void VxHWRackTable::CreateTabs()
{
    mvxtabMain = G_ServiceRoot().toolkit->CreateTabStrip(mControl, "vxtab_Main", {}, TabCount);
    mvxtabMain->Events(this);
    for (std::int32_t lTab = 0; lTab < TabCount; ++lTab) mvxtabMain->Enabled(lTab, false);
    P_SetLanguageTexts();
}

void VxHWRackTable::P_GridInit()
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
}

void VxHWRackTable::P_SetLanguageTexts() noexcept
{
    G_Trap(ClassName, "P_SetLanguageTexts", [&] {
        if (!mTexts.get()) return;
        const std::string caption = mTexts->Text(TextTabCaption);
        const std::string tooltip = mTexts->Text(TextTabTooltip);
        for (std::int32_t lTab = 0; lTab < TabCount; ++lTab) {
            const std::string number = std::to_string(lTab) + " ";
            mvxtabMain->Caption(lTab, number + caption);
            mvxtabMain->TooltipText(lTab, number + tooltip);
        }
    });
}

std::intptr_t VxHWRackTable::hWnd() const noexcept
{
    return G_TrapValue(ClassName, "hWnd", std::intptr_t{0}, [&] { return mControl.hWnd(); });
}

bool VxHWRackTable::AutoRefresh() const noexcept
{
    return G_TrapValue(ClassName, "AutoRefresh", true, [&] { return mContent.Grid().Redraw(); });
}

void VxHWRackTable::AutoRefresh(bool bRefresh) noexcept
{
    G_Trap(ClassName, "AutoRefresh", [&] { mContent.Grid().Redraw(bRefresh); });
}

void VxHWRackTable::ActiveRack(std::int32_t lRack) noexcept
{
    P_ChangeRack(lRack, Selection::Carry);
}

void VxHWRackTable::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        static_cast<void>(mContext.Station());
        const RedrawGate::RefreshBracket refreshing(mGate);
        const RedrawOff redrawOff(ClassName, mContent.Grid());
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        if (focus.eType != vxPositionNone) mContent.ActiveRack(focus.lRack);
        SetTabs();
        ShowContent();
    });
}

void VxHWRackTable::ShowContent()
{
    if (mContext.oSelHandler) mContent.TakeSelection();
    mContent.FillAll();
    mContent.ShowFocus({});
}

void VxHWRackTable::SetTabs()
{
    for (const auto& oRack : mContext.Station()->Racks()) moHWStation_RackChange(oRack);
    mvxtabMain->SelectedTab(mContent.ActiveRack());
}

void VxHWRackTable::OnLocked()
{
    sysinf_Main_SysColorsChanged();
}

void VxHWRackTable::OnStyle()
{
    mGate.DrawOnModelEvents(mContext.eStyle == vxStyleHWConfig);
}

void VxHWRackTable::OnStationLeaves()
{
    mfrmSubModules.Unload();
    mContent.Grid().EndEditing(false);
    mEditing.Forget();
    mGate.Forget();
    if (mContext.oStation) mContent.SaveColumns();
}

void VxHWRackTable::OnStation()
{
    mContent.ActiveRack(0);
    mContent.ResetSelection();
    mContent.SetBackColor();
    mContent.InitializeGrid();
    mvxgrdMain->ResetColumnsCaption(mTexts->Text(TextResetColumns));
    for (std::int32_t lTab = 0; lTab < TabCount; ++lTab) mvxtabMain->Enabled(lTab, false);
    mvxtabMain->SelectedTab(0);
}

void VxHWRackTable::sysinf_Main_SysColorsChanged() noexcept
{
    G_Trap(ClassName, "sysinf_Main_SysColorsChanged", [&] {
        mContent.SetBackColor();
        if (mContext.oStation) Refresh();
    });
}

void VxHWRackTable::moHWStation_RackChange(const VxHWRackPtr& oRack) noexcept
{
    G_Trap(ClassName, "moHWStation_RackChange", [&] {
        if (!mGate.MayDrawModelEvent()) return;
        const std::int32_t lTab = oRack->Number();
        const std::int32_t lState = oRack->State();
        if (lTab < 0 || lTab >= TabCount || (lState != vxRackPresent && lState != vxRackNotPresent)) return;
        mvxtabMain->Enabled(lTab, lState == vxRackPresent);
    });
}

void VxHWRackTable::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(ClassName, "moHWStation_RackPlaceChange", [&] {
        if (mGate.MayDrawModelEvent()) mContent.FillPlace(oPlace);
    });
}

void VxHWRackTable::moHWStation_TotalRefresh() noexcept
{
    G_Trap(ClassName, "moHWStation_TotalRefresh", [&] {
        if (mContext.Station()->IsDrawable()) Refresh();
    });
}

void VxHWRackTable::moSelHandler_SelChange() noexcept
{
    G_Trap(ClassName, "moSelHandler_SelChange", [&] {
        mContent.TakeSelection();
        if (!mbChangingRack) mGate.SelectionChanged();
    });
}

void VxHWRackTable::moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept
{
    G_Trap(ClassName, "moSelHandler_FocusChange", [&] {
        if (mbChangingRack || !mContext.oStation) return;
        mGate.CatchUp();
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        if (focus.eType != vxPositionNone && focus.lRack != mContent.ActiveRack())
            P_ChangeRack(focus.lRack, Selection::Leave);
        mContent.ShowFocus(G_PositionInfo(lPreviousFocus));
    });
}

void VxHWRackTable::P_ChangeRack(std::int32_t lRack, Selection eSelection) noexcept
{
    G_Trap(ClassName, "P_ChangeRack", [&] {
        if (lRack == mContent.ActiveRack() || mbChangingRack) return;
        static_cast<void>(G_RackByNumber(mContext.oStation, lRack));
        mfrmSubModules.Unload();
        mContent.Grid().EndEditing(true);
        mbChangingRack = true;
        G_Trap(ClassName, "P_ChangeRack", [&] {
            if (eSelection == Selection::Carry) CarrySelection(lRack);
        });
        mbChangingRack = false;
        ShowRack(lRack);
    });
}

void VxHWRackTable::CarrySelection(std::int32_t lRack)
{
    const auto oSelHandler = mContext.SelHandler();
    const auto oSelPlaces = oSelHandler->SelPlaces();
    std::vector<std::int32_t> numbers;
    for (const auto& oPlace : oSelPlaces) numbers.push_back(oPlace->Number());
    if (!numbers.empty()) {
        const auto oPlaces = G_RackByNumber(mContext.oStation, lRack)->Places();
        oSelPlaces->Clear();
        for (const std::int32_t lNumber : numbers) oSelPlaces->Add(oPlaces->Item(lNumber));
        oSelHandler->SelChangeComplete();
    }
    const auto onRack = [&](std::int32_t lPosition) {
        return lPosition < 0 ? lPosition : G_RackPosition(lRack) + lPosition % vxRackFactor;
    };
    oSelHandler->FocusPosition(onRack(oSelHandler->FocusPosition()));
    oSelHandler->ShiftSelPosition(onRack(oSelHandler->ShiftSelPosition()));
}

void VxHWRackTable::ShowRack(std::int32_t lRack)
{
    mContent.ActiveRack(lRack);
    mvxtabMain->SelectedTab(lRack);
    // In diagnostics, too: these are other places, not changes of those that were shown.
    if (mGate.MayDrawNow()) ShowContent();
}

void VxHWRackTable::TabClick(std::int32_t lTab) noexcept
{
    P_ChangeRack(lTab, Selection::Carry);
}

void VxHWRackTable::TabHover(std::int32_t lTab) noexcept
{
    // A menu, an editor or a list that is open belongs to the rack that is shown.
    if (!mEditing.IsActive() && !mfrmSubModules.IsVisible()) P_ChangeRack(lTab, Selection::Carry);
}

void VxHWRackTable::TabDragHover(std::int32_t lTab) noexcept
{
    // What is dragged is what is selected: it stays so.
    P_ChangeRack(lTab, Selection::Leave);
}

void VxHWRackTable::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                                std::int16_t nShift, float /*x*/, float /*y*/, std::int16_t nState) noexcept
{
    G_Trap(ClassName, "UserControl_OLEDragOver",
           [&] { mContext.DragDropCtrl()->OLEDragOver(vxNoPosition, oData, lEffect, nButton, nShift, nState); });
    mGate.CatchUp();
}

void VxHWRackTable::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const std::int32_t lWidth = std::max(mControl.Width(), MinimumWidth);
        if (lWidth != mControl.Width() || mControl.Height() != Height) mControl.Size(lWidth, Height);
        mvxtabMain->Move(MakeRect(0, 0, lWidth / vxTwipsPerPixel, Height / vxTwipsPerPixel));
        const Rect inner = mvxtabMain->InnerRect();
        mvxgrdMain->Move(inner);
        mvxgrdMain->HeaderHeight(HeaderBottom - inner.top);
    });
}

Point VxHWRackTable::MenuPoint() const
{
    const std::int32_t lRow = mContent.RowOf(G_PositionInfo(mContext.FocusPosition()));
    const Rect inner = mvxtabMain->InnerRect();
    const Rect row = mContent.Grid().CellRect({std::max(lRow, 1), 1});
    return {inner.left + row.left + MenuInset, inner.top + row.bottom};
}

} // namespace zqbchwcx
