#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/ImageList.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx {

/// A cell of a grid. Rows and columns count from 1; row 0 holds the captions. A column keeps its number wherever the
/// user moves it.
struct GridCell {
    std::int32_t lRow = 0;
    std::int32_t lColumn = 0;

    bool operator==(const GridCell&) const = default;
};

enum class CellAlignment : std::int32_t { Left = 0, Centre = 2 };

enum class CellKind : std::int32_t {
    Text = 1,        ///< one line of plain text
    Comment = 2,     ///< text that a person writes: its editor takes a longer text than the cell shows
    PushButton = 10, ///< the text is the caption of a button
};

/// How a cell looks. What a format leaves open comes from the next one: the cell's own, its row's, its column's, the
/// grid's.
struct CellFormat {
    std::optional<CellAlignment> alignment = std::nullopt;
    std::optional<OleColor> backColor = std::nullopt;
    std::optional<OleColor> textColor = std::nullopt;
    std::optional<CellKind> kind = std::nullopt;
};

/// What happens to the mouse on a grid. The point is in logical pixels of the grid.
struct GridMouse {
    std::int16_t nButton = 0;
    std::int16_t nShift = 0;
    Point at;
};

/// Receives what happens on a grid.
class GridEvents {
public:
    virtual ~GridEvents() = default;

    /// The user wants to edit the cell; false refuses.
    virtual bool OnStartEditing(GridCell cell) noexcept = 0;
    /// The editor is closed. The cell's text is what the editor held, or the former one when the edit was given up.
    virtual void OnEndEditing(GridCell cell) noexcept = 0;

    /// True when the key is consumed: neither the grid nor its editor then act on it.
    virtual bool OnKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept = 0;
    virtual void OnKeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept = 0;
    /// Text was typed while no cell is edited; true when it is consumed. The text is empty when an input method begins
    /// to compose one: an editor that is opened then goes on with it.
    virtual bool OnCharacters(std::string_view text) noexcept = 0;

    virtual void OnMouseDown(const GridMouse& mouse) noexcept = 0;
    virtual void OnMouseUp(const GridMouse& mouse) noexcept = 0;
    virtual void OnMouseMoveOver(const GridMouse& mouse) noexcept = 0;
    virtual void OnMouseDblClk(const GridMouse& mouse) noexcept = 0;
    /// A push-button cell was pressed and released; after `OnMouseUp`.
    virtual void OnClickedButton(GridCell cell) noexcept = 0;
    /// The tooltip of the cell; an empty text for none.
    virtual std::string OnDisplayTooltip(GridCell cell) noexcept = 0;
    /// Another row is the topmost visible one.
    virtual void OnTopRowChanged() noexcept = 0;
    /// The user moved or resized a column. Not raised for what the program does.
    virtual void OnColumnsChanged() noexcept = 0;
    /// The user asked for the columns as they were at first.
    virtual void OnResetColumns() noexcept = 0;

    virtual void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept = 0;
    virtual void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept = 0;
    virtual void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse,
                             std::int16_t nState) noexcept = 0;
    virtual void OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse) noexcept = 0;
    virtual void OLECompleteDrag(std::int32_t& lEffect) noexcept = 0;
};

enum class GridScrollBar { Never, WhenNeeded, Always };

/// A table control: columns that are known by key, rows of cells, one cell that can be edited in place. It draws
/// selected rows itself. It decides nothing: keys, mouse and drags go to its receiver first.
///
/// An editor opens by `StartEditing`, or when the user presses an editable current cell once more.
class Grid {
public:
    virtual ~Grid() = default;

    /// Who receives the events; null for nobody. The receiver outlives the grid or sets null before it ends.
    virtual void Events(GridEvents* receiver) = 0;

    /// Drops all columns and all rows but the header.
    virtual void Reset() = 0;
    /// Appends a column and returns its number.
    virtual std::int32_t AddColumn(std::string_view caption) = 0;
    virtual std::int32_t ColumnCount() const = 0;
    virtual std::string ColumnKey(std::int32_t lColumn) const = 0;
    virtual void ColumnKey(std::int32_t lColumn, std::string_view key) = 0;
    /// The column with the key, 0 when there is none.
    virtual std::int32_t ColumnIndex(std::string_view key) const = 0;
    /// Logical pixels, as put or as the user made it. The last visible column is shown wider by what is left over;
    /// where the grid is too narrow for all columns, they are shown narrower.
    virtual std::int32_t ColumnWidth(std::int32_t lColumn) const = 0;
    virtual void ColumnWidth(std::int32_t lColumn, std::int32_t lWidth) = 0;
    /// The numbers of the columns as they are shown, from the left. A put with other numbers changes nothing.
    virtual std::vector<std::int32_t> ColumnOrder() const = 0;
    virtual void ColumnOrder(const std::vector<std::int32_t>& order) = 0;
    /// The caption of the entry of the header's menu that asks for the first columns; empty for no such menu.
    virtual void ResetColumnsCaption(std::string_view caption) = 0;
    virtual void AddHeaderFormat(std::int32_t lColumn, const CellFormat& format) = 0;
    virtual void AddCellFormat(std::int32_t lColumn, const CellFormat& format) = 0;

    /// Rows without the header. New rows are empty.
    virtual std::int32_t RowCount() const = 0;
    virtual void RowCount(std::int32_t lRows) = 0;
    /// Logical pixels, for all rows.
    virtual std::int32_t RowHeight() const = 0;
    virtual void RowHeight(std::int32_t lHeight) = 0;
    virtual void HeaderHeight(std::int32_t lHeight) = 0;

    /// A put into the edited cell shows in the editor as well, unless the user has typed since it was opened or
    /// written.
    virtual std::string CellText(GridCell cell) const = 0;
    virtual void CellText(GridCell cell, std::string_view text) = 0;
    /// The picture in the middle of the cell; null for none.
    virtual void CellPicture(GridCell cell, const ImagePtr& picture) = 0;
    /// Takes away the cell's text, picture and own format.
    virtual void ClearCell(GridCell cell) = 0;
    /// What the format says replaces what was said before; what it leaves open stays.
    virtual void FormatCell(GridCell cell, const CellFormat& format) = 0;
    virtual void FormatRow(std::int32_t lRow, const CellFormat& format) = 0;
    /// The background where no format names one.
    virtual void BackColor(OleColor color) = 0;
    virtual bool RowSelected(std::int32_t lRow) const = 0;
    virtual void RowSelected(std::int32_t lRow, bool bSelected) = 0;

    /// The cell that the keyboard is at, and whether pressing it once more opens its editor; row 0 for none.
    virtual GridCell CurrentCell() const = 0;
    virtual void CurrentCell(GridCell cell, bool bEditable) = 0;
    /// Opens the editor unless the receiver refuses, with the cell's text or the given one. False when it was refused.
    virtual bool StartEditing(GridCell cell, std::optional<std::string_view> text) = 0;
    /// Closes the editor, if one is open: takes over its text, or gives it up.
    virtual void EndEditing(bool bTakeOver) = 0;
    /// The cell that is edited; nothing when none is.
    virtual std::optional<GridCell> EditedCell() const = 0;
    /// Writes what the editor holds into its cell; the editor stays open.
    virtual void CommitEditor() = 0;
    /// Moves the caret of the editor by characters, to the left for negative numbers.
    virtual void MoveCaret(std::int32_t lCharacters) = 0;
    virtual void SelectEditorText() = 0;

    /// The cell under the point; row -1 when there is none.
    virtual GridCell CellAt(Point at) const = 0;
    /// The cell's rectangle in the grid, also where it is scrolled out of view.
    virtual Rect CellRect(GridCell cell) const = 0;
    /// Where the grid's top-left corner lies on the screen.
    virtual Point ScreenPosition() const = 0;
    virtual std::int32_t TopRow() const = 0;
    virtual void MakeRowVisible(std::int32_t lRow) = 0;
    virtual void VerticalScrollBar(GridScrollBar eScrollBar) = 0;

    /// False holds back all drawing until it is True again.
    virtual bool Redraw() const = 0;
    virtual void Redraw(bool bRedraw) = 0;

    /// Moves and resizes the grid, in logical pixels of its control.
    virtual void Move(const Rect& rect) = 0;
    virtual std::intptr_t hWnd() const = 0;
    virtual bool HasFocus() const = 0;
    virtual void SetFocus() = 0;
    /// Starts a drag with the grid as its source; returns when it is over, `OLECompleteDrag` included.
    virtual void OLEDrag() = 0;
};
using GridPtr = std::unique_ptr<Grid>;

} // namespace zqbchwcx
