#pragma once

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives the mouse events of the views, each with the place position under the mouse.
class IVxHWMouseInputController {
public:
    virtual ~IVxHWMouseInputController() = default;

    virtual bool CanSelectByRubberBand() const noexcept = 0;
    virtual void DblClick(std::int32_t lPosition) noexcept = 0;
    virtual void MouseDown(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept = 0;
    virtual void MouseUp(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept = 0;
};
using IVxHWMouseInputControllerPtr = std::shared_ptr<IVxHWMouseInputController>;

} // namespace zqbchwcx
