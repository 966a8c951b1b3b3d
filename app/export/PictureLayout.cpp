#include "app/export/PictureLayout.h"

#include "app/export/PartShown.h"

#include <algorithm>
#include <cmath>

namespace quillon_ed {

namespace {

constexpr int OverviewHeight = 392;
constexpr int ArrowedWidth = 262; ///< the racks, and room for the arrow to the table
constexpr int TableWidth = 640;   ///< comments are read whole
constexpr int TableHeight = 206;

} // namespace

PictureLayout::PictureLayout(const zqbchwcx::reference::Station& station, const PictureContent& content,
                             int overviewWidth)
    : mOverview(0, 0, content.HasTable() ? ArrowedWidth : overviewWidth, content.HasOverview() ? OverviewHeight : 0),
      mTable(content.HasOverview() ? mOverview.width() : 0, 0, content.HasTable() ? TableWidth : 0, TableHeight),
      mCaption(PartShownText(station, content), First().width())
{
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
