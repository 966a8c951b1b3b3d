#pragma once

#include "zqbchwcx/platform/Grid.h"

#include <QLineEdit>

namespace zqbchwcx::qt {

/// The editor of one cell. It asks before it acts on a key, and says when it is to be closed.
class GridEditor : public QLineEdit {
    Q_OBJECT
public:
    GridEditor(QWidget& parent, GridCell cell, const QFont& font);

    GridCell Cell() const { return mCell; }
    /// The smallest rectangle, and the one in which it may grow with its text: to the right first, then to the left.
    void Place(const QRect& cell, const QRect& room);
    /// Shows another text, as if the editor had been opened with it.
    void Show(const QString& text);

signals:
    /// A key was pressed; whoever uses it sets the flag.
    void keyPressed(QKeyEvent* event, bool* pbConsumed);
    void keyReleased(QKeyEvent* event);
    void closed(bool bTakeOver);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Grow();

    GridCell mCell;
    QRect mCellRect;
    QRect mRoom;
    QString msComposed;  ///< not text yet, but seen
    bool mbTold = false; ///< of the key that comes next
};

} // namespace zqbchwcx::qt
