#pragma once

#include "zqbchwcx/controllers/StationController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/PlacePosition.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// The mouse in configuration mode: sets selection, focus and anchor, and opens the parameter dialog on a double
/// click. It never changes the configuration itself.
class VxHWConfigCtrlMouse : public StationController, public IVxHWMouseInputController {
public:
    VxHWConfigCtrlMouse() noexcept;

    bool CanSelectByRubberBand() const noexcept override;
    void DblClick(std::int32_t lPosition) noexcept override;
    void MouseDown(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept override;
    void MouseUp(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept override;

protected:
    explicit VxHWConfigCtrlMouse(std::string_view className) noexcept;

private:
    void P_MouseDownOnGap(const PositionInfo& pressed) noexcept;
    void P_MouseDownOnPlace(const PositionInfo& pressed) noexcept;
    void P_MouseDownOnRack(const PositionInfo& pressed) noexcept;
    void P_MouseDownShift(const PositionInfo& pressed) noexcept;
    void P_MouseUpOnGap(const PositionInfo& pressed) noexcept;
    void P_MouseUpOnPlace(const PositionInfo& pressed) noexcept;
    void P_MouseUpCtrlOnGap(const PositionInfo& pressed) noexcept;
    void P_MouseUpCtrlOnPlace(const PositionInfo& pressed) noexcept;

    /// The place, or the place left of the gap.
    VxHWRackPlacePtr PlaceOf(const PositionInfo& pressed) const;
    bool IsSelected(const PositionInfo& pressed) const;
    void FocusAndAnchor(const PositionInfo& pressed) const;
    bool IsSelectionInOtherRack(std::int32_t lRack) const;

    /// What a release acts on, wherever the mouse is by then.
    std::int32_t mlMouseDownPosition = vxNoPosition;
};

} // namespace zqbchwcx
