#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zqbchwcx {

/// Receives what happens to the control that a view lives in.
class UserControlEvents {
public:
    virtual ~UserControlEvents() = default;

    virtual void KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept = 0;
    virtual void KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept = 0;
    virtual void Resize() noexcept = 0;
    /// The mouse wheel was turned over the control, or fingers moved on a touchpad: by so many notches, upwards for
    /// positive numbers; a part of a notch counts. False when the control has no use for it.
    virtual bool MouseWheel(float /*notches*/) noexcept { return false; }
    /// A drag over the control, but outside its picture boxes.
    virtual void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                             std::int16_t nShift, float x, float y, std::int16_t nState) noexcept = 0;
};

/// The site that a view lives in: its window and its size. Sizes are twips (15 to a logical pixel).
class UserControl {
public:
    virtual ~UserControl() = default;

    /// Who receives the events; null for nobody. The receiver outlives the site or sets null before it ends.
    virtual void Events(UserControlEvents* receiver) = 0;

    virtual std::intptr_t hWnd() const = 0;
    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;
    virtual void Size(std::int32_t lWidth, std::int32_t lHeight) = 0;
    /// Sets the font of the control and of every text on its surfaces. Height in points.
    virtual void Font(std::string_view family, double points) = 0;
};

/// A control inside a control, placed in logical pixels of its parent. It shows only what of its children lies in it.
class ChildControl : public UserControl {
public:
    virtual void Move(const Rect& rect) = 0;
};
using ChildControlPtr = std::unique_ptr<ChildControl>;

/// Stored properties of a control.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    virtual std::int32_t ReadProperty(std::string_view name, std::int32_t lDefault) const = 0;
    virtual void WriteProperty(std::string_view name, std::int32_t lValue, std::int32_t lDefault) = 0;
};

inline constexpr std::int32_t vxTwipsPerPixel = 15;

} // namespace zqbchwcx
