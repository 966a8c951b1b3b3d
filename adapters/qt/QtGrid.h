#pragma once

#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/qt/GridWidget.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// A grid, as the views see it. Its window ends with it, or before it with the parent window; every operation is then
/// without effect.
class QtGrid : public Grid {
public:
    explicit QtGrid(GridWidget& widget) : mWidget(&widget) {}
    ~QtGrid() override;
    QtGrid(const QtGrid&) = delete;
    QtGrid& operator=(const QtGrid&) = delete;

    void Events(GridEvents* receiver) override;

    void Reset() override;
    std::int32_t AddColumn(std::string_view caption) override;
    std::int32_t ColumnCount() const override;
    std::string ColumnKey(std::int32_t lColumn) const override;
    void ColumnKey(std::int32_t lColumn, std::string_view key) override;
    std::int32_t ColumnIndex(std::string_view key) const override;
    std::int32_t ColumnWidth(std::int32_t lColumn) const override;
    void ColumnWidth(std::int32_t lColumn, std::int32_t lWidth) override;
    std::vector<std::int32_t> ColumnOrder() const override;
    void ColumnOrder(const std::vector<std::int32_t>& order) override;
    void ResetColumnsCaption(std::string_view caption) override;
    void AddHeaderFormat(std::int32_t lColumn, const CellFormat& format) override;
    void AddCellFormat(std::int32_t lColumn, const CellFormat& format) override;

    std::int32_t RowCount() const override;
    void RowCount(std::int32_t lRows) override;
    std::int32_t RowHeight() const override;
    void RowHeight(std::int32_t lHeight) override;
    void HeaderHeight(std::int32_t lHeight) override;

    std::string CellText(GridCell cell) const override;
    void CellText(GridCell cell, std::string_view text) override;
    void CellPicture(GridCell cell, const ImagePtr& picture) override;
    void ClearCell(GridCell cell) override;
    void FormatCell(GridCell cell, const CellFormat& format) override;
    void FormatRow(std::int32_t lRow, const CellFormat& format) override;
    void BackColor(OleColor color) override;
    bool RowSelected(std::int32_t lRow) const override;
    void RowSelected(std::int32_t lRow, bool bSelected) override;

    GridCell CurrentCell() const override;
    void CurrentCell(GridCell cell, bool bEditable) override;
    bool StartEditing(GridCell cell, std::optional<std::string_view> text) override;
    void EndEditing(bool bTakeOver) override;
    std::optional<GridCell> EditedCell() const override;
    void CommitEditor() override;
    void MoveCaret(std::int32_t lCharacters) override;
    void SelectEditorText() override;

    GridCell CellAt(Point at) const override;
    Rect CellRect(GridCell cell) const override;
    Point ScreenPosition() const override;
    std::int32_t TopRow() const override;
    void MakeRowVisible(std::int32_t lRow) override;
    void VerticalScrollBar(GridScrollBar eScrollBar) override;

    bool Redraw() const override;
    void Redraw(bool bRedraw) override;

    void Move(const Rect& rect) override;
    std::intptr_t hWnd() const override;
    bool HasFocus() const override;
    void SetFocus() override;
    void OLEDrag() override;

private:
    /// Null when the window has ended.
    GridContent* Content() const { return mWidget ? &mWidget->Model().Edit() : nullptr; }
    void CellChanged(GridCell cell);
    void SetText(GridCell cell, const QString& text);

    QPointer<GridWidget> mWidget;
};

} // namespace zqbchwcx::qt
