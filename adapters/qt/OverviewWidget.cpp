#include "zqbchwcx/qt/OverviewWidget.h"

#include "zqbchwcx/qt/AccessibleOverview.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/views/overview/OverviewControl.h"

#include <QEvent>
#include <QSignalBlocker>

namespace zqbchwcx::qt {
OverviewWidget::OverviewWidget(QWidget* parent, const QString& objectName, QSize smallest, QSize comfortable)
    : ViewWidget(parent, objectName, smallest, comfortable)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void OverviewWidget::Connect(const std::shared_ptr<OverviewControl>& view, const QString& pictureName)
{
    auto& picture = *Window().findChild<PictureBoxWidget*>(pictureName);
    mAccessible = new AccessibleOverview(picture, std::shared_ptr<const OverviewItems>(view, &view->Items()));
    for (const auto changed :
         {&OverviewWidget::contentChanged, &OverviewWidget::selChanged, &OverviewWidget::focusChanged})
        connect(this, changed, mAccessible, &AccessibleOverview::Changed);
    mcolConnections = {view->ContentChange.Connect([this] { emit contentChanged(); }),
                       view->SelChange.Connect([this] { emit selChanged(); }),
                       view->FocusChange.Connect([this] { emit focusChanged(); })};
}

void OverviewWidget::changeEvent(QEvent* event)
{
    ViewWidget::changeEvent(event);
    // The words for what the picture shows are other ones now.
    if (event->type() == QEvent::LanguageChange && mAccessible != nullptr) mAccessible->Changed();
}

QImage OverviewWidget::RenderToImage(double scale)
{
    // Drawing anew is no news for the host.
    const QSignalBlocker silence(this);
    return Window().ToImage(size().expandedTo(minimumSizeHint()), scale);
}

} // namespace zqbchwcx::qt
