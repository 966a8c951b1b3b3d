#pragma once

#include "reference/services/UserActions.h"
#include "tests/support/services/FakeErrorService.h"

#include <memory>

namespace zqbchwcx::testing {

/// Keeps what is reported, and passes user actions to the history.
class HistoryErrors : public FakeErrorService {
public:
    using FakeErrorService::FakeErrorService;

    void BeginUserAction(std::string_view displayText) override
    {
        FakeErrorService::BeginUserAction(displayText);
        if (const auto actions = history.lock()) actions->BeginUserAction(displayText);
    }
    void EndUserAction() override
    {
        if (const auto actions = history.lock()) actions->EndUserAction();
        FakeErrorService::EndUserAction();
    }

    std::weak_ptr<reference::UserActions> history;
};

} // namespace zqbchwcx::testing
