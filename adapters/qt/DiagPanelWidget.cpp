#include "zqbchwcx/qt/DiagPanelWidget.h"

#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(vxPanelMinimumWidth / vxTwipsPerPixel, vxPanelMinimumHeight / vxTwipsPerPixel);

} // namespace

DiagPanelWidget::DiagPanelWidget(QWidget* parent)
    : ViewWidget(parent, QStringLiteral("diagPanel"), SmallestSize, SmallestSize),
      moView(MakeView<VxHWDiagPanel>(Window()))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Begin();
}

DiagPanelWidget::~DiagPanelWidget() = default;

void DiagPanelWidget::RetranslateUi()
{
    // Its boxes are named by their captions: the widget names only itself, and the grid, which has none of its own.
    setAccessibleName(tr("Diagnostics panel"));
    setAccessibleDescription(tr("State and versions of the module that has the focus"));
    if (auto* grid = findChild<GridWidget*>()) grid->setAccessibleName(tr("Versions"));
}

} // namespace zqbchwcx::qt
