#pragma once

#include "zqbchwcx/platform/PopupForm.h"
#include "zqbchwcx/qt/PictureWidget.h"

namespace zqbchwcx::qt {

/// The window of a popup form. It is gone when the window that it belongs to moves, changes its size or is hidden.
class PopupFormWidget : public PictureWidget {
    Q_OBJECT
public:
    PopupFormWidget(QWidget& parent, const QString& name);

    void Receiver(PopupFormEvents* receiver) { mReceiver = receiver; }
    void ShowAt(const QRect& onScreen);
    /// Screen readers take the text for what has the keyboard, until the window is gone.
    void Tell(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void TellDown(const QMouseEvent& event);

    PopupFormEvents* mReceiver = nullptr;
};

} // namespace zqbchwcx::qt
