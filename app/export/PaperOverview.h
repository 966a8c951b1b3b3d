#pragma once

#include "app/export/PictureCaption.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QSizeF>

#include <memory>

class QPainter;

namespace zqbchwcx {
class VxHWRackOverview;
}

namespace quillon_ed {

class PaperSite;

/// The overview of a central station on paper: in vectors, on white, without selection and focus. What it leaves out
/// stands below it.
///
/// Needs the service root of the screen, whose pictures it uses. Shows the station as it was at the creation or at
/// a later change of the station.
class PaperOverview {
public:
    explicit PaperOverview(const zqbchwcx::reference::StationPtr& station);
    ~PaperOverview();

    /// In logical pixels.
    QSizeF Size() const;
    void Paint(QPainter& painter) const;

private:
    PictureCaption mCaption;
    std::unique_ptr<PaperSite> moSite;
    std::unique_ptr<zqbchwcx::VxHWRackOverview> moView;
};

} // namespace quillon_ed
