#pragma once

#include "zqbchwcx/controllers/config/ConfigKeyController.h"

namespace zqbchwcx {

/// Keys and editing commands in configuration mode.
class VxHWConfigCtrlKey : public ConfigKeyController {
public:
    VxHWConfigCtrlKey() noexcept;

    void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept override;
    void SpaceKeyDown(std::int16_t nShift) noexcept override;
    void Delete() noexcept override;
    void Cut() noexcept override;
    void Copy() noexcept override;
    void Paste() noexcept override;

private:
    void DeleteSelected(std::string_view procedureName);
};

} // namespace zqbchwcx
