#include "tests/qt/OverviewStage.h"

#include "zqbchwcx/foundation/PlacePosition.h"

#include <array>

namespace zqbchwcx::testing {
namespace {

/// Four racks with something of everything.
WatchedStationPtr FullStation(const CallLogPtr& log)
{
    auto station = std::make_shared<WatchedStation>(
        log, std::make_shared<reference::Station>(SampleContext(), EmptyStation(vxStationKindCentral, 4)));
    for (std::int32_t lRack = 0; lRack < 3; ++lRack) station->Put(lRack, 3, "IM");
    for (std::int32_t lRack = 0; lRack < 3; ++lRack) station->Put(lRack, 1, "PS");
    station->Put(0, 2, "CPU");
    constexpr std::array Kinds{"IO_DIGITAL",      "IO_ANALOG",  "CPUC",      "CPUM",
                               "DEFAULT",         "DUMMY",      "MERID_CPU", "MERID_IM",
                               "MERID_IO_ANALOG", "IO_DIGITAL", "IO_ANALOG", "MERID_IO_DIGITAL"};
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        station->Put(static_cast<std::int32_t>(i / 7), 4 + static_cast<std::int32_t>(i % 7), Kinds[i]);
    station->Put(2, 4, "IO_DIGITAL3");
    station->Put(2, 9, "MERID_DUMMY");
    station->Usability(2, 8, vxPlaceInactive);
    station->Usability(2, 10, vxPlaceNotUsable);
    station->Usability(2, 11, vxPlaceInactive);
    station->State(3, vxRackNotPresent);
    for (std::int32_t lPlace = 1; lPlace <= 11; ++lPlace) station->Usability(3, lPlace, vxPlaceInactive);
    return station;
}

} // namespace

OverviewStage::OverviewStage()
    : toolkit(std::make_shared<qt::QtToolkit>()), services(SampleContext(), toolkit), station(FullStation(services.log))
{
    for (const auto& name : qt::PictureCatalog::Names())
        services.host->pictures[name] = toolkit->Pictures().Picture(name);
    widget = std::make_unique<qt::RackOverviewWidget>();
    other = std::make_unique<qt::RackOverviewWidget>();
    widget->resize(widget->sizeHint());
    manager.Initialize(vxStationTypeCentral, widget->Control(), other->Control(), station);
    View().Refresh();
}

OverviewStage::~OverviewStage()
{
    manager.Terminate();
}

void OverviewStage::SelectPlace(std::int32_t lRack, std::int32_t lPlace)
{
    const std::int32_t lPosition = G_PlacePosition(lRack, lPlace);
    Selection().SelPlaces()->Clear();
    Selection().SelectRange(lPosition, lPosition);
    Selection().SelChangeComplete();
    Selection().FocusPosition(lPosition);
}

} // namespace zqbchwcx::testing
