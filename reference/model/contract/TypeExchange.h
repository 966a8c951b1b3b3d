#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/reference/model/contract/StationServices.h"

#include <cstdint>

namespace zqbchwcx::reference {

/// Carries modules as the bytes of a config text, and puts them on the clipboard under the config text's name.
class TypeExchange : public ExchangeData {
public:
    /// The number of the exchange format comes from the desktop. Without a clipboard, putting is an error.
    TypeExchange(std::int16_t nFormatId, ClipboardPtr oClipboard);

    std::int16_t FormatId() const override { return mnFormatId; }
    void StartEmpty() override { mcolBytes.clear(); }
    ByteArray Data() const override { return mcolBytes; }
    /// Throws VxError for bytes that do not begin as a config text does.
    void LoadData(const ByteArray& data) override;
    /// Throws VxError when there is nothing to put or no clipboard to put it on.
    void PutOnClipboard() override;

private:
    std::int16_t mnFormatId;
    ClipboardPtr moClipboard;
    ByteArray mcolBytes;
};

} // namespace zqbchwcx::reference
