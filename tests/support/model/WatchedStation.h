#pragma once

#include "tests/support/model/SampleModel.h"
#include "tests/support/model/WatchedModel.h"

namespace zqbchwcx::testing {

/// A reference station, seen through one whose every call is a fault point: operations once before they have begun and
/// once after they are done. They leave a line, as in "CanBePlaced 8 [DI] move from [0/5]".
class WatchedStation : public VxHWStation, public Logged {
public:
    WatchedStation(CallLogPtr log, reference::StationPtr oModel) : Logged(std::move(log)), moModel(std::move(oModel))
    {
        mRackChange = moModel->RackChange.Connect([this](const auto& oRack) { RackChange.Raise(Watch(moLog, oRack)); });
        mRackPlaceChange = moModel->RackPlaceChange.Connect(
            [this](const auto& oPlace) { RackPlaceChange.Raise(Watch(moLog, oPlace)); });
        mTotalRefresh = moModel->TotalRefresh.Connect([this] { TotalRefresh.Raise(); });
    }

    const CallLogPtr& Log() const { return moLog; }
    /// The station itself; what is asked of it and of its objects is no fault point.
    reference::Station& Model() const { return *moModel; }
    VxHWRackPlacePtr Place(std::int32_t lRack, std::int32_t lPlace) const { return moModel->PlaceAt({lRack, lPlace}); }
    VxHWRackPtr Rack(std::int32_t lRack) const { return moModel->Racks()->Item(lRack); }
    VxHWModulePtr Module(std::int32_t lRack, std::int32_t lPlace) const { return Place(lRack, lPlace)->Module(); }
    /// What stands where, as in "0/4=DI 0/5=AI2 0/6=AI2".
    std::string Content() const
    {
        std::string content;
        for (const auto& oRack : moModel->Racks())
            for (const auto& oPlace : oRack->Places())
                if (const auto oModule = oPlace->Module(); !oModule->IsEmpty())
                    content += (content.empty() ? "" : " ") + oPlace->Key() + "=" + oModule->OrderNumber();
        return content;
    }

    // Changes that no rule stands against, told as any other.
    template <class Function>
    void Change(Function change)
    {
        reference::StationData data = moModel->Data();
        change(data);
        moModel->Restore(std::move(data));
    }
    template <class Function>
    void ChangeRack(std::int32_t lRack, Function change)
    {
        Change([&](reference::StationData& data) {
            auto rack = std::make_shared<reference::RackData>(*data.racks.at(static_cast<std::size_t>(lRack)));
            change(*rack);
            data.racks[static_cast<std::size_t>(lRack)] = std::move(rack);
        });
    }
    template <class Function>
    void ChangePlace(std::int32_t lRack, std::int32_t lPlace, Function change)
    {
        ChangeRack(lRack, [&](auto& rack) { change(rack.places.at(static_cast<std::size_t>(lPlace - 1))); });
    }
    void State(std::int32_t lRack, std::int32_t lState)
    {
        ChangeRack(lRack, [&](auto& rack) { rack.state = lState; });
    }
    void Usability(std::int32_t lRack, std::int32_t lPlace, std::int32_t lUsability)
    {
        ChangePlace(lRack, lPlace, [&](auto& place) { place.usability = lUsability; });
    }
    void Put(std::int32_t lRack, std::int32_t lPlace, const std::string& orderNumber)
    {
        ChangePlace(lRack, lPlace, [&](auto& place) { place.module = NewModuleData(orderNumber); });
    }
    void Empty(std::int32_t lRack, std::int32_t lPlace)
    {
        ChangePlace(lRack, lPlace, [&](auto& place) { place.module = nullptr; });
    }

    /// What `IsDrawable` answers, as of a model that tells no `TotalRefresh`; without it, the model is asked.
    std::optional<bool> drawable;

    // VxHWStation
    std::int32_t DisplayMode() const override { return Answer("Station.DisplayMode", moModel->DisplayMode()); }
    std::int32_t StationKind() const override { return Answer("Station.StationKind", moModel->StationKind()); }
    bool IsReadOnly() const override { return Answer("Station.IsReadOnly", moModel->IsReadOnly()); }
    VxHWRacksPtr Racks() const override { return Answer("Station.Racks", Watch(moLog, moModel->Racks())); }
    bool IsDrawable() const override { return Answer("Station.IsDrawable", drawable.value_or(moModel->IsDrawable())); }
    void IsDrawable(bool bDrawable) override
    {
        if (!bDrawable) Note("IsDrawable False");
        moModel->IsDrawable(bDrawable);
        if (bDrawable) moLog->NoteEnd("IsDrawable True");
    }
    void StartConfiguration() override { Note("StartConfiguration"); }
    void ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) override
    {
        Around("ShowModuleDiagnostics" + At(oPlace) + (oSubModule ? " " + NameOf(moLog, oSubModule) : ""),
               [&] { moModel->ShowModuleDiagnostics(oPlace, oSubModule); });
    }
    bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) override
    {
        return Around("PlaceModules" + What(lPosition, oModules),
                      [&] { return moModel->PlaceModules(lPosition, oModules, oPlaces); });
    }
    bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oSourcePlaces,
                     const VxHWRackPlacesPtr& oPlaces) override
    {
        return Around("MoveModules" + What(lPosition, oModules) + " from" + At(oSourcePlaces),
                      [&] { return moModel->MoveModules(lPosition, oModules, oSourcePlaces, oPlaces); });
    }
    void DeleteModules(const VxHWRackPlacesPtr& oPlaces) override
    {
        Around("DeleteModules" + At(oPlaces), [&] { moModel->DeleteModules(oPlaces); });
    }
    std::int32_t OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace) override
    {
        return Around("OpenModuleParamDialog" + At(oPlace), [&] { return moModel->OpenModuleParamDialog(oPlace); });
    }
    bool SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value) override
    {
        return Around("SetModuleAttribute" + At(oPlace),
                      [&] { return moModel->SetModuleAttribute(oPlace, name, value); });
    }
    bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                     const VxHWRackPlacesPtr& oSourcePlaces) const override
    {
        return Around("CanBePlaced" + What(lPosition, oModules) + (bMove ? " move from" + At(oSourcePlaces) : " copy"),
                      [&] { return moModel->CanBePlaced(lPosition, oModules, bMove, oSourcePlaces); });
    }
    Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const override
    {
        return Answer("Station.GetPossibleDropPlaces", moModel->GetPossibleDropPlaces(oModule));
    }
    VxHWModulesPtr ClipboardModules() const override
    {
        return Answer("Station.ClipboardModules", Watch(moLog, moModel->ClipboardModules()));
    }
    VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const override
    {
        return Around(std::string("ModulesFromConfigText ") + (oExchange ? "with exchange" : "alone"),
                      [&] { return Watch(moLog, moModel->ModulesFromConfigText(text, oExchange)); });
    }
    void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const override
    {
        Around("WriteModulesToExchange [" + NamesOf(moLog, oModules) + "]",
               [&] { moModel->WriteModulesToExchange(oModules, oExchange); });
    }
    void PrepareModule(const VxHWModulePtr& oModule) override
    {
        Around("PrepareModule", [&] { moModel->PrepareModule(oModule); });
    }
    VxHWModulesPtr ExpandModule(const VxHWModulePtr& oModule) override
    {
        return Around("ExpandModule", [&] { return Watch(moLog, moModel->ExpandModule(oModule)); });
    }
    void CreateSubModules(const VxHWModulePtr& oModule) override
    {
        Around("CreateSubModules", [&] { moModel->CreateSubModules(oModule); });
    }
    VxHWRackPlacesPtr ParentModulePlaces(const VxHWModulePtr& oParentModule) const override
    {
        return Answer("Station.ParentModulePlaces", Watch(moLog, moModel->ParentModulePlaces(oParentModule)));
    }
    bool HasGroupFrame(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Station.HasGroupFrame", moModel->HasGroupFrame(oPlace));
    }
    void RefreshDiagnostics() override { Note("RefreshDiagnostics"); }
    void RefreshOnline() override { Note("RefreshOnline"); }
    std::string EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Station.EmptyPlaceTooltip", moModel->EmptyPlaceTooltip(oPlace));
    }
    std::string ModuleTooltip(const VxHWModulePtr& oModule) const override
    {
        return Answer("Station.ModuleTooltip", moModel->ModuleTooltip(oModule));
    }

private:
    std::string What(std::int32_t lPosition, const VxHWModulesPtr& oModules) const
    {
        return " " + std::to_string(lPosition) + " [" + NamesOf(moLog, oModules) + "]";
    }
    std::string At(const VxHWRackPlacePtr& oPlace) const { return " " + KeyOf(moLog, oPlace); }
    std::string At(const VxHWRackPlacesPtr& oPlaces) const { return " [" + KeysOf(moLog, oPlaces) + "]"; }

    template <class Operation>
    std::invoke_result_t<Operation> Around(const std::string& line, Operation operation) const
    {
        Note(line);
        if constexpr (std::is_void_v<std::invoke_result_t<Operation>>) operation(), Call(line);
        else return Answer(line, operation());
    }

    reference::StationPtr moModel;
    EventConnection mRackChange;
    EventConnection mRackPlaceChange;
    EventConnection mTotalRefresh;
};
using WatchedStationPtr = std::shared_ptr<WatchedStation>;

} // namespace zqbchwcx::testing
