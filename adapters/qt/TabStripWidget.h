#pragma once

#include "zqbchwcx/platform/TabStrip.h"

#include <QTabBar>
#include <QTimer>

namespace zqbchwcx::qt {

/// The row of tabs of a tab strip: always 21 logical pixels high. The mouse or a drag that rests on an enabled tab is
/// told.
class TabStripWidget : public QTabBar {
    Q_OBJECT
public:
    TabStripWidget(QWidget& parent, const QString& name, int tabs);

    void Receiver(TabStripEvents* receiver) { mReceiver = receiver; }
    /// Selects or enables without an event; a tab that becomes disabled stays selected.
    void SelectQuietly(int tab);
    void EnableQuietly(int tab, bool bEnabled);

    static constexpr int TabHeight = 21;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;

private:
    /// The mouse or a drag is at that point; when it has rested on a tab, that is told.
    void MoveTo(QPoint at, bool bDrag);
    void Leave();

    TabStripEvents* mReceiver = nullptr;
    QTimer mRest;
    QPoint mAt;
    int mTab = -1; ///< that the mouse or a drag is over
    bool mbDrag = false;
};

} // namespace zqbchwcx::qt
