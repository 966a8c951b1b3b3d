#include "zqbchwcx/qt/RackOverviewRIOWidget.h"

#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(230, 414);
/// The rows and, right of them, the way of the arrow with its head.
constexpr QSize ComfortableSize(230 + 28, 414);

} // namespace

RackOverviewRIOWidget::RackOverviewRIOWidget(QWidget* parent)
    : OverviewWidget(parent, QStringLiteral("rackOverviewRIO"), SmallestSize, ComfortableSize),
      moView(MakeView<VxHWRackOverviewRIO>(Window()))
{
    Connect(moView, QStringLiteral("pic_Scroll"));
    Begin(); // names what screen readers are told of by now
}

RackOverviewRIOWidget::~RackOverviewRIOWidget() = default;

void RackOverviewRIOWidget::RetranslateUi()
{
    Name(tr("Station overview"), tr("Places of the station with their modules; the arrow keys move the focus"));
}

} // namespace zqbchwcx::qt
