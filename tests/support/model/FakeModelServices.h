#pragma once

#include "tests/support/model/WatchedModel.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"

#include <map>
#include <set>

namespace zqbchwcx::testing {

/// Results by place key; a place without one has 0, which is what both services answer where there is nothing to tell.
class ResultsByPlace : public std::map<std::string, std::int32_t> {
public:
    using map::map;
    std::int32_t For(const std::string& key) const
    {
        const auto found = find(key);
        return found == end() ? 0 : found->second;
    }
};

class FakeCompareService : public VxHWCompareService, public Logged {
public:
    using Logged::Logged;

    std::int32_t CompareType() const override { return Answer("Compare.CompareType", compareType); }
    std::int32_t PlaceResult(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Compare.PlaceResult", results.For(KeyOf(moLog, oPlace)));
    }
    std::string PlaceText(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Compare.PlaceText", "place text " + KeyOf(moLog, oPlace));
    }
    void Compare() override {}
    ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& /*oPlace*/) const override { return {}; }
    void ShowParameterDifferences(const VxHWRackPlacePtr& /*oPlace*/,
                                  const ParameterDifferencePtr& /*oDifference*/) override
    {
    }

    std::int32_t compareType = 0;
    ResultsByPlace results;
};

class FakeDiagService : public VxHWDiagService, public Logged {
public:
    using Logged::Logged;

    std::int32_t CpuState(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Diag.CpuState", cpuStates.For(KeyOf(moLog, oPlace)));
    }
    std::int32_t HasFailure(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("Diag.HasFailure", failures.For(KeyOf(moLog, oPlace)));
    }
    bool HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const override
    {
        return Answer("Diag.HasDiagState", diagStates.contains({KeyOf(moLog, oPlace), lCategory}));
    }
    void Station(const VxHWStationPtr& /*oStation*/) override {}
    bool HasDiagnosticInfo(const VxHWRackPlacePtr& /*oPlace*/, const VxHWModulePtr& /*oSubModule*/) const override
    {
        return false;
    }

    ResultsByPlace cpuStates;
    ResultsByPlace failures;
    std::set<std::pair<std::string, std::int32_t>> diagStates;
};

} // namespace zqbchwcx::testing
