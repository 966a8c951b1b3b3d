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
    bool Insert(const char* orderNumber)
    {
        return manager->SetSingleModuleToCurPos(station->Model().CreateModule(orderNumber));
    }

    std::shared_ptr<VxHWConfigManager> manager = std::make_shared<VxHWConfigManager>();
};

TEST_F(ConfigManager, ConnectsViewsThenStartsConfiguration)
{
    const Lines given = {".StationType 2",
                         ".Style 1",
                         ".VxHWStation set",
                         ".VxHWSelectionHandler set",
                         ".VxHWMouseInputController set",
                         ".VxHWKeyInputController set",
                         ".VxHWDragDropController set"};
    EXPECT_EQ(LinesOf([&] { Initialize(); }),
              Joined({{"Register VxHWSelectionHandler", "Register VxHWConfigCtrlMouse", "Register VxHWConfigCtrlKey",
                       "Open zqhwuim", "Register VxHWConfigCtrlDD"},
                      Prefixed("overview", given),
                      Prefixed("table", given),
                      {"StartConfiguration"}}));
    for (const auto& view : {overview, table}) {
        EXPECT_EQ(view->VxHWSelectionHandler(), handler);
        EXPECT_TRUE(view->VxHWMouseInputController() && view->VxHWKeyInputController());
        EXPECT_TRUE(view->VxHWDragDropController());
    }
}

TEST_F(ConfigManager, FocusesAndSelectsTheFirstUsablePlaceOfRackZero)
{
    station->Usability(0, 1, vxPlaceNotUsable);
    station->Usability(0, 2, vxPlaceInactive);
    Initialize();
    EXPECT_EQ(Marks(), "0/2 | 4 | 4");
    EXPECT_TRUE(handler->SelPlacesArray().Get(0, 2));
    for (std::int32_t lPlace = 1; lPlace <= 11; ++lPlace) station->Usability(0, lPlace, vxPlaceNotUsable);
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
                          Case{true, 0, "VxHWConfigROCtrlMouse", "VxHWConfigROOfflineCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 1, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"},
                          Case{true, 2, "VxHWConfigROCtrlMouse", "VxHWConfigROCtrlKey", "VxHWConfigROCtrlDD"}}) {
        station->Change([&](auto& plain) { plain.readOnly = c.bReadOnly, plain.displayMode = c.lDisplayMode; });
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
    const Lines taken = {".VxHWStation nothing", ".VxHWSelectionHandler nothing", ".VxHWMouseInputController nothing",
                         ".VxHWKeyInputController nothing", ".VxHWDragDropController nothing"};
    EXPECT_EQ(LinesOf([&] { manager->Terminate(); }),
              Joined({Prefixed("overview", taken),
                      Prefixed("table", taken),
                      {"Unregister VxHWConfigCtrlMouse", "Release zqhwuim", "Unregister VxHWConfigCtrlKey"}}))
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
    station->Put(0, 1, "DI");
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
    station->Put(0, 1, "DI");
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
    station->Put(1, 3, "IM");
    Initialize();
    station->Put(0, 5, "DO");
    Select({{0, 4}, {0, 5}, {1, 4}, {1, 11}});
    station->Put(1, 11, "DO");
    handler->FocusPosition(9);
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(Insert("DI")); }),
                ElementsAre("PrepareModule", "IsDrawable False", "CanBePlaced 8 [DI] copy", "PlaceModules 8 [DI]",
                            "CanBePlaced 10 [DI] copy", "CanBePlaced 1008 [DI] copy", "PlaceModules 1008 [DI]",
                            "CanBePlaced 1022 [DI] copy", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/4=DI 0/5=DO 1/3=IM 1/4=DI 1/11=DO");
    EXPECT_EQ(Marks(), "0/4 0/5 1/4 1/11 | 9 | 2") << "selection and focus stay";
    Select({{0, 5}});
    EXPECT_FALSE(Insert("DI"));
}

TEST_F(ConfigManager, PlacesAtTheFocusWhenNothingIsSelected)
{
    Initialize();
    Select({});
    handler->FocusPosition(7);
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(Insert("DI")); }), ::testing::Contains("PlaceModules 7 [DI]"));
}

TEST_F(ConfigManager, PlacesAModuleOfSeveralPlacesWithItsMembersAndItsSubModulesOnce)
{
    Initialize();
    const auto oModule = station->Model().CreateModule("CNT3");
    Select({{0, 4}, {0, 8}});
    EXPECT_THAT(LinesOf([&] { EXPECT_TRUE(manager->SetSingleModuleToCurPos(oModule)); }),
                ElementsAre("PrepareModule", "ExpandModule", "CreateSubModules", "IsDrawable False",
                            "CanBePlaced 8 [CNT3 CNT3 CNT3] copy", "PlaceModules 8 [CNT3 CNT3 CNT3]",
                            "CanBePlaced 16 [CNT3 CNT3 CNT3] copy", "PlaceModules 16 [CNT3 CNT3 CNT3]",
                            "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/4=CNT3 0/5=CNT3 0/6=CNT3 0/8=CNT3 0/9=CNT3 0/10=CNT3");
    EXPECT_EQ(station->Module(0, 8)->SubModules()->Count(), 2);
    EXPECT_THAT(LinesOf([&] { manager->SetSingleModuleToCurPos(oModule); }),
                ::testing::Not(::testing::Contains("CreateSubModules")));
}

TEST_F(ConfigManager, ReportsCommandsOutsideOfItsConnection)
{
    manager->EditModuleParams();
    EXPECT_FALSE(Insert("DI"));
    manager->Terminate();
    manager->Initialize(vxStationTypeCentral, nullptr, table, station);
    manager->Initialize(vxStationTypeCentral, overview, table, nullptr);
    Lines procedures;
    for (const std::string& source : TakeReports()) procedures.push_back(source.substr(source.rfind('.') + 1));
    EXPECT_THAT(procedures,
                ElementsAre("EditModuleParams", "SetSingleModuleToCurPos", "Terminate", "Initialize", "Initialize"));
}

} // namespace
} // namespace zqbchwcx::testing
