#pragma once

#include "zqbchwcx/controllers/StationController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/foundation/Registration.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace zqbchwcx {

/// What the key controllers of configuration mode have in common. Each of them says which of the keys and commands it
/// serves; the parameter dialog opens in every mode.
class ConfigKeyController : public StationController, public IVxHWKeyInputController {
public:
    void KeyReturn() noexcept override;

protected:
    explicit ConfigKeyController(std::string_view className) noexcept;

    /// The focus follows the key; the selection follows it alone without modifiers, from the anchor with Shift.
    void CursorKey(std::int32_t lNewPosition, std::int16_t nShift) noexcept;
    void SpaceKey(std::int16_t nShift) noexcept;
    void CopySelection() noexcept;

    /// Empties the selection or, when the position is a place, selects that place alone.
    void SelectPosition(std::int32_t lPosition) const;

    /// Runs the body as a user action that is named by the text. An error of the body is reported first; then the
    /// action is ended all the same.
    void RunAsAction(std::int32_t lTextId, std::string_view procedureName, const std::function<void()>& body) noexcept;
    /// Like `RunAsAction`, with the wait cursor shown.
    void RunAsCommand(std::int32_t lTextId, std::string_view procedureName, const std::function<void()>& body) noexcept;

private:
    TextModuleUse moTexts;
};

} // namespace zqbchwcx
