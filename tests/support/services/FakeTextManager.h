#pragma once

#include "tests/support/services/FakeTextModule.h"

namespace zqbchwcx::testing {

/// Gives the same module for every name.
class FakeTextManager : public TextManager {
public:
    explicit FakeTextManager(CallLogPtr log) : moLog(log), module(std::make_shared<FakeTextModule>(log)) {}

    TextModulePtr Open(std::string_view moduleName) override
    {
        moLog->Note("Open " + std::string(moduleName));
        ++openCount;
        return module;
    }
    void Release(std::string_view moduleName) override
    {
        --openCount;
        moLog->NoteEnd("Release " + std::string(moduleName));
    }

private:
    CallLogPtr moLog;

public:
    std::shared_ptr<FakeTextModule> module;
    std::int32_t openCount = 0;
};

} // namespace zqbchwcx::testing
