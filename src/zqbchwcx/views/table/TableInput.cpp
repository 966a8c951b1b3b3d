#include "zqbchwcx/views/table/TableInput.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/views/shared/DiagTexts.h"
#include "zqbchwcx/views/shared/DragThreshold.h"

#include <cstdlib>
#include <string>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextNoFailure = 6105;

bool IsCursorKey(std::int16_t nKeyCode)
{
    return nKeyCode >= vxKeyLeft && nKeyCode <= vxKeyDown;
}

} // namespace

TableInput::TableInput(const ViewContext& context, const TextModuleUse& texts, TableContent& content,
                       CellEditing& editing, frm_SubModules& subModules, PlaceMenu& menu, RedrawGate& gate,
                       CursorTarget cursorTarget)
    : mContext(context), mTexts(texts), mContent(content), mEditing(editing), mSubModules(subModules), mMenu(menu),
      mGate(gate), mCursorTarget(std::move(cursorTarget)), mDragThreshold(G_DragThreshold(context.className))
{
}

template <class Body>
void TableInput::Trap(std::string_view event, Body&& body) noexcept
{
    G_Trap(mContext.className, std::string("vxgrd_Main_").append(event), [&] {
        if (mContext.oStation) std::forward<Body>(body)();
    });
    mGate.CatchUp();
}

bool TableInput::OnStartEditing(GridCell cell) noexcept
{
    CloseSubModules();
    return mEditing.OnStartEditing(cell);
}

void TableInput::OnEndEditing(GridCell cell) noexcept
{
    mEditing.OnEndEditing(cell);
    mGate.CatchUp();
}

bool TableInput::OnKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    bool bConsumed = false;
    Trap("OnKeyDown", [&] {
        mbMenuKeyDown = nKeyCode == vxKeyF10 && (nShift & vxShiftMask) != 0;
        if (mEditing.IsActive()) bConsumed = mEditing.KeyDown(nKeyCode, nShift);
        else if (mSubModules.IsWalking() && KeyDownInForm(nKeyCode)) bConsumed = true;
        else bConsumed = KeyDownInTable(nKeyCode, nShift);
    });
    return bConsumed;
}

bool TableInput::KeyDownInForm(std::int16_t nKeyCode)
{
    switch (nKeyCode) {
    case vxKeyUp:
        mSubModules.Walk(-1);
        return true;
    case vxKeyDown:
        mSubModules.Walk(1);
        return true;
    case vxKeyReturn:
        mSubModules.OpenMarkedLine();
        return true;
    default:
        return false;
    }
}

bool TableInput::KeyDownInTable(std::int16_t nKeyCode, std::int16_t nShift)
{
    if (IsCursorKey(nKeyCode)) {
        const bool bOpen = nKeyCode == vxKeyDown && nShift == vxAltMask;
        CloseSubModules();
        if (bOpen) OpenSubModulesOfFocus();
        else P_CursorKeyDown(nKeyCode, nShift);
        return true;
    }
    switch (nKeyCode) {
    case vxKeySpace:
        CloseSubModules();
        mContext.KeyCtrl()->SpaceKeyDown(nShift);
        return true;
    case vxKeyReturn:
        CloseSubModules();
        mContext.KeyCtrl()->KeyReturn();
        return true;
    case vxKeyEscape:
        CloseSubModules();
        return true;
    case vxKeyF2:
        CloseSubModules();
        mEditing.Start(std::nullopt);
        return true;
    case vxKeyA:
        return (nShift & vxCtrlMask) != 0;
    // The grid must not move a cursor of its own.
    case vxKeyPageUp:
    case vxKeyPageDown:
    case vxKeyHome:
    case vxKeyEnd:
        return true;
    default:
        return false;
    }
}

void TableInput::OnKeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    Trap("OnKeyUp", [&] {
        if (mEditing.IsActive() || (nKeyCode != vxKeyApps && nKeyCode != vxKeyF10)) return;
        const bool bWithShift = std::exchange(mbMenuKeyDown, false) || (nShift & vxShiftMask) != 0;
        const auto eType = G_PositionInfo(mContext.FocusPosition()).eType;
        if (eType != vxPositionGap && eType != vxPositionPlace) return;
        if (nKeyCode == vxKeyApps || bWithShift) mMenu.Open(true);
    });
}

bool TableInput::OnCharacters(std::string_view text) noexcept
{
    bool bConsumed = false;
    Trap("OnCharacters", [&] {
        if (mEditing.IsActive()) return;
        // What is being composed takes the place of the text that the editor opens with.
        mEditing.Start(text.empty() ? std::nullopt : std::optional(text));
        bConsumed = mEditing.IsActive();
    });
    return bConsumed;
}

void TableInput::P_CursorKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    G_Trap(mContext.className, "P_CursorKeyDown", [&] {
        const auto oStation = mContext.Station();
        const auto lTarget = mCursorTarget(*oStation, mContext.FocusPosition(), nKeyCode, nShift);
        if (lTarget) mContext.KeyCtrl()->CursorKeyDown(*lTarget, nShift);
    });
}

void TableInput::OnMouseDown(const GridMouse& mouse) noexcept
{
    Trap("OnMouseDown", [&] {
        moDragStart.reset();
        mlMouseDownPosition = vxNoPosition;
        const GridCell cell = mContent.Grid().CellAt(mouse.at);
        mlClosedByPress = mSubModules.TakeClosedByPress() ? mlFormRow : 0;
        if (cell.lRow < 1) return;
        mContent.Grid().CurrentCell(cell, mEditing.IsCellEditable(cell));
        mlMouseDownPosition = mContent.PositionOfRow(cell.lRow);
        mContext.MouseCtrl()->MouseDown(mlMouseDownPosition, mouse.nButton, mouse.nShift);
    });
}

void TableInput::OnMouseUp(const GridMouse& mouse) noexcept
{
    Trap("OnMouseUp", [&] {
        moDragStart.reset();
        const std::int32_t lPosition = PositionAt(mouse.at);
        if (lPosition == vxNoPosition) return;
        mContext.MouseCtrl()->MouseUp(lPosition, mouse.nButton, mouse.nShift);
        mGate.CatchUp();
        if (mouse.nButton == vxButtonRight) mMenu.Open(false);
    });
}

void TableInput::OnMouseMoveOver(const GridMouse& mouse) noexcept
{
    Trap("OnMouseMoveOver", [&] {
        if (mEditing.IsActive()) return;
        if ((mouse.nButton & vxButtonLeft) == 0) {
            moDragStart.reset();
            return;
        }
        if (!moDragStart && mContext.DragDropCtrl()->IsValidDragPosition(mlMouseDownPosition)) moDragStart = mouse.at;
        if (!moDragStart) return;
        if (std::abs(mouse.at.x - moDragStart->x) < mDragThreshold.width &&
            std::abs(mouse.at.y - moDragStart->y) < mDragThreshold.height)
            return;
        // The drag runs inside the call: a press of before it must not start another one.
        moDragStart.reset();
        mContent.Grid().OLEDrag();
    });
}

void TableInput::OnMouseDblClk(const GridMouse& mouse) noexcept
{
    Trap("OnMouseDblClk", [&] {
        if (mEditing.IsActive() || mouse.nButton != vxButtonLeft) return;
        const std::int32_t lPosition = PositionAt(mouse.at);
        if (lPosition != vxNoPosition) mContext.MouseCtrl()->DblClick(lPosition);
    });
}

void TableInput::OnClickedButton(GridCell cell) noexcept
{
    Trap("OnClickedButton", [&] {
        mEditing.Forget();
        // The press on the button of an open form has closed it already, or the release does.
        const bool bClosedByPress = std::exchange(mlClosedByPress, 0) == cell.lRow;
        if (mSubModules.IsVisible()) CloseSubModules();
        else if (!bClosedByPress) OpenSubModules(cell);
    });
}

void TableInput::OpenSubModules(GridCell cell)
{
    const auto oPlace = mContent.PlaceOfRow(cell.lRow);
    const auto& grid = mContent.Grid();
    const Point at = grid.ScreenPosition();
    const Rect rect = grid.CellRect(cell);
    mSubModules.ShowCombo({at.x + rect.left, at.y + rect.top, at.x + rect.right, at.y + rect.bottom}, grid, oPlace,
                          static_cast<std::int16_t>(mContext.eStyle), mContext.MouseCtrl());
    mlFormRow = cell.lRow;
}

void TableInput::OpenSubModulesOfFocus()
{
    const std::int32_t lRow = mContent.RowOf(G_PositionInfo(mContext.FocusPosition()));
    const auto oPlace = mContent.PlaceOfRow(lRow);
    if (!oPlace || oPlace->Module()->SubModuleCount() < 1) return;
    const auto& grid = mContent.Grid();
    const bool bConfig = mContext.eStyle == vxStyleHWConfig;
    OpenSubModules({lRow, grid.ColumnIndex(bConfig ? ColumnKey::InputAddress : ColumnKey::BasicAddress)});
    mSubModules.StartWalking();
}

std::string TableInput::OnDisplayTooltip(GridCell cell) noexcept
{
    return G_TrapValue(mContext.className, "vxgrd_Main_OnDisplayTooltip", std::string(), [&] {
        if (mContext.eStyle != vxStyleHWDiag || !mContext.oStation || !mContext.oDiagService) return std::string();
        if (cell.lColumn != mContent.Grid().ColumnIndex(ColumnKey::Status)) return std::string();
        const auto oPlace = mContent.PlaceOfRow(cell.lRow);
        if (!oPlace || oPlace->Module()->IsEmpty()) return std::string();
        const auto oDiagService = mContext.oDiagService;
        return DiagTexts::Description(*oDiagService, oPlace, *mTexts, TextNoFailure);
    });
}

void TableInput::OnTopRowChanged() noexcept
{
    CloseSubModules();
    TopRowChange.Raise();
}

void TableInput::OnColumnsChanged() noexcept
{
    CloseSubModules();
}

void TableInput::OnResetColumns() noexcept
{
    Trap("OnResetColumns", [&] { mContent.ResetColumns(); });
}

void TableInput::OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept
{
    Trap("OLEStartDrag", [&] { mContext.DragDropCtrl()->OLEStartDrag(oData, lAllowedEffects); });
}

void TableInput::OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept
{
    Trap("OLESetData", [&] { mContext.DragDropCtrl()->OLESetData(oData, nDataFormat); });
}

void TableInput::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse,
                             std::int16_t nState) noexcept
{
    Trap("OLEDragOver", [&] {
        mContext.DragDropCtrl()->OLEDragOver(PositionAt(mouse.at), oData, lEffect, mouse.nButton, mouse.nShift, nState);
    });
}

void TableInput::OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse) noexcept
{
    Trap("OLEDragDrop", [&] {
        mContext.DragDropCtrl()->OLEDragDrop(PositionAt(mouse.at), oData, lEffect, mouse.nButton, mouse.nShift);
    });
}

void TableInput::OLECompleteDrag(std::int32_t& lEffect) noexcept
{
    Trap("OLECompleteDrag", [&] { mContext.DragDropCtrl()->OLECompleteDrag(lEffect); });
}

std::int32_t TableInput::PositionAt(Point at) const
{
    return mContent.PositionOfRow(mContent.Grid().CellAt(at).lRow);
}

} // namespace zqbchwcx
