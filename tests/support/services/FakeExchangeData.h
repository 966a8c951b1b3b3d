#pragma once

#include "platform/DataObject.h"
#include "tests/support/services/CallLog.h"
#include "tests/support/services/FakeClipboard.h"

#include <memory>
#include <utility>

namespace zqbchwcx::testing {

/// An exchange data object that takes any bytes.
class FakeExchangeData : public ExchangeData {
public:
    static constexpr std::int16_t Format = 0x1234;

    FakeExchangeData(CallLogPtr log, std::shared_ptr<FakeClipboard> clipboard)
        : moLog(std::move(log)), moClipboard(std::move(clipboard))
    {
    }

    std::int16_t FormatId() const override
    {
        moLog->Call("ExchangeData.FormatId");
        return Format;
    }
    void StartEmpty() override
    {
        moLog->Call("ExchangeData.StartEmpty");
        content.clear();
    }
    ByteArray Data() const override
    {
        moLog->Call("ExchangeData.Data");
        return content;
    }
    void LoadData(const ByteArray& data) override
    {
        moLog->Call("ExchangeData.LoadData");
        content = data;
    }
    void PutOnClipboard() override
    {
        moLog->Note("PutOnClipboard");
        moClipboard->content = content;
    }

    ByteArray content;

private:
    CallLogPtr moLog;
    std::shared_ptr<FakeClipboard> moClipboard;
};

} // namespace zqbchwcx::testing
