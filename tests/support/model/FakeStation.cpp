#include "tests/support/model/FakeStation.h"

#include "foundation/mdl_Main.h"
#include "tests/support/model/FakeConfigText.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::testing {
namespace {

const std::vector<VxHWModulePtr>& ModulesOf(const VxHWModulesPtr& oModules)
{
    return dynamic_cast<const FakeModules&>(*oModules).modules;
}

const std::vector<FakeRackPlacePtr>& PlacesOf(const VxHWRackPlacesPtr& oPlaces)
{
    return dynamic_cast<const FakeRackPlaces&>(*oPlaces).places;
}

std::string Names(const VxHWModulesPtr& oModules)
{
    std::string names;
    for (const auto& oModule : ModulesOf(oModules)) {
        const auto& orderNumber = dynamic_cast<const FakeModule&>(*oModule).orderNumber;
        names += (names.empty() ? "" : " ") + (orderNumber.empty() ? "-" : orderNumber);
    }
    return "[" + names + "]";
}

std::string Keys(const VxHWRackPlacesPtr& oPlaces)
{
    return oPlaces ? "[" + dynamic_cast<const FakeRackPlaces&>(*oPlaces).Keys() + "]" : "nothing";
}

ByteArray BytesOf(std::string_view text)
{
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return {first, first + text.size()};
}

std::string_view TextOf(const ByteArray& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool Contains(const std::vector<FakeRackPlacePtr>& places, const FakeRackPlacePtr& place)
{
    return std::find(places.begin(), places.end(), place) != places.end();
}

} // namespace

FakeStation::FakeStation(CallLogPtr log, std::int32_t lRacks, std::int32_t lPlaces)
    : racks(std::make_shared<FakeRacks>(log)), moLog(std::move(log))
{
    for (std::int32_t lRack = 0; lRack < lRacks; ++lRack) {
        auto rack = std::make_shared<FakeRack>(moLog, lRack);
        for (std::int32_t lPlace = 1; lPlace <= lPlaces; ++lPlace)
            rack->places->places.push_back(std::make_shared<FakeRackPlace>(moLog, rack, lRack, lPlace));
        racks->racks.push_back(std::move(rack));
    }
}

std::int32_t FakeStation::DisplayMode() const
{
    moLog->Call("VxHWStation.DisplayMode");
    return displayMode;
}

std::int32_t FakeStation::StationKind() const
{
    moLog->Call("VxHWStation.StationKind");
    return stationKind;
}

bool FakeStation::IsReadOnly() const
{
    moLog->Call("VxHWStation.IsReadOnly");
    return readOnly;
}

VxHWRacksPtr FakeStation::Racks() const
{
    moLog->Call("VxHWStation.Racks");
    return racks;
}

bool FakeStation::IsDrawable() const
{
    moLog->Call("VxHWStation.IsDrawable");
    return drawable;
}

void FakeStation::IsDrawable(bool bDrawable)
{
    if (!bDrawable) {
        moLog->Note("IsDrawable False");
        drawable = false;
        return;
    }
    drawable = true;
    for (const auto& place : std::exchange(mcolChanged, {})) RackPlaceChange.Raise(place);
    moLog->NoteEnd("IsDrawable True");
}

void FakeStation::StartConfiguration()
{
    moLog->Note("StartConfiguration");
}

void FakeStation::ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule)
{
    moLog->Note("ShowModuleDiagnostics " + KeyOfPlace(oPlace) +
                (oSubModule ? " " + dynamic_cast<const FakeModule&>(*oSubModule).orderNumber : ""));
}

bool FakeStation::PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces)
{
    moLog->Note("PlaceModules " + std::to_string(lPosition) + " " + Names(oModules));
    return Fill(lPosition, ReadFakeConfigText(WriteFakeConfigText(ModulesOf(oModules)), moLog), oPlaces);
}

bool FakeStation::MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                              const VxHWRackPlacesPtr& oSourcePlaces, const VxHWRackPlacesPtr& oPlaces)
{
    moLog->Note("MoveModules " + std::to_string(lPosition) + " " + Names(oModules) + " from " + Keys(oSourcePlaces));
    const Places sources = WithFellowMembers(PlacesOf(oSourcePlaces));
    if (Targets(lPosition, ModulesOf(oModules).size(), sources).empty()) return false;
    Clear(sources);
    return Fill(lPosition, ModulesOf(oModules), oPlaces);
}

void FakeStation::DeleteModules(const VxHWRackPlacesPtr& oPlaces)
{
    moLog->Note("DeleteModules " + Keys(oPlaces));
    Clear(WithFellowMembers(PlacesOf(oPlaces)));
}

std::int32_t FakeStation::OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace)
{
    moLog->Note("OpenModuleParamDialog " + KeyOfPlace(oPlace));
    return 0;
}

bool FakeStation::SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value)
{
    moLog->Note("SetModuleAttribute " + KeyOfPlace(oPlace) + " " + std::string(name) + "=" + std::string(value));
    const auto place = std::dynamic_pointer_cast<FakeRackPlace>(oPlace);
    place->module->attributes[std::string(name)] = value;
    Changed(place);
    return true;
}

bool FakeStation::CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                              const VxHWRackPlacesPtr& oSourcePlaces) const
{
    moLog->Note("CanBePlaced " + std::to_string(lPosition) + " " + Names(oModules) +
                (bMove ? " move from " : " copy ") + Keys(oSourcePlaces));
    if (canBePlaced) return canBePlaced(lPosition);
    const Places sources = bMove ? WithFellowMembers(PlacesOf(oSourcePlaces)) : Places{};
    return !Targets(lPosition, ModulesOf(oModules).size(), sources).empty();
}

Array2D<std::int32_t> FakeStation::GetPossibleDropPlaces(const VxHWModulePtr& oModule) const
{
    moLog->Call("VxHWStation.GetPossibleDropPlaces");
    const auto& module = dynamic_cast<const FakeModule&>(*oModule);
    const auto span = static_cast<std::size_t>(module.parent ? module.parent->placeCount : 1);
    const auto placeCount = static_cast<std::int32_t>(Rack(0)->places->places.size());
    Array2D<std::int32_t> possible(0, static_cast<std::int32_t>(racks->racks.size()) - 1, 1, placeCount);
    for (const auto& rack : racks->racks)
        for (const auto& place : rack->places->places) {
            const auto lPosition = G_PlacePosition(rack->number, place->number);
            const bool fits = canBePlaced ? canBePlaced(lPosition) : !Targets(lPosition, span, {}).empty();
            possible.Set(rack->number, place->number, fits ? -1 : 0);
        }
    return possible;
}

VxHWModulesPtr FakeStation::ClipboardModules() const
{
    moLog->Call("VxHWStation.ClipboardModules");
    return MakeModules(clipboard ? ReadFakeConfigText(TextOf(clipboard->content), moLog)
                                 : std::vector<VxHWModulePtr>{});
}

VxHWModulesPtr FakeStation::ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const
{
    moLog->Note(std::string("ModulesFromConfigText ") + (oExchange ? "with exchange" : "alone"));
    return MakeModules(ReadFakeConfigText(text, moLog));
}

void FakeStation::WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const
{
    moLog->Note("WriteModulesToExchange " + Names(oModules));
    oExchange->LoadData(BytesOf(WriteFakeConfigText(ModulesOf(oModules))));
}

void FakeStation::PrepareModule(const VxHWModulePtr& oModule)
{
    moLog->Note("PrepareModule " + dynamic_cast<const FakeModule&>(*oModule).orderNumber);
}

VxHWModulesPtr FakeStation::ExpandModule(const VxHWModulePtr& oModule)
{
    moLog->Note("ExpandModule " + dynamic_cast<const FakeModule&>(*oModule).orderNumber);
    return MakeModules(MakeFakeMembers(std::dynamic_pointer_cast<FakeModule>(oModule), moLog));
}

void FakeStation::CreateSubModules(const VxHWModulePtr& oModule)
{
    auto& module = dynamic_cast<FakeModule&>(*oModule);
    moLog->Note("CreateSubModules " + module.orderNumber);
    for (std::int32_t i = 1; i <= module.subModuleCount; ++i)
        module.subModules->modules.push_back(MakeModule(module.orderNumber + "." + std::to_string(i)));
}

VxHWRackPlacesPtr FakeStation::ParentModulePlaces(const VxHWModulePtr& oParentModule) const
{
    moLog->Call("VxHWStation.ParentModulePlaces");
    auto oPlaces = std::make_shared<FakeRackPlaces>(moLog);
    for (const auto& rack : racks->racks)
        for (const auto& place : rack->places->places)
            if (place->module->parent && place->module->parent == oParentModule) oPlaces->places.push_back(place);
    return oPlaces;
}

bool FakeStation::HasGroupFrame(const VxHWRackPlacePtr& oPlace) const
{
    moLog->Call("VxHWStation.HasGroupFrame");
    return dynamic_cast<const FakeRackPlace&>(*oPlace).module->parent != nullptr;
}

void FakeStation::RefreshDiagnostics()
{
    moLog->Note("RefreshDiagnostics");
}

void FakeStation::RefreshOnline()
{
    moLog->Note("RefreshOnline");
}

std::string FakeStation::EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const
{
    moLog->Call("VxHWStation.EmptyPlaceTooltip");
    return "empty " + KeyOfPlace(oPlace);
}

std::string FakeStation::ModuleTooltip(const VxHWModulePtr& oModule) const
{
    moLog->Call("VxHWStation.ModuleTooltip");
    return "module " + dynamic_cast<const FakeModule&>(*oModule).orderNumber;
}

FakeModulePtr FakeStation::MakeModule(std::string orderNumber) const
{
    auto module = std::make_shared<FakeModule>(moLog);
    module->name = "Name " + orderNumber;
    module->orderNumber = std::move(orderNumber);
    return module;
}

FakeModulePtr FakeStation::Put(std::int32_t lRack, std::int32_t lPlace, std::string orderNumber,
                               std::int32_t lPlaceCount)
{
    auto module = MakeModule(std::move(orderNumber));
    module->placeCount = lPlaceCount;
    if (lPlaceCount < 1) {
        Place(lRack, lPlace)->module = module;
        return module;
    }
    for (const auto& oMember : MakeFakeMembers(module, moLog)) {
        auto member = std::dynamic_pointer_cast<FakeModule>(oMember);
        Place(lRack, lPlace + member->indexInParent - 1)->module = member;
    }
    return module;
}

std::string FakeStation::Content() const
{
    std::string content;
    for (const auto& rack : racks->racks)
        for (const auto& place : rack->places->places)
            if (!place->module->orderNumber.empty())
                content += (content.empty() ? "" : " ") + place->key + "=" + place->module->orderNumber;
    return content;
}

FakeStation::Places FakeStation::Targets(std::int32_t lPosition, std::size_t count, const Places& sources) const
{
    const PositionInfo info = G_PositionInfo(lPosition);
    if (count == 0 || (info.eType != vxPositionPlace && info.eType != vxPositionGap)) return {};
    const auto& places = Rack(info.lRack)->places->places;
    const auto first = static_cast<std::size_t>(info.eType == vxPositionGap ? info.lNumber : info.lNumber - 1);
    if (first + count > places.size()) return {};
    Places targets(places.begin() + static_cast<std::ptrdiff_t>(first),
                   places.begin() + static_cast<std::ptrdiff_t>(first + count));
    const bool allFree = std::all_of(targets.begin(), targets.end(), [&](const FakeRackPlacePtr& place) {
        return place->usability != vxPlaceNotUsable && (place->module->orderNumber.empty() || Contains(sources, place));
    });
    return allFree ? targets : Places{};
}

bool FakeStation::Fill(std::int32_t lPosition, const std::vector<VxHWModulePtr>& modules,
                       const VxHWRackPlacesPtr& oPlaces)
{
    const Places targets = Targets(lPosition, modules.size(), {});
    for (std::size_t i = 0; i < targets.size(); ++i) {
        targets[i]->module = std::dynamic_pointer_cast<FakeModule>(modules[i]);
        dynamic_cast<FakeRackPlaces&>(*oPlaces).places.push_back(targets[i]);
        Changed(targets[i]);
    }
    return !targets.empty();
}

FakeStation::Places FakeStation::WithFellowMembers(const Places& places) const
{
    Places all = places;
    for (const auto& place : places) {
        if (!place->module->parent) continue;
        const auto oFellows = ParentModulePlaces(place->module->parent);
        for (const auto& fellow : PlacesOf(oFellows))
            if (!Contains(all, fellow)) all.push_back(fellow);
    }
    return all;
}

void FakeStation::Clear(const Places& places)
{
    for (const auto& place : places) {
        if (place->module->orderNumber.empty()) continue;
        place->Empty();
        Changed(place);
    }
}

void FakeStation::Changed(const FakeRackPlacePtr& place)
{
    if (drawable) RackPlaceChange.Raise(place);
    else mcolChanged.push_back(place);
}

std::shared_ptr<FakeModules> FakeStation::MakeModules(std::vector<VxHWModulePtr> modules) const
{
    auto oModules = std::make_shared<FakeModules>(moLog);
    oModules->modules = std::move(modules);
    return oModules;
}

} // namespace zqbchwcx::testing
