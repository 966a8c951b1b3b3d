#pragma once

#include "foundation/model/VxHWStation.h"
#include "platform/DataObject.h"
#include "tests/support/model/FakeConfigText.h"

#include <functional>

namespace zqbchwcx::testing {

/// A station in memory with the simplest of rules: modules fill usable empty places from the position on (a gap stands
/// for the place behind it). Place events wait while drawing is off and follow when it is switched on.
class FakeStation : public VxHWStation, public Logged {
public:
    FakeStation(CallLogPtr log, std::int32_t lRacks, std::int32_t lPlaces);

    std::int32_t DisplayMode() const override { return Answer("VxHWStation.DisplayMode", displayMode); }
    std::int32_t StationKind() const override { return Answer("VxHWStation.StationKind", stationKind); }
    bool IsReadOnly() const override { return Answer("VxHWStation.IsReadOnly", readOnly); }
    VxHWRacksPtr Racks() const override { return Answer("VxHWStation.Racks", racks); }
    bool IsDrawable() const override { return Answer("VxHWStation.IsDrawable", drawable); }
    void IsDrawable(bool bDrawable) override;
    void StartConfiguration() override { moLog->Note("StartConfiguration"); }
    void ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) override;
    bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                      const VxHWRackPlacesPtr& oPlaces) override;
    bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oSourcePlaces,
                     const VxHWRackPlacesPtr& oPlaces) override;
    void DeleteModules(const VxHWRackPlacesPtr& oPlaces) override;
    std::int32_t OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace) override;
    bool SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value) override;
    bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                     const VxHWRackPlacesPtr& oSourcePlaces) const override;
    Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const override;
    VxHWModulesPtr ClipboardModules() const override;
    VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const override;
    void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const override;
    void PrepareModule(const VxHWModulePtr& oModule) override;
    VxHWModulesPtr ExpandModule(const VxHWModulePtr& oModule) override;
    void CreateSubModules(const VxHWModulePtr& oModule) override;
    VxHWRackPlacesPtr ParentModulePlaces(const VxHWModulePtr& oParentModule) const override;
    bool HasGroupFrame(const VxHWRackPlacePtr& oPlace) const override;
    void RefreshDiagnostics() override { moLog->Note("RefreshDiagnostics"); }
    void RefreshOnline() override { moLog->Note("RefreshOnline"); }
    std::string EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const override;
    std::string ModuleTooltip(const VxHWModulePtr& oModule) const override;

    /// The objects of the station; reaching them so is no fault point.
    FakeRackPtr Rack(std::int32_t lRack) const { return racks->members.at(static_cast<std::size_t>(lRack)); }
    FakeRackPlacePtr Place(std::int32_t lRack, std::int32_t lPlace) const
    {
        return Rack(lRack)->places->members.at(static_cast<std::size_t>(lPlace - 1));
    }
    FakeModulePtr Module(std::int32_t lRack, std::int32_t lPlace) const { return Place(lRack, lPlace)->module; }

    FakeModulePtr MakeModule(std::string orderNumber) const;
    /// Puts a new module, without any event, into the place; one with several places also into those behind it.
    FakeModulePtr Put(std::int32_t lRack, std::int32_t lPlace, std::string orderNumber, std::int32_t lPlaceCount = 0);
    /// What stands where, as in "0/2=A 0/3=B".
    std::string Content() const;

    std::int32_t displayMode = vxDisplayModeOffline;
    std::int32_t stationKind = vxStationKindCentral;
    bool readOnly = false;
    bool drawable = true;
    /// What `ClipboardModules` reads; null or without content is an empty clipboard.
    std::shared_ptr<ByteArray> clipboard;
    std::shared_ptr<FakeRacks> racks;

private:
    using Places = std::vector<FakeRackPlacePtr>;

    Places AllPlaces() const;
    /// The places that the modules would fill, or none when they do not fit.
    Places Targets(std::int32_t lPosition, std::size_t count, const Places& sources) const;
    bool Fill(std::int32_t lPosition, const FakeModuleList& modules, const VxHWRackPlacesPtr& oPlaces);
    Places PlacesWith(const VxHWModulePtr& oParentModule) const;
    Places WithFellowMembers(const Places& places) const;
    void Clear(const Places& places);
    void Changed(const FakeRackPlacePtr& place);
    VxHWModulesPtr MakeModules(FakeModuleList modules) const;

    Places mcolChanged;
};
using FakeStationPtr = std::shared_ptr<FakeStation>;

} // namespace zqbchwcx::testing
