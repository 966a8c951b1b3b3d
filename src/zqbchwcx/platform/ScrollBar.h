#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives what the user does with a scroll bar; the bar then has the new value.
class ScrollBarEvents {
public:
    virtual ~ScrollBarEvents() = default;

    /// The value was changed.
    virtual void Change() noexcept = 0;
    /// The value is being changed: the thumb is held.
    virtual void Scroll() noexcept = 0;
};

/// A vertical scroll bar. Its values are whole numbers from 0 on.
class ScrollBar {
public:
    virtual ~ScrollBar() = default;

    /// Who receives the events; null for nobody. The receiver outlives the bar or sets null before it ends.
    virtual void Events(ScrollBarEvents* receiver) = 0;

    /// The largest value; by how much a page is more than a step of 1. A put raises no event.
    virtual void Range(std::int32_t lMaximum, std::int32_t lPage) = 0;
    virtual std::int32_t Value() const = 0;
    /// A put raises no event.
    virtual void Value(std::int32_t lValue) = 0;

    /// Moves and resizes the bar, in logical pixels of its control.
    virtual void Move(const Rect& rect) = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool bVisible) = 0;
};
using ScrollBarPtr = std::unique_ptr<ScrollBar>;

} // namespace zqbchwcx
