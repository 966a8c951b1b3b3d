#include "zqbchwcx/views/diag/VersionGrid.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/views/table/ColumnSet.h"
#include "zqbchwcx/views/table/RedrawOff.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

constexpr ColumnDefinition Columns[] = {
    {ColumnKey::OrderNumber, 2009, 125}, {"Component", 2010, 80}, {"Version", 2011, 91}};

constexpr std::int32_t RowHeight = 15;
constexpr std::int32_t HeaderHeight = 20;

} // namespace

VersionGrid::~VersionGrid()
{
    if (mvxgrdInfoVersion) mvxgrdInfoVersion->Events(nullptr);
}

void VersionGrid::Create(Toolkit& toolkit, UserControl& parent, const TextModuleUse& texts) noexcept
{
    G_Trap(msClassName, "P_InitInfoVersionGrid", [&] {
        mvxgrdInfoVersion = toolkit.CreateGrid(parent, "vxgrd_InfoVersion", {});
        auto& grid = *mvxgrdInfoVersion;
        grid.Events(this);
        grid.RowHeight(RowHeight);
        grid.HeaderHeight(HeaderHeight);
        grid.VerticalScrollBar(GridScrollBar::WhenNeeded);
        for (const ColumnDefinition& column : Columns) {
            std::string caption(column.key);
            if (texts.get())
                G_Trap(msClassName, "P_SetLanguageTexts", [&] { caption = texts->Text(column.lCaptionText); });
            const std::int32_t lColumn = grid.AddColumn(caption);
            grid.ColumnKey(lColumn, column.key);
            grid.ColumnWidth(lColumn, column.lWidth);
        }
    });
}

void VersionGrid::Show(const std::vector<VersionRow>& rows) noexcept
{
    G_Trap(msClassName, "P_FillVersionInfoGrid", [&] {
        if (!mvxgrdInfoVersion || rows == mcolShown) return;
        auto& grid = *mvxgrdInfoVersion;
        const RedrawOff redrawOff(msClassName, grid);
        mcolShown.clear();
        grid.RowCount(0);
        grid.RowCount(static_cast<std::int32_t>(rows.size()));
        std::int32_t lRow = 0;
        for (const VersionRow& row : rows) {
            std::int32_t lColumn = 0;
            ++lRow;
            for (const std::string* text : {&row.orderNumber, &row.component, &row.version})
                grid.CellText({lRow, ++lColumn}, *text);
        }
        mcolShown = rows;
    });
}

void VersionGrid::BackColor(OleColor color)
{
    G_Require(mvxgrdInfoVersion.get(), "The version grid")->BackColor(color);
}

void VersionGrid::Move(const Rect& rect)
{
    // Around it lies the edge that the panel draws.
    G_Require(mvxgrdInfoVersion.get(), "The version grid")
        ->Move({rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1});
}

bool VersionGrid::OnKeyDown(std::int16_t nKeyCode, std::int16_t /*nShift*/) noexcept
{
    // Whoever came here by Tab must get away by it.
    if (nKeyCode == vxKeyTab) return false;
    G_Trap(msClassName, "vxgrd_InfoVersion_OnKeyDown", [&] {
        auto& grid = *mvxgrdInfoVersion;
        const std::int32_t lStep = nKeyCode == vxKeyDown ? 1 : nKeyCode == vxKeyUp ? -1 : 0;
        if (lStep == 0 || grid.RowCount() == 0) return;
        const std::int32_t lRow = std::clamp(grid.CurrentCell().lRow + lStep, 1, grid.RowCount());
        grid.CurrentCell({lRow, 1}, false);
        grid.MakeRowVisible(lRow);
    });
    return true;
}

void VersionGrid::OnMouseDown(const GridMouse& mouse) noexcept
{
    G_Trap(msClassName, "vxgrd_InfoVersion_OnMouseDown", [&] {
        const GridCell cell = mvxgrdInfoVersion->CellAt(mouse.at);
        if (cell.lRow > 0) mvxgrdInfoVersion->CurrentCell(cell, false);
    });
}

std::string VersionGrid::OnDisplayTooltip(GridCell cell) noexcept
{
    return G_TrapValue(msClassName, "vxgrd_InfoVersion_OnDisplayTooltip", std::string(),
                       [&] { return cell.lRow > 0 ? mvxgrdInfoVersion->CellText(cell) : std::string(); });
}

void VersionGrid::OLEStartDrag(const DataObjectPtr& /*oData*/, std::int32_t& lAllowedEffects) noexcept
{
    lAllowedEffects = vxDropEffectNone;
}

void VersionGrid::OLEDragOver(const DataObjectPtr& /*oData*/, std::int32_t& lEffect, const GridMouse& /*mouse*/,
                              std::int16_t /*nState*/) noexcept
{
    lEffect = vxDropEffectNone;
}

void VersionGrid::OLEDragDrop(const DataObjectPtr& /*oData*/, std::int32_t& lEffect,
                              const GridMouse& /*mouse*/) noexcept
{
    lEffect = vxDropEffectNone;
}

} // namespace zqbchwcx
