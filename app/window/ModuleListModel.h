#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <QAbstractTableModel>

#include <cstdint>

namespace quillon_ed {

/// The places of one rack as rows, place N in row N - 1, read from the station when they are shown.
class ModuleListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Place, Module, OrderNumber, InputAddress, OutputAddress, Comment, ColumnCount };

    explicit ModuleListModel(QObject* parent);

    /// A null station shows nothing.
    void Show(zqbchwcx::VxHWStationPtr station, std::int32_t lRack);
    /// Every place of the rack may have changed.
    void Refresh();
    std::int32_t Rack() const { return mlRack; }

    std::int32_t PositionOf(int row) const;
    /// -1 when the position is no place of the rack.
    int RowOf(std::int32_t lPosition) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    zqbchwcx::VxHWRackPlacePtr PlaceAt(int row) const;
    QString Text(const zqbchwcx::VxHWRackPlace& place, int column) const;

    zqbchwcx::VxHWStationPtr moStation;
    std::int32_t mlRack = 0;
    std::int32_t mlPlaceCount = 0;
};

} // namespace quillon_ed
