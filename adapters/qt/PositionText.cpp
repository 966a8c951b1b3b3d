#include "zqbchwcx/qt/PositionText.h"

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/qt/PlainText.h"

#include <QCoreApplication>

namespace zqbchwcx::qt {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(zqbchwcx::qt::PositionText)
};

constexpr qsizetype LongestPart = 120;

enum class Extent { InRack, Whole };

void Add(QStringList& parts, const std::string& text, const QString& pattern = QStringLiteral("%1"))
{
    if (!text.empty()) parts << pattern.arg(PlainText(ToQString(text), LongestPart));
}

QString EmptyPlaceText(std::int32_t lUsability)
{
    if (lUsability == vxPlaceActive) return Texts::tr("empty");
    return lUsability == vxPlaceInactive ? Texts::tr("inactive") : Texts::tr("not usable");
}

QStringList PlaceTexts(const PositionDescription& what, Extent extent)
{
    QStringList parts{Texts::tr("Place %1").arg(what.position.lNumber)};
    if (what.bEmpty) return parts << EmptyPlaceText(what.lUsability);
    Add(parts, what.name);
    if (extent == Extent::Whole) Add(parts, what.orderNumber);
    Add(parts, what.inputAddress, Texts::tr("I %1"));
    Add(parts, what.outputAddress, Texts::tr("O %1"));
    return parts;
}

QString GapText(const PositionDescription& what)
{
    const std::int32_t lGap = what.position.lNumber;
    if (lGap < what.lPlaceCount) return Texts::tr("Gap before place %1").arg(lGap + 1);
    return Texts::tr("Gap behind place %1").arg(what.lPlaceCount);
}

} // namespace

QStringList PositionTexts(const PositionDescription& what)
{
    if (what.position.eType == vxPositionNone) return {};
    const QStringList rack{Texts::tr("Rack %1").arg(what.position.lRack)};
    if (what.position.eType == vxPositionGap) return rack + QStringList(GapText(what));
    if (what.position.eType == vxPositionPlace) return rack + PlaceTexts(what, Extent::Whole);
    return what.bRackPresent ? rack : rack + QStringList(Texts::tr("not present"));
}

QStringList PositionTextsInRack(const PositionDescription& what)
{
    if (what.position.eType == vxPositionGap) return {GapText(what)};
    if (what.position.eType == vxPositionPlace) return PlaceTexts(what, Extent::InRack);
    return PositionTexts(what);
}

} // namespace zqbchwcx::qt
