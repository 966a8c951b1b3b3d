#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace zqbchwcx {
class VxHWRackTable;
}

namespace zqbchwcx::qt {

/// The table of a central station as a widget for any layout, right of a `RackOverviewWidget` whose arrow points at its
/// rows when both have the same top edge.
///
/// Before it is made, the host installs its services (`G_InstallServiceRoot`) with a `QtToolkit` among them. The
/// widget is then wired like any view: a manager is given `Control()`. It is 206 logical pixels high and at least 384
/// wide.
class RackTableWidget : public QWidget {
    Q_OBJECT
public:
    explicit RackTableWidget(QWidget* parent = nullptr);
    ~RackTableWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then shows nothing any more.
    std::shared_ptr<VxHWRackTable> Control() const;

    /// The table as it is now, drawn anew for the scale (device pixels per logical pixel; 0.5 to 8, otherwise the
    /// nearest of these), in the widget's size. It need not be on the screen.
    QImage RenderToImage(double scale);
    /// Shows all texts whole, as far as the width goes: for pictures, in which nobody can widen a column. The user's
    /// widths come back with the next station.
    void WidenColumns();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The model did not take a typed value. The rectangle of the cell is in logical pixels of the screen.
    void editRefused(const QString& value, const QRect& cell);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();

    struct Members;
    std::unique_ptr<Members> m;
};

} // namespace zqbchwcx::qt
