#pragma once

#include "app/export/PictureLayout.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QSizeF>

#include <memory>
#include <optional>

class QPainter;

namespace zqbchwcx {
class OverviewControl;
}
namespace zqbchwcx::qt {
class TableWidget;
}

namespace quillon_ed {

class PaperSite;

/// Views of a station on paper: in vectors, on white, with all their rows. What they leave out stands below them.
///
/// Needs the service root of the screen, whose pictures it uses; a table also has the screen's palette. Shows the
/// station as it was at the creation or at a later change of the station.
class PaperViews {
public:
    explicit PaperViews(const zqbchwcx::reference::StationPtr& station, const PictureContent& content = {});
    ~PaperViews();

    /// In logical pixels.
    QSizeF Size() const { return mLayout.Size(); }
    void Paint(QPainter& painter) const;

private:
    PictureLayout mLayout;
    std::unique_ptr<PaperSite> moSite;
    std::unique_ptr<zqbchwcx::OverviewControl> moOverview;
    std::unique_ptr<zqbchwcx::qt::TableWidget> moTable;
};

} // namespace quillon_ed
