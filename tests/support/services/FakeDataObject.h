#pragma once

#include "platform/DataObject.h"
#include "tests/support/services/CallLog.h"

#include <map>
#include <utility>

namespace zqbchwcx::testing {

/// A data object in memory. An announced format is offered, but holds no data.
class FakeDataObject : public DataObject {
public:
    explicit FakeDataObject(CallLogPtr log) : moLog(std::move(log)) {}

    void SetData(std::int16_t nFormat, const ByteArray& data) override
    {
        moLog->Call("DataObject.SetData");
        formats[nFormat] = data;
    }
    void AnnounceFormat(std::int16_t nFormat) override
    {
        moLog->Call("DataObject.AnnounceFormat");
        formats[nFormat];
    }
    bool GetFormat(std::int16_t nFormat) const override
    {
        moLog->Call("DataObject.GetFormat");
        return formats.contains(nFormat);
    }
    ByteArray GetData(std::int16_t nFormat) const override
    {
        moLog->Call("DataObject.GetData");
        const auto found = formats.find(nFormat);
        return found == formats.end() ? ByteArray{} : found->second;
    }

    std::map<std::int16_t, ByteArray> formats;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
