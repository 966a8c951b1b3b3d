#pragma once

#include "zqbchwcx/views/table/TableControl.h"

#include <cstdint>

namespace zqbchwcx {

/// The rows of a distributed station: they exist before the view whose parts refer to them.
struct DistributedRows {
    ShownRowMap mRows;
};

/// The table of a distributed station: one row for each place of its one rack that is usable at all. It scrolls, and
/// tells which row is its topmost, so that the arrow of the overview beside it finds its row.
class VxHWRackTableRIO : private DistributedRows, public TableControl {
public:
    /// Logical pixels from the top of the control to the first row.
    static constexpr std::int32_t HeaderBottom = 21;

    explicit VxHWRackTableRIO(UserControl& oControl) noexcept;

    /// The topmost row that is seen, from 1.
    std::int32_t TopRow() const noexcept;
    /// How many rows are seen wholly.
    std::int32_t RowsInView() const noexcept { return mlRowsInView; }

    Event<> TopRowChange;
    Event<> RowsInViewChange;

private:
    // UserControlEvents
    void Resize() noexcept override;

    // TableControl
    void BeforeInitialize() override { P_InitPlacePositions(); }
    void OnGridInitialized() override { ShowScrollBar(); }
    void BeforeRefresh() override;

    // ControlBinding
    void OnStationType() override { ShowScrollBar(); }
    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;

    void P_InitPlacePositions();
    void ShowScrollBar();

    EventConnection mTopRowConnection;
    std::int32_t mlRowsInView = 0;
};

} // namespace zqbchwcx
