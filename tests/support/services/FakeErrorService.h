#pragma once

#include "foundation/VxError.h"
#include "platform/HostServices.h"
#include "tests/support/services/CallLog.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// Keeps the error reports and the balance of user actions.
class FakeErrorService : public ErrorService {
public:
    explicit FakeErrorService(CallLogPtr log) : moLog(std::move(log)) {}

    void BeginUserAction(std::string_view displayText) override
    {
        moLog->Note("BeginUserAction " + std::string(displayText));
        ++openActions;
    }
    void EndUserAction() override
    {
        --openActions;
        moLog->NoteEnd("EndUserAction");
    }
    void LogError(std::int32_t lNumber, std::string_view description, std::string_view source,
                  std::string_view helpFile, std::int32_t lHelpContext) override
    {
        moLog->Note("LogError " + std::string(source));
        reports.emplace_back(lNumber, std::string(description), std::string(source), std::string(helpFile),
                             lHelpContext);
    }

    /// Whether an error of "class.procedure" was reported.
    bool HasReport(std::string_view classAndProcedure) const
    {
        const std::string source = "zqbchwcx." + std::string(classAndProcedure);
        return std::any_of(reports.begin(), reports.end(), [&](const VxError& e) { return e.source == source; });
    }

    std::vector<VxError> reports;
    std::int32_t openActions = 0;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
