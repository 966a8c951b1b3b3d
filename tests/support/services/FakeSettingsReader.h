#pragma once

#include "platform/HostServices.h"
#include "tests/support/services/CallLog.h"

#include <map>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

class FakeSettingsReader : public SettingsReader {
public:
    explicit FakeSettingsReader(CallLogPtr log) : moLog(std::move(log)) {}

    std::string Read(std::string_view keyPath, std::string_view name, std::string_view defaultValue) override
    {
        moLog->Call("SettingsReader.Read");
        const auto found = values.find({std::string(keyPath), std::string(name)});
        return found == values.end() ? std::string(defaultValue) : found->second;
    }

    /// By key path and name.
    std::map<std::pair<std::string, std::string>, std::string> values;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
