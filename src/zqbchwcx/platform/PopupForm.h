#pragma once

#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/Surface.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zqbchwcx {

/// Receives what happens on a popup form. Points are logical pixels of the form.
class PopupFormEvents {
public:
    virtual ~PopupFormEvents() = default;

    virtual void MouseDown(std::int16_t nButton, std::int16_t nShift, Point at) noexcept = 0;
    virtual void DblClick() noexcept = 0;
    /// The window is gone from the screen by a rule of the windowing system.
    virtual void Closed() noexcept = 0;
};

/// A borderless window above all others that takes no keyboard focus, with a persistent picture.
class PopupForm : public Surface {
public:
    /// Who receives the events; null for nobody. The receiver outlives the form or sets null before it ends.
    virtual void Events(PopupFormEvents* receiver) = 0;

    /// Shows the form with its picture erased. The rectangle is in logical pixels of the screen.
    virtual void Show(const Rect& onScreen) = 0;
    virtual void Hide() = 0;
    /// What the keyboard is at now, for screen readers: the picture tells them nothing.
    virtual void Tell(std::string_view text) = 0;
    virtual bool Visible() const = 0;
    virtual Size ScaleSize() const = 0;
    /// The height of one line of text in the form's font, with what parts it from the next.
    virtual std::int32_t TextHeight() const = 0;
    /// The part of the screen, without task bars, that holds the point.
    virtual Rect WorkArea(Point onScreen) const = 0;
    virtual std::intptr_t hWnd() const = 0;
};
using PopupFormPtr = std::unique_ptr<PopupForm>;

} // namespace zqbchwcx
