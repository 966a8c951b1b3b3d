#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/qt/ViewWidget.h"

#include <QImage>

#include <array>
#include <memory>

namespace zqbchwcx {
class OverviewControl;
}

namespace zqbchwcx::qt {

class AccessibleOverview;

/// A graphical overview as a widget for any layout; its derived classes make those of the kinds of station.
///
/// Before it is made, the host installs its services (`G_InstallServiceRoot`) with a `QtToolkit` among them. The
/// widget is then wired like any view: a manager is given `Control()`, and sets its station, selection and
/// controllers. Surplus space shows the background, and the arrow to the table beside it ends at the right edge.
class OverviewWidget : public ViewWidget {
    Q_OBJECT
public:
    /// The overview as it is now, drawn anew for the scale (device pixels per logical pixel; 0.5 to 8, otherwise the
    /// nearest of these), in the widget's size. It need not be on the screen.
    QImage RenderToImage(double scale);

signals:
    void contentChanged();
    void selChanged();
    void focusChanged();

protected:
    OverviewWidget(QWidget* parent, const QString& objectName, QSize smallest, QSize comfortable);

    /// The picture is the box of the view that shows the places.
    void Connect(const std::shared_ptr<OverviewControl>& view, const QString& pictureName);

    void changeEvent(QEvent* event) override;

private:
    AccessibleOverview* mAccessible = nullptr; ///< a child of the picture
    std::array<EventConnection, 3> mcolConnections;
};

} // namespace zqbchwcx::qt
