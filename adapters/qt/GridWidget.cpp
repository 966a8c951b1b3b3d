#include "zqbchwcx/qt/GridWidget.h"

#include "zqbchwcx/qt/AccessibleFocus.h"
#include "zqbchwcx/qt/DragSource.h"
#include "zqbchwcx/qt/GridEditor.h"
#include "zqbchwcx/qt/GridHeader.h"
#include "zqbchwcx/qt/PlainText.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {
namespace {

constexpr GridCell NoCell{};
constexpr int DefaultRowHeight = 15;

/// Text that a key types, not a command.
QString TypedText(const QKeyEvent& event)
{
    const bool bCommand = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString text = event.text();
    return bCommand || text.isEmpty() || !text.front().isPrint() ? QString() : text;
}

/// Keys that the receiver is asked for first, whatever the shortcuts of the window.
bool IsOwnKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
        return !event.modifiers().testFlag(Qt::AltModifier);
    case Qt::Key_Down:
    case Qt::Key_Menu:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    case Qt::Key_F2:
        return event.modifiers() == Qt::NoModifier;
    case Qt::Key_F10:
        return event.modifiers().testFlag(Qt::ShiftModifier);
    case Qt::Key_A:
        if (event.modifiers() == Qt::ControlModifier) return true;
        break;
    default:
        break;
    }
    return !TypedText(event).isEmpty();
}

} // namespace

GridWidget::GridWidget(QWidget& parent, const QString& name, const Rect& rect)
    : QTableView(&parent), mModel(*new GridModel(this)), mDelegate(*new GridDelegate(this)),
      mHeader(new GridHeader(mDelegate, this))
{
    setObjectName(name);
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setFrameShape(QFrame::NoFrame);
    setModel(&mModel);
    setItemDelegate(&mDelegate);
    setHorizontalHeader(mHeader);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setCornerButtonEnabled(false);
    setShowGrid(false);
    setWordWrap(false);
    setAutoScroll(false);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(MultiSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    RowHeight(DefaultRowHeight);
    Receiver(nullptr);

    mEditorDelay.setSingleShot(true);
    connect(&mEditorDelay, &QTimer::timeout, this, [this] { StartEditing(CurrentCell(), std::nullopt); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        PlaceEditor();
        if (std::exchange(mlTopRow, TopRow()) != TopRow() && mReceiver != nullptr) mReceiver->OnTopRowChanged();
    });
    connect(mHeader, &GridHeader::userResized, this,
            [this](std::int32_t lColumn, std::int32_t lWidth) { mModel.Edit().Column(lColumn).lWidth = lWidth; });
    connect(mHeader, &GridHeader::userChanged, this, [this] {
        if (mReceiver != nullptr) mReceiver->OnColumnsChanged();
    });
    connect(mHeader, &QHeaderView::sectionResized, this, [this] { PlaceEditor(); });
    mHeader->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mHeader, &QWidget::customContextMenuRequested, this,
            [this](QPoint at) { ShowHeaderMenu(mHeader->viewport()->mapToGlobal(at)); });
}

void GridWidget::Receiver(GridEvents* receiver)
{
    mReceiver = receiver;
    setFocusPolicy(receiver == nullptr ? Qt::NoFocus : Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, receiver != nullptr);
    viewport()->setAcceptDrops(receiver != nullptr);
}

void GridWidget::TextFont(const QFont& font)
{
    mDelegate.Font(font);
    if (mEditor) mEditor->setFont(font);
    viewport()->update();
    mHeader->viewport()->update();
}

void GridWidget::WidenColumns()
{
    const std::vector<std::int32_t> order = mHeader->Order();
    for (const std::int32_t lColumn : order) {
        if (lColumn == order.back()) break;
        std::int32_t& lWidth = mModel.Edit().Column(lColumn).lWidth;
        // The view itself would leave out rows that it has no room for.
        for (std::int32_t lRow = 1; lRow <= mModel.Content().RowCount(); ++lRow)
            lWidth = std::max(lWidth, mDelegate.sizeHint({}, mModel.IndexOf({lRow, lColumn})).width());
    }
    mHeader->Fit();
}

void GridWidget::HeaderHeight(int height)
{
    mHeader->setFixedHeight(height);
    updateGeometries();
}

void GridWidget::RowHeight(int height)
{
    verticalHeader()->setDefaultSectionSize(height);
}

int GridWidget::RowHeight() const
{
    return verticalHeader()->defaultSectionSize();
}

void GridWidget::RowChanged(std::int32_t lRow)
{
    if (!mcolChangedRows.insert(lRow).second || !mbDrawing) return;
    viewport()->update(0, rowViewportPosition(lRow - 1), viewport()->width(), RowHeight());
}

void GridWidget::SelectRow(std::int32_t lRow, bool bSelected)
{
    if (std::exchange(mModel.Edit().Row(lRow).bSelected, bSelected) == bSelected) return;
    RowChanged(lRow);
    // Screen readers ask the view's own selection.
    const QItemSelection row(mModel.IndexOf({lRow, 1}), mModel.IndexOf({lRow, mModel.Content().ColumnCount()}));
    selectionModel()->select(row, bSelected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

void GridWidget::Drawing(bool bDrawing)
{
    mbDrawing = bDrawing;
    if (!bDrawing) return;
    for (const std::int32_t lRow : std::exchange(mcolChangedRows, {})) RowChanged(lRow);
}

void GridWidget::CurrentCell(GridCell cell, bool bEditable)
{
    if (cell != CurrentCell()) ForgetPress();
    mbEditable = bEditable;
    Mark(mDelegate.Marks().current, cell);
    selectionModel()->setCurrentIndex(mModel.IndexOf(cell), QItemSelectionModel::NoUpdate);
}

void GridWidget::ForgetPress()
{
    mbPressedAgain = false;
    mEditorDelay.stop();
}

bool GridWidget::StartEditing(GridCell cell, std::optional<QString> text)
{
    ForgetPress();
    if (mEditor && mEditor->Cell() == cell) return true;
    const QPointer<GridWidget> self(this);
    EndEditing(true);
    if (!self || mReceiver == nullptr || !mModel.IndexOf(cell).isValid()) return false;
    if (!mReceiver->OnStartEditing(cell) || !self) return false;
    scrollTo(mModel.IndexOf(cell));

    mEditor = new GridEditor(*viewport(), cell, mDelegate.Font());
    mEditor->setAccessibleName(mModel.Content().Column(cell.lColumn).caption);
    if (text) mEditor->setText(*text);
    else mEditor->Show(mModel.Content().Cell(cell).text);
    // Only what the user types counts as a change.
    mEditor->setModified(text.has_value());
    connect(mEditor, &GridEditor::keyPressed, this,
            [this](const QKeyEvent* event, bool* pbConsumed) { *pbConsumed = TellKey(*event); });
    connect(mEditor, &GridEditor::keyReleased, this, [this](const QKeyEvent* event) { TellKeyUp(*event); });
    connect(mEditor, &GridEditor::closed, this, &GridWidget::EndEditing);
    PlaceEditor();
    mEditor->show();
    mEditor->setFocus(Qt::OtherFocusReason);
    return true;
}

void GridWidget::EndEditing(bool bTakeOver)
{
    if (!mEditor) return;
    if (bTakeOver) CommitEditor();
    GridEditor* editor = std::exchange(mEditor, nullptr);
    const GridCell cell = editor->Cell();
    disconnect(editor, nullptr, this, nullptr);
    // An inactive window remembers which of its children gets the focus with it.
    if (window()->focusWidget() == editor) setFocus(Qt::OtherFocusReason);
    editor->hide();
    editor->deleteLater(); // it may be in the middle of an event
    if (mReceiver != nullptr) mReceiver->OnEndEditing(cell);
}

void GridWidget::CommitEditor()
{
    if (!mEditor) return;
    mEditor->setModified(false);
    mModel.Edit().Cell(mEditor->Cell()).text = mEditor->text();
    RowChanged(mEditor->Cell().lRow);
}

GridEditor* GridWidget::Editor() const
{
    return mEditor;
}

void GridWidget::PlaceEditor()
{
    if (!mEditor) return;
    const GridCell cell = mEditor->Cell();
    const QRect rect = visualRect(mModel.IndexOf(cell)).adjusted(0, 0, -1, -1);
    const bool bMayGrow = mModel.Content().Look(cell).kind == CellKind::Comment;
    // What says which row it is stays in sight.
    const int left = mHeader->sectionSize(mHeader->logicalIndex(0));
    mEditor->Place(rect,
                   bMayGrow ? QRect(QPoint(left, rect.top()), QPoint(viewport()->width() - 1, rect.bottom())) : rect);
}

GridCell GridWidget::CellAt(QPoint at) const
{
    if (!rect().contains(at)) return {-1, 0};
    const QPoint inside = at - viewport()->pos();
    const int column = columnAt(inside.x());
    const int row = inside.y() < 0 ? -1 : rowAt(inside.y());
    if (column < 0 || (inside.y() >= 0 && row < 0)) return {-1, 0};
    return {row + 1, column + 1};
}

QRect GridWidget::CellRect(GridCell cell) const
{
    const auto [left, width] = mHeader->Extent(cell.lColumn);
    if (cell.lRow == 0) return {left, 0, width, mHeader->height()};
    const int top = (cell.lRow - TopRow()) * RowHeight();
    return {viewport()->x() + left, viewport()->y() + top, width, RowHeight()};
}

std::int32_t GridWidget::TopRow() const
{
    return verticalScrollBar()->value() + 1;
}

void GridWidget::Drag()
{
    ForgetPress();
    Mark(mDelegate.Marks().pressed, NoCell);
    RunDrag(*this);
}

bool GridWidget::IsButton(GridCell cell) const
{
    if (cell.lRow < 1) return false;
    return mModel.Content().Look(cell).kind == CellKind::PushButton && !mModel.Content().Cell(cell).text.isEmpty();
}

void GridWidget::Mark(GridCell& mark, GridCell cell)
{
    if (mark == cell) return;
    const GridCell before = std::exchange(mark, cell);
    // The current cell is marked only where the keyboard is.
    if (&mark == &mDelegate.Marks().current && !mDelegate.Marks().bFocus) return;
    for (const GridCell changed : {before, cell})
        if (changed.lRow >= 1 && changed.lRow <= mModel.Content().RowCount()) RowChanged(changed.lRow);
}

bool GridWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsOwnKey(static_cast<const QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        // Tab would move the focus before anybody is asked.
        const bool bTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
        if (bTab && TellKey(key)) return true;
    }
    return QTableView::event(event);
}

bool GridWidget::TellKey(const QKeyEvent& event)
{
    ForgetPress();
    const std::int16_t nKeyCode = ToKeyCode(event.key());
    return mReceiver != nullptr && nKeyCode != 0 && mReceiver->OnKeyDown(nKeyCode, ToShift(event.modifiers()));
}

void GridWidget::TellKeyUp(const QKeyEvent& event)
{
    const std::int16_t nKeyCode = ToKeyCode(event.key());
    if (mReceiver != nullptr && nKeyCode != 0 && !event.isAutoRepeat())
        mReceiver->OnKeyUp(nKeyCode, ToShift(event.modifiers()));
}

void GridWidget::keyPressEvent(QKeyEvent* event)
{
    const QPointer<GridWidget> self(this);
    event->accept();
    if (TellKey(*event) || !self) return;
    const QString typed = TypedText(*event);
    if (!typed.isEmpty() && mReceiver != nullptr && mReceiver->OnCharacters(typed.toStdString())) return;
    if (!self) return;
    if (event->key() == Qt::Key_PageUp) verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    else if (event->key() == Qt::Key_PageDown) verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    else event->ignore();
}

void GridWidget::keyReleaseEvent(QKeyEvent* event)
{
    TellKeyUp(*event);
}

void GridWidget::inputMethodEvent(QInputMethodEvent* event)
{
    const QString text = event->commitString();
    event->accept();
    if (mReceiver == nullptr || (text.isEmpty() && event->preeditString().isEmpty())) return;
    const QPointer<GridWidget> self(this);
    const bool bConsumed = mReceiver->OnCharacters(text.toStdString());
    // The editor that this opened goes on with what is being composed.
    if (!bConsumed || !self || !mEditor || event->preeditString().isEmpty()) return;
    QInputMethodEvent rest(event->preeditString(), event->attributes());
    QApplication::sendEvent(mEditor, &rest);
}

GridMouse GridWidget::Mouse(const QMouseEvent& event, Qt::MouseButtons buttons) const
{
    const QPointF at = ToPixel(event.position()) + viewport()->pos();
    return {ToButtons(buttons), ToShift(event.modifiers()), {int(at.x()), int(at.y())}};
}

void GridWidget::mousePressEvent(QMouseEvent* event)
{
    const GridMouse mouse = Mouse(*event, event->button());
    const GridCell cell = CellAt({mouse.at.x, mouse.at.y});
    const bool bPlain = mouse.nButton == vxButtonLeft && mouse.nShift == 0;
    ForgetPress();
    mbPressedAgain = bPlain && mbEditable && !mbFreshFocus && cell == CurrentCell() && cell.lRow > 0;
    if (mouse.nButton == vxButtonLeft && IsButton(cell)) Mark(mDelegate.Marks().pressed, cell);
    if (mReceiver != nullptr) mReceiver->OnMouseDown(mouse);
}

void GridWidget::mouseMoveEvent(QMouseEvent* event)
{
    const GridMouse mouse = Mouse(*event, event->buttons());
    const GridCell cell = CellAt({mouse.at.x, mouse.at.y});
    Mark(mDelegate.Marks().hovered, IsButton(cell) ? cell : NoCell);
    if (mReceiver != nullptr) mReceiver->OnMouseMoveOver(mouse);
}

void GridWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const GridMouse mouse = Mouse(*event, event->button());
    const GridCell cell = CellAt({mouse.at.x, mouse.at.y});
    const GridCell pressed = mDelegate.Marks().pressed;
    Mark(mDelegate.Marks().pressed, NoCell);
    mbFreshFocus = false;
    const bool bEdit = std::exchange(mbPressedAgain, false) && cell == CurrentCell();
    const QPointer<GridWidget> self(this);
    if (mReceiver != nullptr) mReceiver->OnMouseUp(mouse);
    if (!self || mouse.nButton != vxButtonLeft) return;
    // A second press may still make it a double click.
    if (bEdit) mEditorDelay.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (pressed.lRow > 0 && pressed == cell && mReceiver != nullptr) mReceiver->OnClickedButton(cell);
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    ForgetPress();
    const GridMouse mouse = Mouse(*event, event->button());
    if (mReceiver == nullptr) return;
    if (mouse.nButton == vxButtonLeft && !IsButton(CellAt({mouse.at.x, mouse.at.y}))) mReceiver->OnMouseDblClk(mouse);
    else mousePressEvent(event);
}

void GridWidget::focusInEvent(QFocusEvent* event)
{
    mbFreshFocus = event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    mDelegate.Marks().bFocus = true;
    viewport()->update();
    QAbstractScrollArea::focusInEvent(event);
    // The window says itself that it has the keyboard; where in it that is comes after.
    QMetaObject::invokeMethod(this, &GridWidget::TellFocusedCell, Qt::QueuedConnection);
}

void GridWidget::TellFocusedCell()
{
    if (hasFocus()) TellFocus(*this);
}

void GridWidget::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::PopupFocusReason) return;
    ForgetPress();
    mDelegate.Marks().bFocus = false;
    viewport()->update();
    QAbstractScrollArea::focusOutEvent(event);
}

bool GridWidget::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        ShowTooltip(static_cast<const QHelpEvent&>(*event));
        return true;
    }
    if (event->type() == QEvent::Leave) Mark(mDelegate.Marks().hovered, NoCell);
    return QTableView::viewportEvent(event);
}

void GridWidget::ShowTooltip(const QHelpEvent& event)
{
    const GridCell cell = CellAt(event.pos() + viewport()->pos());
    if (cell.lRow < 1) return QToolTip::hideText();
    const QRect area = visualRect(mModel.IndexOf(cell));
    QString text = mReceiver != nullptr ? ToolTipText(ToQString(mReceiver->OnDisplayTooltip(cell))) : QString();
    const QString& shown = mModel.Content().Cell(cell).text;
    if (text.isEmpty() && mDelegate.IsCutOff(shown, area.width())) text = ToolTipText(shown);
    if (text.isEmpty()) QToolTip::hideText();
    else QToolTip::showText(event.globalPos(), text, viewport(), area);
}

void GridWidget::ShowHeaderMenu(QPoint onScreen)
{
    if (msResetCaption.isEmpty()) return;
    const QPointer<GridWidget> self(this);
    auto* menu = new QMenu(this);
    QString caption = msResetCaption;
    const QAction* reset = menu->addAction(caption.replace(u'&', QStringLiteral("&&")));
    const bool bChosen = menu->exec(onScreen) == reset;
    if (!self) return;
    menu->deleteLater();
    if (bChosen && mReceiver != nullptr) mReceiver->OnResetColumns();
}

void GridWidget::paintEvent(QPaintEvent* event)
{
    const QRect bounds = event->region().boundingRect();
    for (auto row = mcolChangedRows.begin(); mbDrawing && row != mcolChangedRows.end();) {
        const QRect area(0, rowViewportPosition(*row - 1), viewport()->width(), RowHeight());
        row = bounds.intersects(area) ? mcolChangedRows.erase(row) : std::next(row);
    }
    const int used = rowViewportPosition(mModel.Content().RowCount() - 1) + RowHeight();
    if (mModel.Content().RowCount() == 0 || bounds.bottom() >= used) {
        mDelegate.Colors().Follow();
        const int top = mModel.Content().RowCount() == 0 ? 0 : used - 1;
        QPainter(viewport())
            .fillRect(0, top, viewport()->width(), viewport()->height() - top,
                      mDelegate.Colors().Back(mModel.Content().backColor));
    }
    QTableView::paintEvent(event);
}

void GridWidget::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    mHeader->Fit();
    PlaceEditor();
}

void GridWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // What the table would tell screen readers is true only while it has the keyboard.
    if (hasFocus()) QTableView::currentChanged(current, previous);
    else QAbstractItemView::currentChanged(current, previous);
}

DropTarget::Handler GridWidget::DragHandler(bool bDrop)
{
    return [this, bDrop](DragOverEvent& drag) {
        if (mReceiver == nullptr) return;
        const QPoint origin = viewport()->pos();
        const GridMouse mouse{drag.nButton, drag.nShift, {int(drag.x) + origin.x(), int(drag.y) + origin.y()}};
        if (bDrop) mReceiver->OLEDragDrop(drag.data, drag.lEffect, mouse);
        else mReceiver->OLEDragOver(drag.data, drag.lEffect, mouse, drag.nState);
    };
}

void GridWidget::dragEnterEvent(QDragEnterEvent* event)
{
    mDropTarget.Enter(*event, DragHandler(false));
}

void GridWidget::dragMoveEvent(QDragMoveEvent* event)
{
    mDropTarget.Move(*event, DragHandler(false));
}

void GridWidget::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    mDropTarget.Leave(DragHandler(false));
}

void GridWidget::dropEvent(QDropEvent* event)
{
    mDropTarget.Drop(*event, DragHandler(true));
}

} // namespace zqbchwcx::qt
