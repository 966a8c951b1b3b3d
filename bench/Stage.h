#pragma once

#include "app/host/AppServices.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/shared/QuietView.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <string>

namespace quillon_ed::bench {

/// The station in an overview, wired as in the program.
class Stage {
public:
    Stage()
        : mSettings(mDirectory.filePath("settings.ini"), QSettings::IniFormat), mServices(mSettings),
          mStation(std::make_shared<zqbchwcx::reference::Station>(
              mServices.Context(),
              zqbchwcx::reference::LoadStation(QUILLON_SOURCE_DIR "/examples/packaging-line.station.json",
                                               mServices.Catalogue())
                  .data)),
          mTable(std::make_shared<zqbchwcx::QuietView>())
    {
        mManager.Initialize(zqbchwcx::vxStationTypeCentral, mWidget.Control(), mTable, mStation);
        mWidget.Control()->Refresh();
    }
    ~Stage() { mManager.Terminate(); }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    zqbchwcx::reference::Station& Station() { return *mStation; }
    const zqbchwcx::reference::StationPtr& StationPtr() const { return mStation; }
    zqbchwcx::VxHWRackOverview& View() { return *mWidget.Control(); }
    void Focus(std::int32_t lPosition) { mManager.VxHWSelectionHandler()->FocusPosition(lPosition); }
    void ChangePlace() { mStation->RackPlaceChange.Raise(mStation->PlaceAt({0, 5})); }
    std::string PictureOf(std::int32_t lRack, std::int32_t lPlace)
    {
        const auto module = mStation->PlaceAt({lRack, lPlace})->Module();
        const std::string name = module->IsEmpty() ? "IDB_CRX_PLACE_ACTIVE" : module->PictureName();
        return name.starts_with("IDB_") ? name : "IDB_CRX_MODULE_DEFAULT";
    }

private:
    QTemporaryDir mDirectory;
    QSettings mSettings;
    quillon_ed::AppServices mServices;
    zqbchwcx::reference::StationPtr mStation;
    std::shared_ptr<zqbchwcx::QuietView> mTable;
    zqbchwcx::qt::RackOverviewWidget mWidget;
    zqbchwcx::VxHWConfigManager mManager;
};

} // namespace quillon_ed::bench
