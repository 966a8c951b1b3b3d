#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Shape.h"
#include "zqbchwcx/platform/UserControl.h"

#include <array>
#include <cstdint>

namespace zqbchwcx {

/// The arrow from the focused place of an overview to the row of the rack table that shows the same place. It is made
/// of shapes in a control of its own and always ends at the control's right edge. Lengths are logical pixels.
class HWCArrow {
public:
    /// The control outlives the arrow. The arrow starts hidden.
    explicit HWCArrow(UserControl& oControl) noexcept;
    ~HWCArrow() = default;
    HWCArrow(const HWCArrow&) = delete;
    HWCArrow& operator=(const HWCArrow&) = delete;

    /// The x at which the arrow turns towards the row; not left of any X of `Show`. Takes effect at the next `Show`.
    std::int32_t Indentation() const noexcept { return mlIndentation; }
    void Indentation(std::int32_t lIndentation) noexcept { mlIndentation = lIndentation; }
    void ReadProperties(const PropertyBag& bag) noexcept;
    void WriteProperties(PropertyBag& bag) const noexcept;

    /// Draws the arrow from (X, Y), the top of the focused place, to the row whose centre is RowY.
    void Show(std::int32_t X, std::int32_t Y, std::int32_t RowY) noexcept;
    void Hide() noexcept;

private:
    void P_PositionArrow(Point from, Point to) noexcept;
    void P_HideArrow() noexcept;

    InstanceRegistration mRegistration;
    UserControl& mControl;
    std::int32_t mlIndentation = 100;
    std::array<ShapePtr, 4> mashpArrow;
    std::array<ShapePtr, 4> mashpEnd;
};

} // namespace zqbchwcx
