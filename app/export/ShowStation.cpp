#include "app/export/ShowStation.h"

#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

namespace quillon_ed {

using namespace zqbchwcx;

void ShowStation(VxHWRackOverview& view, const VxHWStationPtr& station)
{
    const auto selection = std::make_shared<VxHWSelectionHandler>();
    selection->VxHWStation(station);
    view.Style(vxStyleHWConfig);
    view.VxHWStation(station);
    view.VxHWSelectionHandler(selection);
    view.VxHWDragDropController(std::make_shared<VxHWConfigROCtrlDD>());
    view.Refresh();
}

} // namespace quillon_ed
