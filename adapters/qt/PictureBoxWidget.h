#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/qt/DropTarget.h"
#include "zqbchwcx/qt/PersistentPicture.h"

#include <QWidget>

namespace zqbchwcx::qt {

/// The window of a picture box: shows its picture, and tells its receiver what the user does on it. Without a receiver
/// it lets the mouse and drags through to what lies below.
class PictureBoxWidget : public QWidget {
    Q_OBJECT
public:
    PictureBoxWidget(QWidget& parent, const QString& name, const Rect& rect);

    PersistentPicture& Picture() { return mPicture; }
    void Receiver(PictureBoxEvents* receiver);
    /// Shows what has been drawn since the last time.
    void ShowChanges();
    /// Starts a drag with this window as its source; returns when it is over.
    void Drag();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
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
    void Remember(const QRect& device);
    using MouseHandler = void (PictureBoxEvents::*)(std::int16_t, std::int16_t, float, float) noexcept;
    void Tell(MouseHandler handler, Qt::MouseButtons buttons, const QMouseEvent& event);
    DropTarget::Handler DragOverHandler();

    PersistentPicture mPicture;
    PictureBoxEvents* mReceiver = nullptr;
    DropTarget mDropTarget;
    QRect mChanged;
    bool mbShowPosted = false;
};

} // namespace zqbchwcx::qt
