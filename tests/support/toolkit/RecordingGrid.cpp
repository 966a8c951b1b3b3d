#include "tests/support/toolkit/RecordingGrid.h"

#include <algorithm>

namespace zqbchwcx::testing {
namespace {

void Merge(CellFormat& into, const CellFormat& format)
{
    if (format.alignment) into.alignment = format.alignment;
    if (format.backColor) into.backColor = format.backColor;
    if (format.textColor) into.textColor = format.textColor;
    if (format.kind) into.kind = format.kind;
}

} // namespace

void RecordingGrid::Reset()
{
    Call("Grid.Reset");
    Finish(false);
    mcolColumns.clear();
    mcolRows.clear();
    mcolOrder.clear();
    mLook = {};
    mCurrent = {};
    ScrollTo(1);
}

std::int32_t RecordingGrid::AddColumn(std::string_view caption)
{
    Call("Grid.AddColumn");
    mcolColumns.emplace_back().caption = caption;
    mcolOrder.push_back(ColumnCount());
    return ColumnCount();
}

void RecordingGrid::ColumnKey(std::int32_t lColumn, std::string_view key)
{
    Call("Grid.ColumnKey");
    Column(lColumn).key = key;
}

std::int32_t RecordingGrid::ColumnIndex(std::string_view key) const
{
    const auto found =
        std::find_if(mcolColumns.begin(), mcolColumns.end(), [&](const auto& column) { return column.key == key; });
    return found == mcolColumns.end() ? 0 : static_cast<std::int32_t>(found - mcolColumns.begin()) + 1;
}

void RecordingGrid::ColumnWidth(std::int32_t lColumn, std::int32_t lWidth)
{
    Call("Grid.ColumnWidth");
    Column(lColumn).width = lWidth;
}

void RecordingGrid::ColumnOrder(const std::vector<std::int32_t>& order)
{
    Call("Grid.ColumnOrder");
    if (std::is_permutation(order.begin(), order.end(), mcolOrder.begin(), mcolOrder.end())) mcolOrder = order;
}

void RecordingGrid::AddHeaderFormat(std::int32_t lColumn, const CellFormat& format)
{
    Call("Grid.AddHeaderFormat");
    Merge(Column(lColumn).header, format);
}

void RecordingGrid::AddCellFormat(std::int32_t lColumn, const CellFormat& format)
{
    Call("Grid.AddCellFormat");
    Merge(Column(lColumn).cells, format);
}

void RecordingGrid::RowCount(std::int32_t lRows)
{
    Call("Grid.RowCount");
    mcolRows.resize(static_cast<std::size_t>(lRows));
}

RecordingGrid::CellContent& RecordingGrid::Content(GridCell cell)
{
    Column(cell.lColumn);
    return Row(cell.lRow).cells[cell.lColumn];
}

const RecordingGrid::CellContent* RecordingGrid::FindContent(GridCell cell) const
{
    const auto& cells = Row(cell.lRow).cells;
    const auto found = cells.find(cell.lColumn);
    return found == cells.end() ? nullptr : &found->second;
}

std::string RecordingGrid::CellText(GridCell cell) const
{
    if (cell.lRow == 0) return Column(cell.lColumn).caption;
    const auto* content = FindContent(cell);
    return content == nullptr ? std::string() : content->text;
}

void RecordingGrid::CellText(GridCell cell, std::string_view text)
{
    Call("Grid.CellText");
    Write(cell, text);
}

void RecordingGrid::Write(GridCell cell, std::string_view text)
{
    if (cell.lRow == 0) Column(cell.lColumn).caption = text;
    else Content(cell).text = text;
    if (cell == mEdited && !mbTyped) msEditor = text, caret = static_cast<std::int32_t>(text.size());
}

void RecordingGrid::CellPicture(GridCell cell, const ImagePtr& picture)
{
    Call("Grid.CellPicture");
    Content(cell).picture = picture;
}

void RecordingGrid::ClearCell(GridCell cell)
{
    Call("Grid.ClearCell");
    Content(cell) = {};
}

void RecordingGrid::FormatCell(GridCell cell, const CellFormat& format)
{
    Call("Grid.FormatCell");
    Merge(Content(cell).format, format);
}

void RecordingGrid::FormatRow(std::int32_t lRow, const CellFormat& format)
{
    Call("Grid.FormatRow");
    Merge(Row(lRow).format, format);
}

void RecordingGrid::RowSelected(std::int32_t lRow, bool bSelected)
{
    Call("Grid.RowSelected");
    Row(lRow).selected = bSelected;
}

void RecordingGrid::CurrentCell(GridCell cell, bool bEditable)
{
    Call("Grid.CurrentCell");
    mbEditorPending = mbEditorPending && cell == mCurrent;
    mCurrent = cell;
    mbEditable = bEditable;
}

bool RecordingGrid::StartEditing(GridCell cell, std::optional<std::string_view> text)
{
    Call("Grid.StartEditing");
    return Open(cell, text);
}

bool RecordingGrid::Open(GridCell cell, std::optional<std::string_view> text)
{
    if (mEdited == cell) return true;
    Finish(true);
    if (mpEvents == nullptr || !mpEvents->OnStartEditing(cell)) return false;
    msEditor = CellText(cell); // throws where the grid has no such cell
    if (text) msEditor = *text;
    mEdited = cell;
    caret = static_cast<std::int32_t>(msEditor.size());
    editorTextSelected = !text;
    mbTyped = text.has_value();
    return true;
}

void RecordingGrid::EndEditing(bool bTakeOver)
{
    Call("Grid.EndEditing");
    Finish(bTakeOver);
}

void RecordingGrid::Finish(bool bTakeOver)
{
    if (!mEdited) return;
    if (bTakeOver) Commit();
    const GridCell cell = *std::exchange(mEdited, std::nullopt);
    if (mpEvents != nullptr) mpEvents->OnEndEditing(cell);
}

void RecordingGrid::CommitEditor()
{
    Call("Grid.CommitEditor");
    Commit();
}

void RecordingGrid::Commit()
{
    if (!mEdited) return;
    mbTyped = false;
    Write(*mEdited, std::string(msEditor));
}

void RecordingGrid::MoveCaret(std::int32_t lCharacters)
{
    Call("Grid.MoveCaret");
    Step(lCharacters);
}

void RecordingGrid::Step(std::int32_t lCharacters)
{
    editorTextSelected = false;
    caret = std::clamp(caret + lCharacters, 0, static_cast<std::int32_t>(msEditor.size()));
}

void RecordingGrid::SelectEditorText()
{
    Call("Grid.SelectEditorText");
    editorTextSelected = true;
}

GridCell RecordingGrid::CellAt(Point at) const
{
    const bool bHeader = at.y >= 0 && at.y < mlHeaderHeight;
    const std::int32_t lRow = bHeader ? 0 : mlTopRow + (at.y - mlHeaderHeight) / mlRowHeight;
    for (const std::int32_t lColumn : mcolOrder) {
        const Rect rect = lRow >= 0 && lRow <= RowCount() ? RectOf({lRow, lColumn}) : Rect{};
        if (at.y >= 0 && at.x >= rect.left && at.x < rect.right) return {lRow, lColumn};
    }
    return {-1, 0};
}

Rect RecordingGrid::CellRect(GridCell cell) const
{
    Call("Grid.CellRect");
    return RectOf(cell);
}

Rect RecordingGrid::RectOf(GridCell cell) const
{
    if (cell.lColumn > ColumnCount()) return {}; // the user's hand is quicker than a grid that is emptied
    std::int32_t lLeft = 0;
    for (const std::int32_t lColumn : mcolOrder) {
        if (lColumn == cell.lColumn) break;
        lLeft += Column(lColumn).width;
    }
    const std::int32_t lOwnWidth = Column(cell.lColumn).width;
    const std::int32_t lWidth =
        cell.lColumn == mcolOrder.back() ? std::max(lOwnWidth, bounds.width() - lLeft) : lOwnWidth;
    if (cell.lRow == 0) return MakeRect(lLeft, 0, lWidth, mlHeaderHeight);
    return MakeRect(lLeft, mlHeaderHeight + (cell.lRow - mlTopRow) * mlRowHeight, lWidth, mlRowHeight);
}

Point RecordingGrid::ScreenPosition() const
{
    return {1000 + bounds.left, 500 + bounds.top};
}

void RecordingGrid::MakeRowVisible(std::int32_t lRow)
{
    Call("Grid.MakeRowVisible");
    const std::int32_t lVisible = std::max((bounds.height() - mlHeaderHeight) / mlRowHeight, 1);
    if (lRow < mlTopRow) ScrollTo(lRow);
    else if (lRow >= mlTopRow + lVisible) ScrollTo(lRow - lVisible + 1);
}

void RecordingGrid::OLEDrag()
{
    Call("Grid.OLEDrag");
    ++drags;
    mbEditorPending = false;
    if (onDrag) onDrag();
}

Point RecordingGrid::Middle(GridCell cell) const
{
    const Rect rect = RectOf(cell);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void RecordingGrid::Press(GridCell cell, std::int16_t nButton, std::int16_t nShift)
{
    const bool bOnceMore = mbFocus && mbEditable && cell == mCurrent && nButton == vxButtonLeft && nShift == 0;
    Focus(true);
    Finish(true);
    mbEditorPending = bOnceMore;
    mpEvents->OnMouseDown({nButton, nShift, Middle(cell)});
}

void RecordingGrid::Release(GridCell cell, std::int16_t nButton, std::int16_t nShift)
{
    mpEvents->OnMouseUp({nButton, nShift, Middle(cell)});
    const bool bIsButton = cell.lRow > 0 && cell.lRow <= RowCount() && Look(cell).kind == CellKind::PushButton;
    if (bIsButton && nButton == vxButtonLeft) mpEvents->OnClickedButton(cell);
}

void RecordingGrid::Click(GridCell cell, std::int16_t nButton, std::int16_t nShift)
{
    Press(cell, nButton, nShift);
    Release(cell, nButton, nShift);
}

void RecordingGrid::DoubleClick(GridCell cell)
{
    Click(cell);
    mbEditorPending = false;
    mpEvents->OnMouseDblClk({vxButtonLeft, 0, Middle(cell)});
    mpEvents->OnMouseUp({vxButtonLeft, 0, Middle(cell)});
}

void RecordingGrid::LetDoubleClickPass()
{
    if (std::exchange(mbEditorPending, false)) Open(mCurrent, std::nullopt);
}

void RecordingGrid::MoveMouse(Point at, std::int16_t nButton)
{
    mpEvents->OnMouseMoveOver({nButton, 0, at});
}

bool RecordingGrid::Key(std::int16_t nKeyCode, std::int16_t nShift)
{
    mbEditorPending = false;
    const bool bConsumed = mpEvents->OnKeyDown(nKeyCode, nShift);
    if (!bConsumed && mEdited) {
        if (nKeyCode == vxKeyEscape) Finish(false);
        else if (nKeyCode == vxKeyReturn || nKeyCode == vxKeyTab) Finish(true);
        else if (nKeyCode == vxKeyLeft) Step(-1);
        else if (nKeyCode == vxKeyRight) Step(1);
    }
    mpEvents->OnKeyUp(nKeyCode, nShift);
    return bConsumed;
}

bool RecordingGrid::Type(std::string_view text)
{
    if (!mEdited) return mpEvents->OnCharacters(text);
    mbTyped = true;
    if (std::exchange(editorTextSelected, false)) msEditor.clear(), caret = 0;
    msEditor.insert(static_cast<std::size_t>(caret), text);
    caret += static_cast<std::int32_t>(text.size());
    return true;
}

void RecordingGrid::ScrollTo(std::int32_t lTopRow)
{
    if (std::exchange(mlTopRow, lTopRow) != lTopRow && mpEvents != nullptr) mpEvents->OnTopRowChanged();
}

void RecordingGrid::UserWidth(std::string_view key, std::int32_t lWidth)
{
    Column(ColumnIndex(key)).width = lWidth;
    mpEvents->OnColumnsChanged();
}

void RecordingGrid::UserOrder(const std::vector<std::int32_t>& order)
{
    mcolOrder = order;
    mpEvents->OnColumnsChanged();
}

void RecordingGrid::Focus(bool bFocus)
{
    mbFocus = bFocus;
    if (!bFocus) Finish(true);
}

std::string RecordingGrid::RowText(std::int32_t lRow) const
{
    std::string line;
    for (std::int32_t lColumn = 1; lColumn <= ColumnCount(); ++lColumn)
        line += (lColumn == 1 ? "" : "|") + CellText({lRow, lColumn});
    return line + (lRow > 0 && RowSelected(lRow) ? " *" : "");
}

std::vector<std::string> RecordingGrid::AllRows() const
{
    std::vector<std::string> rows;
    for (std::int32_t lRow = 1; lRow <= RowCount(); ++lRow) rows.push_back(RowText(lRow));
    return rows;
}

CellFormat RecordingGrid::Look(GridCell cell) const
{
    CellFormat look = mLook;
    Merge(look, Column(cell.lColumn).cells);
    Merge(look, Row(cell.lRow).format);
    if (const auto* content = FindContent(cell)) Merge(look, content->format);
    return look;
}

ImagePtr RecordingGrid::Picture(GridCell cell) const
{
    const auto* content = FindContent(cell);
    return content == nullptr ? nullptr : content->picture;
}

} // namespace zqbchwcx::testing
