#include "tests/support/StationStage.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"

// Every operation of the configuration mode is run again and again, and each time another one of the calls that it
// makes to the model and the host fails.

namespace zqbchwcx::testing {
namespace {

/// Configuration mode as a host sets it up: a station with some modules, two views, and the manager between them.
class ConfigWorld : public StationStage {
public:
    explicit ConfigWorld(bool bReadOnly = false, std::int32_t lDisplayMode = vxDisplayModeOffline)
    {
        station->readOnly = bReadOnly;
        station->displayMode = lDisplayMode;
        station->Put(0, 2, "A")->hasParamDialog = true;
        station->Put(0, 3, "B");
        station->Put(0, 5, "W", 3);
    }

    void Initialize()
    {
        manager = std::make_shared<VxHWConfigManager>();
        manager->Initialize(vxStationTypeCentral, overview, table, station);
        handler = manager->VxHWSelectionHandler();
    }
    // As views do, the caller keeps the controller for the call. All throw VxError when the mode has ended.
    IVxHWMouseInputControllerPtr Mouse() const
    {
        return G_Require(overview->VxHWMouseInputController(), "The mouse controller");
    }
    IVxHWKeyInputControllerPtr Key() const
    {
        return G_Require(overview->VxHWKeyInputController(), "The key controller");
    }
    IVxHWDragDropControllerPtr DragDrop() const
    {
        return G_Require(overview->VxHWDragDropController(), "The drag-and-drop controller");
    }

    /// Selects place 2, which holds module A, and place 3, which holds B; the focus is on the first.
    void SelectTwoModules()
    {
        FocusAndAnchor(4, 4);
        Select({{0, 2}, {0, 3}});
    }
    /// Selects a member of the module W, which spans the places 5 to 7.
    void SelectMember()
    {
        handler->FocusPosition(12);
        Select({{0, 6}});
    }
    void StartDrag(std::int32_t lPosition) const
    {
        std::int32_t lEffect = 0;
        DragDrop()->OLEStartDrag(data, lEffect);
        DragDrop()->OLESetData(data, FakeExchangeData::Format);
        Over(lPosition, vxDragEnter);
    }
    void Over(std::int32_t lPosition, std::int16_t nState) const
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        DragDrop()->OLEDragOver(lPosition, data, lEffect, vxButtonLeft, 0, nState);
    }
    void Drop(std::int32_t lPosition, std::int16_t nShift) const
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        DragDrop()->OLEDragDrop(lPosition, data, lEffect, vxButtonLeft, nShift);
    }
    void Complete() const
    {
        std::int32_t lEffect = vxDropEffectMove;
        DragDrop()->OLECompleteDrag(lEffect);
    }
    std::shared_ptr<VxHWConfigManager> manager;
};

enum Trait : unsigned {
    ReadOnlyOnline = 1,
    ReadOnlyOffline = 2,
    MayLeaveDrawingOff = 4,
    /// The operation connects or disconnects the world, so the next event comes after connecting it anew.
    IsConnection = 8,
    EndsDrag = 16,
    /// Whatever fails, every module is still in the station or on the clipboard.
    KeepsModules = 32,
};

using Step = std::function<void(ConfigWorld&)>;

struct Scenario {
    const char* name;
    Step prepare;
    Step operate;
    unsigned traits = 0;

    bool Has(Trait trait) const { return (traits & trait) != 0; }
};

void PrintTo(const Scenario& scenario, std::ostream* stream)
{
    *stream << scenario.name;
}

void DragOverPlaceNine(ConfigWorld& world)
{
    world.SelectTwoModules();
    world.StartDrag(18);
}

Step Click(std::int32_t lPosition, std::int16_t nShift = 0)
{
    return [=](ConfigWorld& world) {
        world.Mouse()->MouseDown(lPosition, vxButtonLeft, nShift);
        world.Mouse()->MouseUp(lPosition, vxButtonLeft, nShift);
    };
}

Step Key(void (IVxHWKeyInputController::*command)() noexcept)
{
    return [=](ConfigWorld& world) { (*world.Key().*command)(); };
}

Step Cursor(std::int32_t lPosition, std::int16_t nShift = 0)
{
    return [=](ConfigWorld& world) { world.Key()->CursorKeyDown(lPosition, nShift); };
}

Step Space(std::int16_t nShift)
{
    return [=](ConfigWorld& world) { world.Key()->SpaceKeyDown(nShift); };
}

Step Drop(std::int32_t lPosition, std::int16_t nShift = 0)
{
    return [=](ConfigWorld& world) { world.Drop(lPosition, nShift); };
}

Step Insert(std::int32_t lPlaceCount)
{
    return [=](ConfigWorld& world) {
        auto module = world.station->MakeModule("M");
        module->subModuleCount = 1;
        module->placeCount = lPlaceCount;
        world.manager->SetSingleModuleToCurPos(module);
    };
}

std::vector<Scenario> Scenarios()
{
    constexpr std::int16_t Shift = vxShiftMask;
    constexpr std::int16_t Ctrl = vxCtrlMask;
    using Keys = IVxHWKeyInputController;
    const Step nothing = [](ConfigWorld&) {};
    const Step twoModules = &ConfigWorld::SelectTwoModules;
    const Step member = &ConfigWorld::SelectMember;
    const Step initialize = &ConfigWorld::Initialize;
    return {
        {"ClickOutside", twoModules, Click(-1)},
        {"ClickOnPlace", twoModules, Click(4)},
        {"ClickOnOtherPlace", twoModules, Click(10)},
        {"ClickOnGap", twoModules, Click(5)},
        {"ClickOnRack", twoModules, Click(1000)},
        {"ShiftClick", twoModules, Click(1008, Shift)},
        {"CtrlClickOnSelected", twoModules, Click(6, Ctrl)},
        {"CtrlClickInOtherRack", twoModules, Click(1006, Ctrl)},
        {"CtrlClickOnGap", twoModules, Click(1007, Ctrl)},
        {"DoubleClick", nothing, [](ConfigWorld& world) { world.Mouse()->DblClick(4); }},
        {"Cursor", twoModules, Cursor(8)},
        {"ShiftCursor", twoModules, Cursor(8, Shift)},
        {"CursorOnline", twoModules, Cursor(8), ReadOnlyOnline},
        {"Space", twoModules, Space(0)},
        {"ShiftSpace", twoModules, Space(Shift)},
        {"CtrlSpace", twoModules, Space(Ctrl)},
        {"Delete", member, Key(&Keys::Delete)},
        {"Cut", member, Key(&Keys::Cut), KeepsModules},
        {"Copy", member, Key(&Keys::Copy)},
        {"CopyOffline", twoModules, Key(&Keys::Copy), ReadOnlyOffline},
        {"Paste",
         [](ConfigWorld& world) {
             world.SelectTwoModules();
             world.Key()->Copy();
             world.Key()->CursorKeyDown(18, 0);
         },
         Key(&Keys::Paste)},
        {"KeyReturn", twoModules, Key(&Keys::KeyReturn)},
        {"KeyReturnOnline", twoModules, Key(&Keys::KeyReturn), ReadOnlyOnline},
        {"IsValidDragPosition", twoModules, [](ConfigWorld& world) { world.DragDrop()->IsValidDragPosition(5); }},
        {"DragIntoView", member, [](ConfigWorld& world) { world.StartDrag(18); }},
        {"DragOver", DragOverPlaceNine, [](ConfigWorld& world) { world.Over(1006, vxDragOver); }},
        {"IsDropPlace", DragOverPlaceNine,
         [](ConfigWorld& world) { world.DragDrop()->IsDropPlace(world.station->Place(0, 9)); }},
        {"DragOutOfView", DragOverPlaceNine,
         [](ConfigWorld& world) {
             world.Over(18, vxDragLeave);
             world.services.toolkit->clock.Advance(20);
         }},
        {"DropMove", DragOverPlaceNine, Drop(18), EndsDrag},
        {"DropCopy", DragOverPlaceNine, Drop(1008, Ctrl), EndsDrag},
        {"DropOnRack", DragOverPlaceNine, Drop(1000), EndsDrag},
        {"CompleteMove", DragOverPlaceNine, &ConfigWorld::Complete},
        {"DragAndDrop", twoModules,
         [](ConfigWorld& world) {
             world.StartDrag(18);
             world.Drop(18, 0);
             world.Complete();
         },
         KeepsModules},
        {"SelectRack", nothing, [](ConfigWorld& world) { world.handler->SelectRack(world.station->Rack(1)); }},
        {"IsParentModuleSelected", member,
         [](ConfigWorld& world) { world.handler->IsParentModuleSelected(world.station->Module(0, 6)->parent); }},
        {"IsModuleInFocus", twoModules, [](ConfigWorld& world) { world.handler->IsModuleInFocus(); }},
        {"InsertModule", Cursor(8), Insert(0), MayLeaveDrawingOff},
        {"InsertModuleAtGap", Cursor(17), Insert(2), MayLeaveDrawingOff},
        {"Initialize", nothing, initialize, IsConnection},
        {"InitializeOnline", nothing, initialize, IsConnection | ReadOnlyOnline},
        {"InitializeOffline", nothing, initialize, IsConnection | ReadOnlyOffline},
        {"Terminate", nothing, [](ConfigWorld& world) { world.manager->Terminate(); }, IsConnection},
    };
}

std::unique_ptr<ConfigWorld> MakeWorld(const Scenario& scenario)
{
    const bool bOnline = scenario.Has(ReadOnlyOnline);
    auto world = std::make_unique<ConfigWorld>(bOnline || scenario.Has(ReadOnlyOffline),
                                               bOnline ? vxDisplayModeOnline1 : vxDisplayModeOffline);
    world->Initialize();
    scenario.prepare(*world);
    EXPECT_TRUE(world->services.host->reports.empty());
    world->services.Lines().clear();
    world->services.Faults().Restart();
    return world;
}

void ExpectBracketsClosed(const ConfigWorld& world, const Scenario& scenario)
{
    const auto count = [&](std::string_view line) {
        return std::count(world.services.Lines().begin(), world.services.Lines().end(), line);
    };
    EXPECT_EQ(count("DoWaitCursor 1") + count("Pointer hourglass"),
              count("DoWaitCursor -1") + count("Pointer default"));
    EXPECT_EQ(world.services.host->openActions, 0);
    EXPECT_TRUE(world.station->drawable || scenario.Has(MayLeaveDrawingOff));
    EXPECT_TRUE(!scenario.Has(EndsDrag) || world.DragDrop()->State() == vxDragDropStateInactive);
}

void ExpectReport(const ConfigWorld& world)
{
    const auto& reports = world.services.host->reports;
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports.front().number, FaultPoints::InjectedNumber);
    EXPECT_THAT(reports.front().source, ::testing::MatchesRegex("zqbchwcx\\.(VxHW|mdl_)\\w+\\.\\w+"));
}

void ExpectNoModuleLost(const ConfigWorld& world)
{
    const std::string content = world.station->Content();
    const bool bOnClipboard = !world.services.host->clipboard->empty();
    for (const char* order : {"=A", "=B", "=W"}) EXPECT_TRUE(content.find(order) != std::string::npos || bOnClipboard);
}

void ExpectNextEventWorks(ConfigWorld& world, const Scenario& scenario)
{
    world.services.Faults().Restart();
    world.TakeReports();
    if (scenario.Has(IsConnection)) world.Initialize();
    world.Key()->CursorKeyDown(1010, 0);
    EXPECT_EQ(world.Selection(), "1/5");
    EXPECT_EQ(world.handler->FocusPosition(), 1010);
    EXPECT_EQ(world.TakeReports(), Lines{});
}

class EveryCall : public ::testing::TestWithParam<Scenario> {};

TEST_P(EveryCall, MayFail)
{
    const Scenario& scenario = GetParam();
    const auto undisturbed = MakeWorld(scenario);
    scenario.operate(*undisturbed);
    const std::int32_t lCalls = undisturbed->services.Faults().Count();
    EXPECT_EQ(undisturbed->TakeReports(), Lines{});
    ASSERT_GT(lCalls, 0);
    for (std::int32_t lCall = 1; lCall <= lCalls && !HasFailure(); ++lCall) {
        const auto world = MakeWorld(scenario);
        world->services.Faults().ThrowAt(lCall);
        scenario.operate(*world);
        const std::string call = world->services.Faults().Thrown();
        SCOPED_TRACE("call " + std::to_string(lCall) + ": " + call);
        ASSERT_FALSE(call.empty());
        ExpectBracketsClosed(*world, scenario);
        // Without the host application the wait cursor is the screen's, which is nobody's error.
        if (call != "ObjectLookup.Create") ExpectReport(*world);
        if (scenario.Has(KeepsModules)) ExpectNoModuleLost(*world);
        ExpectNextEventWorks(*world, scenario);
    }
}

TEST_P(EveryCall, MayAnswerNothing)
{
    const Scenario& scenario = GetParam();
    const auto undisturbed = MakeWorld(scenario);
    scenario.operate(*undisturbed);
    const std::int32_t lCalls = undisturbed->services.Faults().Count();
    for (std::int32_t lCall = 1; lCall <= lCalls && !HasFailure(); ++lCall) {
        const auto world = MakeWorld(scenario);
        world->services.Faults().NothingAt(lCall);
        scenario.operate(*world);
        SCOPED_TRACE("call " + std::to_string(lCall) + ": " + world->services.Faults().Thrown());
        ExpectBracketsClosed(*world, scenario);
        ExpectNextEventWorks(*world, scenario);
    }
}

TEST_P(EveryCall, MayEndTheMode)
{
    const Scenario& scenario = GetParam();
    const auto undisturbed = MakeWorld(scenario);
    scenario.operate(*undisturbed);
    const std::int32_t lCalls = undisturbed->services.Faults().Count();
    for (std::int32_t lCall = 1; lCall <= lCalls && !HasFailure(); ++lCall) {
        const auto world = MakeWorld(scenario);
        world->services.Faults().RunAt(lCall, [&] { world->manager->Terminate(); });
        try {
            scenario.operate(*world);
        } catch (const VxError&) { // NOLINT(bugprone-empty-catch): a later step of it finds the mode ended
        }
        SCOPED_TRACE("call " + std::to_string(lCall) + ": " + world->services.Faults().Thrown());
        world->services.Faults().Restart();
        world->manager->Terminate();
        world->services.toolkit->clock.Advance(20);
        world->TakeReports();
        world->Initialize();
        ExpectNextEventWorks(*world, scenario);
    }
}

INSTANTIATE_TEST_SUITE_P(Config, EveryCall, ::testing::ValuesIn(Scenarios()),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace zqbchwcx::testing
