#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/platform/Input.h"

#include <functional>
#include <map>

namespace zqbchwcx::testing {

/// A grid in memory. The test plays the user: presses, keys and typed text reach the receiver and the editor as they
/// do in a window.
class RecordingGrid : public Grid, public Logged {
public:
    RecordingGrid(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Events(GridEvents* receiver) override { mpEvents = receiver; }
    void Reset() override;
    std::int32_t AddColumn(std::string_view caption) override;
    std::int32_t ColumnCount() const override { return static_cast<std::int32_t>(mcolColumns.size()); }
    std::string ColumnKey(std::int32_t lColumn) const override { return Column(lColumn).key; }
    void ColumnKey(std::int32_t lColumn, std::string_view key) override;
    std::int32_t ColumnIndex(std::string_view key) const override;
    std::int32_t ColumnWidth(std::int32_t lColumn) const override { return Column(lColumn).width; }
    void ColumnWidth(std::int32_t lColumn, std::int32_t lWidth) override;
    std::vector<std::int32_t> ColumnOrder() const override { return mcolOrder; }
    void ColumnOrder(const std::vector<std::int32_t>& order) override;
    void ResetColumnsCaption(std::string_view caption) override { resetCaption = caption; }
    void AddHeaderFormat(std::int32_t lColumn, const CellFormat& format) override;
    void AddCellFormat(std::int32_t lColumn, const CellFormat& format) override;

    std::int32_t RowCount() const override { return static_cast<std::int32_t>(mcolRows.size()); }
    void RowCount(std::int32_t lRows) override;
    std::int32_t RowHeight() const override { return mlRowHeight; }
    void RowHeight(std::int32_t lHeight) override { Call("Grid.RowHeight"), mlRowHeight = lHeight; }
    void HeaderHeight(std::int32_t lHeight) override { Call("Grid.HeaderHeight"), mlHeaderHeight = lHeight; }

    std::string CellText(GridCell cell) const override;
    void CellText(GridCell cell, std::string_view text) override;
    void CellPicture(GridCell cell, const ImagePtr& picture) override;
    void ClearCell(GridCell cell) override;
    void FormatCell(GridCell cell, const CellFormat& format) override;
    void FormatRow(std::int32_t lRow, const CellFormat& format) override;
    void BackColor(OleColor color) override { Call("Grid.BackColor"), mLook.backColor = color; }
    bool RowSelected(std::int32_t lRow) const override { return Row(lRow).selected; }
    void RowSelected(std::int32_t lRow, bool bSelected) override;

    GridCell CurrentCell() const override { return mCurrent; }
    void CurrentCell(GridCell cell, bool bEditable) override;
    bool StartEditing(GridCell cell, std::optional<std::string_view> text) override;
    void EndEditing(bool bTakeOver) override;
    std::optional<GridCell> EditedCell() const override { return mEdited; }
    void CommitEditor() override;
    void MoveCaret(std::int32_t lCharacters) override;
    void SelectEditorText() override;

    GridCell CellAt(Point at) const override;
    Rect CellRect(GridCell cell) const override;
    Point ScreenPosition() const override;
    std::int32_t TopRow() const override { return mlTopRow; }
    void MakeRowVisible(std::int32_t lRow) override;
    void VerticalScrollBar(GridScrollBar eScrollBar) override { scrollBar = eScrollBar; }

    bool Redraw() const override { return mbRedraw; }
    void Redraw(bool bRedraw) override { Call("Grid.Redraw"), mbRedraw = bRedraw; }

    void Move(const Rect& rect) override { Call("Grid.Move"), bounds = rect; }
    std::intptr_t hWnd() const override { return 5; }
    bool HasFocus() const override { return mbFocus; }
    void SetFocus() override { Call("Grid.SetFocus"), mbFocus = true; }
    void OLEDrag() override;

    /// Presses and releases a button in the middle of the cell.
    void Click(GridCell cell, std::int16_t nButton = vxButtonLeft, std::int16_t nShift = 0);
    void Press(GridCell cell, std::int16_t nButton = vxButtonLeft, std::int16_t nShift = 0);
    void Release(GridCell cell, std::int16_t nButton = vxButtonLeft, std::int16_t nShift = 0);
    void DoubleClick(GridCell cell);
    /// So much time passes after a click that no double click comes of it.
    void LetDoubleClickPass();
    void MoveMouse(Point at, std::int16_t nButton = 0);
    /// Presses and releases a key: the receiver's first, then the editor's. True when the receiver consumed it.
    bool Key(std::int16_t nKeyCode, std::int16_t nShift = 0);
    /// Types text: into the editor, or for the receiver. True when something became of it.
    bool Type(std::string_view text);
    std::string Tooltip(GridCell cell) const { return mpEvents->OnDisplayTooltip(cell); }
    void ScrollTo(std::int32_t lTopRow);
    void UserWidth(std::string_view key, std::int32_t lWidth);
    void UserOrder(const std::vector<std::int32_t>& order);
    void Focus(bool bFocus);
    GridEvents& User() const { return *mpEvents; }

    bool IsConnected() const { return mpEvents != nullptr; }
    GridCell Cell(std::int32_t lRow, std::string_view key) const { return {lRow, ColumnIndex(key)}; }
    std::string Text(std::int32_t lRow, std::string_view key) const { return CellText(Cell(lRow, key)); }
    /// The texts of the row, 0 for the header, in column order with "|" between them; a selected row ends with " *".
    std::string RowText(std::int32_t lRow) const;
    std::vector<std::string> AllRows() const;
    /// How the cell is drawn: what its own, its row's, its column's and the grid's formats make together.
    CellFormat Look(GridCell cell) const;
    ImagePtr Picture(GridCell cell) const;
    const std::string& EditorText() const { return msEditor; }
    Point Middle(GridCell cell) const;

    Rect bounds;
    std::string resetCaption;
    GridScrollBar scrollBar = GridScrollBar::Never;
    std::int32_t caret = 0;          ///< of the editor, in bytes of an ASCII text
    bool editorTextSelected = false; ///< typing then replaces it
    std::int32_t drags = 0;
    std::function<void()> onDrag; ///< what happens during `OLEDrag`

private:
    struct ColumnContent {
        std::string caption;
        std::string key;
        std::int32_t width = 100;
        CellFormat header;
        CellFormat cells;
    };
    struct CellContent {
        std::string text;
        ImagePtr picture;
        CellFormat format;
    };
    struct RowContent {
        std::map<std::int32_t, CellContent> cells;
        CellFormat format;
        bool selected = false;
    };

    ColumnContent& Column(std::int32_t lColumn) { return mcolColumns.at(static_cast<std::size_t>(lColumn - 1)); }
    const ColumnContent& Column(std::int32_t lColumn) const
    {
        return mcolColumns.at(static_cast<std::size_t>(lColumn - 1));
    }
    RowContent& Row(std::int32_t lRow) { return mcolRows.at(static_cast<std::size_t>(lRow - 1)); }
    const RowContent& Row(std::int32_t lRow) const { return mcolRows.at(static_cast<std::size_t>(lRow - 1)); }
    // What both the library and the user do; only the library's calls can fail.
    void Write(GridCell cell, std::string_view text);
    bool Open(GridCell cell, std::optional<std::string_view> text);
    void Finish(bool bTakeOver);
    void Commit();
    void Step(std::int32_t lCharacters);
    Rect RectOf(GridCell cell) const;
    CellContent& Content(GridCell cell);
    const CellContent* FindContent(GridCell cell) const;

    GridEvents* mpEvents = nullptr;
    std::vector<ColumnContent> mcolColumns;
    std::vector<RowContent> mcolRows;
    std::vector<std::int32_t> mcolOrder;
    CellFormat mLook;
    std::int32_t mlRowHeight = 15;
    std::int32_t mlHeaderHeight = 20;
    std::int32_t mlTopRow = 1;
    GridCell mCurrent;
    bool mbEditable = false;
    bool mbEditorPending = false; ///< the current cell was pressed once more
    std::optional<GridCell> mEdited;
    std::string msEditor;
    bool mbTyped = false; ///< since the editor was opened or written
    bool mbRedraw = true;
    bool mbFocus = false;
};

} // namespace zqbchwcx::testing
