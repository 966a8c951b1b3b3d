#pragma once

#include "zqbchwcx/controllers/config/ConfigKeyController.h"

namespace zqbchwcx {

/// Keys in read-only configuration mode of an offline station: everything that changes nothing in the configuration.
class VxHWConfigROOfflineCtrlKey : public ConfigKeyController {
public:
    VxHWConfigROOfflineCtrlKey() noexcept : ConfigKeyController("VxHWConfigROOfflineCtrlKey") {}

    void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept override
    {
        CursorKey(lNewPosition, nShift);
    }
    void SpaceKeyDown(std::int16_t nShift) noexcept override { SpaceKey(nShift); }
    void Delete() noexcept override {}
    void Cut() noexcept override {}
    void Copy() noexcept override { CopySelection(); }
    void Paste() noexcept override {}
};

} // namespace zqbchwcx
