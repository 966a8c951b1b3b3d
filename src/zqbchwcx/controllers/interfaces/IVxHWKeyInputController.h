#pragma once

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives the key events and the editing commands of the views.
class IVxHWKeyInputController {
public:
    virtual ~IVxHWKeyInputController() = default;

    /// Views set the new position themselves, because a cursor key leads elsewhere in each view.
    virtual void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept = 0;
    virtual void SpaceKeyDown(std::int16_t nShift) noexcept = 0;
    virtual void Delete() noexcept = 0;
    virtual void Cut() noexcept = 0;
    virtual void Copy() noexcept = 0;
    virtual void Paste() noexcept = 0;
    virtual void KeyReturn() noexcept = 0;
};
using IVxHWKeyInputControllerPtr = std::shared_ptr<IVxHWKeyInputController>;

} // namespace zqbchwcx
