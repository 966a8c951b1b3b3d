#include "tests/support/StationStage.h"
#include "tests/support/model/FakeModelServices.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t Controller = G_PlacePosition(0, 2);
constexpr std::int32_t Digital = G_PlacePosition(0, 4);
constexpr std::int32_t Free = G_PlacePosition(0, 6);

class DiagPanel : public StationFixture {
protected:
    DiagPanel()
    {
        station->Put(0, 2, "CPU");
        station->Put(0, 4, "DI");
        MakePanel();
        manager.Initialize(vxStationTypeCentral, overview, table, panel, station, diag);
        handler = manager.VxHWSelectionHandler();
        TakeLines();
    }
    ~DiagPanel() override { manager.Terminate(); }

    void MakePanel()
    {
        services.toolkit->labels.clear();
        panel = std::make_shared<VxHWDiagPanel>(site);
    }
    const RecordingInfoBox& Box(const std::string& name) const
    {
        return *services.toolkit->infoBoxes.at("vxinf_" + name);
    }
    RecordingGrid& Versions() const { return *services.toolkit->grids.at("vxgrd_InfoVersion"); }
    RecordingCommandButton& Button() const { return *services.toolkit->commandButtons.at("vxcmd_AdditionalInfo"); }
    std::string Hint() const { return services.toolkit->tooltips.Hover(Button().hWnd(), {3, 3}).text; }
    /// Name, status, address, width, place, rack and system with "|" between them.
    std::string Shown() const
    {
        std::string shown;
        for (const char* name : {"ModuleName", "Status", "Address", "ModuleWidth", "Place", "Rack", "SystemID"})
            shown += "|" + Box(name).text;
        return shown.substr(1);
    }
    std::string ShownAt(std::int32_t lFocus)
    {
        handler->FocusPosition(lFocus);
        return Shown();
    }
    Lines Rows() const { return Versions().AllRows(); }

    RecordingControl site{services.log};
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(services.log);
    std::shared_ptr<VxHWDiagPanel> panel;
    VxHWDiagManager manager;
};

TEST_F(DiagPanel, TellsEveryCombinationOfFailureCategoriesAndInformation)
{
    constexpr std::pair<std::int32_t, const char*> categories[] = {{1, "T2021"}, {4, "T2026"}, {2, "T2027"}};
    for (const bool bSubModules : {false, true})
        for (const bool bFailure : {false, true})
            for (const bool bInfo : {false, true})
                for (unsigned chosen = 0; chosen < 8; ++chosen) {
                    station->Put(0, 4, bSubModules ? "CNT3" : "DI");
                    diag->failures = {{"0/4", bFailure ? 1 : 0}};
                    diag->infos = bInfo ? std::set<std::string>{"0/4"} : std::set<std::string>{};
                    diag->diagStates.clear();
                    std::string status = bFailure ? "" : "T2020";
                    for (unsigned k = 0; k < 3; ++k) {
                        if ((chosen >> k & 1U) == 0) continue;
                        diag->diagStates.insert({"0/4", categories[k].first});
                        if (bFailure) status += (status.empty() ? "" : "\r\n") + std::string(categories[k].second);
                    }
                    handler->FocusPosition(Digital);
                    panel->RefreshPlace(station->Place(0, 4));
                    EXPECT_EQ(Box("Status").text, status) << bFailure << chosen;
                    EXPECT_EQ(Button().Enabled(), bInfo);
                    EXPECT_EQ(Hint(), bInfo ? "T6106" : "T6104");
                }
    TakeLines();
    Button().Click();
    EXPECT_THAT(TakeLines(), ElementsAre("ShowModuleDiagnostics 0/4"));
}

TEST_F(DiagPanel, TellsWhatHasTheFocus)
{
    services.host->components = {{"Firmware", "V 2.1"}, {"Loader", ""}};
    EXPECT_EQ(ShownAt(Digital).substr(0, 15), "DI module|T2020");
    EXPECT_THAT(Rows(), ElementsAre("DI|- - -|- - -"));
    EXPECT_EQ(ShownAt(Controller), "CPU module|T2020|- - -|1|2|0|T2050");
    EXPECT_THAT(Rows(), ElementsAre("CPU|Firmware|V 2.1", "|Loader|- - -"));
    services.host->components.clear();
    panel->Refresh();
    EXPECT_THAT(Rows(), ElementsAre("CPU|- - -|- - -")) << "the host reports nothing";

    struct Case {
        std::int32_t lFocus;
        const char* shown;
    };
    for (const Case& c : {Case{Free, "||||6|0|"},
                          {1000, "|||||1|"},
                          {vxNoPosition, "||||||"},
                          {40, "||||||"},
                          {9002, "||||||"},
                          {1, "||||1|0|"},
                          {1023, "||||11|1|"}}) {
        EXPECT_NE(ShownAt(Digital), c.shown);
        EXPECT_EQ(ShownAt(c.lFocus), c.shown) << c.lFocus;
        EXPECT_THAT(Rows(), IsEmpty());
        EXPECT_FALSE(Button().Enabled());
        EXPECT_EQ(Hint(), "");
        TakeLines();
        Button().Click();
        EXPECT_FALSE(c.lFocus == 1000 && !TakeLines().empty()) << "only places have diagnostics";
    }
    TakeReports(); // of presses that no user can make
    ShownAt(Digital);
    diag->failures = {{"0/4", 1}};
    panel->RefreshPlace(station->Place(1, 4));
    EXPECT_NE(Box("Status").text, "") << "another place is not told";
    manager.Terminate();
    EXPECT_EQ(Shown(), "||||||") << "no station";
    panel->Refresh();
    EXPECT_EQ(Shown(), "||||||");
    manager.Initialize(vxStationTypeCentral, overview, table, panel, station, diag);
}

TEST_F(DiagPanel, ForgetsTheFormerModuleWhenTheNewOneCannotBeRead)
{
    std::int32_t lCall = 0;
    do {
        services.Faults().Restart();
        ShownAt(Digital);
        services.Faults().ThrowAt(++lCall);
        handler->FocusPosition(Controller);
        const std::string name = Box("ModuleName").text;
        EXPECT_TRUE(name == "CPU module" || name.empty() || services.Faults().Thrown() == "InfoBox.Text")
            << lCall << name;
    } while (!services.Faults().Thrown().empty());
    EXPECT_GT(lCall, 20);
    TakeReports();
}

TEST_F(DiagPanel, IsCaptionedInTheHostsLanguageOrInItsOwn)
{
    const auto captions = [&] {
        Lines all;
        for (const auto* label : services.toolkit->labels.at("lbl_InfoCaption")) all.push_back(label->caption);
        all.push_back(Button().caption);
        return all;
    };
    EXPECT_THAT(captions(),
                ElementsAre("T2006", "T2007", "T2012", "T2008", "T2013", "T2014", "T2016", "T2015", "T2017"));
    EXPECT_EQ(Versions().RowText(0), "T2009|T2010|T2011");
    EXPECT_EQ(Box("Address").name, "T2012");
    EXPECT_EQ(Versions().ColumnWidth(1) * 10000 + Versions().ColumnWidth(2) * 100 + Versions().ColumnWidth(3), 1258091);
    manager.Terminate();
    services.Faults().ThrowAt(2); // the host has no texts
    MakePanel();
    EXPECT_THAT(captions(), ElementsAre("Baugruppe:", "Status:", "Adresse:", "Baugruppenbreite:", "Steckplatz:",
                                        "Rack:", "Systemkennung:", "Version:", "Diagnoseinformationen..."));
    EXPECT_EQ(Versions().RowText(0), "ORDN|Component|Version");
    manager.Initialize(vxStationTypeCentral, overview, table, panel, station, diag);
    TakeReports();
}

TEST_F(DiagPanel, HasTheGroundOfWhatCannotBeEdited)
{
    auto& desktop = services.toolkit->desktop;
    ShownAt(Digital);
    for (const OleColor light : {G_Rgb(200, 210, 220), G_Rgb(100, 100, 100)}) {
        desktop.systemColors[vxColorButtonFace] = G_Rgb(100, 100, 100);
        desktop.systemColors[vxColorButtonHighlight] = G_Rgb(200, 200, 200);
        desktop.systemColors[vxColorLight3D] = light;
        services.toolkit->sysColorsChanged();
        const OleColor expected = light == G_Rgb(100, 100, 100) ? G_Rgb(150, 150, 150) : vxColorLight3D;
        EXPECT_EQ(Versions().Look({1, 1}).backColor, expected);
        for (const auto& [name, box] : services.toolkit->infoBoxes) EXPECT_EQ(box->seenColor, expected) << name;
    }
}

TEST_F(DiagPanel, LaysItsPartsOutWithoutOverlapFromTheSmallestSizeOn)
{
    for (const Size size : {Size{10, 10}, {384, 285}, {400, 900}, {699, 300}, {700, 285}, {2000, 1200}}) {
        site.Resize(size.width * vxTwipsPerPixel, size.height * vxTwipsPerPixel);
        const Rect inner = MakeRect(0, 0, std::max(size.width, 384), std::max(size.height, 285));
        EXPECT_EQ(services.toolkit->panels.at("vxpnl_ModuleInfo")->bounds, inner);
        std::vector<Rect> parts = {Versions().bounds, Button().bounds};
        for (const auto* label : services.toolkit->labels.at("lbl_InfoCaption")) parts.push_back(label->bounds);
        for (const auto& [name, box] : services.toolkit->infoBoxes) parts.push_back(box->bounds);
        ASSERT_EQ(parts.size(), 17U);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const Rect& a = parts[i];
            EXPECT_TRUE(a.left > 0 && a.top > 0 && a.right < inner.right && a.bottom < inner.bottom) << i;
            EXPECT_TRUE(a.width() >= 20 && a.height() >= 14) << i << " at " << size.width;
            for (std::size_t k = 0; k < i; ++k) {
                const Rect& b = parts[k];
                EXPECT_TRUE(a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top)
                    << i << " and " << k << " at " << size.width;
            }
        }
        EXPECT_GE(Versions().bounds.height(), 60) << "the header and the rows of a controller";
    }
}

TEST_F(DiagPanel, LetsNobodyEditTheVersionsButReadThemByKeyboard)
{
    services.host->components = {{"Firmware", "V 2.1"}, {"Loader", "V 1"}};
    ShownAt(Controller);
    EXPECT_FALSE(Versions().StartEditing({1, 1}, std::nullopt));
    for (const std::int16_t nKey : {vxKeyDown, vxKeyDown, vxKeyDown, vxKeyReturn, vxKeyDelete})
        EXPECT_TRUE(Versions().Key(nKey));
    EXPECT_EQ(Versions().CurrentCell().lRow, 2);
    EXPECT_FALSE(Versions().Key(vxKeyTab)) << "nobody is caught in it";
    panel->Refresh();
    EXPECT_EQ(Versions().CurrentCell().lRow, 2) << "what did not change stays";
}

TEST_F(DiagPanel, LivesWithChildrenThatCannotBeMade)
{
    manager.Terminate();
    panel.reset();
    services.Faults().Restart();
    MakePanel();
    const std::int32_t lCalls = services.Faults().Count();
    for (std::int32_t lCall = 1; lCall <= lCalls; ++lCall) {
        panel.reset();
        services.Faults().ThrowAt(lCall);
        MakePanel();
        services.Faults().Restart();
        EXPECT_THAT(TakeReports(), ::testing::Not(IsEmpty())) << lCall;
        manager.Initialize(vxStationTypeCentral, overview, table, panel, station, diag);
        panel->Refresh();
        manager.Terminate();
        TakeReports();
    }
    panel.reset();
    EXPECT_EQ(services.host->openTexts, 0);
    MakePanel();
    manager.Initialize(vxStationTypeCentral, overview, table, panel, station, diag);
}

} // namespace
} // namespace zqbchwcx::testing
