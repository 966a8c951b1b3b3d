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
    void Compare() override { Note("Compare"); }
    ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& /*oPlace*/) const override { return {}; }
    void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace, const ParameterDifferencePtr& oDifference) override
    {
        Note("ShowParameterDifferences " + KeyOf(moLog, oPlace) + (oDifference ? " of one" : ""));
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
    void Station(const VxHWStationPtr& oStation) override
    {
        Note(oStation ? "Diag.Station set" : "Diag.Station nothing");
    }
    bool HasDiagnosticInfo(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const override
    {
        return Answer("Diag.HasDiagnosticInfo", infos.contains(InfoKey(oPlace, oSubModule)));
    }

    ResultsByPlace cpuStates;
    ResultsByPlace failures;
    std::set<std::pair<std::string, std::int32_t>> diagStates;
    /// What there is more to tell about: "0/4", or "0/4 SUB" for a sub-module.
    std::set<std::string> infos;

private:
    std::string InfoKey(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const
    {
        return KeyOf(moLog, oPlace) + (oSubModule ? " " + NameOf(moLog, oSubModule) : "");
    }
};

} // namespace zqbchwcx::testing
