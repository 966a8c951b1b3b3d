#pragma once

#include "zqbchwcx/platform/Button.h"
#include "zqbchwcx/qt/DropTarget.h"

#include <QWidget>

class QPainter;

namespace zqbchwcx::qt {

/// The window of a button with an arrow. What lies below it shows around its face.
class ScrollButtonWidget : public QWidget {
    Q_OBJECT
public:
    ScrollButtonWidget(QWidget& parent, const QString& name, const Rect& rect, ButtonArrow eArrow);

    void Receiver(ButtonEvents* receiver) { mReceiver = receiver; }
    bool Pressed() const { return mbPressed; }
    void Pressed(bool bPressed);
    void ArrowColor(OleColor color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    DropTarget::Handler DragOverHandler();
    void PaintArrow(QPainter& painter, const QRectF& face) const;

    ButtonEvents* mReceiver = nullptr;
    ButtonArrow meArrow;
    OleColor mArrowColor;
    bool mbPressed = false;
    DropTarget mDropTarget;
};

} // namespace zqbchwcx::qt
