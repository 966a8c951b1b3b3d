#pragma once

#include "app/export/PictureContent.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/qt/OverviewWidget.h"
#include "zqbchwcx/qt/TableWidget.h"

#include <QSize>

#include <cstdint>
#include <memory>

namespace zqbchwcx {
class OverviewControl;
class VxHWSelectionHandler;
using VxHWSelectionHandlerPtr = std::shared_ptr<VxHWSelectionHandler>;
} // namespace zqbchwcx

namespace quillon_ed {

/// The selection of a picture's views. In a table beside an overview, the rack's first usable place is selected and
/// focused, as when a window opens, so that the arrow shows where the table belongs; otherwise nothing is.
zqbchwcx::VxHWSelectionHandlerPtr SelectionOf(const zqbchwcx::VxHWStationPtr& station, const PictureContent& content);

/// An overview of the station's kind in the site, or as a widget of that size, just to be looked at: it shows all rows,
/// and nothing can be dragged.
std::unique_ptr<zqbchwcx::OverviewControl> MakeOverview(zqbchwcx::UserControl& site,
                                                        const zqbchwcx::VxHWStationPtr& station,
                                                        const PictureContent& content,
                                                        const zqbchwcx::VxHWSelectionHandlerPtr& selection);
std::unique_ptr<zqbchwcx::qt::OverviewWidget> MakeOverview(const zqbchwcx::VxHWStationPtr& station,
                                                           const PictureContent& content,
                                                           const zqbchwcx::VxHWSelectionHandlerPtr& selection,
                                                           QSize size);

/// A table of the station's kind that shows the content's rack, which the station has.
std::unique_ptr<zqbchwcx::qt::TableWidget> MakeTable(const zqbchwcx::VxHWStationPtr& station,
                                                     const PictureContent& content,
                                                     const zqbchwcx::VxHWSelectionHandlerPtr& selection, QSize size);

} // namespace quillon_ed
