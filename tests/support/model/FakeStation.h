#pragma once

#include "tests/support/model/FakeConfigText.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/platform/DataObject.h"

namespace zqbchwcx::testing {

/// A station in memory with the simplest of rules: modules fill usable empty places from the position on (a gap stands
/// for the place behind it). Place events wait while drawing is off and follow when it is switched on.
class FakeStation : public VxHWStation, public Logged {
public:
    FakeStation(CallLogPtr log, std::int32_t lRacks, std::int32_t lPlaces)
        : Logged(std::move(log)), racks(std::make_shared<FakeRacks>(moLog))
    {
        for (std::int32_t lRack = 0; lRack < lRacks; ++lRack) {
            auto rack = std::make_shared<FakeRack>(moLog, lRack);
            for (std::int32_t lPlace = 1; lPlace <= lPlaces; ++lPlace)
                rack->places->members.push_back(std::make_shared<FakeRackPlace>(moLog, rack, lRack, lPlace));
            racks->members.push_back(std::move(rack));
        }
    }

    std::int32_t DisplayMode() const override { return Answer("Station.DisplayMode", displayMode); }
    std::int32_t StationKind() const override { return Answer("Station.StationKind", stationKind); }
    bool IsReadOnly() const override { return Answer("Station.IsReadOnly", readOnly); }
    VxHWRacksPtr Racks() const override { return Answer("Station.Racks", racks); }
    bool IsDrawable() const override { return Answer("Station.IsDrawable", drawable); }
    void IsDrawable(bool bDrawable) override
    {
        if (!bDrawable) Note("IsDrawable False");
        drawable = bDrawable;
        if (!bDrawable) return;
        for (const auto& place : std::exchange(mcolChanged, {})) RackPlaceChange.Raise(place);
        moLog->NoteEnd("IsDrawable True");
    }
    void StartConfiguration() override { Note("StartConfiguration"); }
    bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) override
    {
        Note("PlaceModules " + std::to_string(lPosition) + " " + Names(oModules));
        return Fill(lPosition, ReadFakeConfigText(WriteFakeConfigText(ModulesOf(oModules)), moLog), oPlaces);
    }
    bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oSourcePlaces,
                     const VxHWRackPlacesPtr& oPlaces) override
    {
        Note("MoveModules " + std::to_string(lPosition) + " " + Names(oModules) + " from " + Keys(oSourcePlaces));
        const Places sources = WithFellowMembers(AsFake(oSourcePlaces).members);
        if (Targets(lPosition, ModulesOf(oModules).size(), sources).empty()) return false;
        Clear(sources);
        return Fill(lPosition, ModulesOf(oModules), oPlaces);
    }
    void DeleteModules(const VxHWRackPlacesPtr& oPlaces) override
    {
        Note("DeleteModules " + Keys(oPlaces));
        Clear(WithFellowMembers(AsFake(oPlaces).members));
    }
    std::int32_t OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace) override
    {
        Note("OpenModuleParamDialog " + KeyOfPlace(oPlace));
        return 0;
    }
    bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                     const VxHWRackPlacesPtr& oSourcePlaces) const override
    {
        Note("CanBePlaced " + std::to_string(lPosition) + " " + Names(oModules) + (bMove ? " move from " : " copy ") +
             Keys(oSourcePlaces));
        const Places sources = bMove ? WithFellowMembers(AsFake(oSourcePlaces).members) : Places{};
        return !Targets(lPosition, ModulesOf(oModules).size(), sources).empty();
    }
    Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const override
    {
        Call("Station.GetPossibleDropPlaces");
        const auto& parent = AsFake(oModule).parent;
        const auto span = static_cast<std::size_t>(parent ? parent->placeCount : 1);
        Array2D<std::int32_t> possible(0, static_cast<std::int32_t>(racks->members.size()) - 1, 1,
                                       static_cast<std::int32_t>(Rack(0)->places->members.size()));
        for (const auto& rack : racks->members)
            for (const auto& place : rack->places->members)
                if (!Targets(G_PlacePosition(rack->number, place->number), span, {}).empty())
                    possible.Set(rack->number, place->number, -1);
        return possible;
    }
    VxHWModulesPtr ClipboardModules() const override
    {
        Call("Station.ClipboardModules");
        if (!clipboard) return MakeModules({});
        return MakeModules(
            ReadFakeConfigText({reinterpret_cast<const char*>(clipboard->data()), clipboard->size()}, moLog));
    }
    VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const override
    {
        Note(std::string("ModulesFromConfigText ") + (oExchange ? "with exchange" : "alone"));
        return MakeModules(ReadFakeConfigText(text, moLog));
    }
    void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const override
    {
        Note("WriteModulesToExchange " + Names(oModules));
        const std::string text = WriteFakeConfigText(ModulesOf(oModules));
        const auto* first = reinterpret_cast<const std::byte*>(text.data());
        oExchange->LoadData({first, first + text.size()});
    }
    void PrepareModule(const VxHWModulePtr& oModule) override { Note("PrepareModule " + AsFake(oModule).orderNumber); }
    VxHWModulesPtr ExpandModule(const VxHWModulePtr& oModule) override
    {
        Note("ExpandModule " + AsFake(oModule).orderNumber);
        return MakeModules(MakeFakeMembers(std::dynamic_pointer_cast<FakeModule>(oModule), moLog));
    }
    void CreateSubModules(const VxHWModulePtr& oModule) override
    {
        const auto& module = AsFake(oModule);
        Note("CreateSubModules " + module.orderNumber);
        for (std::int32_t i = 0; i < module.subModuleCount; ++i)
            module.subModules->members.push_back(MakeModule("sub-module"));
    }
    VxHWRackPlacesPtr ParentModulePlaces(const VxHWModulePtr& oParentModule) const override
    {
        Call("Station.ParentModulePlaces");
        auto oPlaces = std::make_shared<FakeRackPlaces>(moLog);
        oPlaces->members = PlacesWith(oParentModule);
        return oPlaces;
    }
    bool HasGroupFrame(const VxHWRackPlacePtr& oPlace) const override
    {
        const auto& place = dynamic_cast<const FakeRackPlace&>(*oPlace);
        return Answer("Station.HasGroupFrame", place.module->parent != nullptr);
    }
    std::string EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Station.EmptyPlaceTooltip", "empty " + KeyOfPlace(oPlace));
    }
    std::string ModuleTooltip(const VxHWModulePtr& oModule) const override
    {
        return Answer("Station.ModuleTooltip", "module " + AsFake(oModule).orderNumber);
    }

    // The library leaves these to the host.
    void ShowModuleDiagnostics(const VxHWRackPlacePtr& /*oPlace*/, const VxHWModulePtr& /*oSubModule*/) override {}
    bool SetModuleAttribute(const VxHWRackPlacePtr&, std::string_view, std::string_view) override { return false; }
    void RefreshDiagnostics() override {}
    void RefreshOnline() override {}

    /// The objects of the station; reaching them so is no fault point.
    FakeRackPtr Rack(std::int32_t lRack) const { return racks->members.at(static_cast<std::size_t>(lRack)); }
    FakeRackPlacePtr Place(std::int32_t lRack, std::int32_t lPlace) const
    {
        return Rack(lRack)->places->members.at(static_cast<std::size_t>(lPlace - 1));
    }
    FakeModulePtr Module(std::int32_t lRack, std::int32_t lPlace) const { return Place(lRack, lPlace)->module; }

    FakeModulePtr MakeModule(std::string orderNumber) const
    {
        auto module = std::make_shared<FakeModule>(moLog);
        module->orderNumber = std::move(orderNumber);
        return module;
    }
    /// Puts a new module, without any event, into the place; one with several places also into those behind it.
    FakeModulePtr Put(std::int32_t lRack, std::int32_t lPlace, std::string orderNumber, std::int32_t lPlaceCount = 0)
    {
        auto module = MakeModule(std::move(orderNumber));
        module->placeCount = lPlaceCount;
        if (lPlaceCount < 1) Place(lRack, lPlace)->module = module;
        for (const auto& member : MakeFakeMembers(module, moLog))
            Place(lRack, lPlace + member->indexInParent - 1)->module = member;
        return module;
    }
    /// What stands where, as in "0/2=A 0/3=B".
    std::string Content() const
    {
        std::string content;
        for (const auto& place : AllPlaces())
            if (!place->module->orderNumber.empty())
                content += (content.empty() ? "" : " ") + place->key + "=" + place->module->orderNumber;
        return content;
    }

    std::int32_t displayMode = vxDisplayModeOffline;
    std::int32_t stationKind = vxStationKindCentral;
    bool readOnly = false;
    bool drawable = true;
    /// What `ClipboardModules` reads; null or without content is an empty clipboard.
    std::shared_ptr<ByteArray> clipboard;
    std::shared_ptr<FakeRacks> racks;

private:
    using Places = std::vector<FakeRackPlacePtr>;

    static const FakeModuleList& ModulesOf(const VxHWModulesPtr& oModules)
    {
        return dynamic_cast<const FakeModules&>(*oModules).members;
    }
    static std::string Names(const VxHWModulesPtr& oModules)
    {
        std::string names;
        for (const auto& module : ModulesOf(oModules))
            names += (names.empty() ? "" : " ") + (module->orderNumber.empty() ? "-" : module->orderNumber);
        return "[" + names + "]";
    }
    static std::string Keys(const VxHWRackPlacesPtr& oPlaces)
    {
        return oPlaces ? "[" + AsFake(oPlaces).Keys() + "]" : "nothing";
    }
    static bool Contains(const Places& places, const FakeRackPlacePtr& place)
    {
        return std::find(places.begin(), places.end(), place) != places.end();
    }

    Places AllPlaces() const
    {
        Places all;
        for (const auto& rack : racks->members)
            all.insert(all.end(), rack->places->members.begin(), rack->places->members.end());
        return all;
    }
    /// The places that the modules would fill, or none when they do not fit.
    Places Targets(std::int32_t lPosition, std::size_t count, const Places& sources) const
    {
        const PositionInfo info = G_PositionInfo(lPosition);
        if (count == 0 || (info.eType != vxPositionPlace && info.eType != vxPositionGap)) return {};
        const std::int32_t lFirst = info.eType == vxPositionGap ? info.lNumber + 1 : info.lNumber;
        Places targets;
        for (const auto& place : Rack(info.lRack)->places->members) {
            if (place->number < lFirst) continue;
            const bool bFree = place->module->orderNumber.empty() || Contains(sources, place);
            if (!bFree || place->usability == vxPlaceNotUsable) return {};
            targets.push_back(place);
            if (targets.size() == count) return targets;
        }
        return {};
    }
    bool Fill(std::int32_t lPosition, const FakeModuleList& modules, const VxHWRackPlacesPtr& oPlaces)
    {
        const Places targets = Targets(lPosition, modules.size(), {});
        for (std::size_t i = 0; i < targets.size(); ++i) {
            targets[i]->module = modules[i];
            AsFake(oPlaces).members.push_back(targets[i]);
            Changed(targets[i]);
        }
        return !targets.empty();
    }
    Places PlacesWith(const VxHWModulePtr& oParentModule) const
    {
        Places places = AllPlaces();
        std::erase_if(places,
                      [&](const auto& place) { return !oParentModule || place->module->parent != oParentModule; });
        return places;
    }
    Places WithFellowMembers(const Places& places) const
    {
        Places all = places;
        for (const auto& place : places)
            for (const auto& fellow : PlacesWith(place->module->parent))
                if (!Contains(all, fellow)) all.push_back(fellow);
        return all;
    }
    void Clear(const Places& places)
    {
        for (const auto& place : places) {
            if (place->module->orderNumber.empty()) continue;
            place->Empty();
            Changed(place);
        }
    }
    void Changed(const FakeRackPlacePtr& place)
    {
        if (drawable) RackPlaceChange.Raise(place);
        else mcolChanged.push_back(place);
    }
    VxHWModulesPtr MakeModules(FakeModuleList modules) const
    {
        auto oModules = std::make_shared<FakeModules>(moLog);
        oModules->members = std::move(modules);
        return oModules;
    }

    Places mcolChanged;
};
using FakeStationPtr = std::shared_ptr<FakeStation>;

} // namespace zqbchwcx::testing
