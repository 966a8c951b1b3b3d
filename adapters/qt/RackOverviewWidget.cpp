#include "zqbchwcx/qt/RackOverviewWidget.h"

#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(3525 / vxTwipsPerPixel, 5880 / vxTwipsPerPixel);
/// The picture box and, right of it, the way of the arrow with its head.
constexpr QSize ComfortableSize(242 + 28, 392);

} // namespace

RackOverviewWidget::RackOverviewWidget(QWidget* parent)
    : OverviewWidget(parent, QStringLiteral("rackOverview"), SmallestSize, ComfortableSize),
      moView(MakeView<VxHWRackOverview>(Window()))
{
    Connect(moView, QStringLiteral("pic_Main"));
    Begin(); // names what screen readers are told of by now
}

RackOverviewWidget::~RackOverviewWidget() = default;

void RackOverviewWidget::RetranslateUi()
{
    Name(tr("Rack overview"), tr("Racks of the station with their places and modules; the arrow keys move the focus"));
}

} // namespace zqbchwcx::qt
