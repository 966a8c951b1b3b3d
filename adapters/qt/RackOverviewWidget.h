#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace zqbchwcx {
class VxHWRackOverview;
}

namespace zqbchwcx::qt {

/// The graphical overview of a central station as a widget for any layout.
///
/// Before it is made, the host installs its services (`G_InstallServiceRoot`) with a `QtToolkit` among them. The
/// widget is then wired like any view: a manager is given `Control()`, and sets its station, selection and
/// controllers. It needs 235 x 392 logical pixels; surplus space shows the background, and the arrow to the table
/// beside it ends at the right edge.
class RackOverviewWidget : public QWidget {
    Q_OBJECT
public:
    explicit RackOverviewWidget(QWidget* parent = nullptr);
    ~RackOverviewWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then draws nothing any more.
    std::shared_ptr<VxHWRackOverview> Control() const;

    /// The overview as it is now, drawn anew for the scale (device pixels per logical pixel; 0.5 to 8, otherwise the
    /// nearest of these), in the widget's size. It need not be on the screen.
    QImage RenderToImage(double scale);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void contentChanged();
    void selChanged();
    void focusChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();

    struct Members;
    std::unique_ptr<Members> m;
};

} // namespace zqbchwcx::qt
