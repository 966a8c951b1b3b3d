#pragma once

#include "zqbchwcx/reference/model/contract/StationServices.h"

namespace quillon_ed {

/// The desktop's clipboard for the model.
class DesktopClipboard : public zqbchwcx::reference::Clipboard {
public:
    std::optional<zqbchwcx::ByteArray> Read(std::string_view formatName) const override;
    void Write(std::string_view formatName, const zqbchwcx::ByteArray& data) override;
};

} // namespace quillon_ed
