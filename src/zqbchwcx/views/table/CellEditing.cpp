#include "zqbchwcx/views/table/CellEditing.h"

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/table/ColumnSet.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zqbchwcx {
namespace {

/// The name under which the model knows what a column shows.
std::string AttributeOf(const Grid& grid, GridCell cell)
{
    std::string name = grid.ColumnKey(cell.lColumn);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return name;
}

} // namespace

bool CellEditing::IsCellEditable(GridCell cell) const noexcept
{
    return G_TrapValue(mContext.className, "P_IsCellEditable", false, [&] {
        if (cell.lRow < 1 || cell.lColumn < 1) return false;
        const auto oPlace = mContent.PlaceOfRow(cell.lRow);
        if (!oPlace) return false;
        const auto oModule = oPlace->Module();
        const std::string key = mContent.Grid().ColumnKey(cell.lColumn);
        if (key == ColumnKey::Comment) return !oModule->IsEmpty();
        const std::string_view address =
            mContext.eStyle == vxStyleHWConfig ? ColumnKey::InputAddress : ColumnKey::BasicAddress;
        return key == address && oModule->SubModuleCount() < 1;
    });
}

bool CellEditing::MayEdit(GridCell cell) const
{
    if (mContext.bLocked || !IsCellEditable(cell)) return false;
    const std::string key = mContent.Grid().ColumnKey(cell.lColumn);
    if (key != ColumnKey::InputAddress && key != ColumnKey::Comment) return false;
    const auto oStation = mContext.Station();
    if (oStation->IsReadOnly() || oStation->DisplayMode() != vxDisplayModeOffline) return false;
    // An editor that could write nothing does not open.
    return mContent.PlaceOfRow(cell.lRow)->Module()->HasAttribute(AttributeOf(mContent.Grid(), cell));
}

bool CellEditing::OnStartEditing(GridCell cell) noexcept
{
    return G_TrapValue(mContext.className, "vxgrd_Main_OnStartEditing", false, [&] {
        if (!mContext.oStation || !MayEdit(cell)) return false;
        mbEditing = true;
        const auto oSelHandler = mContext.SelHandler();
        const auto oPlace = mContent.PlaceOfRow(cell.lRow);
        oSelHandler->SelPlaces()->Clear();
        oSelHandler->SelChangeComplete();
        oSelHandler->FocusPosition(G_PlacePosition(oPlace->Rack()->Number(), oPlace->Number()));
        return true;
    });
}

void CellEditing::OnEndEditing(GridCell cell) noexcept
{
    if (!std::exchange(mbEditing, false)) return;
    P_SaveModuleAttributeValue(cell);
}

void CellEditing::Start(std::optional<std::string_view> text)
{
    const GridCell current = mContent.Grid().CurrentCell();
    if (current.lRow < 1) return;
    const auto cell = MayEdit(current) ? std::optional(current) : NextEditable({current.lRow, 0}, true);
    if (cell && cell->lRow == current.lRow) mContent.Grid().StartEditing(*cell, text);
}

bool CellEditing::KeyDown(std::int16_t nKeyCode, std::int16_t nShift)
{
    const bool bCtrl = (nShift & vxCtrlMask) != 0;
    switch (nKeyCode) {
    case vxKeyUp:
    case vxKeyDown:
        return true;
    case vxKeyLeft:
        if (nShift != 0) return false;
        // The grid must not move its own cursor; the editor's still goes to the left.
        mContent.Grid().MoveCaret(-1);
        return true;
    case vxKeyEscape:
        mContent.Grid().EndEditing(false);
        return true;
    case vxKeyReturn:
        GoOn(true);
        return true;
    case vxKeyTab:
        GoOn((nShift & vxShiftMask) == 0);
        return true;
    case vxKeyA:
        if (bCtrl) mContent.Grid().SelectEditorText();
        return bCtrl;
    case vxKeyY:
    case vxKeyZ:
        // The host's undo acts on a model that already holds the edit.
        if (const auto cell = mContent.Grid().EditedCell(); bCtrl && cell) {
            mContent.Grid().CommitEditor();
            P_SaveModuleAttributeValue(*cell);
        }
        return false;
    default:
        return false;
    }
}

void CellEditing::P_SaveModuleAttributeValue(GridCell cell) noexcept
{
    G_Trap(mContext.className, "P_SaveModuleAttributeValue", [&] {
        const auto oPlace = mContent.PlaceOfRow(cell.lRow);
        if (!oPlace) return;
        const std::string name = AttributeOf(mContent.Grid(), cell);
        const auto oModule = oPlace->Module();
        // The module may have gone while its cell was edited: then what was typed goes, too.
        if (!oModule->HasAttribute(name)) return mContent.FillPlace(oPlace);
        const std::string value = mContent.Grid().CellText(cell);
        if (value == oModule->GetAttribute(name)) return;
        if (mContext.Station()->SetModuleAttribute(oPlace, name, value)) return;
        Refused.Raise({oPlace, name, value, mContent.Grid().CellRect(cell), mContent.Grid().ScreenPosition()});
    });
}

void CellEditing::GoOn(bool bForward)
{
    const auto from = mContent.Grid().EditedCell();
    mContent.Grid().EndEditing(true);
    if (!from) return;
    if (const auto next = NextEditable(*from, bForward)) mContent.Grid().StartEditing(*next, std::nullopt);
}

std::optional<GridCell> CellEditing::NextEditable(GridCell from, bool bForward) const
{
    std::vector<std::int32_t> columns = mContent.Grid().ColumnOrder();
    if (!bForward) std::reverse(columns.begin(), columns.end());
    auto next = std::find(columns.begin(), columns.end(), from.lColumn);
    next = next == columns.end() ? columns.begin() : std::next(next);
    const std::int32_t lStep = bForward ? 1 : -1;
    for (std::int32_t lRow = from.lRow; lRow >= 1 && lRow <= mContent.Grid().RowCount(); lRow += lStep) {
        for (; next != columns.end(); ++next)
            if (MayEdit({lRow, *next})) return GridCell{lRow, *next};
        next = columns.begin();
    }
    return {};
}

} // namespace zqbchwcx
