#pragma once

#include "platform/HostServices.h"
#include "tests/support/services/CallLog.h"

#include <map>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// Knows the live objects; an unregistration that fits no registration throws.
class FakeInstanceTracker : public InstanceTracker {
public:
    explicit FakeInstanceTracker(CallLogPtr log) : moLog(std::move(log)) {}

    std::int32_t Register(std::int32_t lCategory, std::string_view className) override
    {
        moLog->Note("Register " + std::string(className));
        live.emplace(++mlLastId, std::pair(lCategory, std::string(className)));
        return mlLastId;
    }
    void Unregister(std::int32_t lCategory, std::string_view className, std::int32_t lInstanceId) override
    {
        const auto found = live.find(lInstanceId);
        if (found == live.end() || found->second != std::pair(lCategory, std::string(className)))
            throw VxError(vxErrorInvalidArgument, "Not registered: " + std::string(className));
        live.erase(found);
        moLog->NoteEnd("Unregister " + std::string(className));
    }

    /// Category and class name by instance id.
    std::map<std::int32_t, std::pair<std::int32_t, std::string>> live;

private:
    CallLogPtr moLog;
    std::int32_t mlLastId = 0;
};

} // namespace zqbchwcx::testing
