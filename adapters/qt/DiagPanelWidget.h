#pragma once

#include "zqbchwcx/qt/ViewWidget.h"

#include <memory>

namespace zqbchwcx {
class VxHWDiagPanel;
}

namespace zqbchwcx::qt {

/// The panel of diagnostics mode as a widget for any layout, of every kind of station. It is at least 384 logical
/// pixels wide and 285 high.
///
/// Before it is made, the host installs its services (`G_InstallServiceRoot`) with a `QtToolkit` among them. The
/// widget is then wired like any view: a `VxHWDiagManager` is given `Control()`.
class DiagPanelWidget : public ViewWidget {
    Q_OBJECT
public:
    explicit DiagPanelWidget(QWidget* parent = nullptr);
    ~DiagPanelWidget() override;

    /// The view in the widget. It may be kept longer than the widget, but then shows nothing any more.
    std::shared_ptr<VxHWDiagPanel> Control() const { return moView; }

private:
    void RetranslateUi() override;

    std::shared_ptr<VxHWDiagPanel> moView;
};

} // namespace zqbchwcx::qt
