#include "zqbchwcx/qt/RackTableRIOWidget.h"

#include "zqbchwcx/qt/HostedView.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"

namespace zqbchwcx::qt {
namespace {

constexpr QSize SmallestSize(5760 / vxTwipsPerPixel, 3000 / vxTwipsPerPixel);

} // namespace

RackTableRIOWidget::RackTableRIOWidget(QWidget* parent)
    : TableWidget(parent, QStringLiteral("rackTableRIO"), SmallestSize, QSizePolicy::Expanding),
      moView(MakeView<VxHWRackTableRIO>(Window()))
{
    Begin();
    Connect(*moView);
}

RackTableRIOWidget::~RackTableRIOWidget() = default;

void RackTableRIOWidget::RetranslateUi()
{
    Name(tr("Station table"),
         tr("Places of the station with their modules and addresses; the arrow keys move the focus"));
}

} // namespace zqbchwcx::qt
