#include "zqbchwcx/managers/VxHWConfigManager.h"

#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

class ConfigManager : public StationFixture {
protected:
    ConfigManager() { handler = nullptr; }

    /// The manager makes a handler of its own, which the fixture's checks then look at.
    void Initialize()
    {
        manager->Initialize(vxStationTypeDistributed2, overview, table, station);
        handler = manager->VxHWSelectionHandler();
    }
    Lines LinesOf(const std::function<void()>& operation)
    {
        services.Lines().clear();
        operation();
        return TakeLines();
    }
    bool Insert(const FakeModulePtr& module) { return manager->SetSingleModuleToCurPos(module); }

    std::shared_ptr<VxHWConfigManager> manager = std::make_shared<VxHWConfigManager>();
};

TEST_F(ConfigManager, ConnectsViewsThenStartsConfiguration)
{
    for (const auto& view : {overview, table}) view->Style(vxStyleHWCompare);
    EXPECT_THAT(LinesOf([&] { Initialize(); }),
                ElementsAre("Register VxHWSelectionHandler", "Register VxHWConfigCtrlMouse",
                            "Register VxHWConfigCtrlKey", "Open zqhwuim", "Register VxHWConfigCtrlDD",
                            "overview.VxHWStation set", "table.VxHWStation set", "StartConfiguration"));
    for (const auto& view : {overview, table}) {
        EXPECT_EQ(view->StationType(), vxStationTypeDistributed2);
        EXPECT_EQ(view->Style(), vxStyleHWConfig);
        EXPECT_EQ(view->VxHWSelectionHandler(), handler);
        EXPECT_TRUE(view->VxHWMouseInputController() && view->VxHWKeyInputController());
        EXPECT_TRUE(view->VxHWDragDropController());
    }
}

TEST_F(ConfigManager, FocusesAndSelectsTheFirstUsablePlaceOfRackZero)
{
    station->Place(0, 1)->usability = vxPlaceNotUsable;
    station->Place(0, 2)->usability = vxPlaceInactive;
    Initialize();
    EXPECT_EQ(Marks(), "0/2 | 4 | 4");
    EXPECT_TRUE(handler->SelPlacesArray().Get(0, 2));
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
    for (const Case& c : {Case{false, 2, "VxHWConfigCtrlMouse", "VxHWConfigCtrlKey", "VxHWConfigCtrlDD"},
                          Case{true, 0, "VxHWConfigROCtrlMouse", "VxHWConfigROOfflineCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 1, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 2, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"}}) {
        station->readOnly = c.bReadOnly;
        station->displayMode = c.lDisplayMode;
        const auto registered = [](const char* name) { return std::string("Register ") + name; };
        EXPECT_THAT(LinesOf([&] { Initialize(); }),
                    IsSupersetOf({registered(c.sMouse), registered(c.sKey), registered(c.sDragDrop)}));
        manager->Terminate();
        handler = nullptr;
    }
}

TEST_F(ConfigManager, TerminateDisconnectsAndDropsEverything)
{
    Initialize();
    const auto oDragDrop = overview->VxHWDragDropController();
    EXPECT_THAT(LinesOf([&] { manager->Terminate(); }),
                ElementsAre("overview.VxHWStation nothing", "table.VxHWStation nothing",
                            "Unregister VxHWConfigCtrlMouse", "Release zqhwuim", "Unregister VxHWConfigCtrlKey"))
        << "only the held drag and drop controller and the handler live";
    EXPECT_FALSE(overview->VxHWSelectionHandler() || table->VxHWSelectionHandler());
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
    const auto oDragDrop = overview->VxHWDragDropController();
    oDragDrop->OLEStartDrag(data, lEffect);
    oDragDrop->OLEDragOver(8, data, lEffect, vxButtonLeft, 0, vxDragEnter);
    EXPECT_THAT(TakeLines(), IsSupersetOf({"overview.StateChange from 0", "table.StateChange from 0"}));
    oDragDrop->OLEDragOver(8, data, lEffect, vxButtonLeft, 0, vxDragLeave);
    manager->Terminate();
    EXPECT_THAT(LinesOf([&] { services.toolkit->clock.Advance(20); }), IsEmpty());
    EXPECT_EQ(oDragDrop->State(), vxDragDropStateInactive);
}

TEST_F(ConfigManager, ForwardsTheCommandsToTheKeyController)
{
    Initialize();
    station->Put(0, 1, "A")->hasParamDialog = true;
    const std::pair<void (VxHWConfigManager::*)() noexcept, const char*> commands[] = {
        {&VxHWConfigManager::EditModuleParams, "BeginUserAction T4006"},
        {&VxHWConfigManager::Copy, "BeginUserAction T4004"},
        {&VxHWConfigManager::Cut, "BeginUserAction T4003"},
        {&VxHWConfigManager::Paste, "BeginUserAction T4005"},
        {&VxHWConfigManager::Delete, "BeginUserAction T4002"}};
    for (const auto& command : commands)
        EXPECT_EQ(LinesOf([&] { ((*manager).*command.first)(); }).front(), command.second);
}

TEST_F(ConfigManager, PlacesASingleModuleOnEverySelectedPlaceThatTakesIt)
{
    Initialize();
    station->Put(0, 3, "B");
    Select({{0, 2}, {0, 3}, {1, 4}, {1, 11}});
    station->Put(1, 11, "B");
    handler->FocusPosition(9);
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(Insert(station->MakeModule("M"))); }),
                ElementsAre("PrepareModule M", "IsDrawable False", "CanBePlaced 4 [M] copy nothing",
                            "PlaceModules 4 [M]", "CanBePlaced 6 [M] copy nothing", "CanBePlaced 1008 [M] copy nothing",
                            "PlaceModules 1008 [M]", "CanBePlaced 1022 [M] copy nothing", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/2=M 0/3=B 1/4=M 1/11=B");
    EXPECT_EQ(Marks(), "0/2 0/3 1/4 1/11 | 9 | 2") << "selection and focus stay";
    Select({{0, 3}});
    EXPECT_FALSE(Insert(station->MakeModule("M")));
}

TEST_F(ConfigManager, PlacesAtTheFocusWhenNothingIsSelected)
{
    Initialize();
    Select({});
    handler->FocusPosition(7);
    auto module = station->MakeModule("M");
    module->subModuleCount = 2;
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(Insert(module)); }),
                IsSupersetOf({"CreateSubModules M", "PlaceModules 7 [M]"}));
    handler->FocusPosition(12);
    EXPECT_TRUE(Insert(module));
    EXPECT_EQ(module->subModules->members.size(), 2U) << "created once";
}

TEST_F(ConfigManager, PlacesAModuleOfSeveralPlacesWithItsMembers)
{
    Initialize();
    auto module = station->MakeModule("W");
    module->placeCount = 2;
    module->subModuleCount = 1;
    Select({{1, 4}});
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(Insert(module)); }),
                ElementsAre("PrepareModule W", "ExpandModule W", "CreateSubModules W", "IsDrawable False",
                            "CanBePlaced 1008 [W W] copy nothing", "PlaceModules 1008 [W W]", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "1/4=W 1/5=W");
}

TEST_F(ConfigManager, ReportsCommandsOutsideOfItsConnection)
{
    manager->EditModuleParams();
    EXPECT_FALSE(Insert(station->MakeModule("M")));
    manager->Terminate();
    manager->Initialize(vxStationTypeCentral, nullptr, table, station);
    manager->Initialize(vxStationTypeCentral, overview, table, nullptr);
    Initialize();
    const auto module = station->MakeModule("M");
    module->subModuleCount = 2;
    module->subModules = nullptr;
    EXPECT_FALSE(Insert(module));
    Lines procedures;
    for (const std::string& source : TakeReports()) procedures.push_back(source.substr(source.rfind('.') + 1));
    EXPECT_THAT(procedures, ElementsAre("EditModuleParams", "SetSingleModuleToCurPos", "Terminate", "Initialize",
                                        "Initialize", "SetSingleModuleToCurPos"));
}

} // namespace
} // namespace zqbchwcx::testing
