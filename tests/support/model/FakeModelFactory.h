#pragma once

#include "foundation/model/VxHWModelFactory.h"
#include "tests/support/model/FakeRackPlaces.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

class FakeModelFactory : public VxHWModelFactory {
public:
    explicit FakeModelFactory(CallLogPtr log) : moLog(std::move(log)) {}

    VxHWRackPlacesPtr CreateRackPlaces() override { return Create<FakeRackPlaces>("VxHWRackPlaces"); }
    VxHWModulesPtr CreateModules() override { return Create<FakeModules>("VxHWModules"); }
    VxHWModulePtr CreateModule() override { return Create<FakeModule>("VxHWModule"); }

private:
    template <class Double>
    std::shared_ptr<Double> Create(const char* name)
    {
        moLog->Call(std::string("VxHWModelFactory.Create") + name);
        return std::make_shared<Double>(moLog);
    }

    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
