#pragma once

#include "tests/support/ViewVariant.h"
#include "tests/support/model/FakeModelServices.h"
#include "tests/support/model/WatchedStation.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/history/History.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <optional>

namespace zqbchwcx::testing {

/// A whole editor without a screen: the reference station with its history, and an overview and a table of it that
/// `VxHWConfigManager` has connected. The test is the user.
class Editor {
public:
    explicit Editor(reference::StationData data, const ViewVariant& variant = CentralViews) : mVariant(variant)
    {
        for (const auto* name : {"IDB_CRX_RACKNR_ACTIVE", "IDB_CRX_RACKNR_INACTIVE"})
            host->pictures[name] = std::make_shared<FakeImage>(name);
        for (const std::string& name : mVariant.RowPictures()) host->pictures[name] = std::make_shared<FakeImage>(name);
        reference::StationServices asked;
        asked.clipboard = host->clipboard;
        asked.parameterDialog = [this](const reference::ModuleData& module, reference::PlaceRef) {
            log->Call("ParameterDialog");
            return parameters ? parameters(module) : std::nullopt;
        };
        station = std::make_shared<reference::Station>(host->context, std::move(data), std::move(asked));
        watched = std::make_shared<WatchedStation>(log, station);
        mRefused = station->Refused.Connect([this](const reference::Refusal&) { ++refusals; });
        history = std::make_shared<reference::History>(station);
        host->actions = history;

        moSite = std::make_unique<RecordingControl>(log);
        view = mVariant.makeOverview(*moSite);
        mcolShapes = toolkit->shapes;
        mcolSysColorsChanged.push_back(toolkit->sysColorsChanged);
        settingChanged = toolkit->settingChanged;
        mcolButtons = toolkit->buttons;
        for (const char* name : {mVariant.picture, "pic_Drag"}) mcolPictures.push_back(toolkit->pictureBoxes.at(name));
        moPicture = toolkit->pictureBoxes.at(mVariant.picture);
        moMenu = toolkit->menus.at("pmnu_Main");
        if (!mVariant.IsCentral()) moBar = toolkit->scrollBars.at("scb_Main");
        moTableSite = std::make_unique<RecordingControl>(log);
        table = mVariant.makeTable(*moTableSite);
        moGrid = toolkit->grids.at("vxgrd_Main");
        if (mVariant.IsCentral()) moTabs = toolkit->tabStrips.at("vxtab_Main");
        moForm = toolkit->popupForms.at("frm_SubModules");
        moTableMenu = toolkit->menus.at("pmnu_Main");
        if (auto* rows = dynamic_cast<VxHWRackTableRIO*>(table.get()))
            mTopRowChange = rows->TopRowChange.Connect([this] { PointArrow(*view); });
        mcolSysColorsChanged.push_back(toolkit->sysColorsChanged);
        Initialize();
        view->Refresh();
        table->Refresh();
        PointArrow(*view);
        moPicture->Focus(true);
    }

    ~Editor()
    {
        moManager->Terminate();
        moManager.reset();
        view.reset();
        table.reset();
    }
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    void Initialize() { moManager->Initialize(mVariant.eStationType, view, table, watched); }

    RecordingPictureBox& Picture() const { return *moPicture; }
    PictureBoxEvents& Mouse() const { return moPicture->User(); }
    RecordingControl& Site() const { return *moSite; }
    RecordingControl& TableSite() const { return *moTableSite; }
    UserControlEvents& Keys() const { return moSite->User(); }
    /// The position's point in the picture.
    Point PointOf(std::int32_t lPosition) const
    {
        const FaultPoints::Pause pause(log->faults);
        return mVariant.pointOf(*view, lPosition);
    }
    RecordingPopupMenu& Menu() const { return *moMenu; }
    RecordingGrid& Grid() const { return *moGrid; }
    const ViewVariant& Variant() const { return mVariant; }
    /// What scrolls the picture; null and empty where nothing does.
    RecordingScrollBar* Bar() const { return moBar; }
    const std::map<std::string, RecordingButton*>& Buttons() const { return mcolButtons; }
    /// Null where the table shows one rack only.
    RecordingTabStrip* Tabs() const { return moTabs; }
    RecordingPopupForm& Form() const { return *moForm; }
    RecordingPopupMenu& TableMenu() const { return *moTableMenu; }
    VxHWConfigManager& Manager() const { return *moManager; }
    void ChangeSysColors() const
    {
        for (const auto& changed : mcolSysColorsChanged) changed();
    }
    /// The data object of a drag that begins in this editor.
    std::shared_ptr<FakeDataObject> NewDrag() const
    {
        auto data = std::make_shared<FakeDataObject>(log);
        data->onWanted = [this, weak = std::weak_ptr(data)](std::int16_t nFormat) {
            Mouse().OLESetData(weak.lock(), nFormat);
        };
        return data;
    }

    /// The file that saving would write.
    std::string Text() const { return reference::WriteStation(station->Data()); }
    /// Everything that is wrong between two events: rules that are broken, errors that were reported, brackets that
    /// are open. Empty when all is well.
    std::string WhatIsWrong()
    {
        std::string wrong;
        for (const VxError& report : host->reports) wrong += report.source + ": " + report.description + "\n";
        host->reports.clear();
        for (const auto& refusal : reference::CheckStation(station->Data(), reference::ShippedCatalogue()))
            wrong += std::string(reference::RuleId(refusal.rule)) + ": " + refusal.text.en + "\n";
        if (host->waitBalance != 0) wrong += "the wait cursor stays\n";
        if (host->openActions != 0) wrong += "a user action stays open\n";
        if (!station->IsDrawable()) wrong += "the station's drawing stays off\n";
        return wrong;
    }
    /// What must hold for the rows of a distributed station wherever both views are scrolled.
    std::string WhatIsWrongInRows() const
    {
        if (moBar == nullptr) return {};
        constexpr std::int32_t TipHeight = 7;
        std::string wrong;
        const RowsLayout layout = RowsOf(*view);
        const std::int32_t lFirst = moBar->Value();
        const bool bScrolls = layout.RowCount() > 4;
        if (lFirst < 0 || lFirst > std::max(layout.RowCount() - 4, 0) || moPicture->Top() != -96 * lFirst ||
            moBar->Visible() != bScrolls)
            wrong += "row " + std::to_string(lFirst) + " is the first\n";
        const PositionInfo focus = G_PositionInfo(view->VxHWSelectionHandler()->FocusPosition());
        const auto cell = layout.CellOf(focus);
        if (focus.eType == vxPositionPlace && !cell) wrong += "the focus is on a hidden place\n";

        const std::int32_t lRow = layout.Shown().IndexOf(focus.lNumber) - moGrid->TopRow();
        const bool bShown = focus.eType == vxPositionPlace && cell && cell->lRow >= lFirst && cell->lRow < lFirst + 4 &&
                            lRow >= 0 && lRow < dynamic_cast<const VxHWRackTableRIO&>(*table).RowsInView();
        const RecordingShape& tip = *mcolShapes.at("shp_End").front();
        const std::int32_t lMiddle = VxHWRackTableRIO::HeaderBottom + lRow * moGrid->RowHeight() + TipHeight;
        if (tip.Visible() != bShown || (bShown && tip.Bounds().top + TipHeight / 2 != lMiddle))
            wrong += "the arrow leads to " + std::to_string(tip.Bounds().top) + "\n";
        return wrong;
    }
    /// Where the picture differs from that of an overview that is made just now; empty when it does not.
    std::string DifferenceFromAFreshPicture() const
    {
        RecordingControl site(log);
        toolkit->shapes.clear();
        const auto fresh = mVariant.makeOverview(site);
        CopyBinding(*view, *fresh);
        RecordingPictureBox& picture = *toolkit->pictureBoxes.at(mVariant.picture);
        picture.Focus(moPicture->HasFocus());
        fresh->Refresh();
        if (moBar != nullptr) toolkit->scrollBars.at("scb_Main")->DragTo(moBar->Value());
        PointArrow(*fresh);
        const std::string difference = Raster::FirstDifference(moPicture->raster, picture.raster);
        const std::string look = LookOf(mcolShapes);
        return look == LookOf(toolkit->shapes) ? difference : difference + " shapes:\n" + look;
    }
    /// Where the table differs from one that is made just now; empty when it does not.
    std::string DifferenceFromAFreshTable() const
    {
        RecordingControl site(log);
        const auto fresh = mVariant.makeTable(site);
        CopyBinding(*table, *fresh);
        fresh->Refresh();
        const std::string expected =
            LookOf(*toolkit->grids.at("vxgrd_Main"), moTabs != nullptr ? toolkit->tabStrips.at("vxtab_Main") : nullptr);
        const std::string actual = LookOf(*moGrid, moTabs);
        return actual == expected ? std::string() : "the table shows\n" + actual + "a fresh one\n" + expected;
    }
    /// Forgets what the doubles have recorded.
    void ForgetLines()
    {
        log->lines.clear();
        for (auto* picture : mcolPictures) picture->lines.clear();
        moMenu->shown.clear();
        moTableMenu->shown.clear();
        moForm->lines.clear();
        toolkit->imageLists.created.clear();
        toolkit->imageLists.files->asked.clear();
    }

    /// Gives a view what another one has from the manager.
    static void CopyBinding(const IVxHWControl& from, IVxHWControl& to)
    {
        to.StationType(from.StationType());
        to.Style(from.Style());
        to.Locked(from.Locked());
        to.VxHWDiagService(from.VxHWDiagService());
        to.VxHWCompareService(from.VxHWCompareService());
        to.VxHWStation(from.VxHWStation());
        to.VxHWSelectionHandler(from.VxHWSelectionHandler());
        to.VxHWMouseInputController(from.VxHWMouseInputController());
        to.VxHWKeyInputController(from.VxHWKeyInputController());
        to.VxHWDragDropController(from.VxHWDragDropController());
    }

    TestServices services{
        std::make_shared<reference::ModelContext>(reference::ModelContext{reference::SharedCatalogue(), nullptr})};
    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    std::shared_ptr<FakeHost> host = services.host;
    /// A setting of the desktop has changed.
    std::function<void(std::int32_t)> settingChanged;
    /// What the parameter dialog answers.
    std::function<std::optional<reference::ModuleData>(const reference::ModuleData&)> parameters;
    reference::StationPtr station;
    /// The station as the views and controllers see it.
    WatchedStationPtr watched;
    std::shared_ptr<reference::History> history;
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(log);
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(log);
    /// What the drag that goes on carries; null without one.
    std::shared_ptr<FakeDataObject> drag;
    IVxHWControlPtr view;
    IVxHWControlPtr table;
    /// Operations that the model refused, with its reason.
    std::int32_t refusals = 0;

private:
    /// As the window does that holds both views.
    void PointArrow(IVxHWControl& overview) const
    {
        if (auto* rows = dynamic_cast<VxHWRackOverviewRIO*>(&overview)) {
            const auto& tableOfRows = dynamic_cast<const VxHWRackTableRIO&>(*table);
            rows->RackTableTopRow(tableOfRows.TopRow());
            rows->RackTableRowsInView(tableOfRows.RowsInView());
        }
    }

    static std::string LookOf(const RecordingToolkit::ShapesByName& shapesByName)
    {
        std::string look;
        for (const auto& [name, shapes] : shapesByName)
            for (const auto* shape : shapes) {
                const Rect bounds = shape->Visible() ? shape->Bounds() : Rect{};
                look += name + " " + std::to_string(bounds.left) + "," + std::to_string(bounds.top) + "\n";
            }
        return look;
    }

    static std::string LookOf(const RecordingGrid& grid, const RecordingTabStrip* tabs)
    {
        std::string look;
        if (tabs != nullptr) {
            look = "tab " + std::to_string(tabs->SelectedTab());
            for (const auto& tab : tabs->tabs) look += tab.enabled ? " on" : " off";
        }
        for (std::int32_t lRow = 0; lRow <= grid.RowCount(); ++lRow) {
            look += "\n" + grid.RowText(lRow);
            for (std::int32_t lColumn = 1; lRow > 0 && lColumn <= grid.ColumnCount(); ++lColumn) {
                const CellFormat format = grid.Look({lRow, lColumn});
                look += " " + std::to_string(format.backColor.value_or(0)) + "/" +
                        std::to_string(static_cast<int>(format.kind.value_or(CellKind::Text)));
            }
        }
        return look + "\n";
    }

    const ViewVariant& mVariant;
    std::unique_ptr<RecordingControl> moSite;
    std::unique_ptr<RecordingControl> moTableSite;
    std::unique_ptr<VxHWConfigManager> moManager = std::make_unique<VxHWConfigManager>();
    EventConnection mRefused;
    EventConnection mTopRowChange;
    std::vector<std::function<void()>> mcolSysColorsChanged;
    std::vector<RecordingPictureBox*> mcolPictures;
    RecordingToolkit::ShapesByName mcolShapes;
    std::map<std::string, RecordingButton*> mcolButtons;
    RecordingPictureBox* moPicture = nullptr;
    RecordingPopupMenu* moMenu = nullptr;
    RecordingScrollBar* moBar = nullptr;
    RecordingGrid* moGrid = nullptr;
    RecordingTabStrip* moTabs = nullptr;
    RecordingPopupForm* moForm = nullptr;
    RecordingPopupMenu* moTableMenu = nullptr;
};

} // namespace zqbchwcx::testing
