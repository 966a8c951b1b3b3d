#pragma once

#include "zqbchwcx/views/overview/OverviewControl.h"
#include "zqbchwcx/views/overview/RowScroller.h"
#include "zqbchwcx/views/overview/RowsLayout.h"

namespace zqbchwcx {

/// Where the places of a distributed station are and how they look: it exists before the view whose parts refer to it.
struct DistributedPicture {
    RowsLayout mLayout;
    PlaceStyle mStyle = G_DistributedPlaceStyle(vxStationTypeDistributed1);
};

/// The overview of a distributed station: the places of its one rack in rows of eight, of which it shows four. With
/// more rows it scrolls. Places that are not usable take no room.
///
/// `StationType` says the variant: 1 has modules on a rail, 2 self-contained modules.
class VxHWRackOverviewRIO : private DistributedPicture, public OverviewControl {
public:
    explicit VxHWRackOverviewRIO(UserControl& oControl) noexcept;

    void Refresh() noexcept override;

    /// The point that stands for the position, in logical pixels of the whole picture, wherever it is scrolled.
    void CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept;
    /// The position under the point, given in logical pixels of the control; -1 for none.
    void PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept;
    /// Whether all rows are shown, as for a picture of the station, and nothing scrolls. The control then is as high as
    /// they need; otherwise as four rows.
    bool ShowAllRows() const noexcept { return mbShowAllRows; }
    void ShowAllRows(bool bShow) noexcept;

    // For the arrow: what the table beside the view shows.
    /// Its topmost row, from 1; 0 for a table that does not scroll.
    std::int32_t RackTableTopRow() const noexcept { return mlTableTopRow; }
    void RackTableTopRow(std::int32_t lTopRow) noexcept;
    /// How many rows it shows; 0 when that is not known: then as many as fit beside the view.
    std::int32_t RackTableRowsInView() const noexcept { return mlTableRowsInView; }
    void RackTableRowsInView(std::int32_t lRows) noexcept;

private:
    // UserControlEvents
    void Resize() noexcept override;
    bool MouseWheel(float notches) noexcept override;

    // OverviewControl
    void Arrange() override;
    const PictureStrip* PlacePictures() const override;
    void BringIntoView(const PositionInfo& position) override;
    void OnDragActive(bool bActive) override { mScroller.DragActive(bActive); }

    // ControlBinding
    void OnStationType() override;
    void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept override;

    OverviewKind DistributedKind();
    void P_InitPlacePositions();
    void P_InitView(bool bFromTop);
    std::int32_t VisibleRows() const;
    std::optional<std::int32_t> TableRow(const PositionInfo& place) const;
    void sysinf_Main_SettingChanged(std::int32_t lSetting) noexcept;

    RowScroller mScroller;
    std::int32_t mlBarWidth;
    bool mbShowAllRows = false;
    std::int32_t mlTableTopRow = 0;
    std::int32_t mlTableRowsInView = 0;
};

} // namespace zqbchwcx
