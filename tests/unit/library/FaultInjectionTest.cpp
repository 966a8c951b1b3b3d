#include "tests/unit/library/ConfigWorld.h"

// Every operation of the configuration mode is run again and again, and each time another one of the calls that it
// makes to the model and the host fails.

namespace zqbchwcx::testing {
namespace {

enum class Mode { Editable, ReadOnlyOnline, ReadOnlyOffline };

struct Scenario {
    const char* name;
    std::function<void(ConfigWorld&)> prepare;
    std::function<void(ConfigWorld&)> operate;
    Mode mode = Mode::Editable;
    /// An error may leave the station's drawing switched off.
    bool mayLeaveDrawingOff = false;
    /// The operation connects or disconnects the world, so the next event comes after connecting it anew.
    bool isConnection = false;
    /// Whatever fails, every module is still in the station or on the clipboard.
    bool mustKeepModules = false;
};

void PrintTo(const Scenario& scenario, std::ostream* stream)
{
    *stream << scenario.name;
}

void Nothing(ConfigWorld& /*world*/) {}

void TwoModules(ConfigWorld& world)
{
    world.SelectTwoModules();
}

void Member(ConfigWorld& world)
{
    world.SelectMember();
}

std::function<void(ConfigWorld&)> Click(std::int32_t lPosition, std::int16_t nShift = 0)
{
    return [=](ConfigWorld& world) {
        world.Mouse().MouseDown(lPosition, vxButtonLeft, nShift);
        world.Mouse().MouseUp(lPosition, vxButtonLeft, nShift);
    };
}

std::function<void(ConfigWorld&)> Key(void (IVxHWKeyInputController::*command)() noexcept)
{
    return [=](ConfigWorld& world) { (world.Key().*command)(); };
}

std::function<void(ConfigWorld&)> Cursor(std::int32_t lPosition, std::int16_t nShift)
{
    return [=](ConfigWorld& world) { world.Key().CursorKeyDown(lPosition, nShift); };
}

std::function<void(ConfigWorld&)> Space(std::int16_t nShift)
{
    return [=](ConfigWorld& world) { world.Key().SpaceKeyDown(nShift); };
}

void CopyThenGoToPlaceNine(ConfigWorld& world)
{
    world.SelectTwoModules();
    world.Key().Copy();
    world.Key().CursorKeyDown(18, 0);
}

void DragOverPlaceNine(ConfigWorld& world)
{
    world.SelectTwoModules();
    world.StartDrag(18);
}

std::function<void(ConfigWorld&)> Insert(std::int32_t lPlaceCount)
{
    return [=](ConfigWorld& world) {
        auto module = world.station->MakeModule("M");
        module->subModuleCount = 1;
        module->placeCount = lPlaceCount;
        world.manager->SetSingleModuleToCurPos(module);
    };
}

void Initialize(ConfigWorld& world)
{
    world.Initialize();
}

std::vector<Scenario> Scenarios()
{
    constexpr std::int16_t Shift = vxShiftMask;
    constexpr std::int16_t Ctrl = vxCtrlMask;
    using Keys = IVxHWKeyInputController;
    return {
        {"ClickOutside", TwoModules, Click(-1)},
        {"ClickOnPlace", TwoModules, Click(4)},
        {"ClickOnOtherPlace", TwoModules, Click(10)},
        {"ClickOnGap", TwoModules, Click(5)},
        {"ClickOnRack", TwoModules, Click(1000)},
        {"ShiftClick", TwoModules, Click(1008, Shift)},
        {"CtrlClickOnSelected", TwoModules, Click(6, Ctrl)},
        {"CtrlClickInOtherRack", TwoModules, Click(1006, Ctrl)},
        {"CtrlClickOnGap", TwoModules, Click(1007, Ctrl)},
        {"DoubleClick", Nothing, [](ConfigWorld& world) { world.Mouse().DblClick(4); }},
        {"Cursor", TwoModules, Cursor(8, 0)},
        {"ShiftCursor", TwoModules, Cursor(8, Shift)},
        {"CursorOnline", TwoModules, Cursor(8, 0), Mode::ReadOnlyOnline},
        {"Space", TwoModules, Space(0)},
        {"ShiftSpace", TwoModules, Space(Shift)},
        {"CtrlSpace", TwoModules, Space(Ctrl)},
        {"Delete", Member, Key(&Keys::Delete)},
        {"Cut", Member, Key(&Keys::Cut), Mode::Editable, false, false, true},
        {"Copy", Member, Key(&Keys::Copy)},
        {"CopyOffline", TwoModules, Key(&Keys::Copy), Mode::ReadOnlyOffline},
        {"Paste", CopyThenGoToPlaceNine, Key(&Keys::Paste)},
        {"KeyReturn", TwoModules, Key(&Keys::KeyReturn)},
        {"KeyReturnOnline", TwoModules, Key(&Keys::KeyReturn), Mode::ReadOnlyOnline},
        {"IsValidDragPosition", TwoModules, [](ConfigWorld& world) { world.DragDrop().IsValidDragPosition(5); }},
        {"DragIntoView", Member, [](ConfigWorld& world) { world.StartDrag(18); }},
        {"DragOver", DragOverPlaceNine, [](ConfigWorld& world) { world.Over(1006, vxDragOver); }},
        {"IsDropPlace", DragOverPlaceNine,
         [](ConfigWorld& world) { world.DragDrop().IsDropPlace(world.station->Place(0, 9)); }},
        {"DragOutOfView", DragOverPlaceNine,
         [](ConfigWorld& world) {
             world.Over(18, vxDragLeave);
             world.services.toolkit->clock.Advance(20);
         }},
        {"DropMove", DragOverPlaceNine, [](ConfigWorld& world) { world.Drop(18, 0); }},
        {"DropCopy", DragOverPlaceNine, [](ConfigWorld& world) { world.Drop(1008, vxCtrlMask); }},
        {"DropOnRack", DragOverPlaceNine, [](ConfigWorld& world) { world.Drop(1000, 0); }},
        {"CompleteMove", DragOverPlaceNine, [](ConfigWorld& world) { world.Complete(); }},
        {"DragAndDrop", TwoModules,
         [](ConfigWorld& world) {
             world.StartDrag(18);
             world.Drop(18, 0);
             world.Complete();
         },
         Mode::Editable, false, false, true},
        {"SelectRack", Nothing, [](ConfigWorld& world) { world.handler->SelectRack(world.station->Rack(1)); }},
        {"IsParentModuleSelected", Member,
         [](ConfigWorld& world) { world.handler->IsParentModuleSelected(world.station->Module(0, 6)->parent); }},
        {"IsModuleInFocus", TwoModules, [](ConfigWorld& world) { world.handler->IsModuleInFocus(); }},
        {"InsertModule", [](ConfigWorld& world) { world.Key().CursorKeyDown(8, 0); }, Insert(0), Mode::Editable, true},
        {"InsertModuleAtGap", [](ConfigWorld& world) { world.Key().CursorKeyDown(17, 0); }, Insert(2), Mode::Editable,
         true},
        {"Initialize", Nothing, Initialize, Mode::Editable, false, true},
        {"InitializeOnline", Nothing, Initialize, Mode::ReadOnlyOnline, false, true},
        {"InitializeOffline", Nothing, Initialize, Mode::ReadOnlyOffline, false, true},
        {"Terminate", Nothing, [](ConfigWorld& world) { world.manager->Terminate(); }, Mode::Editable, false, true},
    };
}

std::unique_ptr<ConfigWorld> MakeWorld(const Scenario& scenario)
{
    auto world = std::make_unique<ConfigWorld>(scenario.mode != Mode::Editable, scenario.mode == Mode::ReadOnlyOnline
                                                                                    ? vxDisplayModeOnline1
                                                                                    : vxDisplayModeOffline);
    world->Initialize();
    scenario.prepare(*world);
    EXPECT_TRUE(world->services.host->reports.empty());
    world->services.Lines().clear();
    world->services.Faults().Restart();
    return world;
}

/// Errors in looking up the host application are no errors of the library: the wait cursor then is the screen's.
bool IsReportedAtAll(const std::string& call)
{
    return call != "ObjectLookup.Create";
}

void ExpectBracketsClosed(const ConfigWorld& world, const Scenario& scenario)
{
    EXPECT_EQ(world.LineCount("DoWaitCursor 1") + world.LineCount("Pointer hourglass"),
              world.LineCount("DoWaitCursor -1") + world.LineCount("Pointer default"));
    EXPECT_EQ(world.services.host->openActions, 0);
    EXPECT_TRUE(world.station->drawable || scenario.mayLeaveDrawingOff);
    const bool bDragEnded = std::string_view(scenario.name).starts_with("Drop");
    EXPECT_TRUE(!bDragEnded || world.DragDrop().State() == vxDragDropStateInactive);
}

void ExpectReport(const ConfigWorld& world)
{
    const auto& reports = world.services.host->reports;
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports.front().number, FaultPoints::InjectedNumber);
    const std::string& source = reports.front().source;
    EXPECT_TRUE(source.starts_with("zqbchwcx.VxHW") || source.starts_with("zqbchwcx.mdl_")) << source;
    EXPECT_EQ(std::count(source.begin(), source.end(), '.'), 2) << source;
    EXPECT_FALSE(source.ends_with('.')) << source;
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
    world.services.host->reports.clear();
    if (scenario.isConnection) Initialize(world);
    world.Key().CursorKeyDown(1010, 0);
    EXPECT_EQ(world.SelPlaces().Keys(), "1/5");
    EXPECT_EQ(world.handler->FocusPosition(), 1010);
    EXPECT_TRUE(world.services.host->reports.empty()) << world.services.host->reports.front().source;
}

class EveryCall : public ::testing::TestWithParam<Scenario> {};

TEST_P(EveryCall, MayFail)
{
    const Scenario& scenario = GetParam();
    const auto undisturbed = MakeWorld(scenario);
    scenario.operate(*undisturbed);
    const std::int32_t lCalls = undisturbed->services.Faults().Count();
    EXPECT_TRUE(undisturbed->services.host->reports.empty());
    ASSERT_GT(lCalls, 0);
    for (std::int32_t lCall = 1; lCall <= lCalls; ++lCall) {
        const auto world = MakeWorld(scenario);
        world->services.Faults().ThrowAt(lCall);
        scenario.operate(*world);
        const std::string call = world->services.Faults().Thrown();
        SCOPED_TRACE(std::string(scenario.name) + ", call " + std::to_string(lCall) + ": " + call);
        ASSERT_FALSE(call.empty());
        ExpectBracketsClosed(*world, scenario);
        if (IsReportedAtAll(call)) ExpectReport(*world);
        if (scenario.mustKeepModules) ExpectNoModuleLost(*world);
        ExpectNextEventWorks(*world, scenario);
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Config, EveryCall, ::testing::ValuesIn(Scenarios()),
                         [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace zqbchwcx::testing
