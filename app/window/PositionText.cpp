#include "app/window/PositionText.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <QCoreApplication>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

struct PositionTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::PositionText)
};

const QString Dot = QStringLiteral(" · ");

void AddPlaceTexts(QStringList& parts, const VxHWRackPlace& place)
{
    const VxHWModulePtr module = place.Module();
    if (module->IsEmpty()) {
        switch (place.Usability()) {
        case vxPlaceActive:
            parts << PositionTexts::tr("empty");
            break;
        case vxPlaceInactive:
            parts << PositionTexts::tr("inactive");
            break;
        default:
            parts << PositionTexts::tr("not usable");
            break;
        }
        return;
    }
    parts << PlainText(module->Name()) << PlainText(module->OrderNumber());
    const QString addresses = AddressText(*module);
    if (!addresses.isEmpty()) parts << addresses;
}

} // namespace

QString AddressText(const VxHWModule& module)
{
    QStringList parts;
    const QString input = ToQString(module.InputAddressText());
    const QString output = ToQString(module.OutputAddressText());
    if (!input.isEmpty()) parts << PositionTexts::tr("I %1").arg(input);
    if (!output.isEmpty()) parts << PositionTexts::tr("O %1").arg(output);
    return parts.join(Dot);
}

QString PositionText(const VxHWStation& station, std::int32_t lPosition)
{
    const PositionInfo info = G_PositionInfo(lPosition);
    if (info.eType == vxPositionNone) return {};
    QStringList parts{PositionTexts::tr("Rack %1").arg(info.lRack)};
    const VxHWRackPtr rack = station.Racks()->Item(info.lRack);
    if (info.eType == vxPositionGap) {
        const std::int32_t last = rack->Places()->Count();
        if (info.lNumber <= 0) parts << PositionTexts::tr("before place 1");
        else if (info.lNumber >= last) parts << PositionTexts::tr("behind place %1").arg(last);
        else parts << PositionTexts::tr("between places %1 and %2").arg(info.lNumber).arg(info.lNumber + 1);
    } else if (info.eType == vxPositionPlace) {
        parts << PositionTexts::tr("Place %1").arg(info.lNumber);
        const VxHWRackPlacePtr place = rack->Places()->Item(info.lNumber);
        AddPlaceTexts(parts, *place);
    } else if (rack->State() == vxRackNotPresent) {
        parts << PositionTexts::tr("not present");
    }
    return parts.join(Dot);
}

} // namespace quillon_ed
