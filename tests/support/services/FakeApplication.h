#pragma once

#include "platform/HostServices.h"
#include "tests/support/services/CallLog.h"

#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// A host application that counts wait cursors.
class FakeApplication : public HostApplication {
public:
    explicit FakeApplication(CallLogPtr log) : moLog(std::move(log)) {}

    void DoWaitCursor(std::int32_t lCode) override
    {
        waitBalance += lCode;
        moLog->NoteEnd("DoWaitCursor " + std::to_string(lCode));
    }

    std::int32_t waitBalance = 0;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
