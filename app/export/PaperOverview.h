#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <QSizeF>

#include <memory>

class QPainter;

namespace zqbchwcx {
class VxHWRackOverview;
}

namespace quillon_ed {

class PaperSite;

/// The overview of a central station on paper: in vectors, on white, without selection and focus.
///
/// Needs the service root of the screen, whose pictures it uses. Shows the station as it was at the creation or at
/// a later change of the station.
class PaperOverview {
public:
    explicit PaperOverview(const zqbchwcx::VxHWStationPtr& station);
    ~PaperOverview();

    /// In logical pixels.
    QSizeF Size() const;
    void Paint(QPainter& painter) const;

private:
    std::unique_ptr<PaperSite> moSite;
    std::unique_ptr<zqbchwcx::VxHWRackOverview> moView;
};

} // namespace quillon_ed
