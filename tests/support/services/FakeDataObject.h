#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"

#include <functional>
#include <map>

namespace zqbchwcx::testing {

/// A data object in memory. An announced format is offered, but holds no data until somebody wants them.
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
        if (found != formats.end() && found->second.empty() && onWanted) onWanted(nFormat);
        return Answer("DataObject.GetData", found == formats.end() ? ByteArray{} : found->second);
    }

    std::map<std::int16_t, ByteArray> formats;
    std::function<void(std::int16_t)> onWanted; ///< the drag's source sets the data
};

/// The model's exchange data object, whose every call is a fault point.
class WatchedExchange : public reference::TypeExchange, public Logged {
public:
    static constexpr std::int16_t Format = 0x1234;

    WatchedExchange(CallLogPtr log, reference::ClipboardPtr oClipboard)
        : TypeExchange(Format, std::move(oClipboard)), Logged(std::move(log))
    {
    }

    std::int16_t FormatId() const override { return Answer("Exchange.FormatId", TypeExchange::FormatId()); }
    void StartEmpty() override { Call("Exchange.StartEmpty"), TypeExchange::StartEmpty(); }
    ByteArray Data() const override { return Answer("Exchange.Data", TypeExchange::Data()); }
    void LoadData(const ByteArray& data) override { Call("Exchange.LoadData"), TypeExchange::LoadData(data); }
    void PutOnClipboard() override { Note("PutOnClipboard"), TypeExchange::PutOnClipboard(); }
};

} // namespace zqbchwcx::testing
