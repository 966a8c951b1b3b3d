#pragma once

#include "foundation/model/Enumerations.h"
#include "foundation/model/VxHWCompareService.h"
#include "foundation/model/VxHWDiagService.h"
#include "tests/support/model/FakeModelObjects.h"

#include <set>

namespace zqbchwcx::testing {

/// Results by place key.
using ResultsByPlace = std::map<std::string, std::int32_t>;

/// The result for the place, or 0, which is what both services answer where there is nothing to tell.
inline std::int32_t ResultFor(const ResultsByPlace& results, const VxHWRackPlacePtr& oPlace)
{
    const auto found = results.find(KeyOfPlace(oPlace));
    return found == results.end() ? 0 : found->second;
}

class FakeCompareService : public VxHWCompareService, public Logged {
public:
    using Logged::Logged;

    std::int32_t CompareType() const override { return Answer("VxHWCompareService.CompareType", compareType); }
    void Compare() override { moLog->Note("Compare"); }
    std::int32_t PlaceResult(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("VxHWCompareService.PlaceResult", ResultFor(results, oPlace));
    }
    ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& /*oPlace*/) const override
    {
        return Answer("VxHWCompareService.ParameterDifferencesOf", nullptr);
    }
    void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace) override
    {
        moLog->Note("ShowParameterDifferences " + KeyOfPlace(oPlace));
    }
    std::string PlaceText(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("VxHWCompareService.PlaceText", "place text " + KeyOfPlace(oPlace));
    }

    std::int32_t compareType = 0;
    ResultsByPlace results;
};

class FakeDiagService : public VxHWDiagService, public Logged {
public:
    using Logged::Logged;

    void Station(const VxHWStationPtr& oStation) override
    {
        moLog->Note(oStation ? "DiagService.Station set" : "DiagService.Station nothing");
    }
    std::int32_t CpuState(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("VxHWDiagService.CpuState", ResultFor(cpuStates, oPlace));
    }
    std::int32_t HasFailure(const VxHWRackPlacePtr& oPlace) const override
    {
        return Answer("VxHWDiagService.HasFailure", ResultFor(failures, oPlace));
    }
    bool HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const override
    {
        return Answer("VxHWDiagService.HasDiagState", diagStates.contains({KeyOfPlace(oPlace), lCategory}));
    }
    bool HasDiagnosticInfo(const VxHWRackPlacePtr& /*oPlace*/, const VxHWModulePtr& /*oSubModule*/) const override
    {
        return Answer("VxHWDiagService.HasDiagnosticInfo", false);
    }

    ResultsByPlace cpuStates;
    ResultsByPlace failures;
    std::set<std::pair<std::string, std::int32_t>> diagStates;
};

} // namespace zqbchwcx::testing
