#pragma once

#include "foundation/model/Enumerations.h"
#include "foundation/model/VxHWCompareService.h"
#include "foundation/model/VxHWRackPlace.h"
#include "tests/support/model/FakeRackPlace.h"

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace zqbchwcx::testing {

/// Compare results by place key.
class FakeCompareService : public VxHWCompareService {
public:
    explicit FakeCompareService(CallLogPtr log) : moLog(std::move(log)) {}

    std::int32_t CompareType() const override
    {
        moLog->Call("VxHWCompareService.CompareType");
        return compareType;
    }
    void Compare() override { moLog->Note("Compare"); }
    std::int32_t PlaceResult(const VxHWRackPlacePtr& oPlace) const override
    {
        moLog->Call("VxHWCompareService.PlaceResult");
        const auto found = results.find(KeyOfPlace(oPlace));
        return found == results.end() ? std::int32_t{vxCompareNone} : found->second;
    }
    ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& oPlace) const override
    {
        moLog->Call("VxHWCompareService.ParameterDifferencesOf");
        return differences ? differences(KeyOfPlace(oPlace)) : nullptr;
    }
    void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace) override
    {
        moLog->Note("ShowParameterDifferences " + KeyOfPlace(oPlace));
    }
    std::string PlaceText(const VxHWRackPlacePtr& oPlace) const override
    {
        moLog->Call("VxHWCompareService.PlaceText");
        return "place text " + KeyOfPlace(oPlace);
    }

    std::int32_t compareType = 0;
    std::map<std::string, std::int32_t> results;
    std::function<ParameterDifferencesPtr(const std::string& key)> differences;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
