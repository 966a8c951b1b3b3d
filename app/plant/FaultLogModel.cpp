#include "app/plant/FaultLogModel.h"

#include "app/host/PlainText.h"
#include "app/host/SvgIcon.h"
#include "app/plant/LocalTime.h"

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

const char* IconOf(LogEvent event)
{
    switch (event) {
    case LogEvent::Came:
        return "fault-came";
    case LogEvent::Went:
        return "fault-went";
    case LogEvent::Note:
        break;
    }
    return "connection";
}

} // namespace

FaultLogModel::FaultLogModel(QObject* parent) : QAbstractTableModel(parent) {}

void FaultLogModel::Add(const std::vector<PlantLogEntry>& entries)
{
    const std::size_t taken = std::min(entries.size(), Capacity);
    const std::size_t kept = std::min(mcolEntries.size(), Capacity - taken);
    if (const auto tooMany = static_cast<int>(mcolEntries.size() - kept); tooMany > 0) {
        beginRemoveRows({}, 0, tooMany - 1);
        mcolEntries.erase(mcolEntries.begin(), mcolEntries.begin() + tooMany);
        endRemoveRows();
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(taken) - 1);
    mcolEntries.insert(mcolEntries.end(), entries.end() - static_cast<std::ptrdiff_t>(taken), entries.end());
    endInsertRows();
}

void FaultLogModel::Clear()
{
    beginResetModel();
    mcolEntries.clear();
    endResetModel();
}

void FaultLogModel::ShowLanguage(Language language)
{
    if (meLanguage == language) return;
    meLanguage = language;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int FaultLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mcolEntries.size());
}

int FaultLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FaultLogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) return {};
    const PlantLogEntry& entry = EntryAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return TextAt(entry, index.column());
    case Qt::ToolTipRole:
        return ToolTipText(TextAt(entry, index.column()));
    case Qt::DecorationRole:
        return index.column() == What ? QVariant(SvgIcon(QLatin1String(IconOf(entry.event)))) : QVariant();
    default:
        return {};
    }
}

QString FaultLogModel::TextAt(const PlantLogEntry& entry, int column) const
{
    switch (column) {
    case Time:
        return LocalTime(entry.at);
    case Place:
        return entry.item ? QString::fromStdString(PlantItemText(*entry.item)) : QString();
    case Module:
        return PlainText(entry.module, meLanguage);
    case What: {
        const QString text = WithLocalTime(PlainText(entry.what, meLanguage, LongestDescription));
        // Never by the picture alone.
        return entry.event == LogEvent::Went ? tr("Gone: %1").arg(text) : text;
    }
    default:
        return {};
    }
}

QVariant FaultLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QString headings[] = {tr("Time"), tr("Place"), tr("Module"), tr("What")};
    return section >= 0 && section < ColumnCount ? QVariant(headings[section]) : QVariant();
}

} // namespace quillon_ed
