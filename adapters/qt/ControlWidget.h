#pragma once

#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/qt/DropTarget.h"

#include <QColor>
#include <QFont>
#include <QWidget>

namespace zqbchwcx::qt {

class PictureBoxWidget;

/// The window that a view lives in: tells its receiver of keys, sizes and drags outside the picture boxes. Without a
/// receiver it lets the mouse, drags and keys through.
class ControlWidget : public QWidget {
    Q_OBJECT
public:
    enum class Backdrop {
        Own,    ///< filled with the colour of its first picture box
        Parent, ///< what lies below shows through
    };

    ControlWidget(QWidget* parent, Backdrop backdrop);

    void Receiver(UserControlEvents* receiver);
    /// Without a receiver, too, the mouse goes to windows in this one.
    void HoldsInput();
    void TextFont(const QFont& font);
    const QFont& TextFont() const { return mFont; }
    /// Resizes, and tells the receiver at once even while it is hidden.
    void ResizeNow(QSize size);
    /// The colour between and around the child windows: that of the lowest picture box.
    QColor BackgroundColor() const;
    /// The control and its children as a picture, at the ratio that was asked for last.
    QImage ToImage() const;
    /// The same in that size, drawn anew at the scale (0.5 to 8, otherwise the nearest of these), shown or not.
    QImage ToImage(QSize size, double scale);
    /// Makes the picture boxes draw at another ratio than the window's; 0 for the window's own.
    void OverrideRatio(double ratio);
    double Ratio() const { return mRatio; }

signals:
    /// The system colours or the ratio of device pixels have changed.
    void AppearanceChanged();
    /// The sizes of scroll bars and the like have changed.
    void MetricsChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void FollowRatio();
    void SetRatio(double ratio);
    DropTarget::Handler DragOverHandler();

    Backdrop mBackdrop;
    UserControlEvents* mReceiver = nullptr;
    bool mbHoldsInput = false;
    QFont mFont;
    DropTarget mDropTarget;
    double mRatio;
    bool mbRatioOverridden = false;
};

} // namespace zqbchwcx::qt
