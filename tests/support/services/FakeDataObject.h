#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/DataObject.h"

#include <map>

namespace zqbchwcx::testing {

/// A data object in memory. An announced format is offered, but holds no data.
class FakeDataObject : public DataObject, public Logged {
public:
    using Logged::Logged;

    void SetData(std::int16_t nFormat, const ByteArray& data) override
    {
        Call("DataObject.SetData");
        formats[nFormat] = data;
    }
    void AnnounceFormat(std::int16_t nFormat) override
    {
        Call("DataObject.AnnounceFormat");
        formats[nFormat];
    }
    bool GetFormat(std::int16_t nFormat) const override
    {
        return Answer("DataObject.GetFormat", formats.contains(nFormat));
    }
    ByteArray GetData(std::int16_t nFormat) const override
    {
        const auto found = formats.find(nFormat);
        return Answer("DataObject.GetData", found == formats.end() ? ByteArray{} : found->second);
    }

    std::map<std::int16_t, ByteArray> formats;
};

/// An exchange data object that takes any bytes.
class FakeExchangeData : public ExchangeData, public Logged {
public:
    static constexpr std::int16_t Format = 0x1234;

    FakeExchangeData(CallLogPtr log, std::shared_ptr<ByteArray> clipboard)
        : Logged(std::move(log)), moClipboard(std::move(clipboard))
    {
    }

    std::int16_t FormatId() const override { return Answer("ExchangeData.FormatId", Format); }
    void StartEmpty() override { Call("ExchangeData.StartEmpty"), mContent.clear(); }
    ByteArray Data() const override { return Answer("ExchangeData.Data", mContent); }
    void LoadData(const ByteArray& data) override { Call("ExchangeData.LoadData"), mContent = data; }
    void PutOnClipboard() override { moLog->Note("PutOnClipboard"), *moClipboard = mContent; }

private:
    std::shared_ptr<ByteArray> moClipboard;
    ByteArray mContent;
};

} // namespace zqbchwcx::testing
