#include "tests/property/Editor.h"

#include "reference/catalogue/CatalogueReader.h"
#include "reference/files/StationReader.h"
#include "reference/files/StationWriter.h"
#include "reference/model/contract/ModelFactory.h"
#include "reference/model/rules/CheckStation.h"
#include "tests/property/ExchangeObjects.h"
#include "tests/support/SourceFile.h"

namespace zqbchwcx::testing {

std::shared_ptr<const reference::Catalogue> ShippedCatalogue()
{
    static const auto catalogue =
        std::make_shared<const reference::Catalogue>(reference::LoadCatalogueDirectory(SourceFile("assets/catalogue")));
    return catalogue;
}

reference::StationData ExampleStation(const std::string& name)
{
    return reference::LoadStation(SourceFile("examples/" + name + ".station.json"), *ShippedCatalogue()).data;
}

Editor::Editor(reference::StationData data)
{
    for (const auto* name : {"IDB_CRX_RACKNR_ACTIVE", "IDB_CRX_RACKNR_INACTIVE"})
        services.host->pictures[name] = std::make_shared<FakeImage>(name);
    const auto context =
        std::make_shared<reference::ModelContext>(reference::ModelContext{ShippedCatalogue(), nullptr});
    services.objects = std::make_shared<ExchangeObjects>(log, clipboard);
    ServiceRoot& root = G_ServiceRoot();
    root.errorService = errors;
    root.objectFactory = services.objects;
    root.modelFactory = std::make_shared<reference::ModelFactory>(context);

    reference::StationServices asked;
    asked.clipboard = clipboard;
    asked.parameterDialog = [this](const reference::ModuleData& module, reference::PlaceRef) {
        log->Call("ParameterDialog");
        return parameters ? parameters(module) : std::nullopt;
    };
    station = std::make_shared<FaultyStation>(log, context, std::move(data), std::move(asked));
    mRefused = station->Refused.Connect([this](const reference::Refusal&) { ++refusals; });
    history = std::make_shared<reference::History>(station);
    errors->history = history;

    moOtherSite = std::make_unique<RecordingControl>(log);
    moOtherView = std::make_shared<VxHWRackOverview>(*moOtherSite);
    KeepPictures();
    moSite = std::make_unique<RecordingControl>(log);
    view = std::make_shared<VxHWRackOverview>(*moSite);
    KeepPictures();
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

void Editor::KeepPictures()
{
    for (const auto* name : {"pic_Main", "pic_Drag"}) mcolPictures.push_back(toolkit->pictureBoxes.at(name));
}

std::string Editor::Text() const
{
    return reference::WriteStation(station->Data());
}

std::string Editor::WhatIsWrong()
{
    std::string wrong;
    for (const VxError& report : errors->reports) wrong += report.source + ": " + report.description + "\n";
    errors->reports.clear();
    for (const auto& refusal : reference::CheckStation(station->Data(), *ShippedCatalogue()))
        wrong += std::string(reference::RuleId(refusal.rule)) + ": " + refusal.text.en + "\n";
    if (services.host->waitBalance != 0) wrong += "the wait cursor stays\n";
    if (errors->openActions != 0) wrong += "a user action stays open\n";
    if (!station->IsDrawable()) wrong += "the station's drawing stays off\n";
    return wrong;
}

std::shared_ptr<VxHWRackOverview> Editor::MakeView(RecordingControl& site) const
{
    auto made = std::make_shared<VxHWRackOverview>(site);
    made->Style(view->Style());
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
    const auto fresh = MakeView(site);
    RecordingPictureBox& picture = *toolkit->pictureBoxes.at("pic_Main");
    picture.Focus(moPicture->HasFocus());
    fresh->Refresh();
    return Raster::FirstDifference(moPicture->raster, picture.raster);
}

void Editor::ForgetLines()
{
    log->lines.clear();
    for (auto* picture : mcolPictures) picture->lines.clear();
    moMenu->shown.clear();
    toolkit->shapes.clear();
    toolkit->imageLists.created.clear();
    toolkit->imageLists.files->asked.clear();
}

} // namespace zqbchwcx::testing
