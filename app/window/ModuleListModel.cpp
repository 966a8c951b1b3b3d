#include "app/window/ModuleListModel.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <QGuiApplication>
#include <QPalette>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr char ClassName[] = "ModuleListModel";

std::int32_t PlaceCountOf(const VxHWStationPtr& station, std::int32_t lRack)
{
    std::int32_t count = 0;
    if (station) G_Trap(ClassName, "PlaceCountOf", [&] { count = station->Racks()->Item(lRack)->Places()->Count(); });
    return count;
}

} // namespace

ModuleListModel::ModuleListModel(QObject* parent) : QAbstractTableModel(parent) {}

void ModuleListModel::Show(VxHWStationPtr station, std::int32_t lRack)
{
    beginResetModel();
    moStation = std::move(station);
    mlRack = lRack;
    mlPlaceCount = PlaceCountOf(moStation, lRack);
    endResetModel();
}

void ModuleListModel::Refresh()
{
    if (PlaceCountOf(moStation, mlRack) != mlPlaceCount) Show(moStation, mlRack);
    else if (mlPlaceCount > 0) emit dataChanged(index(0, 0), index(mlPlaceCount - 1, ColumnCount - 1));
}

std::int32_t ModuleListModel::PositionOf(int row) const
{
    return row >= 0 && row < mlPlaceCount ? G_PlacePosition(mlRack, row + 1) : vxNoPosition;
}

int ModuleListModel::RowOf(std::int32_t lPosition) const
{
    const PositionInfo info = G_PositionInfo(lPosition);
    const bool isRow = info.eType == vxPositionPlace && info.lRack == mlRack && info.lNumber <= mlPlaceCount;
    return isRow ? info.lNumber - 1 : -1;
}

int ModuleListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mlPlaceCount;
}

int ModuleListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

VxHWRackPlacePtr ModuleListModel::PlaceAt(int row) const
{
    return moStation->Racks()->Item(mlRack)->Places()->Item(row + 1);
}

QString ModuleListModel::Text(const VxHWRackPlace& place, int column) const
{
    if (column == Place) return QString::number(place.Number());
    const VxHWModulePtr module = place.Module();
    if (module->IsEmpty()) return {};
    switch (column) {
    case Module: {
        const QString name = PlainText(module->Name());
        return module->IndexInParent() > 1 ? tr("%1 (continued)").arg(name) : name;
    }
    case OrderNumber:
        return PlainText(module->OrderNumber());
    case InputAddress:
        return ToQString(module->InputAddressText());
    case OutputAddress:
        return ToQString(module->OutputAddressText());
    case Comment:
        return PlainText(module->GetAttribute("COMMENT"));
    default:
        return {};
    }
}

QVariant ModuleListModel::data(const QModelIndex& index, int role) const
{
    if (!moStation || PositionOf(index.row()) == vxNoPosition) return {};
    QVariant result;
    G_Trap(ClassName, "data", [&] {
        const VxHWRackPlacePtr place = PlaceAt(index.row());
        switch (role) {
        case Qt::DisplayRole:
            result = Text(*place, index.column());
            break;
        case Qt::ToolTipRole:
            result = ToolTipText(Text(*place, index.column()));
            break;
        case Qt::TextAlignmentRole:
            if (index.column() == Place) result = QVariant(Qt::AlignHCenter | Qt::AlignVCenter);
            break;
        case Qt::ForegroundRole:
            if (PlaceAt(index.row())->Usability() != vxPlaceActive) {
                result = QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
            }
            break;
        default:
            break;
        }
    });
    return result;
}

QVariant ModuleListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
    case Place:
        return tr("Place");
    case Module:
        return tr("Module");
    case OrderNumber:
        return tr("Order number");
    case InputAddress:
        return tr("I address");
    case OutputAddress:
        return tr("O address");
    case Comment:
        return tr("Comment");
    default:
        return {};
    }
}

} // namespace quillon_ed
