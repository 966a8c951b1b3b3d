#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/reference/model/contract/StationServices.h"

namespace zqbchwcx::testing {

/// A clipboard in memory; its calls can be made to fail.
class MemoryClipboard : public reference::Clipboard, public Logged {
public:
    explicit MemoryClipboard(CallLogPtr log = std::make_shared<CallLog>()) : Logged(std::move(log)) {}

    std::optional<ByteArray> Read(std::string_view formatName) const override
    {
        return Answer("Clipboard.Read", formatName == msFormat ? mData : std::nullopt);
    }
    void Write(std::string_view formatName, const ByteArray& data) override
    {
        Call("Clipboard.Write");
        msFormat = formatName;
        mData = data;
    }

private:
    std::string msFormat;
    std::optional<ByteArray> mData;
};

} // namespace zqbchwcx::testing
