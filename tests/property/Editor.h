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

#include <optional>

namespace zqbchwcx::testing {

/// A whole editor without a screen: the reference station with its history, and two overviews of it that
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

        for (auto& [made, site] : {std::tie(moOtherView, moOtherSite), std::tie(view, moSite)}) {
            toolkit->shapes.clear();
            site = std::make_unique<RecordingControl>(log);
            made = std::make_shared<VxHWRackOverview>(*site);
            for (const auto* name : {"pic_Main", "pic_Drag"}) mcolPictures.push_back(toolkit->pictureBoxes.at(name));
        }
        mcolShapes = toolkit->shapes;
        moPicture = toolkit->pictureBoxes.at("pic_Main");
        moMenu = toolkit->menus.at("pmnu_Main");
        moManager = std::make_unique<VxHWConfigManager>();
        moManager->Initialize(vxStationTypeCentral, view, moOtherView, station);
        view->Refresh();
        moOtherView->Refresh();
        moPicture->Focus(true);
    }

    ~Editor()
    {
        moManager->Terminate();
        moManager.reset();
        view.reset();
        moOtherView.reset();
    }
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    RecordingPictureBox& Picture() const { return *moPicture; }
    PictureBoxEvents& Mouse() const { return moPicture->User(); }
    UserControlEvents& Keys() const { return moSite->User(); }
    RecordingPopupMenu& Menu() const { return *moMenu; }
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
    /// Forgets what the doubles have recorded.
    void ForgetLines()
    {
        log->lines.clear();
        for (auto* picture : mcolPictures) picture->lines.clear();
        moMenu->shown.clear();
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
        made->Style(view->Style());
        made->Locked(view->Locked());
        made->VxHWStation(view->VxHWStation());
        made->VxHWSelectionHandler(view->VxHWSelectionHandler());
        made->VxHWMouseInputController(view->VxHWMouseInputController());
        made->VxHWKeyInputController(view->VxHWKeyInputController());
        made->VxHWDragDropController(view->VxHWDragDropController());
        return made;
    }

    std::unique_ptr<RecordingControl> moSite;
    std::unique_ptr<RecordingControl> moOtherSite;
    std::shared_ptr<VxHWRackOverview> moOtherView;
    std::unique_ptr<VxHWConfigManager> moManager;
    EventConnection mRefused;
    std::vector<RecordingPictureBox*> mcolPictures; ///< of both views
    RecordingToolkit::ShapesByName mcolShapes;
    RecordingPictureBox* moPicture = nullptr;
    RecordingPopupMenu* moMenu = nullptr;
};

} // namespace zqbchwcx::testing
