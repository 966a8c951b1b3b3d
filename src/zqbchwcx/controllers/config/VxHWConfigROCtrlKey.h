#pragma once

#include "zqbchwcx/controllers/config/ConfigKeyController.h"

namespace zqbchwcx {

/// Keys in read-only configuration mode of an online station: the focused place alone is selected, whatever the
/// modifiers.
class VxHWConfigROCtrlKey : public ConfigKeyController {
public:
    VxHWConfigROCtrlKey() noexcept : ConfigKeyController("VxHWConfigROCtrlKey") {}

    void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept override;
    void SpaceKeyDown(std::int16_t /*nShift*/) noexcept override {}
    void Delete() noexcept override {}
    void Cut() noexcept override {}
    void Copy() noexcept override {}
    void Paste() noexcept override {}
};

} // namespace zqbchwcx
