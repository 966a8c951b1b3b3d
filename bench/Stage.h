#pragma once

#include "app/host/AppServices.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/shared/QuietView.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <string>

namespace quillon_ed::bench {

/// The station in an overview, or beside its table, too, wired as in the program.
class Stage {
public:
    enum class Views { Overview, Both };

    explicit Stage(Views views = Views::Overview)
        : mSettings(mDirectory.filePath("settings.ini"), QSettings::IniFormat), mServices(mSettings),
          mStation(std::make_shared<zqbchwcx::reference::Station>(
              mServices.Context(),
              zqbchwcx::reference::LoadStation(QUILLON_SOURCE_DIR "/examples/packaging-line.station.json",
                                               mServices.Catalogue())
                  .data))
    {
        std::shared_ptr<zqbchwcx::IVxHWControl> table = std::make_shared<zqbchwcx::QuietView>();
        if (views == Views::Both) {
            mTable = std::make_unique<zqbchwcx::qt::RackTableWidget>(&mWindow);
            mTable->setGeometry(OverviewSize.width(), 0, TableSize.width(), TableSize.height());
            table = mTable->Control();
        }
        mWidget.setGeometry(QRect({}, OverviewSize));
        mManager.Initialize(zqbchwcx::vxStationTypeCentral, mWidget.Control(), table, mStation);
        mWidget.Control()->Refresh();
        table->Refresh();
    }
    ~Stage() { mManager.Terminate(); }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    zqbchwcx::reference::Station& Station() { return *mStation; }
    const zqbchwcx::reference::StationPtr& StationPtr() const { return mStation; }
    zqbchwcx::VxHWRackOverview& View() { return *mWidget.Control(); }
    zqbchwcx::VxHWRackTable& Table() { return *mTable->Control(); }
    zqbchwcx::qt::GridWidget& Grid() { return *mTable->findChild<zqbchwcx::qt::GridWidget*>(); }
    /// Shows the views and lets them paint whatever has changed.
    void Show()
    {
        mWindow.resize(OverviewSize.width() + TableSize.width(), OverviewSize.height());
        mWindow.show();
        QCoreApplication::processEvents();
    }
    void Focus(std::int32_t lPosition) { mManager.VxHWSelectionHandler()->FocusPosition(lPosition); }
    void ChangePlace() { mStation->RackPlaceChange.Raise(mStation->PlaceAt({0, 5})); }
    std::string PictureOf(std::int32_t lRack, std::int32_t lPlace)
    {
        const auto module = mStation->PlaceAt({lRack, lPlace})->Module();
        const std::string name = module->IsEmpty() ? "IDB_CRX_PLACE_ACTIVE" : module->PictureName();
        return name.starts_with("IDB_") ? name : "IDB_CRX_MODULE_DEFAULT";
    }

    static constexpr QSize OverviewSize{262, 392};
    static constexpr QSize TableSize{640, 206};

private:
    QTemporaryDir mDirectory;
    QSettings mSettings;
    quillon_ed::AppServices mServices;
    zqbchwcx::reference::StationPtr mStation;
    QWidget mWindow;
    zqbchwcx::qt::RackOverviewWidget mWidget{&mWindow};
    std::unique_ptr<zqbchwcx::qt::RackTableWidget> mTable;
    zqbchwcx::VxHWConfigManager mManager;
};

} // namespace quillon_ed::bench
