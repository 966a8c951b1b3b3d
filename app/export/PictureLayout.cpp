#include "app/export/PictureLayout.h"

#include "app/export/PartShown.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"
#include "zqbchwcx/views/overview/RowsLayout.h"

#include <algorithm>
#include <cmath>

namespace quillon_ed {

namespace {

constexpr int ArrowedWidth = 262; ///< the racks, and room for the arrow to the table
constexpr int TableWidth = 640;   ///< comments are read whole

struct Heights {
    int overview;
    int table;
};

/// Of what is in views that show all rows. The views may need more height than the rows of a small station.
Heights HeightsOf(const zqbchwcx::reference::Station& station)
{
    if (station.StationKind() == zqbchwcx::vxStationKindCentral) return {392, 206};
    constexpr int aroundRows = 30;
    constexpr int tableRow = 15;
    using zqbchwcx::RowsLayout;
    const auto& all = station.Data().racks.front()->places;
    const int places = static_cast<int>(std::count_if(
        all.begin(), all.end(), [](const auto& place) { return place.usability != zqbchwcx::vxPlaceNotUsable; }));
    const int rows = (places + RowsLayout::PlacesInRow - 1) / RowsLayout::PlacesInRow;
    return {aroundRows + rows * RowsLayout::RowHeight,
            zqbchwcx::VxHWRackTableRIO::HeaderBottom + places * tableRow + 1};
}

} // namespace

PictureLayout::PictureLayout(const zqbchwcx::reference::Station& station, const PictureContent& content,
                             int overviewWidth)
    : mOverview(0, 0, content.HasTable() ? ArrowedWidth : overviewWidth,
                content.HasOverview() ? HeightsOf(station).overview : 0),
      mTable(content.HasOverview() ? mOverview.width() : 0, 0, content.HasTable() ? TableWidth : 0,
             HeightsOf(station).table),
      mCaption(PartShownText(station, content), First().width())
{
    // No step in the ground below the rows of the shorter view.
    if (station.StationKind() == zqbchwcx::vxStationKindCentral || mOverview.isEmpty() || mTable.isEmpty()) return;
    const int height = std::max(mOverview.height(), mTable.height());
    mOverview.setHeight(height);
    mTable.setHeight(height);
}

QSize PictureLayout::Size() const
{
    const int captioned = CaptionCorner().y() + int(std::ceil(mCaption.Height()));
    const int right = std::max(mOverview.isEmpty() ? 0 : mOverview.width(), mTable.isEmpty() ? 0 : mTable.right() + 1);
    return {right, std::max(captioned, mTable.isEmpty() ? 0 : mTable.height())};
}

QPoint PictureLayout::CaptionCorner() const
{
    return {First().left(), First().bottom() + 1};
}

} // namespace quillon_ed
