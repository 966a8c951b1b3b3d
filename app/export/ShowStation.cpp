#include "app/export/ShowStation.h"

#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/qt/RackTableRIOWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"

#include <limits>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

bool IsCentral(const VxHWStationPtr& station)
{
    return station->StationKind() == vxStationKindCentral;
}

void Show(IVxHWControl& view, const VxHWStationPtr& station, const PictureContent& content,
          const VxHWSelectionHandlerPtr& selection)
{
    view.StationType(static_cast<VxEnumStationType>(station->StationKind()));
    view.Style(content.diagnostics ? vxStyleHWDiag : vxStyleHWConfig);
    view.VxHWDiagService(content.diagnostics);
    view.VxHWStation(station);
    view.VxHWSelectionHandler(selection);
    view.VxHWDragDropController(std::make_shared<VxHWConfigROCtrlDD>());
    view.Refresh();
}

void ShowAllRows(VxHWRackOverview& /*view*/) {}

void ShowAllRows(VxHWRackOverviewRIO& view)
{
    view.ShowAllRows(true);
    // The table beside it has all its rows, too.
    view.RackTableTopRow(1);
    view.RackTableRowsInView(std::numeric_limits<std::int32_t>::max());
}

template <class View>
std::unique_ptr<OverviewControl> MakeView(UserControl& site, const VxHWStationPtr& station,
                                          const PictureContent& content, const VxHWSelectionHandlerPtr& selection)
{
    auto view = std::make_unique<View>(site);
    ShowAllRows(*view);
    Show(*view, station, content, selection);
    return view;
}

template <class Widget>
std::unique_ptr<Widget> MakeWidget(QSize size)
{
    auto widget = std::make_unique<Widget>();
    widget->resize(size);
    return widget;
}

template <class Widget>
std::unique_ptr<qt::OverviewWidget> MakeOverviewWidget(const VxHWStationPtr& station, const PictureContent& content,
                                                       const VxHWSelectionHandlerPtr& selection, QSize size)
{
    auto widget = MakeWidget<Widget>(size);
    ShowAllRows(*widget->Control());
    Show(*widget->Control(), station, content, selection);
    return widget;
}

} // namespace

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

std::unique_ptr<OverviewControl> MakeOverview(UserControl& site, const VxHWStationPtr& station,
                                              const PictureContent& content, const VxHWSelectionHandlerPtr& selection)
{
    return IsCentral(station) ? MakeView<VxHWRackOverview>(site, station, content, selection)
                              : MakeView<VxHWRackOverviewRIO>(site, station, content, selection);
}

std::unique_ptr<qt::OverviewWidget> MakeOverview(const VxHWStationPtr& station, const PictureContent& content,
                                                 const VxHWSelectionHandlerPtr& selection, QSize size)
{
    return IsCentral(station) ? MakeOverviewWidget<qt::RackOverviewWidget>(station, content, selection, size)
                              : MakeOverviewWidget<qt::RackOverviewRIOWidget>(station, content, selection, size);
}

std::unique_ptr<qt::TableWidget> MakeTable(const VxHWStationPtr& station, const PictureContent& content,
                                           const VxHWSelectionHandlerPtr& selection, QSize size)
{
    std::unique_ptr<qt::TableWidget> table;
    if (IsCentral(station)) {
        auto central = MakeWidget<qt::RackTableWidget>(size);
        Show(*central->Control(), station, content, selection);
        central->Control()->ActiveRack(content.rack);
        table = std::move(central);
    } else {
        auto distributed = MakeWidget<qt::RackTableRIOWidget>(size);
        Show(*distributed->Control(), station, content, selection);
        table = std::move(distributed);
    }
    table->ArrangeForPicture();
    return table;
}

} // namespace quillon_ed
