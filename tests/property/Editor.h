#pragma once

#include "tests/property/EditorHost.h"
#include "tests/property/FaultyStation.h"
#include "tests/support/Samples.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/history/History.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

#include <optional>

namespace zqbchwcx::testing {

/// A whole editor without a screen: the reference station with its history, and the overview and the table of it that
/// `VxHWConfigManager` has connected. The test is the user.
class Editor {
public:
    explicit Editor(reference::StationData data)
    {
        const auto context =
            std::make_shared<reference::ModelContext>(reference::ModelContext{reference::SharedCatalogue(), nullptr});
        host = std::make_shared<EditorHost>(log, context);
        for (const auto* name : {"IDB_CRX_RACKNR_ACTIVE", "IDB_CRX_RACKNR_INACTIVE"})
            host->pictures[name] = std::make_shared<FakeImage>(name);
        G_ServiceRoot() = {toolkit, host, host, host, host, host, host, {}};

        reference::StationServices asked;
        asked.clipboard = host->modelClipboard;
        asked.parameterDialog = [this](const reference::ModuleData& module, reference::PlaceRef) {
            log->Call("ParameterDialog");
            return parameters ? parameters(module) : std::nullopt;
        };
        station = std::make_shared<FaultyStation>(log, context, std::move(data), std::move(asked));
        mRefused = station->Refused.Connect([this](const reference::Refusal&) { ++refusals; });
        history = std::make_shared<reference::History>(station);
        host->actions = history;

        moSite = std::make_unique<RecordingControl>(log);
        view = std::make_shared<VxHWRackOverview>(*moSite);
        mcolShapes = toolkit->shapes;
        for (const auto* name : {"pic_Main", "pic_Drag"}) mcolPictures.push_back(toolkit->pictureBoxes.at(name));
        moPicture = toolkit->pictureBoxes.at("pic_Main");
        moMenu = toolkit->menus.at("pmnu_Main");
        moTableSite = std::make_unique<RecordingControl>(log);
        table = std::make_shared<VxHWRackTable>(*moTableSite);
        moGrid = toolkit->grids.at("vxgrd_Main");
        moTabs = toolkit->tabStrips.at("vxtab_Main");
        moForm = toolkit->popupForms.at("frm_SubModules");
        moTableMenu = toolkit->menus.at("pmnu_Main");
        moManager = std::make_unique<VxHWConfigManager>();
        moManager->Initialize(vxStationTypeCentral, view, table, station);
        view->Refresh();
        table->Refresh();
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

    RecordingPictureBox& Picture() const { return *moPicture; }
    PictureBoxEvents& Mouse() const { return moPicture->User(); }
    UserControlEvents& Keys() const { return moSite->User(); }
    RecordingPopupMenu& Menu() const { return *moMenu; }
    RecordingGrid& Grid() const { return *moGrid; }
    RecordingTabStrip& Tabs() const { return *moTabs; }
    RecordingPopupForm& Form() const { return *moForm; }
    RecordingPopupMenu& TableMenu() const { return *moTableMenu; }
    VxHWConfigManager& Manager() const { return *moManager; }
    /// The data object of a drag that begins in this editor.
    std::shared_ptr<FakeDataObject> NewDrag() const { return std::make_shared<DragData>(log, Mouse()); }

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
    /// Where the picture differs from that of an overview that is made just now; empty when it does not.
    std::string DifferenceFromAFreshPicture() const
    {
        RecordingControl site(log);
        toolkit->shapes.clear();
        const auto fresh = MakeView(site);
        RecordingPictureBox& picture = *toolkit->pictureBoxes.at("pic_Main");
        picture.Focus(moPicture->HasFocus());
        fresh->Refresh();
        const std::string difference = Raster::FirstDifference(moPicture->raster, picture.raster);
        const std::string look = LookOf(mcolShapes);
        return look == LookOf(toolkit->shapes) ? difference : difference + " shapes:\n" + look;
    }
    /// Where the table differs from one that is made just now; empty when it does not.
    std::string DifferenceFromAFreshTable() const
    {
        RecordingControl site(log);
        VxHWRackTable fresh(site);
        CopyBinding(*table, fresh);
        fresh.Refresh();
        const std::string expected = LookOf(*toolkit->grids.at("vxgrd_Main"), *toolkit->tabStrips.at("vxtab_Main"));
        const std::string actual = LookOf(*moGrid, *moTabs);
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

    TestServices services;
    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    std::shared_ptr<EditorHost> host;
    /// What the parameter dialog answers.
    std::function<std::optional<reference::ModuleData>(const reference::ModuleData&)> parameters;
    std::shared_ptr<FaultyStation> station;
    std::shared_ptr<reference::History> history;
    std::shared_ptr<VxHWRackOverview> view;
    std::shared_ptr<VxHWRackTable> table;
    /// Operations that the model refused, with its reason.
    std::int32_t refusals = 0;

private:
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

    std::shared_ptr<VxHWRackOverview> MakeView(RecordingControl& site) const
    {
        auto made = std::make_shared<VxHWRackOverview>(site);
        CopyBinding(*view, *made);
        return made;
    }
    static void CopyBinding(const IVxHWControl& from, IVxHWControl& to)
    {
        to.Style(from.Style());
        to.Locked(from.Locked());
        to.VxHWStation(from.VxHWStation());
        to.VxHWSelectionHandler(from.VxHWSelectionHandler());
        to.VxHWMouseInputController(from.VxHWMouseInputController());
        to.VxHWKeyInputController(from.VxHWKeyInputController());
        to.VxHWDragDropController(from.VxHWDragDropController());
    }
    static std::string LookOf(const RecordingGrid& grid, const RecordingTabStrip& tabs)
    {
        std::string look = "tab " + std::to_string(tabs.SelectedTab());
        for (const auto& tab : tabs.tabs) look += tab.enabled ? " on" : " off";
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

    std::unique_ptr<RecordingControl> moSite;
    std::unique_ptr<RecordingControl> moTableSite;
    std::unique_ptr<VxHWConfigManager> moManager;
    EventConnection mRefused;
    std::vector<RecordingPictureBox*> mcolPictures;
    RecordingToolkit::ShapesByName mcolShapes;
    RecordingPictureBox* moPicture = nullptr;
    RecordingPopupMenu* moMenu = nullptr;
    RecordingGrid* moGrid = nullptr;
    RecordingTabStrip* moTabs = nullptr;
    RecordingPopupForm* moForm = nullptr;
    RecordingPopupMenu* moTableMenu = nullptr;
};

} // namespace zqbchwcx::testing
