#include "app/window/DiagnosticsView.h"

#include "app/document/Document.h"
#include "app/plant/PlantSession.h"
#include "app/window/ModuleList.h"
#include "app/window/RackBadges.h"
#include "app/window/StationViews.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/qt/DiagPanelWidget.h"
#include "zqbchwcx/reference/model/contract/RackPlace.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"
#include "zqbchwcx/views/overview/OverviewControl.h"
#include "zqbchwcx/views/table/TableControl.h"

#include <algorithm>
#include <map>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr std::string_view ClassName = "DiagnosticsView";

template <class View>
void RefreshPlaceOf(const std::shared_ptr<IVxHWControl>& view, const VxHWRackPlacePtr& place)
{
    if (const auto control = std::dynamic_pointer_cast<View>(view)) control->RefreshPlace(place);
}

/// The places that the modules of the items fill.
std::map<reference::PlaceRef, VxHWRackPlacePtr> PlacesOf(const reference::Station& station,
                                                         const std::vector<reference::PlantItem>& items)
{
    std::map<reference::PlaceRef, VxHWRackPlacePtr> places;
    for (const reference::PlantItem& item : items) {
        const VxHWRackPlacePtr first = station.PlaceAt(item.place);
        places.emplace(item.place, first);
        if (first->Module()->IndexInParent() <= 0) continue;
        for (const VxHWRackPlacePtr& place : station.ParentModulePlaces(first->Module()->ParentModule()))
            places.emplace(reference::RefOf(place), place);
    }
    return places;
}

} // namespace

DiagnosticsView::DiagnosticsView(Document& document, PlantSession& session, QWidget* parent)
    : StationView(document, parent), moSession(session), moManager(std::make_unique<VxHWDiagManager>())
{
    const reference::StationPtr& station = document.Station();
    auto* panel = new qt::DiagPanelWidget(this);
    moPanel = panel->Control();
    moManager->Initialize(static_cast<VxEnumStationType>(station->StationKind()), Views().Overview(), Views().Table(),
                          moPanel, station, session.Service());
    moPanel->Refresh();
    Show(moManager->VxHWSelectionHandler(), panel);
    if (const auto overview = std::dynamic_pointer_cast<OverviewControl>(Views().Overview());
        overview && station->StationKind() == vxStationKindCentral)
        moBadges = std::make_unique<RackBadges>(overview, *Views().OverviewWidget(), session);
    moChanged = session.Changed.Connect([this](const reference::PlantChange& change) { TakeChange(change); });
}

DiagnosticsView::~DiagnosticsView()
{
    moChanged = {};
    moManager->Terminate();
}

void DiagnosticsView::Refresh()
{
    moManager->Refresh();
}

void DiagnosticsView::GoTo(reference::PlaceRef place)
{
    G_Trap(ClassName, "GoTo", [&] {
        const std::int32_t position = G_PlacePosition(place.rack, place.place);
        Handler()->ShiftSelPosition(position);
        Handler()->FocusPosition(position);
    });
    FocusStation();
}

void DiagnosticsView::TakeChange(const reference::PlantChange& change)
{
    const auto isOfHead = [](const reference::RegisterValue& value) {
        return value.address < reference::MapHead::FirstItem && value.address != reference::MapHead::ChangeCounter;
    };
    // What is told of the controller as a whole is shown at every place of a controller, and in the panel.
    if (change.connection || std::ranges::any_of(change.registers, isOfHead)) RefreshAll();
    else RefreshPlaces(change.items);
    if (moBadges) moBadges->Update();
    emit selectionChanged();
}

void DiagnosticsView::RefreshAll()
{
    Views().Overview()->Refresh();
    Views().Table()->Refresh();
    moPanel->Refresh();
}

void DiagnosticsView::RefreshPlaces(const std::vector<reference::PlantItem>& items)
{
    G_Trap(ClassName, "RefreshPlaces", [&] {
        const reference::Station& station = *CurrentDocument().Station();
        const PositionInfo focus = G_PositionInfo(Handler()->FocusPosition());
        for (const auto& [ref, place] : PlacesOf(station, items)) {
            RefreshPlaceOf<OverviewControl>(Views().Overview(), place);
            RefreshPlaceOf<TableControl>(Views().Table(), place);
            if (focus.lRack == ref.rack && focus.lNumber == ref.place) moPanel->Refresh();
        }
    });
}

} // namespace quillon_ed
