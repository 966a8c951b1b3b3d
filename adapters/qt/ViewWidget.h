#pragma once

#include <QWidget>

namespace zqbchwcx::qt {

class ControlWidget;

/// What the widgets that hosts put into their layouts have in common: a view's window that fills them.
class ViewWidget : public QWidget {
    Q_OBJECT
public:
    QSize sizeHint() const override { return mComfortable; }
    QSize minimumSizeHint() const override { return mSmallest; }

protected:
    /// The sizes are in logical pixels. The derived class makes its view in `Window()`, then calls `Begin`.
    ViewWidget(QWidget* parent, const QString& objectName, QSize smallest, QSize comfortable);

    ControlWidget& Window() const { return mWindow; }
    void Begin();
    /// Gives the widget and what has the keyboard in it their names for screen readers.
    void Name(const QString& name, const QString& description);
    virtual void RetranslateUi() = 0;

    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QSize mSmallest;
    QSize mComfortable;
    ControlWidget& mWindow; ///< a child of this widget
};

} // namespace zqbchwcx::qt
