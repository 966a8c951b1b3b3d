#pragma once

#include "reference/model/contract/StationServices.h"
#include "tests/support/services/CallLog.h"

#include <map>
#include <string>
#include <utility>

namespace zqbchwcx::testing {

/// A clipboard in memory; its calls can be made to fail.
class MemoryClipboard : public reference::Clipboard {
public:
    explicit MemoryClipboard(CallLogPtr log) : moLog(std::move(log)) {}

    std::optional<ByteArray> Read(std::string_view formatName) const override
    {
        moLog->Call("Clipboard.Read");
        const auto found = mcolContent.find(std::string(formatName));
        return found == mcolContent.end() ? std::nullopt : std::optional(found->second);
    }
    void Write(std::string_view formatName, const ByteArray& data) override
    {
        moLog->Call("Clipboard.Write");
        mcolContent = {{std::string(formatName), data}};
    }

private:
    CallLogPtr moLog;
    std::map<std::string, ByteArray> mcolContent;
};

} // namespace zqbchwcx::testing
