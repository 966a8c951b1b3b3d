#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <type_traits>

namespace zqbchwcx::testing {

/// The reference station, whose operations can be made to fail before they have begun and after they are done.
class FaultyStation : public reference::Station {
public:
    FaultyStation(CallLogPtr log, reference::ModelContextPtr oContext, reference::StationData data,
                  reference::StationServices services)
        : Station(std::move(oContext), std::move(data), std::move(services)), moLog(std::move(log))
    {
    }

    bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) override
    {
        return Around("Station.PlaceModules", [&] { return Station::PlaceModules(lPosition, oModules, oPlaces); });
    }
    bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oSourcePlaces,
                     const VxHWRackPlacesPtr& oPlaces) override
    {
        return Around("Station.MoveModules",
                      [&] { return Station::MoveModules(lPosition, oModules, oSourcePlaces, oPlaces); });
    }
    void DeleteModules(const VxHWRackPlacesPtr& oPlaces) override
    {
        Around("Station.DeleteModules", [&] { Station::DeleteModules(oPlaces); });
    }
    bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                     const VxHWRackPlacesPtr& oSourcePlaces) const override
    {
        return Around("Station.CanBePlaced",
                      [&] { return Station::CanBePlaced(lPosition, oModules, bMove, oSourcePlaces); });
    }
    Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const override
    {
        return Around("Station.GetPossibleDropPlaces", [&] { return Station::GetPossibleDropPlaces(oModule); });
    }
    VxHWModulesPtr ClipboardModules() const override
    {
        return Around("Station.ClipboardModules", [&] { return Station::ClipboardModules(); });
    }
    VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const override
    {
        return Around("Station.ModulesFromConfigText", [&] { return Station::ModulesFromConfigText(text, oExchange); });
    }
    void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const override
    {
        Around("Station.WriteModulesToExchange", [&] { Station::WriteModulesToExchange(oModules, oExchange); });
    }
    VxHWRacksPtr Racks() const override
    {
        return Around("Station.Racks", [&] { return Station::Racks(); });
    }

private:
    template <class Operation>
    std::invoke_result_t<Operation> Around(std::string_view name, Operation operation) const
    {
        moLog->Call(name);
        if constexpr (std::is_void_v<std::invoke_result_t<Operation>>) {
            operation();
            moLog->Call(name);
        } else {
            auto result = operation();
            moLog->Call(name);
            return result;
        }
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
