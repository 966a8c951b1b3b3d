#include "zqbchwcx/reference/model/contract/Station.h"

#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"
#include "zqbchwcx/reference/model/contract/DropPlaces.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/reference/model/contract/Modules.h"
#include "zqbchwcx/reference/model/contract/RackPlace.h"
#include "zqbchwcx/reference/model/contract/RackPlaces.h"
#include "zqbchwcx/reference/model/contract/Racks.h"
#include "zqbchwcx/reference/model/contract/Tooltips.h"
#include "zqbchwcx/reference/model/editing/EditModule.h"
#include "zqbchwcx/reference/model/editing/PlaceModules.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <memory>
#include <utility>

namespace zqbchwcx::reference {
namespace {

std::vector<PlaceRef> RefsOf(const VxHWRackPlacesPtr& oPlaces)
{
    std::vector<PlaceRef> refs;
    for (const VxHWRackPlacePtr& place : oPlaces) refs.push_back(RefOf(place));
    return refs;
}

ByteArray ConfigBytes(const VxHWModulesPtr& oModules)
{
    return G_EncodeConfigText(G_Require(oModules, "The modules")->ConfigText());
}

} // namespace

Station::Station(ModelContextPtr oContext, StationData data, StationServices services)
    : moState(std::make_shared<StationState>(std::move(oContext), std::move(data))), moServices(std::move(services))
{
}

VxHWRacksPtr Station::Racks() const
{
    return std::make_shared<reference::Racks>(moState);
}

void Station::IsDrawable(bool bDrawable)
{
    if (bDrawable == mbDrawable) return;
    mbDrawable = bDrawable;
    // The views did not draw what the batch changed, be it places, the selection or the state of a drag.
    if (bDrawable) TotalRefresh.Raise();
    DrawableChange.Raise(bDrawable);
}

void Station::ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule)
{
    const PlaceRef place = RefOf(oPlace);
    const std::int32_t subModule = oSubModule ? Module::Of(oSubModule).Body()->subModule : 0;
    if (moServices.moduleDiagnostics) moServices.moduleDiagnostics(place, subModule);
}

bool Station::PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces)
{
    return FinishPlacing(TryPlacing(lPosition, oModules, false, nullptr), EditKind::Insert, oPlaces);
}

bool Station::MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                          const VxHWRackPlacesPtr& oSourcePlaces, const VxHWRackPlacesPtr& oPlaces)
{
    return FinishPlacing(TryPlacing(lPosition, oModules, true, oSourcePlaces), EditKind::Move, oPlaces);
}

void Station::DeleteModules(const VxHWRackPlacesPtr& oPlaces)
{
    Finish(DeleteAt(EditFrom(), RefsOf(oPlaces)), EditKind::Delete);
}

std::int32_t Station::OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace)
{
    const Module module = Module::Of(G_Require(oPlace, "The place")->Module());
    if (module.IsEmpty() || !moServices.parameterDialog) return 0;
    const PlaceRef firstPlace = module.Body()->firstPlace;
    const std::optional<ModuleData> edited = moServices.parameterDialog(*module.Body()->data, firstPlace);
    if (!edited) return 0;
    return Finish(ReplaceModule(EditFrom(), firstPlace, *edited), EditKind::Parameters) ? 1 : 0;
}

bool Station::SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value)
{
    const Outcome<Edit> edit = SetAttribute(EditFrom(), RefOf(oPlace), name, value);
    const bool bChanges = edit && !SameStation(edit.Result().data, Data());
    const bool bAccepted = Finish(edit, EditKind::Attribute);
    // Whoever shows the typed value has to show the module's again.
    if (!bChanges) RackPlaceChange.Raise(oPlace);
    return bAccepted;
}

bool Station::CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                          const VxHWRackPlacesPtr& oSourcePlaces) const
{
    return !AgainstPlacing(lPosition, oModules, bMove, oSourcePlaces);
}

Array2D<std::int32_t> Station::GetPossibleDropPlaces(const VxHWModulePtr& oModule) const
{
    const ModuleBodyPtr& body = Module::Of(oModule).Body();
    return DropPlaces(*moState, body->data.get());
}

VxHWModulesPtr Station::ClipboardModules() const
{
    const auto bytes = moServices.clipboard ? moServices.clipboard->Read(ConfigTextName) : std::nullopt;
    if (!bytes) return std::make_shared<Modules>(Context());
    try {
        return ModulesFromConfigText(G_DecodeConfigText(*bytes), nullptr);
    } catch (const VxError& error) {
        // Menus ask this too: they must open whatever another program has put on the clipboard.
        Refused.Raise(Refusal{Rule::DamagedText, {}, {error.description, error.description}});
    }
    return std::make_shared<Modules>(Context());
}

VxHWModulesPtr Station::ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const
{
    const std::string exchanged = text.empty() && oExchange ? G_DecodeConfigText(oExchange->Data()) : std::string();
    return std::make_shared<Modules>(Context(), ReadConfigText(text.empty() ? exchanged : text, ModuleTypes()),
                                     StationKind());
}

void Station::WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const
{
    G_Require(oExchange, "The exchange object")->LoadData(ConfigBytes(oModules));
}

void Station::PrepareModule(const VxHWModulePtr& oModule)
{
    const ModuleBodyPtr& body = Module::Of(oModule).Body();
    if (!body->data) throw VxError(vxErrorInvalidArgument, "An empty module cannot be inserted");
    if (body->station) return;
    auto prepared = std::make_shared<ModuleData>(*body->data);
    prepared->inputAddress.reset();
    prepared->outputAddress.reset();
    body->data = std::move(prepared);
}

VxHWModulesPtr Station::ExpandModule(const VxHWModulePtr& oModule)
{
    auto members = std::make_shared<Modules>(Context());
    for (const VxHWModulePtr& member : MembersOf(Module::Of(oModule).Body())) members->Add(member, true);
    return members;
}

void Station::CreateSubModules(const VxHWModulePtr& oModule)
{
    const ModuleBodyPtr& body = Module::Of(oModule).Body();
    const ModuleType* type = body->data ? ModuleTypes().Find(body->data->orderNumber) : nullptr;
    if (!type || !body->data->subModules.empty()) return;
    auto complete = std::make_shared<ModuleData>(*body->data);
    complete->subModules = NewModule(*type, ModuleTypes()).subModules;
    body->data = std::move(complete);
}

VxHWRackPlacesPtr Station::ParentModulePlaces(const VxHWModulePtr& oParentModule) const
{
    auto places = std::make_shared<RackPlaces>();
    const ModuleBody& body = *Module::Of(oParentModule).Body();
    if (!body.data || body.station != moState.get()) return places;
    const PlaceRef first = body.firstPlace;
    const Occupancy& occupancy = moState->OccupancyOf(first.rack);
    for (PlaceRef place = first; occupancy.FirstPlace(place.place) == first.place; ++place.place)
        places->Add(PlaceAt(place));
    return places;
}

bool Station::HasGroupFrame(const VxHWRackPlacePtr& oPlace) const
{
    return G_Require(oPlace, "The place")->Module()->IndexInParent() > 0;
}

void Station::RefreshDiagnostics()
{
    if (moServices.refreshDiagnostics) moServices.refreshDiagnostics();
}

void Station::RefreshOnline()
{
    if (moServices.refreshOnline) moServices.refreshOnline();
}

std::string Station::EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const
{
    const PlaceRef place = RefOf(oPlace);
    return EmptyPlaceText(moState->Place(place), place).In(Context()->CurrentLanguage());
}

std::string Station::ModuleTooltip(const VxHWModulePtr& oModule) const
{
    const ModuleBody& body = *Module::Of(oModule).Body();
    return body.data ? ModuleText(*body.data, ModuleTypes(), Context()->CurrentLanguage()) : std::string();
}

Objection Station::AgainstEditing() const
{
    return reference::AgainstEditing(Data());
}

Objection Station::AgainstPlacing(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                                  const VxHWRackPlacesPtr& oSourcePlaces) const
{
    const Outcome<Edit> edit = TryPlacing(lPosition, oModules, bMove, oSourcePlaces);
    return edit ? Objection() : edit.Reason();
}

VxHWModulePtr Station::CreateModule(std::string_view orderNumber) const
{
    auto body = std::make_shared<ModuleBody>();
    auto data = std::make_shared<ModuleData>();
    data->orderNumber = orderNumber;
    if (const std::vector<Refusal> found = AgainstModule(*data, ModuleTypes(), {});
        !found.empty() && found.front().rule == Rule::UnknownType)
        throw ToError(found.front(), Context()->CurrentLanguage());
    body->context = Context();
    body->data = std::move(data);
    return std::make_shared<Module>(std::move(body));
}

VxHWRackPlacePtr Station::PlaceAt(PlaceRef place) const
{
    static_cast<void>(moState->Place(place));
    return std::make_shared<RackPlace>(moState, place);
}

void Station::Restore(StationData data)
{
    Tell(moState->Replace(std::move(data)));
}

void Station::Apply(StationData data, EditKind kind)
{
    if (SameStation(data, Data())) return;
    Changing.Raise(kind);
    const StationChange change = moState->Replace(std::move(data));
    Changed.Raise(kind);
    Tell(change);
}

bool Station::Finish(const Outcome<Edit>& edit, EditKind kind)
{
    if (!edit) {
        Refused.Raise(edit.Reason());
        return false;
    }
    Apply(edit.Result().data, kind);
    return true;
}

bool Station::FinishPlacing(const Outcome<Edit>& edit, EditKind kind, const VxHWRackPlacesPtr& oPlaces)
{
    if (!Finish(edit, kind)) return false;
    if (oPlaces)
        for (const PlaceRef& place : edit.Result().places) oPlaces->Add(PlaceAt(place));
    return true;
}

Outcome<Edit> Station::TryPlacing(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                                  const VxHWRackPlacesPtr& oSourcePlaces) const
{
    const ModuleBlock block = BlockOf(*oModules);
    if (!bMove) return PlaceBlock(EditFrom(), lPosition, block);
    return MoveBlock(EditFrom(), lPosition, block, RefsOf(oSourcePlaces));
}

void Station::Tell(const StationChange& change)
{
    if (change.everything) {
        TotalRefresh.Raise();
        return;
    }
    for (const std::int32_t rack : change.racks) RackChange.Raise(std::make_shared<Rack>(moState, rack));
    for (const PlaceRef& place : change.places) RackPlaceChange.Raise(PlaceAt(place));
}

} // namespace zqbchwcx::reference
