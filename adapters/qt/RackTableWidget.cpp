#include "zqbchwcx/qt/RackTableWidget.h"

#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(5760 / vxTwipsPerPixel, 3090 / vxTwipsPerPixel);

} // namespace

RackTableWidget::RackTableWidget(QWidget* parent)
    : TableWidget(parent, QStringLiteral("rackTable"), SmallestSize, QSizePolicy::Fixed),
      moView(MakeView<VxHWRackTable>(Window()))
{
    Begin();
    Connect(*moView);
}

RackTableWidget::~RackTableWidget() = default;

void RackTableWidget::RetranslateUi()
{
    Name(tr("Rack table"), tr("Places of a rack with their modules and addresses; the arrow keys move the focus"));
}

} // namespace zqbchwcx::qt
