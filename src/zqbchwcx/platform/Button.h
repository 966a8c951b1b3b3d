#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives what the user does on a button.
class ButtonEvents {
public:
    virtual ~ButtonEvents() = default;

    virtual void MouseDown(std::int16_t nButton) noexcept = 0;
    /// The button that was pressed is released, wherever the mouse is.
    virtual void MouseUp(std::int16_t nButton) noexcept = 0;
    virtual void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                             std::int16_t nShift, std::int16_t nState) noexcept = 0;
};

enum class ButtonArrow { Up, Down };

/// A button that shows an arrow of lines. It never has the keyboard, and shows itself pressed only when it is told to.
/// Its face leaves a border free, through which the frame below it shows.
class Button {
public:
    virtual ~Button() = default;

    /// Who receives the events; null for nobody. The receiver outlives the button or sets null before it ends.
    virtual void Events(ButtonEvents* receiver) = 0;

    virtual bool Pressed() const = 0;
    virtual void Pressed(bool bPressed) = 0;
    virtual void ArrowColor(OleColor color) = 0;

    /// Moves and resizes the button, in logical pixels of its control.
    virtual void Move(const Rect& rect) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool bVisible) = 0;
};
using ButtonPtr = std::unique_ptr<Button>;

} // namespace zqbchwcx
