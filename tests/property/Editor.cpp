#include "tests/property/Editor.h"

#include "reference/files/StationWriter.h"
#include "reference/model/rules/CheckStation.h"
#include "tests/support/Samples.h"

namespace zqbchwcx::testing {
namespace {

std::string LookOf(const RecordingToolkit::ShapesByName& shapesByName)
{
    std::string look;
    for (const auto& [name, shapes] : shapesByName)
        for (const auto* shape : shapes) {
            const Rect bounds = shape->Visible() ? shape->Bounds() : Rect{};
            look += name + " " + std::to_string(bounds.left) + "," + std::to_string(bounds.top) + "\n";
        }
    return look;
}

} // namespace

Editor::Editor(reference::StationData data)
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

Editor::~Editor()
{
    moManager->Terminate();
    moManager.reset();
    view.reset();
    moOtherView.reset();
}

std::string Editor::Text() const
{
    return reference::WriteStation(station->Data());
}

std::string Editor::WhatIsWrong()
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

std::shared_ptr<VxHWRackOverview> Editor::MakeView(RecordingControl& site) const
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

std::string Editor::DifferenceFromAFreshPicture() const
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

void Editor::ForgetLines()
{
    log->lines.clear();
    for (auto* picture : mcolPictures) picture->lines.clear();
    moMenu->shown.clear();
    toolkit->imageLists.created.clear();
    toolkit->imageLists.files->asked.clear();
}

} // namespace zqbchwcx::testing
