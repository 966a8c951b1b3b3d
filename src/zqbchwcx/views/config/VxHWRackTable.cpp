#include "zqbchwcx/views/config/VxHWRackTable.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/table/TableCursor.h"

#include <algorithm>
#include <string>
#include <vector>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackTable";

constexpr std::int32_t Height = 3090; // twips

constexpr std::int32_t TextTabCaption = 1000;
constexpr std::int32_t TextTabTooltip = 6117;

const CentralRowMap Rows;

} // namespace

VxHWRackTable::VxHWRackTable(UserControl& oControl) noexcept
    : TableControl(oControl, {ClassName, "CRX", Rows, G_CentralTableCursorTarget})
{
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        mControl.Font("Tahoma", 8.25);
        CreateTabs();
        P_GridInit();
    });
}

VxHWRackTable::~VxHWRackTable()
{
    G_Trap(ClassName, "UserControl_Terminate", [&] {
        mControl.Events(nullptr);
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

void VxHWRackTable::ActiveRack(std::int32_t lRack) noexcept
{
    P_ChangeRack(lRack, Selection::Carry);
}

void VxHWRackTable::BeforeRefresh()
{
    const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
    if (focus.eType != vxPositionNone) mContent.ActiveRack(focus.lRack);
    for (const auto& oRack : mContext.Station()->Racks()) moHWStation_RackChange(oRack);
    mvxtabMain->SelectedTab(mContent.ActiveRack());
}

void VxHWRackTable::OnGridInitialized()
{
    for (std::int32_t lTab = 0; lTab < TabCount; ++lTab) mvxtabMain->Enabled(lTab, false);
    mvxtabMain->SelectedTab(0);
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

void VxHWRackTable::moSelHandler_SelChange() noexcept
{
    // While the rack changes, everything is shown at its end.
    if (mbChangingRack) G_Trap(ClassName, "moSelHandler_SelChange", [&] { mContent.TakeSelection(); });
    else TableControl::moSelHandler_SelChange();
}

void VxHWRackTable::moSelHandler_FocusChange(std::int32_t lPreviousFocus) noexcept
{
    if (!mbChangingRack) TableControl::moSelHandler_FocusChange(lPreviousFocus);
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

void VxHWRackTable::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const std::int32_t lWidth = std::max(mControl.Width(), MinimumWidth);
        if (lWidth != mControl.Width() || mControl.Height() != Height) mControl.Size(lWidth, Height);
        mvxtabMain->Move(MakeRect(0, 0, lWidth / vxTwipsPerPixel, Height / vxTwipsPerPixel));
        const Rect inner = mvxtabMain->InnerRect();
        MoveGrid(inner, HeaderBottom - inner.top);
    });
}

} // namespace zqbchwcx
