#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace zqbchwcx {

using ByteArray = std::vector<std::byte>;

/// The data that a drag or the clipboard carries: one byte array per clipboard format number.
class DataObject {
public:
    virtual ~DataObject() = default;

    virtual void SetData(std::int16_t nFormat, const ByteArray& data) = 0;
    /// Announces the format without data; the drag source is asked for them (`OLESetData`) when a target wants them.
    virtual void AnnounceFormat(std::int16_t nFormat) = 0;
    virtual bool GetFormat(std::int16_t nFormat) const = 0;
    /// The data under the format; empty when there are none.
    virtual ByteArray GetData(std::int16_t nFormat) const = 0;
};
using DataObjectPtr = std::shared_ptr<DataObject>;

/// The host's object that carries modules in the host's own format beside the text format.
class ExchangeData {
public:
    virtual ~ExchangeData() = default;

    virtual std::int16_t FormatId() const = 0;
    /// Drops all content.
    virtual void StartEmpty() = 0;
    virtual ByteArray Data() const = 0;
    /// Takes content that another exchange object gave as its `Data`. Throws on content that is not.
    virtual void LoadData(const ByteArray& data) = 0;
    virtual void PutOnClipboard() = 0;
};
using ExchangeDataPtr = std::shared_ptr<ExchangeData>;

} // namespace zqbchwcx
