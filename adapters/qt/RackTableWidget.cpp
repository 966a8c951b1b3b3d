#include "zqbchwcx/qt/RackTableWidget.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

#include <QEvent>

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(5760 / vxTwipsPerPixel, 3090 / vxTwipsPerPixel);

} // namespace

struct RackTableWidget::Members {
    explicit Members(RackTableWidget& self)
        : window(new ControlWidget(&self, ControlWidget::Backdrop::Own)), view(MakeView<VxHWRackTable>(*window))
    {
    }

    ControlWidget* window;
    std::shared_ptr<VxHWRackTable> view;
    EventConnection editRefused;
};

RackTableWidget::RackTableWidget(QWidget* parent) : QWidget(parent), m(std::make_unique<Members>(*this))
{
    setObjectName(QStringLiteral("rackTable"));
    RetranslateUi();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMinimumSize(SmallestSize);
    resize(SmallestSize);
    setFocusProxy(m->window);
    m->window->ResizeNow(size());
    m->window->show();
    m->editRefused = m->view->EditRefused.Connect([this](const RefusedEdit& edit) {
        const QRect cell(edit.gridOnScreen.x + edit.cell.left, edit.gridOnScreen.y + edit.cell.top, edit.cell.width(),
                         edit.cell.height());
        emit editRefused(QString::fromStdString(edit.value), cell);
    });
}

RackTableWidget::~RackTableWidget() = default;

std::shared_ptr<VxHWRackTable> RackTableWidget::Control() const
{
    return m->view;
}

QImage RackTableWidget::RenderToImage(double scale)
{
    return m->window->ToImage(size().expandedTo(SmallestSize), scale);
}

void RackTableWidget::WidenColumns()
{
    if (auto* grid = findChild<GridWidget*>()) grid->WidenColumns();
}

QSize RackTableWidget::sizeHint() const
{
    return SmallestSize;
}

QSize RackTableWidget::minimumSizeHint() const
{
    return SmallestSize;
}

void RackTableWidget::resizeEvent(QResizeEvent* /*event*/)
{
    m->window->ResizeNow(size());
}

void RackTableWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void RackTableWidget::RetranslateUi()
{
    setAccessibleName(tr("Rack table"));
    setAccessibleDescription(tr("Places of a rack with their modules and addresses; the arrow keys move the focus"));
    // The keyboard, and with it a screen reader, is at the grid.
    if (auto* grid = findChild<GridWidget*>()) {
        grid->setAccessibleName(accessibleName());
        grid->setAccessibleDescription(accessibleDescription());
    }
}

} // namespace zqbchwcx::qt
