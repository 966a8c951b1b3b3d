#pragma once

#include "tests/support/model/WatchedStation.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

namespace zqbchwcx::testing {

/// A station in two real overviews of configuration mode, not shown yet. The second one stands where the rack table
/// would.
class OverviewStage {
public:
    OverviewStage();
    ~OverviewStage();
    OverviewStage(const OverviewStage&) = delete;
    OverviewStage& operator=(const OverviewStage&) = delete;

    VxHWRackOverview& View() { return *widget->Control(); }
    VxHWSelectionHandler& Selection() { return *manager.VxHWSelectionHandler(); }
    qt::PictureBoxWidget& Main() { return *widget->findChild<qt::PictureBoxWidget*>("pic_Main"); }
    void SelectPlace(std::int32_t lRack, std::int32_t lPlace);

    std::shared_ptr<qt::QtToolkit> toolkit;
    TestServices services;
    WatchedStationPtr station;
    std::unique_ptr<qt::RackOverviewWidget> widget;
    std::unique_ptr<qt::RackOverviewWidget> other;
    VxHWConfigManager manager;
};

} // namespace zqbchwcx::testing
