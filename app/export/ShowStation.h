#pragma once

#include "app/export/PictureContent.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/qt/RackTableWidget.h"

#include <QSize>

#include <cstdint>
#include <memory>

namespace quillon_ed {

/// The selection of a picture's views. In a table beside an overview, the rack's first usable place is selected and
/// focused, as when a window opens, so that the arrow shows where the table belongs; otherwise nothing is.
zqbchwcx::VxHWSelectionHandlerPtr SelectionOf(const zqbchwcx::VxHWStationPtr& station, const PictureContent& content);

/// Shows the station in the view just to be looked at.
void ShowStation(zqbchwcx::IVxHWControl& view, const zqbchwcx::VxHWStationPtr& station,
                 const zqbchwcx::VxHWSelectionHandlerPtr& selection);

/// A table that shows the rack, which the station has.
std::unique_ptr<zqbchwcx::qt::RackTableWidget> MakeTable(const zqbchwcx::VxHWStationPtr& station, std::int32_t rack,
                                                         const zqbchwcx::VxHWSelectionHandlerPtr& selection,
                                                         QSize size);

} // namespace quillon_ed
