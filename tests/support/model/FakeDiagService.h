#pragma once

#include "foundation/model/VxHWDiagService.h"
#include "tests/support/model/FakeRackPlace.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// Diagnostic states by place key.
class FakeDiagService : public VxHWDiagService {
public:
    explicit FakeDiagService(CallLogPtr log) : moLog(std::move(log)) {}

    void Station(const VxHWStationPtr& oStation) override
    {
        moLog->Note(oStation ? "DiagService.Station set" : "DiagService.Station nothing");
        station = oStation;
    }
    std::int32_t CpuState(const VxHWRackPlacePtr& oPlace) const override { return Find("CpuState", cpuStates, oPlace); }
    std::int32_t HasFailure(const VxHWRackPlacePtr& oPlace) const override
    {
        return Find("HasFailure", failures, oPlace);
    }
    bool HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const override
    {
        moLog->Call("VxHWDiagService.HasDiagState");
        return diagStates.contains({KeyOfPlace(oPlace), lCategory});
    }
    bool HasDiagnosticInfo(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const override
    {
        moLog->Call("VxHWDiagService.HasDiagnosticInfo");
        return infos.contains({KeyOfPlace(oPlace), oSubModule != nullptr});
    }

    std::weak_ptr<VxHWStation> station;
    std::map<std::string, std::int32_t> cpuStates;
    std::map<std::string, std::int32_t> failures;
    std::set<std::pair<std::string, std::int32_t>> diagStates;
    /// Place keys, each for the module itself (false) or its sub-modules (true).
    std::set<std::pair<std::string, bool>> infos;

private:
    std::int32_t Find(const char* operation, const std::map<std::string, std::int32_t>& states,
                      const VxHWRackPlacePtr& oPlace) const
    {
        moLog->Call(std::string("VxHWDiagService.") + operation);
        const auto found = states.find(KeyOfPlace(oPlace));
        return found == states.end() ? 0 : found->second;
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
