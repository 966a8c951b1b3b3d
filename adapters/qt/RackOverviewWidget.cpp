#include "zqbchwcx/qt/RackOverviewWidget.h"

#include "zqbchwcx/qt/AccessibleOverview.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

#include <QEvent>
#include <QSignalBlocker>

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(3525 / vxTwipsPerPixel, 5880 / vxTwipsPerPixel);
/// The picture box and, right of it, the way of the arrow with its head.
constexpr QSize ComfortableSize(242 + 28, 392);

} // namespace

struct RackOverviewWidget::Members {
    explicit Members(RackOverviewWidget& self)
        : window(new ControlWidget(&self, ControlWidget::Backdrop::Own)), view(MakeView<VxHWRackOverview>(*window)),
          picture(window->findChild<PictureBoxWidget*>(QStringLiteral("pic_Main"))),
          accessible(new AccessibleOverview(*picture, std::shared_ptr<const OverviewItems>(view, &view->Items())))
    {
    }

    ControlWidget* window;
    std::shared_ptr<VxHWRackOverview> view;
    PictureBoxWidget* picture;
    AccessibleOverview* accessible;
    EventConnection contentChange;
    EventConnection selChange;
    EventConnection focusChange;
};

RackOverviewWidget::RackOverviewWidget(QWidget* parent) : QWidget(parent), m(std::make_unique<Members>(*this))
{
    setObjectName(QStringLiteral("rackOverview"));
    RetranslateUi();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(SmallestSize);
    resize(ComfortableSize);
    setFocusProxy(m->window);
    m->window->ResizeNow(size());
    m->window->show();
    for (const auto changed :
         {&RackOverviewWidget::contentChanged, &RackOverviewWidget::selChanged, &RackOverviewWidget::focusChanged})
        connect(this, changed, m->accessible, &AccessibleOverview::Changed);
    m->contentChange = m->view->ContentChange.Connect([this] { emit contentChanged(); });
    m->selChange = m->view->SelChange.Connect([this] { emit selChanged(); });
    m->focusChange = m->view->FocusChange.Connect([this] { emit focusChanged(); });
}

RackOverviewWidget::~RackOverviewWidget() = default;

std::shared_ptr<VxHWRackOverview> RackOverviewWidget::Control() const
{
    return m->view;
}

QImage RackOverviewWidget::RenderToImage(double scale)
{
    // Drawing anew is no news for the host.
    const QSignalBlocker silence(this);
    return m->window->ToImage(size().expandedTo(SmallestSize), scale);
}

QSize RackOverviewWidget::sizeHint() const
{
    return ComfortableSize;
}

QSize RackOverviewWidget::minimumSizeHint() const
{
    return SmallestSize;
}

void RackOverviewWidget::resizeEvent(QResizeEvent* /*event*/)
{
    m->window->ResizeNow(size());
}

void RackOverviewWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void RackOverviewWidget::RetranslateUi()
{
    setAccessibleName(tr("Rack overview"));
    setAccessibleDescription(tr("Racks of the station with their places and modules; the arrow keys move the focus"));
    // The keyboard, and with it a screen reader, is at the picture.
    m->picture->setAccessibleName(accessibleName());
    m->picture->setAccessibleDescription(accessibleDescription());
    m->accessible->Changed();
}

} // namespace zqbchwcx::qt
