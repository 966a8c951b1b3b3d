#include "tests/property/Editor.h"
#include "tests/support/model/FakeModelServices.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"

#include <gmock/gmock.h>

// The rack table on the reference model, wired by its manager with the overview beside it.

namespace zqbchwcx::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr OleColor GroupBackground = G_Rgb(246, 244, 186);

/// A table with the overview of its station beside it. What is in which place says `ViewVariant::sample`.
class TableFixture : public ::testing::Test {
protected:
    explicit TableFixture(const ViewVariant& kind) : variant(kind) {}
    ~TableFixture() override { EXPECT_EQ(editor.WhatIsWrong(), ""); }

    void Focus(std::int32_t lPosition) { Handler().FocusPosition(lPosition); }
    void Select(std::int32_t lFrom, std::int32_t lTo)
    {
        Handler().SelPlaces()->Clear();
        Handler().SelectRange(lFrom, lTo);
        Handler().SelChangeComplete();
        Handler().FocusPosition(lTo);
    }
    VxHWSelectionHandler& Handler() { return *table.VxHWSelectionHandler(); }
    std::string Selection()
    {
        std::string places;
        for (const auto& oPlace : Handler().SelPlaces())
            places += std::to_string(G_PlacePosition(oPlace->Rack()->Number(), oPlace->Number())) + " ";
        return places;
    }
    /// Types into the cell and ends the edit with the key.
    void Edit(GridCell cell, std::string_view text, std::int16_t nKey = vxKeyReturn)
    {
        grid.Click(cell);
        grid.Key(vxKeyF2);
        grid.Type(text);
        grid.Key(nKey);
        grid.EndEditing(false);
    }

    const ViewVariant& variant;
    Editor editor{variant.sample(), variant};
    TableControl& table = dynamic_cast<TableControl&>(*editor.table);
    RecordingGrid& grid = editor.Grid();
    const std::string module = grid.Text(4, "Module");
    const std::string inputs = grid.Text(4, "I-Address");
};

/// The table of any kind of station.
class RackTable : public TableFixture, public ::testing::WithParamInterface<ViewVariant> {
protected:
    RackTable() : TableFixture(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Every, RackTable, ::testing::ValuesIn(ViewVariants), ::testing::PrintToStringParamName());

/// A table that shows one of several racks.
class CentralTable : public TableFixture {
protected:
    CentralTable() : TableFixture(CentralViews) {}

    VxHWRackTable& racks = dynamic_cast<VxHWRackTable&>(table);
    RecordingTabStrip& tabs = *editor.Tabs();
};

TEST_F(CentralTable, ShowsARowForEveryPlace)
{
    EXPECT_THAT(grid.AllRows(),
                ElementsAre("1|PS 24V/10A|Q3-PS10-A||| *", "2|CPU 340M|Q3-CP40-M|||", "3|IM 365 pair|Q3-IM65-P|||",
                            "4|Bottle sensors|Q3-DI32-A|0..3||", "5|Carousel|Q3-PO03-W|T1016||Three axes, coupled",
                            "6|Carousel||||Three axes, coupled", "7|Carousel||||Three axes, coupled",
                            "8|Recipe server|Q3-CE01-W|116..131|112..127|", "9|Recipe server||||",
                            "10|Filling valves|Q3-DO64-W||128..135|64 valves, one per head",
                            "11|Filling valves||||64 valves, one per head"));
    EXPECT_EQ(grid.RowText(0), "T1001|T1002|T1003|T1004|T1005|T1006");
    EXPECT_EQ(grid.Look(grid.Cell(1, "RackPlace")).alignment, CellAlignment::Centre);
    EXPECT_EQ(grid.Look(grid.Cell(1, "Comment")).kind, CellKind::Comment);
    EXPECT_EQ(grid.Look(grid.Cell(5, "I-Address")).kind, CellKind::PushButton);
    // A module over several places stands out by colour: its name everywhere, its order number on the first.
    const auto background = [&](std::int32_t lRow, const char* key) {
        return grid.Look(grid.Cell(lRow, key)).backColor;
    };
    EXPECT_EQ(background(6, "Module"), GroupBackground);
    EXPECT_EQ(background(5, "ORDN"), GroupBackground);
    EXPECT_EQ(background(6, "ORDN"), vxColorWindowBackground);
    EXPECT_EQ(background(4, "Module"), vxColorWindowBackground);
    EXPECT_EQ(tabs.tabs[1].caption, "1 T1000");
    EXPECT_EQ(tabs.tabs[1].tooltip, "1 T6117");
    EXPECT_TRUE(tabs.Enabled(1));
    EXPECT_FALSE(tabs.Enabled(3));
    editor.TableSite().Resize(700 * vxTwipsPerPixel, 400 * vxTwipsPerPixel);
    EXPECT_EQ(grid.bounds.right, 700) << "it fills the control";

    table.Locked(true);
    EXPECT_EQ(background(1, "Module"), G_ColorDisabledBackground());
    Edit(grid.Cell(4, "Comment"), "not while locked");
    EXPECT_EQ(grid.Text(4, "Comment"), "");
}

TEST_F(CentralTable, ShowsWhatThePlacesUsabilitySays)
{
    struct Case {
        std::int32_t usability;
        const char* number;
        OleColor background;
    };
    for (const Case& expected : {Case{-1, "", G_Rgb(192, 192, 192)}, Case{0, "8", G_Rgb(192, 192, 192)},
                                 Case{1, "8", vxColorWindowBackground}}) {
        editor.watched->ChangePlace(0, 8, [&](auto& place) { place = {expected.usability, nullptr}; });
        EXPECT_EQ(grid.Text(8, "RackPlace"), expected.number);
        EXPECT_EQ(grid.Look({8, 2}).backColor, expected.background);
    }
}

TEST_P(RackTable, KeepsTheColumnsAsTheUserLeftThem)
{
    const std::string parameter =
        std::string("zqbvhwcx/HWConfig/GridLayout").append(variant.IsCentral() ? "CRX" : "RIO");
    const auto widths = [&] {
        std::vector<std::int32_t> all;
        for (std::int32_t lColumn = 1; lColumn <= grid.ColumnCount(); ++lColumn)
            all.push_back(grid.ColumnWidth(lColumn));
        return all;
    };
    EXPECT_THAT(widths(), ElementsAre(32, 78, 93, 59, 59, 100));
    const auto setAnew = [&] {
        table.VxHWStation(nullptr);
        table.VxHWStation(editor.watched);
        table.Refresh();
    };
    grid.UserWidth("Module", 140);
    grid.UserOrder({1, 3, 2, 4, 5, 6});
    setAnew();
    EXPECT_EQ(editor.host->options[parameter], "32|140|93|59|59|100|");
    EXPECT_THAT(widths(), ElementsAre(32, 140, 93, 59, 59, 100));
    EXPECT_THAT(grid.ColumnOrder(), ElementsAre(1, 3, 2, 4, 5, 6));
    EXPECT_EQ(grid.Text(4, "Module"), module);
    grid.User().OnResetColumns();
    EXPECT_THAT(widths(), ElementsAre(32, 78, 93, 59, 59, 100));

    table.VxHWStation(nullptr);
    EXPECT_EQ(grid.ColumnCount(), 0);
    for (const auto& [stored, first] : {std::pair{"40|", 40}, {"x|", 32}, {"0|", 32}, {"", 32}}) {
        editor.host->options = {{parameter, stored}};
        table.VxHWStation(editor.watched);
        EXPECT_EQ(grid.ColumnWidth(1), first) << stored;
        EXPECT_EQ(grid.ColumnWidth(2), 78) << stored;
        editor.host->options.clear();
        table.Style(vxStyleHWCompare); // which keeps no columns
        table.VxHWStation(nullptr);
        EXPECT_TRUE(editor.host->options.empty());
        table.Style(vxStyleHWConfig);
    }
}

TEST_P(RackTable, WritesAnEditedCell)
{
    struct Case {
        const char* key;
        std::int32_t row;
        std::string typed;
        std::int16_t endedBy;
        std::string shown;
        bool changes;
    };
    const bool bCentral = variant.IsCentral();
    const std::string inUse = bCentral ? "116" : grid.Text(3, "I-Address");
    const std::string outputs = grid.Text(10, "O-Address");
    const std::string outputsInUse = bCentral ? "20" : grid.Text(11, "O-Address");
    std::vector<RefusedEdit> refused;
    const auto connection = table.EditRefused.Connect([&](const RefusedEdit& edit) { refused.push_back(edit); });
    const std::string before = editor.Text();
    for (const Case& edit : {
             Case{"Comment", 4, "Light barriers", vxKeyReturn, "Light barriers", true},
             Case{"Comment", 4, "Light barriers", vxKeyEscape, "", false},
             Case{"Comment", 4, "", vxKeyTab, "", false},
             Case{"I-Address", 4, "200", vxKeyTab, bCentral ? "200..203" : "200", true},
             Case{"I-Address", 4, inUse, vxKeyReturn, inputs, false},
             Case{"I-Address", 4, inputs, vxKeyReturn, inputs, false}, // as it was
             Case{"I-Address", 4, "abc", vxKeyReturn, inputs, false},
             Case{"I-Address", 5, "20", vxKeyReturn, "T1016", false}, // sub-modules have addresses of their own
             Case{"I-Address", 10, "20", vxKeyReturn, "", false},     // no inputs
             Case{"O-Address", 10, outputsInUse, vxKeyReturn, outputs, false},
             Case{"Module", 4, "Name", vxKeyReturn, module, false},
         }) {
        SCOPED_TRACE(std::string(edit.key) + " " + std::to_string(edit.row) + " " + edit.typed);
        refused.clear();
        grid.Click(grid.Cell(edit.row, edit.key));
        if (grid.StartEditing(grid.Cell(edit.row, edit.key), std::nullopt)) {
            EXPECT_EQ(Selection(), "");
            EXPECT_EQ(Handler().FocusPosition(), 2 * edit.row);
            grid.Type(edit.typed);
            grid.Key(edit.endedBy);
            grid.EndEditing(false);
        }
        EXPECT_EQ(grid.Text(edit.row, edit.key), edit.shown);
        EXPECT_EQ(editor.Text() != before, edit.changes);
        // One edit is one step to undo.
        EXPECT_EQ(editor.history->Undo(), edit.changes);
        EXPECT_EQ(editor.Text(), before);
        const bool bRefused =
            edit.row == 4 && !edit.changes && edit.typed != edit.shown && std::string_view(edit.key) == "I-Address";
        ASSERT_EQ(refused.size(), bRefused ? 1 : 0);
        if (bRefused) {
            EXPECT_EQ(refused[0].attribute, "I-ADDRESS");
            EXPECT_EQ(refused[0].value, edit.typed);
            EXPECT_EQ(refused[0].cell, grid.CellRect(grid.Cell(4, "I-Address")));
        }
    }
}

TEST_P(RackTable, GivesTheEditorItsKeys)
{
    const GridCell comment = grid.Cell(4, "Comment");
    grid.Click(comment);
    EXPECT_FALSE(grid.EditedCell()); // a press only selects
    grid.Click(comment);
    grid.LetDoubleClickPass();
    EXPECT_EQ(grid.EditedCell(), comment);
    grid.Type("abc");
    for (const std::int16_t nKey : {vxKeyUp, vxKeyDown, vxKeyLeft}) EXPECT_TRUE(grid.Key(nKey));
    EXPECT_EQ(grid.caret, 2);
    EXPECT_FALSE(grid.Key(vxKeyRight));
    EXPECT_TRUE(grid.Key(vxKeyA, vxCtrlMask));
    EXPECT_TRUE(grid.editorTextSelected);
    EXPECT_FALSE(grid.Key(vxKeyA)) << "a letter";
    EXPECT_EQ(Handler().FocusPosition(), 8);

    // Undo acts on a model that holds what was typed, and the editor follows.
    EXPECT_FALSE(grid.Key(vxKeyZ, vxCtrlMask));
    EXPECT_TRUE(editor.history->Undo());
    EXPECT_EQ(grid.EditorText(), "");
    EXPECT_TRUE(grid.Key(vxKeyReturn));
    EXPECT_EQ(grid.Text(4, "Comment"), "");

    // On from cell to cell: over cells that have no editor, and back.
    EXPECT_EQ(grid.EditedCell(), grid.Cell(5, "Comment"));
    grid.Key(vxKeyTab, vxShiftMask);
    EXPECT_EQ(grid.EditedCell(), comment);
    grid.Key(vxKeyEscape);
    EXPECT_FALSE(grid.EditedCell());
    EXPECT_TRUE(grid.Type("7")); // typing replaces what the cell held
    EXPECT_EQ(grid.EditorText(), "7");
    // While a cell is edited, no drag begins and no tab changes the rack by itself.
    grid.MoveMouse({5, 70}, vxButtonLeft);
    grid.MoveMouse({50, 70}, vxButtonLeft);
    EXPECT_EQ(grid.drags, 0);
    if (auto* tabs = editor.Tabs()) {
        tabs->Hover(1);
        EXPECT_EQ(tabs->SelectedTab(), 0);
    }
    grid.EndEditing(false);

    // What is typed into a module that goes meanwhile, goes with it.
    EXPECT_TRUE(grid.Type("7"));
    editor.watched->ChangePlace(0, 4, [](auto& place) { place.module = nullptr; });
    grid.EndEditing(true);
    EXPECT_EQ(grid.Text(4, "Comment"), "");
}

TEST_F(CentralTable, MovesTheFocusByKeys)
{
    struct Case {
        std::int32_t from;
        std::int16_t key;
        std::int16_t shift;
        std::int32_t to;
    };
    for (const Case& move : {
             Case{8, vxKeyUp, 0, 6},
             Case{2, vxKeyUp, 0, 2},
             Case{9, vxKeyUp, 0, 8},
             Case{3, vxKeyUp, 0, 2},
             Case{8, vxKeyDown, 0, 10},
             Case{22, vxKeyDown, 0, 22},
             Case{9, vxKeyDown, 0, 10},
             Case{1, vxKeyUp, 0, 1},
             Case{8, vxKeyRight, 0, 1008},
             Case{1008, vxKeyRight, 0, 1008},
             Case{1008, vxKeyLeft, 0, 8},
             Case{8, vxKeyLeft, 0, 8},
             Case{8, vxKeyRight, vxShiftMask, 22},
             Case{8, vxKeyLeft, vxCtrlMask, 2},
             Case{3, vxKeyLeft, vxShiftMask, 2},
             Case{2, vxKeyLeft, vxShiftMask, 2},
             Case{8, vxKeyUp, vxAltMask, 8},
             Case{8, vxKeyDown, vxShiftMask, 10},
         }) {
        Focus(move.from);
        EXPECT_TRUE(grid.Key(move.key, move.shift));
        EXPECT_EQ(Handler().FocusPosition(), move.to) << move.from << " key " << move.key << " with " << move.shift;
        EXPECT_EQ(racks.ActiveRack(), move.to / 1000);
    }
}

TEST_P(RackTable, LeavesTheFocusToItsKeys)
{
    Select(4, 8);
    Focus(10);
    EXPECT_TRUE(grid.Key(vxKeySpace));
    EXPECT_EQ(Selection(), "4 6 8 10 ");
    for (const std::int16_t nKey : {vxKeyEscape, vxKeyReturn, vxKeyHome, vxKeyEnd}) EXPECT_TRUE(grid.Key(nKey));
    EXPECT_TRUE(grid.Key(vxKeyA, vxCtrlMask));
    EXPECT_FALSE(grid.Key(vxKeyDelete)); // the host's commands
    EXPECT_EQ(Selection(), "4 6 8 10 ");
}

TEST_P(RackTable, ShowsSelectionAndFocusedGap)
{
    const auto selectedRows = [&] {
        std::string rows;
        for (std::int32_t lRow = 1; lRow <= 11; ++lRow)
            if (grid.RowSelected(lRow)) rows += std::to_string(lRow) + " ";
        return rows;
    };
    Select(4, 8);
    EXPECT_EQ(selectedRows(), "2 3 4 ");
    EXPECT_EQ(grid.CurrentCell().lRow, 4);
    Handler().SelPlaces()->Clear();
    Handler().SelChangeComplete();
    for (const auto& [lFocus, rows] : {std::pair{9, "4 "}, {1, "1 "}, {23, "11 "}, {8, ""}, {5, "2 "}}) {
        Focus(lFocus);
        EXPECT_EQ(selectedRows(), rows) << lFocus;
    }
    // What changes while the station's drawing is off is shown as soon as it is on.
    editor.station->IsDrawable(false);
    Select(6, 6);
    EXPECT_EQ(selectedRows(), "2 ");
    editor.station->IsDrawable(true);
    EXPECT_EQ(selectedRows(), "3 ");
}

TEST_F(CentralTable, ChangesTheRackByItsTabs)
{
    Select(4, 8);
    tabs.Hover(1);
    EXPECT_EQ(racks.ActiveRack(), 1);
    EXPECT_EQ(tabs.SelectedTab(), 1);
    EXPECT_EQ(Selection(), "1004 1006 1008 ");
    EXPECT_EQ(Handler().FocusPosition(), 1008);
    EXPECT_EQ(grid.RowText(7), "7|Check weigher|Q3-WE01-A|148..163|152..167|");
    const std::size_t calls = editor.log->lines.size();
    tabs.Click(1);
    EXPECT_EQ(editor.log->lines.size(), calls);
    tabs.Hover(3); // not present
    EXPECT_EQ(racks.ActiveRack(), 1);

    // A drag that rests on a tab shows its rack and touches neither selection nor focus.
    tabs.DragHover(0);
    EXPECT_EQ(racks.ActiveRack(), 0);
    EXPECT_EQ(Selection(), "1004 1006 1008 ");
    Focus(1010);
    EXPECT_EQ(tabs.SelectedTab(), 1);
    racks.ActiveRack(0);
    EXPECT_EQ(Selection(), "4 6 8 ");
    racks.ActiveRack(7);
    EXPECT_EQ(editor.host->TakeReports(), std::vector<std::string>{"zqbchwcx.VxHWRackTable.P_ChangeRack"});
    EXPECT_EQ(racks.ActiveRack(), 0);
}

TEST_P(RackTable, DragsFromTheUsersThreshold)
{
    for (const auto& [moved, drags] :
         {std::pair{Point{3, 3}, 0}, {Point{4, 0}, 1}, {Point{0, -4}, 1}, {Point{-9, 9}, 1}}) {
        grid.drags = 0;
        const Point at = grid.Middle({4, 2});
        grid.Press({4, 2});
        grid.MoveMouse(at, vxButtonLeft);
        grid.MoveMouse({at.x + moved.x, at.y + moved.y}, vxButtonLeft);
        EXPECT_EQ(grid.drags, drags) << moved.x << "," << moved.y;
        grid.Release({4, 2});
    }
    // Nothing is dragged from a header, or by a button that was pressed elsewhere or is up again.
    grid.drags = 0;
    grid.MoveMouse(grid.Middle({4, 2}), vxButtonLeft);
    grid.Press({4, 2});
    grid.MoveMouse(grid.Middle({4, 2}), vxButtonLeft);
    grid.Release({4, 2});
    grid.MoveMouse({300, 150}, vxButtonLeft);
    grid.User().OnMouseDown({vxButtonLeft, 0, {50, 5}});
    grid.MoveMouse({50, 5}, vxButtonLeft);
    grid.MoveMouse({90, 5}, vxButtonLeft);
    EXPECT_EQ(grid.drags, 0);
}

TEST_P(RackTable, OpensTheMenuOfTheOverview)
{
    editor.TableMenu().choose = "pmnu_Delete";
    grid.Click({4, 2}, vxButtonRight);
    EXPECT_EQ(grid.RowText(4), "4||||| *");
    editor.history->Undo();
    EXPECT_EQ(grid.Text(4, "Module"), module);
    for (const auto& [nKey, nShift] : {std::pair<std::int16_t, std::int16_t>{vxKeyApps, 0}, {vxKeyF10, vxShiftMask}}) {
        Select(8, 8);
        grid.Key(nKey, nShift);
        EXPECT_EQ(grid.Text(4, "Module"), "") << nKey;
        editor.history->Undo();
    }
    grid.Key(vxKeyF10);
    EXPECT_EQ(grid.Text(4, "Module"), module);
}

class SubModules : public RackTable {
protected:
    void ShowOtherRack()
    {
        if (auto* racks = dynamic_cast<VxHWRackTable*>(&table)) racks->ActiveRack(1);
        else editor.watched->Usability(0, 20, vxPlaceNotUsable); // arranges the rows anew
    }

    const GridCell button = grid.Cell(5, "I-Address");
    RecordingPopupForm& form = editor.Form();
    const std::string before = editor.Text();
    const std::vector<reference::ModuleData> subModules =
        editor.station->Data().racks.front()->places.at(4).module->subModules;
    const std::int32_t lCount = static_cast<std::int32_t>(subModules.size());
};

INSTANTIATE_TEST_SUITE_P(Every, SubModules, ::testing::ValuesIn(ViewVariants), ::testing::PrintToStringParamName());

TEST_P(SubModules, OpenUnderTheirColumns)
{
    grid.Click(button);
    ASSERT_TRUE(form.Visible());
    const Rect cell = grid.CellRect(button);
    const Point at = grid.ScreenPosition();
    EXPECT_EQ(form.rect.top, at.y + cell.bottom);
    EXPECT_EQ(form.askedAt, (Point{at.x + cell.left, at.y + cell.top}));
    EXPECT_EQ(form.rect.left, at.x + grid.CellRect(grid.Cell(5, "Module")).left);
    EXPECT_EQ(form.rect.right, at.x + grid.CellRect(grid.Cell(5, "O-Address")).right);
    EXPECT_EQ(form.rect.height(), lCount * form.TextHeight() + 2);
    const auto texts = std::count_if(form.lines.begin(), form.lines.end(),
                                     [](const auto& line) { return line.starts_with("LeftText"); });
    EXPECT_EQ(texts, 3 * lCount) << "name and two addresses of each";
    // A frame, the lines in it below each other, and between the columns strokes that reach neither end.
    const auto Edge = [](std::int32_t y) { return std::to_string(y) + " "; };
    const std::int32_t lHeight = form.rect.height();
    for (const auto& part : std::vector<std::string>{
             "Fill 0,0 289x" + Edge(lHeight) + "window", "Line 288,0 288," + Edge(lHeight - 1) + "text",
             "Line 0,0 288,0 text", "Line 0," + Edge(lHeight - 1) + "0,0 text", "Line 77,3 77," + Edge(lHeight - 6),
             "Line 229,3 229," + Edge(lHeight - 6), "Fill 1,1 287x13 window", "Fill 1,14 287x13 window", " 4,1 69x13 ",
             " 175,14 50x13 "})
        EXPECT_THAT(form.lines, Contains(::testing::HasSubstr(part)));
    EXPECT_THAT(form.lines, Not(Contains(::testing::HasSubstr(" 288,3 "))));
    grid.Click(button);
    EXPECT_FALSE(form.Visible());
    // The hook sees the press before the grid does: the click still does not open the form again.
    grid.Click(button);
    editor.toolkit->watch.Mouse(vxMessageLeftDown, grid.hWnd());
    grid.Click(button);
    EXPECT_FALSE(form.Visible());
    form.workArea.bottom = at.y + cell.bottom + 20;
    grid.Click(button);
    EXPECT_EQ(form.rect.bottom, at.y + cell.top);
}

TEST_P(SubModules, CloseByEveryRule)
{
    struct Case {
        const char* what;
        std::function<void()> happens;
        bool closes;
    };
    auto& watch = editor.toolkit->watch;
    for (const Case& rule : std::vector<Case>{
             {"focus lost", [&] { watch.Message(grid.hWnd(), vxMessageKillFocus, 77); }, true},
             {"focus to the form", [&] { watch.Message(grid.hWnd(), vxMessageKillFocus, form.hWnd()); }, false},
             {"press elsewhere", [&] { watch.Mouse(vxMessageLeftDown, 77); }, true},
             {"right press in a title bar", [&] { watch.Mouse(vxMessageNonClientRightDown, 0); }, true},
             {"press in the form", [&] { watch.Mouse(vxMessageLeftDown, form.hWnd()); }, false},
             {"mouse move", [&] { watch.Mouse(vxMessageMouseMove, 77); }, false},
             {"cursor key", [&] { grid.Key(vxKeyUp); }, true},
             {"space", [&] { grid.Key(vxKeySpace); }, true},
             {"escape", [&] { grid.Key(vxKeyEscape); }, true},
             {"the windowing system", [&] { form.Close(); }, true},
             {"other rack or none", [&] { ShowOtherRack(); }, true},
             {"no station", [&] { table.VxHWStation(nullptr); }, true},
         }) {
        SCOPED_TRACE(rule.what);
        table.VxHWStation(editor.watched);
        Focus(10);
        table.Refresh();
        grid.Click(button);
        ASSERT_TRUE(form.Visible());
        rule.happens();
        EXPECT_EQ(form.Visible(), !rule.closes);
        EXPECT_EQ(watch.IsWatching(), !rule.closes);
        grid.Key(vxKeyEscape);
    }
}

TEST_P(SubModules, OpenTheirParameters)
{
    std::int32_t dialogs = 0;
    editor.parameters = [&](const reference::ModuleData&) { return ++dialogs, std::nullopt; };
    grid.Click(button);
    form.DoubleClick({10, lCount * form.TextHeight() + 1}); // on the frame
    EXPECT_TRUE(form.Visible());
    form.DoubleClick({10, (lCount - 1) * form.TextHeight() + 1});
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(dialogs, 1);
    Focus(10);
    grid.Key(vxKeyDown, vxAltMask);
    EXPECT_TRUE(grid.Key(vxKeyDown));
    const std::string second = form.told;
    EXPECT_TRUE(grid.Key(vxKeyUp));
    EXPECT_NE(form.told, second);
    EXPECT_TRUE(grid.Key(vxKeyDown));
    EXPECT_EQ(form.told, second) << "line by line";
    for (const std::int16_t nKey : {vxKeyDown, vxKeyDown, vxKeyUp}) EXPECT_TRUE(grid.Key(nKey));
    EXPECT_EQ(Handler().FocusPosition(), 10);
    const std::string& name = subModules.at(subModules.size() - 2).name;
    EXPECT_THAT(form.told, ::testing::StartsWith(name.empty() ? "" : name + ", ")) << "for screen readers";
    EXPECT_TRUE(grid.Key(vxKeyReturn));
    EXPECT_EQ(dialogs, 2);
}

TEST_P(RackTable, TellsTheDiagnosticState)
{
    const auto diag = std::make_shared<FakeDiagService>(editor.log);
    table.VxHWStation(nullptr);
    table.Style(vxStyleHWDiag);
    table.VxHWDiagService(diag);
    table.VxHWStation(editor.watched);
    table.Refresh();
    EXPECT_EQ(grid.RowText(0), "T1001|T1007|T1002|T1003|T1017");
    for (std::int32_t lColumn = 1; const std::int32_t lWidth : {32, 75, 65, 93, 100})
        EXPECT_EQ(grid.ColumnWidth(lColumn++), lWidth);
    const auto oPlace = editor.station->PlaceAt({0, 4});
    diag->failures[oPlace->Key()] = 1;
    diag->cpuStates[oPlace->Key()] = 11;
    editor.host->pictures["IDB_DIAG_FAILURE"] = std::make_shared<FakeImage>("failure");
    const GridCell status = grid.Cell(4, "Status");
    editor.station->RackPlaceChange.Raise(oPlace); // waits for the next refresh
    EXPECT_EQ(grid.Picture(status), nullptr);
    editor.station->TotalRefresh.Raise();
    EXPECT_NE(grid.Picture(status), nullptr);
    for (const char* key : {"RackPlace", "Module", "Basic Address"})
        EXPECT_EQ(grid.Look(grid.Cell(4, key)).backColor, G_Rgb(255, 201, 201)) << key;
    EXPECT_EQ(grid.Tooltip(status), "T6102");
    EXPECT_EQ(grid.Tooltip(grid.Cell(3, "Status")), "T6105");
    EXPECT_EQ(grid.Tooltip(grid.Cell(4, "Module")), "");
    EXPECT_EQ(grid.Look(grid.Cell(5, "Basic Address")).kind, CellKind::PushButton);
    EXPECT_FALSE(grid.StartEditing(grid.Cell(3, "Basic Address"), std::nullopt));
}

/// A table of which some places have no row: 12, 13 and 30.
class RowsTable : public RackTable {
protected:
    RowsTable()
    {
        editor.TableSite().Resize(5760, 3000); // eleven rows are seen
        changed = rows.TopRowChange.Connect([this] { ++changes; });
    }

    VxHWRackTableRIO& rows = dynamic_cast<VxHWRackTableRIO&>(table);
    EventConnection changed;
    int changes = 0;
};

INSTANTIATE_TEST_SUITE_P(Distributed, RowsTable, ::testing::Values(ViewVariants[1], ViewVariants[2]),
                         ::testing::PrintToStringParamName());

TEST_P(RowsTable, HasARowForEachPlaceThatIsNotHidden)
{
    ASSERT_EQ(grid.RowCount(), 35);
    for (const auto& [lRow, lPlace] : {std::pair{1, 1}, {11, 11}, {12, 14}, {27, 29}, {28, 31}, {35, 38}})
        EXPECT_EQ(grid.Text(lRow, "RackPlace"), std::to_string(lPlace));
    EXPECT_EQ(grid.scrollBar,
              variant.eStationType == vxStationTypeDistributed1 ? GridScrollBar::Always : GridScrollBar::WhenNeeded);
    // What happens in a row happens to its place, and the other way round.
    grid.Click({12, 2});
    EXPECT_EQ(Selection(), "28 ");
    EXPECT_EQ(Handler().FocusPosition(), 28);
    editor.Manager().SetSingleModuleToCurPos(editor.station->CreateModule(variant.digital));
    EXPECT_NE(grid.Text(12, "Module"), "");
    Edit(grid.Cell(12, "Comment"), "In place 14");
    EXPECT_EQ(editor.station->PlaceAt({0, 14})->Module()->GetAttribute("COMMENT"), "In place 14");

    // A place that is hidden from now on closes the rows up, in the other style, too.
    table.Style(vxStyleHWDiag);
    table.VxHWDiagService(editor.diag);
    table.VxHWStation(editor.watched);
    table.Refresh();
    EXPECT_EQ(grid.Text(12, "RackPlace"), "14");
    editor.watched->Usability(0, 9, vxPlaceNotUsable);
    table.Refresh();
    EXPECT_EQ(grid.RowCount(), 34);
    EXPECT_EQ(grid.Text(11, "RackPlace"), "14");
    EXPECT_NE(grid.Text(11, "Module"), "");

    editor.watched->Change([](auto& data) { data.displayMode = vxDisplayModeOnline1; });
    table.VxHWStation(editor.watched);
    grid.RowCount(35);
    EXPECT_EQ(grid.Look({35, 2}).backColor, G_ColorOnlineBackground) << "below the rows, too";
}

TEST_P(RowsTable, StepsOverHiddenPlacesByKeys)
{
    struct Case {
        std::int32_t from;
        std::int16_t key;
        std::int16_t shift;
        std::int32_t to;
    };
    for (const Case& move : {
             Case{22, vxKeyDown, 0, 28},
             Case{28, vxKeyUp, 0, 22},
             Case{21, vxKeyDown, 0, 27}, // from gap to gap
             Case{27, vxKeyUp, 0, 21},
             Case{2, vxKeyUp, 0, 2},
             Case{76, vxKeyDown, 0, 76},
             Case{8, vxKeyRight, 0, 8},
             Case{8, vxKeyLeft, 0, 8},
             Case{8, vxKeyRight, vxShiftMask, 76},
             Case{40, vxKeyLeft, vxCtrlMask, 2},
             Case{8, vxKeyUp, vxAltMask, 8},
         }) {
        Focus(move.from);
        EXPECT_TRUE(grid.Key(move.key, move.shift));
        EXPECT_EQ(Handler().FocusPosition(), move.to) << move.from << " key " << move.key << " with " << move.shift;
    }
}

TEST_P(RowsTable, BringsTheRowOfTheFocusIntoViewAndTellsItsTopRow)
{
    EXPECT_EQ(rows.TopRow(), 1);
    Focus(28);
    EXPECT_EQ(std::pair(rows.TopRow(), changes), std::pair(2, 1)) << "row 12 is the eleventh that is seen";
    Focus(22);
    EXPECT_EQ(changes, 1) << "it was in view";
    grid.ScrollTo(20);
    EXPECT_EQ(std::pair(rows.TopRow(), changes), std::pair(20, 2));
    Focus(24); // hidden: the row of the place that follows it
    EXPECT_EQ(std::pair(rows.TopRow(), changes), std::pair(12, 3));
    EXPECT_EQ(grid.CurrentCell().lRow, 12);
    Focus(76);
    EXPECT_EQ(rows.TopRow(), 25);
    editor.watched->Empty(0, 38);
    editor.watched->Usability(0, 38, vxPlaceNotUsable);
    Focus(2);
    Focus(76); // nothing follows: the last row
    EXPECT_EQ(rows.TopRow(), 24);
}

} // namespace
} // namespace zqbchwcx::testing
