#pragma once

#include "app/export/PictureCaption.h"
#include "app/export/PictureContent.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QRect>
#include <QSize>

namespace quillon_ed {

/// Where the views of a picture lie, in logical pixels: the table right of the overview, with the same top edge, so
/// that the arrow meets its row. Below them stands what they leave out of the station.
class PictureLayout {
public:
    /// The width is that of an overview without a table.
    PictureLayout(const zqbchwcx::reference::Station& station, const PictureContent& content, int overviewWidth);

    QSize Size() const;
    /// Empty for a view that the picture does not have.
    const QRect& Overview() const { return mOverview; }
    const QRect& Table() const { return mTable; }
    const PictureCaption& Caption() const { return mCaption; }
    QPoint CaptionCorner() const;

private:
    const QRect& First() const { return mOverview.isEmpty() ? mTable : mOverview; }

    QRect mOverview;
    QRect mTable;
    PictureCaption mCaption;
};

} // namespace quillon_ed
