#include "app/export/ShowStation.h"

#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

namespace quillon_ed {

using namespace zqbchwcx;

VxHWSelectionHandlerPtr SelectionOf(const VxHWStationPtr& station, const PictureContent& content)
{
    auto selection = std::make_shared<VxHWSelectionHandler>();
    selection->VxHWStation(station);
    if (content.view != PictureView::Both) return selection;
    for (const auto& place : G_RackByNumber(station, content.rack)->Places()) {
        if (place->Usability() == vxPlaceNotUsable) continue;
        selection->FocusPosition(G_PlacePosition(content.rack, place->Number()));
        selection->SelPlaces()->Add(place);
        selection->SelChangeComplete();
        break;
    }
    return selection;
}

void ShowStation(IVxHWControl& view, const VxHWStationPtr& station, const VxHWSelectionHandlerPtr& selection)
{
    view.Style(vxStyleHWConfig);
    view.VxHWStation(station);
    view.VxHWSelectionHandler(selection);
    view.VxHWDragDropController(std::make_shared<VxHWConfigROCtrlDD>());
    view.Refresh();
}

std::unique_ptr<qt::RackTableWidget> MakeTable(const VxHWStationPtr& station, std::int32_t rack,
                                               const VxHWSelectionHandlerPtr& selection, QSize size)
{
    auto table = std::make_unique<qt::RackTableWidget>();
    table->resize(size);
    ShowStation(*table->Control(), station, selection);
    table->Control()->ActiveRack(rack);
    table->WidenColumns();
    return table;
}

} // namespace quillon_ed
