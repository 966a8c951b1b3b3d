#pragma once

#include "platform/HostServices.h"
#include "tests/support/services/CallLog.h"

#include <map>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// Texts by number; a number without a text gives "T" and the number.
class FakeTextModule : public TextModule {
public:
    explicit FakeTextModule(CallLogPtr log) : moLog(std::move(log)) {}

    std::string Text(std::int32_t lId) override
    {
        moLog->Call("TextModule.Text");
        const auto found = texts.find(lId);
        return found == texts.end() ? "T" + std::to_string(lId) : found->second;
    }
    ImagePtr Picture(std::string_view name) override
    {
        moLog->Call("TextModule.Picture");
        const auto found = pictures.find(std::string(name));
        if (found == pictures.end()) throw VxError(vxErrorInvalidArgument, "There is no picture " + std::string(name));
        return found->second;
    }
    std::intptr_t hInstance() const override
    {
        moLog->Call("TextModule.hInstance");
        return 77;
    }

    std::map<std::int32_t, std::string> texts;
    std::map<std::string, ImagePtr> pictures;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
