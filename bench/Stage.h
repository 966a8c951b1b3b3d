#pragma once

#include "app/host/AppServices.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/qt/RackTableRIOWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"
#include "zqbchwcx/views/shared/QuietView.h"

#include <QCoreApplication>
#include <QSettings>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace quillon_ed::bench {

/// A full station of four racks.
struct CentralStage {
    using Overview = zqbchwcx::qt::RackOverviewWidget;
    using Table = zqbchwcx::qt::RackTableWidget;
    static constexpr const char* Example = "packaging-line";
    static constexpr zqbchwcx::VxEnumStationType Type = zqbchwcx::vxStationTypeCentral;
    static constexpr QSize OverviewSize{262, 392};
    static constexpr QSize TableSize{640, 206};
};

/// A full station of 64 places on a rail.
struct DistributedStage {
    using Overview = zqbchwcx::qt::RackOverviewRIOWidget;
    using Table = zqbchwcx::qt::RackTableRIOWidget;
    static constexpr const char* Example = "strip-mill-cooling";
    static constexpr zqbchwcx::VxEnumStationType Type = zqbchwcx::vxStationTypeDistributed1;
    static constexpr QSize OverviewSize{258, 414};
    static constexpr QSize TableSize{640, 414};
};

/// A station in an overview, or beside its table, too, wired as in the program.
template <class Kind>
class StageOf {
public:
    enum class Views { Overview, Both };
    using Change = std::function<void(zqbchwcx::reference::StationData&)>;

    /// The example, or what the function makes of it.
    explicit StageOf(Views views = Views::Overview, const Change& change = {})
        : mSettings(mDirectory.filePath("settings.ini"), QSettings::IniFormat), mServices(mSettings),
          mStation(std::make_shared<zqbchwcx::reference::Station>(mServices.Context(), Load(change)))
    {
        std::shared_ptr<zqbchwcx::IVxHWControl> table = std::make_shared<zqbchwcx::QuietView>();
        if (views == Views::Both) {
            mTable = std::make_unique<typename Kind::Table>(&mWindow);
            mTable->setGeometry(OverviewSize.width(), 0, TableSize.width(), TableSize.height());
            table = mTable->Control();
        }
        mWidget.setGeometry(QRect({}, OverviewSize));
        mManager.Initialize(Kind::Type, mWidget.Control(), table, mStation);
        mWidget.Control()->Refresh();
        table->Refresh();
    }
    ~StageOf() { mManager.Terminate(); }
    StageOf(const StageOf&) = delete;
    StageOf& operator=(const StageOf&) = delete;

    zqbchwcx::reference::Station& Station() { return *mStation; }
    const zqbchwcx::reference::StationPtr& StationPtr() const { return mStation; }
    auto& View() { return *mWidget.Control(); }
    auto& Table() { return *mTable->Control(); }
    zqbchwcx::qt::GridWidget& Grid() { return *mTable->template findChild<zqbchwcx::qt::GridWidget*>(); }
    /// A window of the overview.
    template <class Widget>
    Widget& InOverview(const char* name)
    {
        return *mWidget.template findChild<Widget*>(QString::fromLatin1(name));
    }
    /// Shows the views and lets them paint whatever has changed.
    void Show()
    {
        mWindow.resize(OverviewSize.width() + TableSize.width(), OverviewSize.height());
        mWindow.show();
        QCoreApplication::processEvents();
    }
    void Focus(std::int32_t lPosition) { mManager.VxHWSelectionHandler()->FocusPosition(lPosition); }
    void ChangePlace() { mStation->RackPlaceChange.Raise(mStation->PlaceAt({0, 5})); }
    /// The name of the picture of the place's module; the other one for an empty place or another picture.
    std::string PictureOf(std::int32_t lRack, std::int32_t lPlace, const char* empty, const char* other)
    {
        const auto module = mStation->PlaceAt({lRack, lPlace})->Module();
        const std::string name = module->IsEmpty() ? empty : module->PictureName();
        return name.starts_with("IDB_") ? name : other;
    }

    static constexpr QSize OverviewSize = Kind::OverviewSize;
    static constexpr QSize TableSize = Kind::TableSize;

private:
    zqbchwcx::reference::StationData Load(const Change& change)
    {
        const auto file = std::string(QUILLON_SOURCE_DIR "/examples/") + Kind::Example + ".station.json";
        auto data = zqbchwcx::reference::LoadStation(file, mServices.Catalogue()).data;
        if (change) change(data);
        return data;
    }

    QTemporaryDir mDirectory;
    QSettings mSettings;
    quillon_ed::AppServices mServices;
    zqbchwcx::reference::StationPtr mStation;
    QWidget mWindow;
    typename Kind::Overview mWidget{&mWindow};
    std::unique_ptr<typename Kind::Table> mTable;
    zqbchwcx::VxHWConfigManager mManager;
};

using Stage = StageOf<CentralStage>;

} // namespace quillon_ed::bench
