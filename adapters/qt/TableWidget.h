#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/qt/ViewWidget.h"

#include <QImage>

namespace zqbchwcx {
class TableControl;
}

namespace zqbchwcx::qt {

/// A table of places as a widget for any layout, right of an `OverviewWidget` whose arrow points at its rows when both
/// have the same top edge; its derived classes make those of the kinds of station.
///
/// Before it is made, the host installs its services (`G_InstallServiceRoot`) with a `QtToolkit` among them. The
/// widget is then wired like any view: a manager is given `Control()`.
class TableWidget : public ViewWidget {
    Q_OBJECT
public:
    /// The table as it is now, drawn anew for the scale (device pixels per logical pixel; 0.5 to 8, otherwise the
    /// nearest of these), in the widget's size. It need not be on the screen.
    QImage RenderToImage(double scale);
    /// For pictures, in which nobody can widen a column or scroll: shows all texts whole, as far as the width goes, and
    /// no scroll bar. The user's widths come back with the next station.
    void ArrangeForPicture();

signals:
    /// The model did not take a typed value. The rectangle of the cell is in logical pixels of the screen.
    void editRefused(const QString& value, const QRect& cell);

protected:
    TableWidget(QWidget* parent, const QString& objectName, QSize smallest, QSizePolicy::Policy height);

    void Connect(TableControl& view);

private:
    EventConnection mEditRefused;
};

} // namespace zqbchwcx::qt
