#include "managers/VxHWConfigManager.h"

#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigManager : public StationFixture {
protected:
    ConfigManager() { handler = nullptr; }

    /// The manager makes a handler of its own, which the fixture's checks then look at.
    void Initialize()
    {
        manager->Initialize(vxStationTypeDistributed2, overview, table, station);
        handler = manager->VxHWSelectionHandler();
    }
    Lines Registered() const
    {
        Lines classes;
        for (const auto& [lId, category] : services.host->live) classes.push_back(category.second);
        return classes;
    }

    std::shared_ptr<VxHWConfigManager> manager = std::make_shared<VxHWConfigManager>();
};

TEST_F(ConfigManager, ConnectsViewsThenStartsConfiguration)
{
    services.Lines().clear();
    Initialize();
    EXPECT_THAT(TakeLines(), ElementsAre("Register VxHWSelectionHandler", "Register VxHWConfigCtrlMouse",
                                         "Register VxHWConfigCtrlKey", "Open zqhwuim", "Register VxHWConfigCtrlDD",
                                         "overview.StationType 2", "overview.Style 1", "overview.VxHWStation set",
                                         "overview.VxHWSelectionHandler set", "overview.VxHWMouseInputController set",
                                         "overview.VxHWKeyInputController set", "overview.VxHWDragDropController set",
                                         "table.StationType 2", "table.Style 1", "table.VxHWStation set",
                                         "table.VxHWSelectionHandler set", "table.VxHWMouseInputController set",
                                         "table.VxHWKeyInputController set", "table.VxHWDragDropController set",
                                         "StartConfiguration"));
}

TEST_F(ConfigManager, FocusesAndSelectsTheFirstUsablePlaceOfRackZero)
{
    station->Place(0, 1)->usability = vxPlaceNotUsable;
    station->Place(0, 2)->usability = vxPlaceInactive;
    Initialize();
    EXPECT_EQ(Marks(), "0/2 | 4 | 4");
    EXPECT_TRUE(handler->SelPlacesArray().Get(0, 2));
}

TEST_F(ConfigManager, ReportsARackWithoutUsablePlaces)
{
    for (const auto& place : station->Rack(0)->places->members) place->usability = vxPlaceNotUsable;
    Initialize();
    EXPECT_EQ(Marks(), " | 0 | 0");
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWConfigManager.P_InitSelection"));
}

TEST_F(ConfigManager, ChoosesTheControllersByTheState)
{
    struct Case {
        bool bReadOnly;
        std::int32_t lDisplayMode;
        const char* sMouse;
        const char* sKey;
        const char* sDragDrop;
    };
    for (const Case& c : {Case{false, 0, "VxHWConfigCtrlMouse", "VxHWConfigCtrlKey", "VxHWConfigCtrlDD"},
                          Case{false, 2, "VxHWConfigCtrlMouse", "VxHWConfigCtrlKey", "VxHWConfigCtrlDD"},
                          Case{true, 0, "VxHWConfigROCtrlMouse", "VxHWConfigROOfflineCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 1, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 2, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"}}) {
        station->readOnly = c.bReadOnly;
        station->displayMode = c.lDisplayMode;
        Initialize();
        EXPECT_THAT(Registered(),
                    ElementsAre("VxHWConfigManager", "VxHWSelectionHandler", c.sMouse, c.sKey, c.sDragDrop));
        manager->Terminate();
        handler = nullptr;
    }
}

TEST_F(ConfigManager, TerminateDisconnectsAndDropsEverything)
{
    Initialize();
    const auto oDragDrop = overview->dragDrop;
    services.Lines().clear();
    manager->Terminate();
    EXPECT_THAT(TakeLines(),
                ElementsAre("overview.VxHWStation nothing", "overview.VxHWSelectionHandler nothing",
                            "overview.VxHWMouseInputController nothing", "overview.VxHWKeyInputController nothing",
                            "overview.VxHWDragDropController nothing", "table.VxHWStation nothing",
                            "table.VxHWSelectionHandler nothing", "table.VxHWMouseInputController nothing",
                            "table.VxHWKeyInputController nothing", "table.VxHWDragDropController nothing",
                            "Unregister VxHWConfigCtrlMouse", "Release zqhwuim", "Unregister VxHWConfigCtrlKey"));
    EXPECT_EQ(dynamic_cast<const IVxHWController&>(*oDragDrop).VxHWStation(), nullptr);
    EXPECT_EQ(manager->VxHWSelectionHandler(), nullptr);
    EXPECT_TRUE(handler->SelPlacesArray().IsEmpty());
    EXPECT_EQ(station.use_count(), 1);
}

TEST_F(ConfigManager, BothViewsAreToldOfADragUntilTheModeTerminates)
{
    Initialize();
    station->Put(0, 1, "A");
    std::int32_t lEffect = 0;
    const auto oDragDrop = overview->dragDrop;
    oDragDrop->OLEStartDrag(data, lEffect);
    oDragDrop->OLEDragOver(8, data, lEffect, vxButtonLeft, 0, vxDragEnter);
    EXPECT_THAT(TakeLines(), ::testing::IsSupersetOf({"overview.StateChange from 0", "table.StateChange from 0"}));
    oDragDrop->OLEDragOver(8, data, lEffect, vxButtonLeft, 0, vxDragLeave);
    manager->Terminate();
    services.Lines().clear();
    services.toolkit->clock.Advance(20);
    EXPECT_EQ(oDragDrop->State(), vxDragDropStateInactive);
    EXPECT_THAT(TakeLines(), IsEmpty());
}

TEST_F(ConfigManager, ForwardsTheCommandsToTheKeyController)
{
    Initialize();
    station->Put(0, 1, "A")->hasParamDialog = true;
    services.Lines().clear();
    const auto actions = [&] {
        Lines begun;
        for (const auto& line : TakeLines())
            if (line.starts_with("Begin") || line.starts_with("Open")) begun.push_back(line);
        return begun;
    };
    manager->EditModuleParams();
    manager->Copy();
    manager->Cut();
    manager->Paste();
    manager->Delete();
    EXPECT_THAT(actions(), ElementsAre("BeginUserAction T4006", "OpenModuleParamDialog 0/1", "BeginUserAction T4004",
                                       "BeginUserAction T4003", "BeginUserAction T4005", "BeginUserAction T4002"));
}

TEST_F(ConfigManager, PlacesASingleModuleOnEverySelectedPlaceThatTakesIt)
{
    Initialize();
    station->Put(0, 3, "B");
    Select({{0, 2}, {0, 3}, {1, 4}});
    handler->FocusPosition(9);
    services.Lines().clear();
    EXPECT_TRUE(manager->SetSingleModuleToCurPos(station->MakeModule("M")));
    EXPECT_THAT(TakeLines(),
                ElementsAre("PrepareModule M", "IsDrawable False", "CanBePlaced 4 [M] copy nothing",
                            "PlaceModules 4 [M]", "CanBePlaced 6 [M] copy nothing", "CanBePlaced 1008 [M] copy nothing",
                            "PlaceModules 1008 [M]", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/2=M 0/3=B 1/4=M");
    EXPECT_EQ(Marks(), "0/2 0/3 1/4 | 9 | 2") << "selection and focus stay";
    Select({{0, 3}});
    EXPECT_FALSE(manager->SetSingleModuleToCurPos(station->MakeModule("M")));
    EXPECT_EQ(station->Content(), "0/2=M 0/3=B 1/4=M");
}

TEST_F(ConfigManager, PlacesAtTheFocusWhenNothingIsSelected)
{
    Initialize();
    Select({});
    handler->FocusPosition(7);
    services.Lines().clear();
    auto module = station->MakeModule("M");
    module->subModuleCount = 2;
    EXPECT_TRUE(manager->SetSingleModuleToCurPos(module));
    EXPECT_THAT(TakeLines(), ::testing::IsSupersetOf({"CreateSubModules M", "PlaceModules 7 [M]"}));
    handler->FocusPosition(12);
    EXPECT_TRUE(manager->SetSingleModuleToCurPos(module));
    EXPECT_EQ(module->subModules->members.size(), 2U) << "created once";
}

TEST_F(ConfigManager, PlacesAModuleOfSeveralPlacesWithItsMembers)
{
    Initialize();
    auto module = station->MakeModule("W");
    module->placeCount = 2;
    module->subModuleCount = 1;
    Select({{1, 4}});
    services.Lines().clear();
    EXPECT_TRUE(manager->SetSingleModuleToCurPos(module));
    EXPECT_THAT(TakeLines(),
                ElementsAre("PrepareModule W", "ExpandModule W", "CreateSubModules W", "IsDrawable False",
                            "CanBePlaced 1008 [W W] copy nothing", "PlaceModules 1008 [W W]", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "1/4=W 1/5=W");
}

TEST_F(ConfigManager, ReportsCommandsOutsideOfItsConnection)
{
    manager->Delete();
    manager->EditModuleParams();
    EXPECT_FALSE(manager->SetSingleModuleToCurPos(station->MakeModule("M")));
    manager->Terminate();
    manager->Initialize(vxStationTypeCentral, nullptr, table, station);
    manager->Initialize(vxStationTypeCentral, overview, table, nullptr);
    EXPECT_THAT(TakeReports(),
                ElementsAre("zqbchwcx.VxHWConfigManager.Delete", "zqbchwcx.VxHWConfigManager.EditModuleParams",
                            "zqbchwcx.VxHWConfigManager.SetSingleModuleToCurPos",
                            "zqbchwcx.VxHWConfigManager.Terminate", "zqbchwcx.VxHWConfigManager.Initialize",
                            "zqbchwcx.VxHWConfigManager.Initialize"));
}

} // namespace
} // namespace zqbchwcx::testing
