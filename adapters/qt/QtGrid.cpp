#include "zqbchwcx/qt/QtGrid.h"

#include "zqbchwcx/qt/GridEditor.h"
#include "zqbchwcx/qt/GridHeader.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QAccessible>

namespace zqbchwcx::qt {

QtGrid::~QtGrid()
{
    if (!mWidget) return;
    // It may end in the middle of an event of its window.
    mWidget->Receiver(nullptr);
    mWidget->EndEditing(false);
    mWidget->hide();
    mWidget->setObjectName({});
    mWidget->deleteLater();
}

void QtGrid::Events(GridEvents* receiver)
{
    if (mWidget) mWidget->Receiver(receiver);
}

void QtGrid::Reset()
{
    if (!mWidget) return;
    mWidget->EndEditing(false);
    mWidget->CurrentCell({}, false);
    mWidget->Model().Reset();
}

std::int32_t QtGrid::AddColumn(std::string_view caption)
{
    if (!mWidget) return 0;
    mWidget->Model().AddColumn(ToQString(caption));
    mWidget->Header().Fit();
    return ColumnCount();
}

std::int32_t QtGrid::ColumnCount() const
{
    return mWidget ? Content()->ColumnCount() : 0;
}

std::string QtGrid::ColumnKey(std::int32_t lColumn) const
{
    return mWidget ? Content()->Column(lColumn).key : std::string();
}

void QtGrid::ColumnKey(std::int32_t lColumn, std::string_view key)
{
    if (mWidget) Content()->Column(lColumn).key = key;
}

std::int32_t QtGrid::ColumnIndex(std::string_view key) const
{
    return mWidget ? Content()->ColumnIndex(key) : 0;
}

std::int32_t QtGrid::ColumnWidth(std::int32_t lColumn) const
{
    return mWidget ? Content()->Column(lColumn).lWidth : 0;
}

void QtGrid::ColumnWidth(std::int32_t lColumn, std::int32_t lWidth)
{
    if (!mWidget) return;
    Content()->Column(lColumn).lWidth = lWidth;
    mWidget->Header().Fit();
}

std::vector<std::int32_t> QtGrid::ColumnOrder() const
{
    return mWidget ? mWidget->Header().Order() : std::vector<std::int32_t>();
}

void QtGrid::ColumnOrder(const std::vector<std::int32_t>& order)
{
    if (mWidget) mWidget->Header().Order(order);
}

void QtGrid::ResetColumnsCaption(std::string_view caption)
{
    if (mWidget) mWidget->ResetCaption(ToQString(caption));
}

void QtGrid::AddHeaderFormat(std::int32_t lColumn, const CellFormat& format)
{
    if (!mWidget || !Merge(Content()->Column(lColumn).header, format)) return;
    mWidget->Model().TellHeaderChanged(lColumn);
}

void QtGrid::AddCellFormat(std::int32_t lColumn, const CellFormat& format)
{
    if (!mWidget || !Merge(Content()->Column(lColumn).cells, format)) return;
    for (std::int32_t lRow = 1; lRow <= RowCount(); ++lRow) mWidget->RowChanged(lRow);
}

std::int32_t QtGrid::RowCount() const
{
    return mWidget ? Content()->RowCount() : 0;
}

void QtGrid::RowCount(std::int32_t lRows)
{
    if (mWidget) mWidget->Model().SetRowCount(lRows);
}

std::int32_t QtGrid::RowHeight() const
{
    return mWidget ? mWidget->RowHeight() : 0;
}

void QtGrid::RowHeight(std::int32_t lHeight)
{
    if (mWidget) mWidget->RowHeight(lHeight);
}

void QtGrid::HeaderHeight(std::int32_t lHeight)
{
    if (mWidget) mWidget->HeaderHeight(lHeight);
}

std::string QtGrid::CellText(GridCell cell) const
{
    if (!mWidget) return {};
    const QString& text = cell.lRow == 0 ? Content()->Column(cell.lColumn).caption : Content()->Cell(cell).text;
    return text.toStdString();
}

void QtGrid::CellText(GridCell cell, std::string_view text)
{
    if (!mWidget) return;
    const QString shown = ToQString(text);
    if (cell.lRow == 0) {
        Content()->Column(cell.lColumn).caption = shown;
        mWidget->Model().TellHeaderChanged(cell.lColumn);
        return;
    }
    SetText(cell, shown);
    GridEditor* editor = mWidget->Editor();
    const bool bFollows = editor != nullptr && editor->Cell() == cell && !editor->isModified();
    if (bFollows && editor->text() != shown) editor->Show(shown);
}

void QtGrid::SetText(GridCell cell, const QString& text)
{
    QString& shown = Content()->Cell(cell).text;
    if (shown == text) return;
    shown = text;
    CellChanged(cell);
}

void QtGrid::CellPicture(GridCell cell, const ImagePtr& picture)
{
    if (!mWidget || Content()->Cell(cell).picture == picture) return;
    Content()->Cell(cell).picture = picture;
    CellChanged(cell);
}

void QtGrid::ClearCell(GridCell cell)
{
    if (!mWidget) return;
    SetText(cell, {});
    GridCellContent& content = Content()->Cell(cell);
    content.picture = nullptr;
    content.format = {};
    mWidget->RowChanged(cell.lRow);
}

void QtGrid::FormatCell(GridCell cell, const CellFormat& format)
{
    if (mWidget && Merge(Content()->Cell(cell).format, format)) mWidget->RowChanged(cell.lRow);
}

void QtGrid::FormatRow(std::int32_t lRow, const CellFormat& format)
{
    if (mWidget && Merge(Content()->Row(lRow).format, format)) mWidget->RowChanged(lRow);
}

void QtGrid::BackColor(OleColor color)
{
    if (!mWidget || Content()->backColor == color) return;
    Content()->backColor = color;
    mWidget->viewport()->update();
}

bool QtGrid::RowSelected(std::int32_t lRow) const
{
    return mWidget && Content()->Row(lRow).bSelected;
}

void QtGrid::RowSelected(std::int32_t lRow, bool bSelected)
{
    if (mWidget) mWidget->SelectRow(lRow, bSelected);
}

GridCell QtGrid::CurrentCell() const
{
    return mWidget ? mWidget->CurrentCell() : GridCell{};
}

void QtGrid::CurrentCell(GridCell cell, bool bEditable)
{
    if (mWidget) mWidget->CurrentCell(cell, bEditable);
}

bool QtGrid::StartEditing(GridCell cell, std::optional<std::string_view> text)
{
    return mWidget && mWidget->StartEditing(cell, text ? std::optional(ToQString(*text)) : std::nullopt);
}

void QtGrid::EndEditing(bool bTakeOver)
{
    if (mWidget) mWidget->EndEditing(bTakeOver);
}

std::optional<GridCell> QtGrid::EditedCell() const
{
    const GridEditor* editor = mWidget ? mWidget->Editor() : nullptr;
    return editor == nullptr ? std::nullopt : std::optional(editor->Cell());
}

void QtGrid::CommitEditor()
{
    if (mWidget) mWidget->CommitEditor();
}

void QtGrid::MoveCaret(std::int32_t lCharacters)
{
    GridEditor* editor = mWidget ? mWidget->Editor() : nullptr;
    if (editor == nullptr) return;
    if (lCharacters < 0) editor->cursorBackward(false, -lCharacters);
    else editor->cursorForward(false, lCharacters);
}

void QtGrid::SelectEditorText()
{
    if (mWidget && mWidget->Editor() != nullptr) mWidget->Editor()->selectAll();
}

GridCell QtGrid::CellAt(Point at) const
{
    return mWidget ? mWidget->CellAt({at.x, at.y}) : GridCell{-1, 0};
}

Rect QtGrid::CellRect(GridCell cell) const
{
    if (!mWidget) return {};
    const QRect rect = mWidget->CellRect(cell);
    return MakeRect(rect.x(), rect.y(), rect.width(), rect.height());
}

Point QtGrid::ScreenPosition() const
{
    if (!mWidget) return {};
    const QPoint corner = mWidget->mapToGlobal(QPoint());
    return {corner.x(), corner.y()};
}

std::int32_t QtGrid::TopRow() const
{
    return mWidget ? mWidget->TopRow() : 1;
}

void QtGrid::MakeRowVisible(std::int32_t lRow)
{
    if (mWidget) mWidget->scrollTo(mWidget->Model().IndexOf({lRow, 1}));
}

void QtGrid::VerticalScrollBar(GridScrollBar eScrollBar)
{
    if (!mWidget) return;
    constexpr Qt::ScrollBarPolicy Policies[] = {Qt::ScrollBarAlwaysOff, Qt::ScrollBarAsNeeded, Qt::ScrollBarAlwaysOn};
    mWidget->setVerticalScrollBarPolicy(Policies[static_cast<std::size_t>(eScrollBar)]);
}

bool QtGrid::Redraw() const
{
    return mWidget && mWidget->Drawing();
}

void QtGrid::Redraw(bool bRedraw)
{
    if (mWidget) mWidget->Drawing(bRedraw);
}

void QtGrid::Move(const Rect& rect)
{
    if (mWidget) mWidget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
}

std::intptr_t QtGrid::hWnd() const
{
    return HandleOf(mWidget.data());
}

bool QtGrid::HasFocus() const
{
    return mWidget && (mWidget->hasFocus() || (mWidget->Editor() != nullptr && mWidget->Editor()->hasFocus()));
}

void QtGrid::SetFocus()
{
    if (mWidget) mWidget->setFocus(Qt::OtherFocusReason);
}

void QtGrid::OLEDrag()
{
    if (mWidget) mWidget->Drag();
}

void QtGrid::CellChanged(GridCell cell)
{
    mWidget->RowChanged(cell.lRow);
    if (QAccessible::isActive()) mWidget->Model().TellChanged(cell);
}

} // namespace zqbchwcx::qt
