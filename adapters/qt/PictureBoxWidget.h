#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/qt/DropTarget.h"
#include "zqbchwcx/qt/PictureWidget.h"

namespace zqbchwcx::qt {

/// The window of a picture box: shows its picture, and tells its receiver what the user does on it. Without a receiver
/// it lets the mouse and drags through to what lies below.
class PictureBoxWidget : public PictureWidget {
    Q_OBJECT
public:
    PictureBoxWidget(QWidget& parent, const QString& name, const Rect& rect);

    PictureBoxEvents* Receiver() const { return mReceiver; }
    void Receiver(PictureBoxEvents* receiver);
    /// Starts a drag with this window as its source; returns when it is over.
    void Drag();

protected:
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
    using MouseHandler = void (PictureBoxEvents::*)(std::int16_t, std::int16_t, float, float) noexcept;
    void Tell(MouseHandler handler, Qt::MouseButtons buttons, const QMouseEvent& event);
    DropTarget::Handler DragOverHandler();

    PictureBoxEvents* mReceiver = nullptr;
    DropTarget mDropTarget;
};

} // namespace zqbchwcx::qt
