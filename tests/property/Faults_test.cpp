#include "tests/property/Editor.h"
#include "tests/support/controls/RecordingView.h"
#include "zqbchwcx/managers/VxHWCompManager.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"
#include "zqbchwcx/views/overview/OverviewControl.h"
#include "zqbchwcx/views/table/TableControl.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <numeric>
#include <sstream>

// Every operation is done again and again, and each time another one of the calls that it makes to the model, to the
// host and to the windowing system goes wrong.

namespace zqbchwcx::testing {
namespace {

enum class Fault { Fails, AnswersNothing, EndsTheMode };

// The station of every operation: a module with parameters, one over three places with sub-modules, and empty places.
constexpr std::int32_t Digital = G_PlacePosition(0, 4);
constexpr std::int32_t Wide = G_PlacePosition(0, 5);
constexpr std::int32_t Empty = G_PlacePosition(0, 8);
constexpr std::int32_t OtherRack = G_PlacePosition(1, 4);

reference::StationData SmallStation(const ViewVariant& variant)
{
    auto data = variant.sample();
    if (!variant.IsCentral()) return data;
    data.racks.resize(std::min<std::size_t>(data.racks.size(), 2));
    for (auto& oRack : data.racks) {
        auto rack = std::make_shared<reference::RackData>(*oRack);
        rack->places.resize(9);
        rack->places[7] = rack->places[8] = {};
        oRack = std::move(rack);
    }
    return data;
}

/// An editor whose views can also be in diagnostics or compare mode.
class ModesEditor : public Editor {
public:
    using Editor::Editor;

    /// The mode that the views are in.
    enum class Mode { Config, Diag, Compare };

    void Enter(Mode eMode)
    {
        meMode = eMode;
        if (eMode == Mode::Diag) diagManager.Initialize(view->StationType(), view, table, panel, watched, diag);
        if (eMode == Mode::Compare)
            compManager.Initialize(view->StationType(), view, compareView, compareView, watched, watched, compare, {});
    }
    /// Whether the panel tells nothing about a module.
    bool IsPanelEmpty() const
    {
        for (const auto& [name, box] : toolkit->infoBoxes)
            if (!box->text.empty()) return false;
        return toolkit->grids.at("vxgrd_InfoVersion")->RowCount() == 0;
    }
    void EndMode()
    {
        if (meMode == Mode::Config) Manager().Terminate();
        if (meMode == Mode::Diag) diagManager.Terminate();
        if (meMode == Mode::Compare) compManager.Terminate();
    }
    /// Connects the views as they were in the beginning.
    void BackToConfig()
    {
        EndMode();
        meMode = Mode::Config;
        EndMode();
        host->reports.clear();
        Initialize();
    }

    RecordingControl panelSite{log};
    std::shared_ptr<VxHWDiagPanel> panel = std::make_shared<VxHWDiagPanel>(panelSite);
    VxHWDiagManager diagManager;
    VxHWCompManager compManager;

private:
    std::shared_ptr<RecordingCompareView> compareView = std::make_shared<RecordingCompareView>(log, "compare");
    Mode meMode = Mode::Config;
};
using Mode = ModesEditor::Mode;

using Step = std::function<void(Editor&)>;

enum Trait : unsigned {
    ReadOnly = 1,
    Online = 2,
    /// The station's drawing may be left off.
    LeavesDrawingOff = 4,
    /// It consists of several changes.
    Stepwise = 8,
    /// It takes the modules away; they are still in the station, or on the clipboard.
    Takes = 16,
    /// It draws all places; not every call of it is tried.
    Draws = 32,
    /// The views are connected anew before the user goes on.
    Connects = 64,
};

struct Operation {
    const char* name;
    Step prepare;
    Step act;
    unsigned traits = 0;
    /// The procedures of both views that report when a call of theirs fails.
    std::string procedures = {};

    bool Has(Trait trait) const { return (traits & trait) != 0; }
};

/// What the test does to the selection itself is no call of the library; its announcement is.
void Select(Editor& editor, std::int32_t lFrom, std::int32_t lTo)
{
    const auto handler = editor.Manager().VxHWSelectionHandler();
    {
        const FaultPoints::Pause pause(editor.log->faults);
        handler->SelPlaces()->Clear();
        handler->SelectRange(lFrom, lTo);
    }
    handler->SelChangeComplete();
    handler->ShiftSelPosition(lFrom);
    handler->FocusPosition(lTo);
}

Step Nothing()
{
    return [](Editor&) {};
}

Step Selected(std::int32_t lFrom, std::int32_t lTo)
{
    return [=](Editor& editor) { Select(editor, lFrom, lTo); };
}

Step Then(const Step& first, const Step& second)
{
    return [=](Editor& editor) { first(editor), second(editor); };
}

Step Focus(std::int32_t lPosition)
{
    return [=](Editor& editor) { editor.Manager().VxHWSelectionHandler()->FocusPosition(lPosition); };
}

/// A position of the overview as the mouse meets it; beside all racks without one.
std::pair<float, float> At(const Editor& editor, std::int32_t lPosition)
{
    const Point at = lPosition < 0 ? Point{210, 375} : editor.PointOf(lPosition);
    return {static_cast<float>(at.x), static_cast<float>(at.y)};
}

Step Press(std::int32_t lPosition, std::int16_t nShift = 0, std::int16_t nButton = vxButtonLeft)
{
    return [=](Editor& editor) {
        const auto [x, y] = At(editor, lPosition);
        editor.Mouse().MouseDown(nButton, nShift, x, y);
    };
}

Step Release(std::int32_t lPosition, std::int16_t nShift = 0, std::int16_t nButton = vxButtonLeft)
{
    return [=](Editor& editor) {
        const auto [x, y] = At(editor, lPosition);
        editor.Mouse().MouseUp(nButton, nShift, x, y);
    };
}

Step Click(std::int32_t lPosition, std::int16_t nShift = 0, std::int16_t nButton = vxButtonLeft)
{
    return Then(Press(lPosition, nShift, nButton), Release(lPosition, nShift, nButton));
}

Step Move(float x, float y)
{
    return [=](Editor& editor) { editor.Mouse().MouseMove(vxButtonLeft, 0, x, y); };
}

Step Key(std::int16_t nKeyCode, std::int16_t nShift = 0)
{
    return [=](Editor& editor) {
        editor.Keys().KeyDown(nKeyCode, nShift);
        editor.Keys().KeyUp(nKeyCode, nShift);
    };
}

Step Choose(const char* item, const Step& open)
{
    return [=](Editor& editor) {
        editor.Menu().choose = editor.TableMenu().choose = item;
        open(editor);
    };
}

Step Command(void (VxHWConfigManager::*command)() noexcept)
{
    return [=](Editor& editor) { (editor.Manager().*command)(); };
}

Step Insert(const char* ViewVariant::*orderNumber)
{
    return [=](Editor& editor) {
        editor.Manager().SetSingleModuleToCurPos(editor.station->CreateModule(editor.Variant().*orderNumber));
    };
}

/// What the drag carries is kept where later steps find it.
void StartDrag(Editor& editor)
{
    editor.drag = editor.NewDrag();
    std::int32_t lEffect = vxDropEffectNone;
    editor.Mouse().OLEStartDrag(editor.drag, lEffect);
    if (lEffect == vxDropEffectNone) editor.drag = nullptr;
}

Step Over(std::int32_t lPosition, std::int16_t nState, std::int16_t nShift = 0)
{
    return [=](Editor& editor) {
        if (!editor.drag) return;
        const auto [x, y] = At(editor, lPosition);
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        editor.Mouse().OLEDragOver(editor.drag, lEffect, vxButtonLeft, nShift, x, y, nState);
        if (nState == vxDragLeave) editor.toolkit->clock.Advance(20);
    };
}

Step Complete(std::int32_t lEffect)
{
    return [=](Editor& editor) {
        std::int32_t lLast = lEffect;
        if (editor.drag) editor.Mouse().OLECompleteDrag(lLast);
    };
}

Step Drop(std::int32_t lPosition, std::int16_t nShift = 0)
{
    return [=](Editor& editor) {
        if (!editor.drag) return;
        const auto [x, y] = At(editor, lPosition);
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        editor.Mouse().OLEDragDrop(editor.drag, lEffect, 0, nShift, x, y);
        Complete(lEffect)(editor);
    };
}

/// A drag that a program has offered and given up.
void DragFromOutside(Editor& editor)
{
    StartDrag(editor);
    const auto drag = editor.drag;
    drag->GetData(WatchedExchange::Format);
    Complete(vxDropEffectNone)(editor);
}

Step Styled(VxEnumStyle eStyle)
{
    return [=](Editor& editor) {
        const auto key = editor.station->PlaceAt({0, 4})->Key();
        editor.diag->failures = {{key, 1}};
        editor.diag->cpuStates = {{"0/2", vxCpuStateStop}};
        editor.diag->diagStates = {{key, vxDiagCategory1}};
        editor.compare->results = {{key, vxCompareModuleDiffers}};
        for (const char* picture : {"IDB_DIAG_FAILURE", "IDB_DIAG_CPU_STOP", "IDB_COMP_MODULEDIFF"})
            editor.host->pictures[picture] = std::make_shared<FakeImage>(picture);
        for (const auto& view : {editor.view, editor.table}) {
            if (view == editor.table && eStyle == vxStyleHWCompare) continue; // it has no columns for it
            view->Style(eStyle);
            view->VxHWDiagService(editor.diag);
            view->VxHWCompareService(editor.compare);
            view->VxHWStation(editor.watched);
            view->Refresh();
        }
    };
}

void Refresh(Editor& editor)
{
    editor.view->Refresh();
    editor.table->Refresh();
}

Step Enter(Mode eMode)
{
    return [=](Editor& editor) { static_cast<ModesEditor&>(editor).Enter(eMode); };
}

/// The mode, with something to tell about the first module, which has the focus.
Step In(Mode eMode)
{
    return [=](Editor& editor) {
        auto& modes = static_cast<ModesEditor&>(editor);
        modes.EndMode();
        const auto key = editor.station->PlaceAt({0, 4})->Key();
        editor.diag->failures = {{key, 1}};
        editor.diag->infos = {key};
        editor.compare->results = {{key, vxCompareParametersDiffer}};
        for (const char* picture : {"IDB_DIAG_FAILURE", "IDB_COMP_PARAMDIFF"})
            editor.host->pictures[picture] = std::make_shared<FakeImage>(picture);
        modes.Enter(eMode);
        editor.host->components = {{"Firmware", "V 1.2"}, {"Loader", ""}};
        editor.view->VxHWSelectionHandler()->FocusPosition(Digital);
    };
}

template <class Manager>
Step CommandOf(Manager ModesEditor::*manager, void (Manager::*command)() noexcept)
{
    return [=](Editor& editor) { (static_cast<ModesEditor&>(editor).*manager.*command)(); };
}

void RefreshPlace(Editor& editor)
{
    const auto oPlace = Watch(editor.log, editor.watched->Place(0, 4));
    dynamic_cast<OverviewControl&>(*editor.view).RefreshPlace(oPlace);
    dynamic_cast<TableControl&>(*editor.table).RefreshPlace(oPlace);
    static_cast<ModesEditor&>(editor).panel->RefreshPlace(oPlace);
}

Step FocusInMode(std::int32_t lPosition)
{
    return [=](Editor& editor) { editor.view->VxHWSelectionHandler()->FocusPosition(lPosition); };
}

Step Hover(std::int32_t lPosition)
{
    return [=](Editor& editor) { editor.toolkit->tooltips.Hover(editor.Picture().hWnd(), editor.PointOf(lPosition)); };
}

Step Tell(const std::function<void(WatchedStation&)>& event)
{
    return [=](Editor& editor) { event(*editor.watched); };
}

// The table.

Step Row(std::int32_t lRow, std::int16_t nButton = vxButtonLeft, const char* key = "Comment")
{
    return [=](Editor& editor) { editor.Grid().Click(editor.Grid().Cell(lRow, key), nButton); };
}

Step GridKey(std::int16_t nKeyCode, std::int16_t nShift = 0)
{
    return [=](Editor& editor) { editor.Grid().Key(nKeyCode, nShift); };
}

/// An editor that is open in the row, with something typed.
Step Edited(const char* key, const char* typed)
{
    return [=](Editor& editor) {
        Select(editor, Digital, Digital);
        editor.Grid().Click(editor.Grid().Cell(4, key));
        editor.Grid().Key(vxKeyF2);
        editor.Grid().Type(typed);
    };
}

Step Tab(void (RecordingTabStrip::*event)(std::int32_t), std::int32_t lTab = 1)
{
    return [=](Editor& editor) { (editor.Tabs()->*event)(lTab); };
}

/// The list of sub-modules, opened by its button.
const Step FormOpen = Row(5, vxButtonLeft, "I-Address");

void DragRow(Editor& editor)
{
    auto& grid = editor.Grid();
    editor.drag = std::make_shared<FakeDataObject>(editor.log);
    std::int32_t lEffect = vxDropEffectNone;
    grid.User().OLEStartDrag(editor.drag, lEffect);
    if (lEffect == vxDropEffectNone) return;
    for (const auto& format : std::map(editor.drag->formats)) grid.User().OLESetData(editor.drag, format.first);
    const GridMouse mouse{vxButtonLeft, 0, grid.Middle({8, 1})};
    lEffect = vxDropEffectCopyOrMove;
    grid.User().OLEDragOver(editor.drag, lEffect, mouse, vxDragEnter);
    lEffect = vxDropEffectCopyOrMove;
    grid.User().OLEDragDrop(editor.drag, lEffect, mouse);
    grid.User().OLECompleteDrag(lEffect);
}

/// Of every kind of view.
std::vector<Operation> CommonOperations()
{
    constexpr std::int16_t Shift = vxShiftMask;
    constexpr std::int16_t Ctrl = vxCtrlMask;
    using Manager = VxHWConfigManager;
    const Step one = Selected(Digital, Digital);
    const Step two = Selected(Digital, Wide);
    const Step wide = Selected(Wide, Wide);
    const Step empty = Selected(Empty, Empty);
    const Step dragged = Then(one, &StartDrag);
    const Step draggedOver = Then(dragged, Over(Empty, vxDragEnter));
    const Step copied = Then(one, Command(&Manager::Copy));
    const Step walking = Then(wide, GridKey(vxKeyDown, vxAltMask));
    return {
        // The mouse in the overview.
        {"ClickOutside", two, Click(-1, Ctrl)},
        {"ClickOnPlace", two, Click(Digital)},
        {"ClickOnOtherPlace", one, Click(Empty)},
        {"ClickOnGap", two, Click(Digital + 1)},
        {"CtrlClickOnSelected", two, Click(Digital, Ctrl)},
        {"DoubleClick", Press(Digital), [](Editor& editor) { editor.Mouse().DblClick(); }},
        {"RightClick", one, Choose("pmnu_EditModuleParams", Click(Digital, 0, vxButtonRight)), 0,
         "overview.P_SetLanguageTexts"},
        {"RubberBand", Then(Press(-1), Move(100, 330)), Move(20, 330), 0, "overview.P_RubberBand"},
        {"RubberBandEnds", Then(Press(-1), Move(20, 330)), Release(Digital), 0, "overview.P_SelectRubberContent"},
        {"Tooltip", Nothing(), Hover(Digital), 0,
         "overview.moTTCallback_GetTooltip overview.P_GetTooltipHWConfiguration"},
        {"TooltipDiag", Styled(vxStyleHWDiag), Hover(Digital), 0, "overview.P_GetTooltipHWDiagnostics"},
        {"TooltipCompare", Styled(vxStyleHWCompare), Hover(Digital), 0, "overview.P_GetTooltipHWCompare"},

        // Its keys, and the commands.
        {"Cursor", two, Key(vxKeyRight)},
        {"ShiftCursor", two, Key(vxKeyRight, Shift)},
        {"CursorOnline", two, Key(vxKeyLeft), ReadOnly | Online},
        {"Space", two, Key(vxKeySpace)},
        {"ShiftSpace", two, Key(vxKeySpace, Shift)},
        {"CtrlSpace", two, Key(vxKeySpace, Ctrl)},
        {"Return", one, Key(vxKeyReturn)},
        {"ReturnOnline", one, Key(vxKeyReturn), ReadOnly | Online},
        {"Menu", one, Choose("pmnu_Copy", Key(vxKeyApps)), 0, "overview.P_OpenPopupMenu"},
        {"Delete", two, Key(vxKeyDelete)},
        {"Cut", two, Command(&Manager::Cut), Takes},
        {"Copy", wide, Command(&Manager::Copy)},
        {"CopyReadOnly", wide, Command(&Manager::Copy), ReadOnly},
        {"Paste", Then(copied, empty), Command(&Manager::Paste)},
        {"EditModuleParams", one, Command(&Manager::EditModuleParams)},
        {"Insert", empty, Insert(&ViewVariant::digital), LeavesDrawingOff},
        {"InsertWide", Selected(Empty, Empty + 2), Insert(&ViewVariant::wide), LeavesDrawingOff | Stepwise},
        {"InsertAtGap", Focus(Empty - 1), Insert(&ViewVariant::digital), LeavesDrawingOff},
        // Drags.
        {"StartDrag", one, &StartDrag},
        {"DragIntoView", dragged, Over(Empty, vxDragEnter), Draws,
         "overview.P_SetDragPointer overview.P_DrawModuleToDragPointer"},
        {"DragOver", draggedOver, Over(Empty + 1, vxDragOver)},
        {"DragOutOfView", draggedOver, Over(Empty, vxDragLeave), Draws},
        {"DropMove", draggedOver, Drop(Empty), Draws},
        {"DropCopy", draggedOver, Drop(Empty, Ctrl), Draws},
        {"DropFromOutside", Then(one, &DragFromOutside), Then(Over(Empty, vxDragEnter), Drop(Empty)), Draws},
        {"GiveAway", Then(two, &StartDrag), Complete(vxDropEffectMove)},

        // What the overview is told.
        {"PlaceChange", two, Tell([](auto& s) { s.RackPlaceChange.Raise(Watch(s.Log(), s.Place(0, 5))); }), 0,
         "overview.moHWStation_RackPlaceChange overview.P_GetModulePicName table.moHWStation_RackPlaceChange"},
        {"TotalRefresh", two, Tell([](auto& s) { s.TotalRefresh.Raise(); }), Draws,
         "overview.moHWStation_TotalRefresh table.moHWStation_TotalRefresh"},
        {"SelectWide", one, Selected(Wide, Wide + 2), 0, "overview.P_SetBorderSelection"},
        {"FocusGap", one, Focus(Digital + 1), 0, "overview.P_ResetPlaceFocus overview.P_SetGapFocus"},
        {"FocusPlace", Focus(Digital + 1), Focus(Digital), 0, "overview.P_ResetGapFocus overview.P_SetPlaceFocus"},
        {"Keyboard", one, [](Editor& editor) { editor.Picture().Focus(false); }},
        {"RefreshDiag", Styled(vxStyleHWDiag), &Refresh, Draws, "overview.P_SetHWDiagSymbols"},
        {"RefreshCompare", Styled(vxStyleHWCompare), &Refresh, Draws, "overview.P_SetHWCompareSymbols"},
        {"SysColors", two, [](Editor& editor) { editor.ChangeSysColors(); }, Draws,
         "overview.sysinf_Main_SysColorsChanged"},
        {"Lock", two,
         [](Editor& editor) {
             for (const auto& view : {editor.view, editor.table}) view->Locked(true);
         },
         Draws},
        {"Station", two,
         [](Editor& editor) {
             for (const auto& view : {editor.view, editor.table}) view->VxHWStation(editor.watched);
         },
         Draws, "overview.IVxHWControl_VxHWStation overview.P_LoadImageLists"},
        {"Resize", two,
         [](Editor& editor) {
             editor.Site().Resize(100, 100);
             editor.TableSite().Resize(100, 100);
         },
         0, "overview.UserControl_Resize table.UserControl_Resize"},

        // The table.
        {"RowClick", one, Row(8)},
        {"RowRightClick", one, Choose("pmnu_Copy", Row(4, vxButtonRight))},
        {"RowDoubleClick", one,
         [](Editor& editor) {
             editor.Grid().DoubleClick({4, 2});
         }},
        {"RowCursor", one, GridKey(vxKeyDown)},
        {"RowSpace", one, GridKey(vxKeySpace)},
        {"RowReturn", one, GridKey(vxKeyReturn)},
        {"RowMenu", one, Choose("pmnu_Delete", GridKey(vxKeyApps))},
        {"RowDrag", one, &DragRow, Draws},
        {"RowDragStarts",
         Then(one,
              [](Editor& editor) {
                  editor.Grid().Press({4, 2});
              }),
         [](Editor& editor) {
             editor.Grid().MoveMouse({40, 70}, vxButtonLeft);
             editor.Grid().MoveMouse({60, 70}, vxButtonLeft);
         }},
        {"TooltipStatus", Styled(vxStyleHWDiag),
         [](Editor& editor) { editor.Grid().Tooltip(editor.Grid().Cell(4, "Status")); }, 0,
         "table.vxgrd_Main_OnDisplayTooltip"},
        {"ResetColumns", one, [](Editor& editor) { editor.Grid().User().OnResetColumns(); }},

        // A cell is edited.
        {"StartEditing", one, Then(Row(4), GridKey(vxKeyF2))},
        {"WriteComment", Edited("Comment", "Typed"), GridKey(vxKeyReturn)},
        {"WriteAddress", Edited("I-Address", "200"), GridKey(vxKeyTab)},
        {"WriteRefused", Edited("I-Address", "none"), GridKey(vxKeyReturn)},
        {"GiveUp", Edited("Comment", "Typed"), GridKey(vxKeyEscape)},
        {"UndoInEditor", Edited("Comment", "Typed"),
         Then(GridKey(vxKeyZ, Ctrl), [](Editor& editor) { editor.history->Undo(); }), Stepwise},
        {"CaretInEditor", Edited("Comment", "Typed"), Then(GridKey(vxKeyLeft), GridKey(vxKeyA, Ctrl))},
        {"PlaceChangeInEditor", Edited("Comment", "Typed"),
         Tell([](auto& s) { s.RackPlaceChange.Raise(Watch(s.Log(), s.Place(0, 4))); })},
        {"DeleteInEditor", Edited("Comment", "Typed"), Command(&Manager::Delete), Stepwise},
        {"TotalRefreshInEditor", Edited("Comment", "Typed"), Tell([](auto& s) { s.TotalRefresh.Raise(); }), Draws},
        // The list of sub-modules.
        {"FormOpens", wide, FormOpen},
        {"FormCloses", Then(wide, FormOpen), FormOpen},
        {"FormWalks", walking, GridKey(vxKeyDown)},
        {"FormReturn", walking, GridKey(vxKeyReturn)},
        {"FormDoubleClick", Then(wide, FormOpen),
         [](Editor& editor) {
             editor.Form().DoubleClick({10, 20});
         }},
        {"FormPressElsewhere", Then(wide, FormOpen),
         [](Editor& editor) { editor.toolkit->watch.Mouse(vxMessageLeftDown, 77); }},
        {"FormFocusLost", Then(wide, FormOpen),
         [](Editor& editor) { editor.toolkit->watch.Message(editor.Grid().hWnd(), vxMessageKillFocus, 77); }},

        // The manager.
        {"Initialize", Nothing(), [](Editor& editor) { editor.Initialize(); }, Draws | Connects},
        {"InitializeReadOnly", Nothing(), [](Editor& editor) { editor.Initialize(); }, ReadOnly | Draws | Connects},
        {"InitializeOnline", Nothing(), [](Editor& editor) { editor.Initialize(); },
         ReadOnly | Online | Draws | Connects},
        {"Terminate", Nothing(), Command(&Manager::Terminate), Connects},

        // Diagnostics and compare mode.
        {"DiagInitialize", Command(&Manager::Terminate), Enter(Mode::Diag), Draws | Connects},
        {"DiagRefresh", In(Mode::Diag), CommandOf(&ModesEditor::diagManager, &VxHWDiagManager::Refresh),
         Draws | Connects},
        {"DiagTerminate", In(Mode::Diag), CommandOf(&ModesEditor::diagManager, &VxHWDiagManager::Terminate), Connects},
        {"DiagRefreshPlace", In(Mode::Diag), &RefreshPlace, Connects,
         "overview.RefreshPlace table.RefreshPlace panel.RefreshPlace"},
        {"DiagFocus", Then(In(Mode::Diag), FocusInMode(Empty)), FocusInMode(Digital), Connects,
         "panel.Refresh panel.P_SetModuleInfo panel.P_FillVersionInfoGrid"},
        {"DiagFocusController", In(Mode::Diag), FocusInMode(G_PlacePosition(0, 2)), Connects, "panel.P_GetVxPlcInfo"},
        {"DiagButton", In(Mode::Diag),
         [](Editor& editor) { editor.toolkit->commandButtons.at("vxcmd_AdditionalInfo")->Click(); }, Connects,
         "panel.vxcmd_AdditionalInfo_Click"},
        {"DiagVersionKey", In(Mode::Diag),
         [](Editor& editor) { editor.toolkit->grids.at("vxgrd_InfoVersion")->Key(vxKeyDown); }, Connects},
        {"DiagColors", In(Mode::Diag), [](Editor& editor) { editor.toolkit->sysColorsChanged(); }, Connects,
         "panel.sysinf_Main_SysColorsChanged"},
        {"DiagResize", In(Mode::Diag),
         [](Editor& editor) { static_cast<ModesEditor&>(editor).panelSite.Resize(100, 100); }, Connects,
         "panel.UserControl_Resize panel.P_SizeModuleInfo"},
        {"DiagClick", In(Mode::Diag), Click(Empty + 1), Connects},
        {"DiagDoubleClick", Then(In(Mode::Diag), Press(Digital)), [](Editor& editor) { editor.Mouse().DblClick(); },
         Connects},
        {"DiagReturn", In(Mode::Diag), Key(vxKeyReturn), Connects},
        {"CompInitialize", Command(&Manager::Terminate), Enter(Mode::Compare), Draws | Connects},
        {"CompRefreshOnline", In(Mode::Compare), CommandOf(&ModesEditor::compManager, &VxHWCompManager::Refresh),
         ReadOnly | Online | Draws | Connects},
        {"CompTerminate", In(Mode::Compare), CommandOf(&ModesEditor::compManager, &VxHWCompManager::Terminate),
         Connects},
        {"CompDoubleClick", Then(In(Mode::Compare), Press(Digital)), [](Editor& editor) { editor.Mouse().DblClick(); },
         Connects},
        {"CompReturn", In(Mode::Compare), Key(vxKeyReturn), Connects},
    };
}

/// What leads from one rack to another, and the tabs of a table that shows one rack.
std::vector<Operation> RackOperations()
{
    constexpr std::int16_t Shift = vxShiftMask;
    constexpr std::int16_t Ctrl = vxCtrlMask;
    const Step one = Selected(Digital, Digital);
    const Step two = Selected(Digital, Wide);
    const Step draggedOver = Then(Then(one, &StartDrag), Over(Empty, vxDragEnter));
    return {
        {"ClickOnRack", two, Click(1000), Draws},
        {"CursorToRack", two, Key(vxKeyUp), 0, "overview.P_CursorKeyDown"},
        {"ShiftClick", two, Click(OtherRack, Shift)},
        {"CtrlClickInOtherRack", two, Click(OtherRack, Ctrl)},
        {"SelectRack", one,
         [](Editor& editor) {
             const auto handler = editor.Manager().VxHWSelectionHandler();
             handler->SelectRack(editor.watched->Rack(1));
         }},
        {"DropOnRack", draggedOver, Drop(1000), Draws},
        {"GroupChange", two, Tell([](auto& s) { s.RackPlaceChange.Raise(Watch(s.Log(), s.Place(0, 5))); }), 0,
         "overview.P_DrawBorder"},
        {"LinkChange", two, Tell([](auto& s) { s.RackPlaceChange.Raise(Watch(s.Log(), s.Place(1, 3))); }), 0,
         "overview.P_CheckIMLinks"},
        {"RackChange", two, Tell([](auto& s) { s.RackChange.Raise(Watch(s.Log(), s.Rack(1))); }), 0,
         "overview.moHWStation_RackChange table.moHWStation_RackChange"},
        {"FocusOtherRack", one, Focus(OtherRack), Draws},
        {"RowCursorRack", one, GridKey(vxKeyRight), Draws},
        {"TabClick", two, Tab(&RecordingTabStrip::Click), Draws},
        {"TabHover", two, Tab(&RecordingTabStrip::Hover), Draws, "table.P_ChangeRack"},
        {"TabDragHover", draggedOver, Tab(&RecordingTabStrip::DragHover), Draws},
        {"TabClickInEditor", Edited("Comment", "Typed"), Tab(&RecordingTabStrip::Click), Draws},
        {"FocusInEditor", Edited("Comment", "Typed"), Focus(OtherRack), Draws},
    };
}

Step Button(const char* name, void (*event)(Editor&, ButtonEvents&))
{
    return [=](Editor& editor) { event(editor, editor.Buttons().at(name)->User()); };
}

/// The drag rests on the button until it has scrolled.
void DragOverButton(Editor& editor, ButtonEvents& button)
{
    std::int32_t lEffect = vxDropEffectCopyOrMove;
    for (const std::int16_t nState : {vxDragEnter, vxDragOver, vxDragLeave}) {
        button.OLEDragOver(editor.drag, lEffect, vxButtonLeft, 0, nState);
        editor.toolkit->clock.Advance(260);
    }
}

/// What scrolls rows of places.
std::vector<Operation> RowOperations()
{
    constexpr std::int32_t Last = G_PlacePosition(0, 38);
    const Step one = Selected(Digital, Digital);
    const Step draggedOver = Then(Then(one, &StartDrag), Over(Empty, vxDragEnter));
    const Step draggedOn = Then(draggedOver, Button("cmd_ScrollDown", &DragOverButton));
    return {
        {"ScrollByBar", one, [](Editor& editor) { editor.Bar()->DragTo(1); }, 0, "overview.P_Scroll"},
        {"ScrollByWheel", one, [](Editor& editor) { editor.Keys().MouseWheel(-1); }},
        {"ScrollByButton", one,
         Button("cmd_ScrollDown",
                [](Editor& editor, ButtonEvents& button) {
                    button.MouseDown(vxButtonLeft);
                    editor.toolkit->clock.Advance(700);
                    button.MouseUp(vxButtonLeft);
                })},
        {"ScrollByDrag", draggedOver, Button("cmd_ScrollDown", &DragOverButton), Draws},
        {"DropAfterScroll", Then(draggedOn, Over(Last - 4, vxDragEnter)), Drop(Last - 4), Draws},
        {"ScrollByBand", Then(Press(-1), Move(20, 330)),
         [](Editor& editor) {
             editor.Mouse().MouseMove(vxButtonLeft, 0, 20, 450);
             editor.toolkit->clock.Advance(250);
         },
         0, "overview.P_RubberBand overview.P_Scroll"},
        {"ScrollByFocus", one, Focus(Last)},
        {"ScrollTable", one, [](Editor& editor) { editor.Grid().ScrollTo(5); }},
        {"RowHidden", one,
         [](Editor& editor) {
             editor.watched->ChangePlace(0, 20, [](auto& place) { place.usability = vxPlaceNotUsable; });
         },
         Draws},
        {"WiderBar", one,
         [](Editor& editor) {
             editor.toolkit->scrollBarSize = 20;
             editor.settingChanged(vxSettingNonClientMetrics);
         },
         0, "overview.UserControl_Resize"},
    };
}

struct Case {
    ViewVariant variant;
    Operation operation;
    Fault fault;
    /// Of its calls, one in so many is tried.
    std::int32_t stride = 1;
};

void PrintTo(const Case& attempt, std::ostream* stream)
{
    *stream << attempt.operation.name;
}

std::vector<Case> Cases()
{
    std::vector<Case> cases;
    // What the kinds have in common runs through the same code: the first variant that has it tries every call.
    constexpr std::int32_t Sparse = 5;
    const auto add = [&](const ViewVariant& variant, const std::vector<Operation>& operations, bool bEveryCall) {
        for (const Operation& operation : operations)
            for (const Fault fault : {Fault::Fails, Fault::AnswersNothing, Fault::EndsTheMode})
                cases.push_back({variant, operation, fault, bEveryCall ? 1 : Sparse});
    };
    for (const ViewVariant& variant : ViewVariants) {
        const bool bCentral = variant.IsCentral();
        add(variant, CommonOperations(), bCentral);
        add(variant, bCentral ? RackOperations() : RowOperations(),
            bCentral || variant.eStationType == vxStationTypeDistributed1);
    }
    return cases;
}

/// An operation that is done once, with one of its calls going wrong.
class Attempt {
public:
    Attempt(const ViewVariant& variant, const Operation& operation, Fault fault, std::int32_t lCall)
        : mOperation(operation), mEditor(DataFor(variant, operation), variant)
    {
        mEditor.parameters = [](reference::ModuleData module) {
            module.comment = "Configured";
            return std::optional(module);
        };
        operation.prepare(mEditor);
        EXPECT_EQ(mEditor.WhatIsWrong(), "");
        before = mEditor.Text();
        auto& faults = mEditor.log->faults;
        if (fault == Fault::Fails || lCall == 0) faults.ThrowAt(lCall);
        else if (fault == Fault::AnswersNothing) faults.NothingAt(lCall);
        else faults.RunAt(lCall, [this] { mEditor.EndMode(); });
        operation.act(mEditor);
        after = mEditor.Text();
        count = faults.Count();
        objectCalls = faults.ObjectCalls();
        thrown = faults.Thrown();
        faults.Restart();
    }

    /// The sources of what was reported since it was last asked.
    std::vector<std::string> TakeReports() { return mEditor.host->TakeReports(); }
    bool IsTold() const { return !mEditor.host->reports.empty() || mEditor.refusals > 0; }
    bool IsOnClipboard() const { return mEditor.host->clipboard->Read(reference::ConfigTextName).has_value(); }

    /// Brackets are closed, and what the user does next works as ever.
    void ExpectSound(bool bEnded)
    {
        EXPECT_TRUE(!bEnded || mEditor.IsPanelEmpty());
        EndGestures();
        if (mOperation.Has(LeavesDrawingOff)) mEditor.station->IsDrawable(true);
        mEditor.host->reports.clear();
        if (bEnded || mOperation.Has(Connects)) mEditor.BackToConfig();
        // Without the host application there is no wait cursor, which is nobody's error.
        if (thrown.starts_with("ObjectLookup.")) mEditor.host->waitBalance = 0;
        EXPECT_EQ(mEditor.WhatIsWrong(), "");
        while (mEditor.history->Undo()) {
        }
        for (const auto& view : {mEditor.view, mEditor.table}) {
            view->Style(vxStyleHWConfig);
            view->Locked(false);
            view->VxHWStation(mEditor.watched);
            view->Refresh();
        }
        mEditor.Keys().KeyDown(vxKeyUp, 0);
        Select(mEditor, Digital, Digital);
        mEditor.Keys().KeyDown(vxKeyDelete, 0);
        EXPECT_EQ(mEditor.Text() == before, mOperation.Has(ReadOnly));
        EXPECT_EQ(mEditor.DifferenceFromAFreshPicture() + mEditor.DifferenceFromAFreshTable(), "");
        EXPECT_EQ(mEditor.WhatIsWrong() + mEditor.WhatIsWrongInRows(), "");
    }

    std::string before;
    std::string after;
    std::int32_t count = 0;
    std::vector<std::int32_t> objectCalls;
    std::string thrown;

private:
    static reference::StationData DataFor(const ViewVariant& variant, const Operation& operation)
    {
        reference::StationData data = SmallStation(variant);
        data.readOnly = operation.Has(ReadOnly);
        data.displayMode = operation.Has(Online) ? vxDisplayModeOnline1 : vxDisplayModeOffline;
        return data;
    }
    void EndGestures()
    {
        mEditor.Mouse().MouseUp(vxButtonLeft, 0, 0, 0);
        Complete(vxDropEffectNone)(mEditor);
        mEditor.toolkit->clock.Advance(20);
        mEditor.Grid().Key(vxKeyEscape);
        mEditor.Picture().Focus(true);
        mEditor.toolkit->scrollBarSize = 13;
        if (mEditor.settingChanged) mEditor.settingChanged(vxSettingNonClientMetrics);
        for (auto* site : {&mEditor.Site(), &mEditor.TableSite()}) site->Resize(3900, 6000);
    }

    const Operation& mOperation;
    ModesEditor mEditor;
};

class EveryCall : public ::testing::TestWithParam<Case> {
protected:
    const ViewVariant& variant = GetParam().variant;
    const Operation& operation = GetParam().operation;
    const Fault fault = GetParam().fault;

    /// Under a sanitizer every call takes too long: then only every so many.
    std::int32_t Stride() const
    {
        const char* text = std::getenv("QUILLON_FAULT_STRIDE");
        return (text != nullptr ? std::atoi(text) : 1) * (operation.Has(Draws) ? 7 : 1) * GetParam().stride;
    }
    /// "overview.P_X" by the name of the view's class.
    std::string NamedAs(const std::string& procedure) const
    {
        const char* className = procedure.starts_with("overview.") ? variant.overviewClass
                                : procedure.starts_with("table.")  ? variant.tableClass
                                                                   : "VxHWDiagPanel";
        return className + procedure.substr(procedure.find('.'));
    }
    void ExpectNothingLost(const Attempt& attempt, const std::string& good) const
    {
        const bool bUnchanged = attempt.after == attempt.before;
        EXPECT_TRUE(bUnchanged || attempt.after == good || operation.Has(Stepwise)) << "half a change";
        EXPECT_TRUE(bUnchanged || attempt.IsOnClipboard() || !operation.Has(Takes));
    }
};

TEST_P(EveryCall, MayGoWrong)
{
    std::vector<std::int32_t> calls;
    std::string good;
    {
        Attempt undisturbed(variant, operation, fault, 0);
        EXPECT_EQ(undisturbed.TakeReports(), std::vector<std::string>{});
        good = undisturbed.after;
        calls = undisturbed.objectCalls;
        if (fault != Fault::AnswersNothing) calls.resize(static_cast<std::size_t>(undisturbed.count));
        if (fault != Fault::AnswersNothing) std::iota(calls.begin(), calls.end(), 1);
    }
    EXPECT_TRUE(!calls.empty() || fault == Fault::AnswersNothing);
    std::vector<std::string> sources;
    const auto stride = static_cast<std::size_t>(Stride());
    for (std::size_t i = calls.size() / 2 % stride; i < calls.size(); i += stride) {
        Attempt attempt(variant, operation, fault, calls[i]);
        SCOPED_TRACE("call " + std::to_string(calls[i]) + ", " + attempt.thrown);
        ASSERT_NE(attempt.thrown, "");
        ExpectNothingLost(attempt, good);
        // A report that the error log itself refuses is lost.
        const bool bNobodysError =
            attempt.thrown.starts_with("ObjectLookup.") || attempt.thrown.starts_with("LogError");
        EXPECT_TRUE(attempt.IsTold() || fault != Fault::Fails || bNobodysError);
        for (const auto& source : attempt.TakeReports()) {
            EXPECT_THAT(source, ::testing::MatchesRegex("zqbchwcx\\.\\w+\\.\\w+"));
            sources.push_back(source);
        }
        attempt.ExpectSound(fault == Fault::EndsTheMode);
        if (HasFailure()) return;
    }
    if (fault != Fault::Fails || Stride() > 1) return;
    std::istringstream procedures(operation.procedures);
    for (std::string procedure; procedures >> procedure;)
        EXPECT_THAT(sources, ::testing::Contains("zqbchwcx." + NamedAs(procedure)));
}

std::string NameOf(const ::testing::TestParamInfo<Case>& instance)
{
    const char* faults[] = {"Fails", "AnswersNothing", "EndsTheMode"};
    const auto& [variant, operation, fault, stride] = instance.param;
    return std::string(variant.name) + operation.name + faults[static_cast<int>(fault)];
}

INSTANTIATE_TEST_SUITE_P(Every, EveryCall, ::testing::ValuesIn(Cases()), &NameOf);

class EveryView : public ::testing::TestWithParam<ViewVariant> {};

TEST_P(EveryView, ReportsThatItsChildrenCannotBeMade)
{
    Editor editor(SmallStation(GetParam()), GetParam());
    auto& faults = editor.log->faults;
    for (const auto make : {GetParam().makeOverview, GetParam().makeTable}) {
        std::int32_t lCalls = 0;
        for (std::int32_t lCall = 0; lCall <= lCalls; ++lCall) {
            RecordingControl site(editor.log);
            faults.ThrowAt(lCall);
            auto made = make(site);
            if (lCall == 0) lCalls = faults.Count();
            faults.Restart();
            EXPECT_EQ(editor.host->TakeReports().empty(), lCall == 0) << lCall;
            Editor::CopyBinding(*editor.view, *made);
            made->Refresh();
            made->Locked(true);
            editor.Manager().VxHWSelectionHandler()->FocusPosition(Digital + lCall % 2);
            if (site.IsConnected()) site.User().KeyUp(vxKeyApps, 0);
            made->VxHWStation(nullptr);
            made.reset();
            EXPECT_FALSE(site.IsConnected());
            editor.host->reports.clear();
        }
    }
    EXPECT_EQ(editor.host->openTexts, 3) << "of both views and the key controller";
}

INSTANTIATE_TEST_SUITE_P(Every, EveryView, ::testing::ValuesIn(ViewVariants), ::testing::PrintToStringParamName());

} // namespace
} // namespace zqbchwcx::testing
