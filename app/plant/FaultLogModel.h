#pragma once

#include "zqbchwcx/reference/diag/PlantLog.h"

#include <QAbstractTableModel>

#include <deque>

namespace quillon_ed {

/// What came and went in a plant, oldest first; the oldest entries give way to new ones.
class FaultLogModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Time, Place, Module, What, ColumnCount };
    static constexpr std::size_t Capacity = 20'000;

    explicit FaultLogModel(QObject* parent);

    void Add(const std::vector<zqbchwcx::reference::PlantLogEntry>& entries);
    void Clear();
    const zqbchwcx::reference::PlantLogEntry& EntryAt(int row) const { return mcolEntries[static_cast<size_t>(row)]; }
    void ShowLanguage(zqbchwcx::reference::Language language);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString TextAt(const zqbchwcx::reference::PlantLogEntry& entry, int column) const;

    std::deque<zqbchwcx::reference::PlantLogEntry> mcolEntries;
    zqbchwcx::reference::Language meLanguage = zqbchwcx::reference::Language::English;
};

} // namespace quillon_ed
