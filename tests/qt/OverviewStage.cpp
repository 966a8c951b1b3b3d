#include "tests/qt/OverviewStage.h"

#include "zqbchwcx/foundation/PlacePosition.h"

#include <array>

namespace zqbchwcx::testing {
namespace {

void PutPictured(FakeStation& station, std::int32_t lRack, std::int32_t lPlace, std::string_view picture,
                 std::int32_t lPlaceCount = 0)
{
    station.Put(lRack, lPlace, std::string(picture), lPlaceCount);
    for (std::int32_t i = 0; i < std::max(lPlaceCount, 1); ++i)
        station.Module(lRack, lPlace + i)->pictureName = "IDB_CRX_MODULE_" + std::string(picture);
}

/// Four racks with something of everything.
FakeStationPtr FullStation(const CallLogPtr& log)
{
    auto station = std::make_shared<FakeStation>(log, 4, 11);
    for (std::int32_t lRack = 0; lRack < 3; ++lRack) PutPictured(*station, lRack, 3, "IM");
    for (std::int32_t lRack = 0; lRack < 3; ++lRack) PutPictured(*station, lRack, 1, "PS");
    PutPictured(*station, 0, 2, "CPU");
    constexpr std::array<std::string_view, 12> Kinds{"IO_DIGITAL",      "IO_ANALOG",  "CPUC",      "CPUM",
                                                     "DEFAULT",         "DUMMY",      "MERID_CPU", "MERID_IM",
                                                     "MERID_IO_ANALOG", "IO_DIGITAL", "IO_ANALOG", "MERID_IO_DIGITAL"};
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        PutPictured(*station, static_cast<std::int32_t>(i / 7), 4 + static_cast<std::int32_t>(i % 7), Kinds[i]);
    PutPictured(*station, 2, 4, "IO_DIGITAL", 3);
    PutPictured(*station, 2, 9, "MERID_DUMMY");
    station->Place(2, 8)->usability = 0;
    station->Place(2, 10)->usability = -1;
    station->Place(2, 11)->usability = 0;
    station->Rack(3)->state = 0;
    for (std::int32_t lPlace = 1; lPlace <= 11; ++lPlace) station->Place(3, lPlace)->usability = 0;
    return station;
}

} // namespace

OverviewStage::OverviewStage()
    : toolkit(std::make_shared<qt::QtToolkit>()), services(toolkit), station(FullStation(services.log))
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
