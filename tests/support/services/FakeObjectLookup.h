#pragma once

#include "tests/support/services/FakeApplication.h"

#include <memory>

namespace zqbchwcx::testing {

/// Looks up one application object: the status is 0 as long as it is set.
class FakeObjectLookup : public ObjectLookup {
public:
    FakeObjectLookup(CallLogPtr log, std::shared_ptr<FakeApplication> application)
        : moLog(std::move(log)), moApplication(std::move(application))
    {
    }

    std::int32_t Status(std::string_view /*classId*/) override
    {
        moLog->Call("ObjectLookup.Status");
        return moApplication ? 0 : 1;
    }
    HostApplicationPtr Object(std::string_view /*classId*/) override
    {
        moLog->Call("ObjectLookup.Object");
        return moApplication;
    }

private:
    CallLogPtr moLog;
    std::shared_ptr<FakeApplication> moApplication;
};

} // namespace zqbchwcx::testing
