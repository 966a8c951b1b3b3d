#pragma once

#include "zqbchwcx/qt/DropTarget.h"
#include "zqbchwcx/qt/GridDelegate.h"
#include "zqbchwcx/qt/GridModel.h"

#include <QPointer>
#include <QTableView>
#include <QTimer>

#include <set>

namespace zqbchwcx::qt {

class GridEditor;
class GridHeader;

/// The window of a grid: shows its content, and tells its receiver what the user does on it. Points and rectangles are
/// logical pixels of this window.
class GridWidget : public QTableView {
    Q_OBJECT
public:
    GridWidget(QWidget& parent, const QString& name, const Rect& rect);

    GridEvents* Receiver() const { return mReceiver; }
    void Receiver(GridEvents* receiver);
    void TextFont(const QFont& font);

    GridModel& Model() { return mModel; }
    GridHeader& Header() { return *mHeader; }
    void ResetCaption(const QString& caption) { msResetCaption = caption; }
    /// Shows the texts of all columns but the last one whole, as far as the room goes.
    void WidenColumns();
    void HeaderHeight(int height);
    void RowHeight(int height);
    int RowHeight() const;

    /// The content of the row has changed. It is drawn when the program next waits, or when drawing is on again.
    void RowChanged(std::int32_t lRow);
    void SelectRow(std::int32_t lRow, bool bSelected);
    bool Drawing() const { return mbDrawing; }
    void Drawing(bool bDrawing);

    GridCell CurrentCell() const { return mDelegate.Marks().current; }
    void CurrentCell(GridCell cell, bool bEditable);
    bool StartEditing(GridCell cell, std::optional<QString> text);
    void EndEditing(bool bTakeOver);
    void CommitEditor();
    GridEditor* Editor() const;

    GridCell CellAt(QPoint at) const;
    QRect CellRect(GridCell cell) const;
    std::int32_t TopRow() const;

    /// Starts a drag with this window as its source; returns when it is over.
    void Drag();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool TellKey(const QKeyEvent& event);
    void TellKeyUp(const QKeyEvent& event);
    void TellFocusedCell();
    GridMouse Mouse(const QMouseEvent& event, Qt::MouseButtons buttons) const;
    DropTarget::Handler DragHandler(bool bDrop);
    bool IsButton(GridCell cell) const;
    void Mark(GridCell& mark, GridCell cell);
    void ShowTooltip(const QHelpEvent& event);
    void ShowHeaderMenu(QPoint onScreen);
    void PlaceEditor();
    void ForgetPress();

    /// Children of this window, which end after it.
    GridModel& mModel;
    GridDelegate& mDelegate;
    GridHeader* mHeader;
    GridEvents* mReceiver = nullptr;
    QString msResetCaption;
    DropTarget mDropTarget;

    std::set<std::int32_t> mcolChangedRows; ///< not drawn yet
    bool mbDrawing = true;
    std::int32_t mlTopRow = 1;

    bool mbEditable = false;     ///< the current cell
    bool mbFreshFocus = false;   ///< the press that goes on gave it
    bool mbPressedAgain = false; ///< the current, editable cell
    QTimer mEditorDelay;
    QPointer<GridEditor> mEditor;
};

} // namespace zqbchwcx::qt
