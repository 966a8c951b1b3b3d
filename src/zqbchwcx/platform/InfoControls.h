#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/UserControl.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace zqbchwcx {

/// A control inside a control, with the desktop's frame and ground. It draws an edge around each grid in it, one pixel
/// wide and outside the grid.
class Panel : public ChildControl {};
using PanelPtr = std::unique_ptr<Panel>;

/// A line of text that names what stands beside it, in the middle of its height.
class Label {
public:
    virtual ~Label() = default;

    virtual void Caption(std::string_view caption) = 0;
    /// What the caption needs to be seen whole, in logical pixels.
    virtual Size TextSize() const = 0;
    virtual void Move(const Rect& rect) = 0;
};
using LabelPtr = std::unique_ptr<Label>;

/// Shows a text that the user can read, select and copy, with mouse and keyboard, but not change.
class InfoBox {
public:
    virtual ~InfoBox() = default;

    /// What screen readers call the box.
    virtual void Name(std::string_view name) = 0;
    /// Plain text, with "\r\n" between lines. An equal text leaves the user's selection as it is.
    virtual void Text(std::string_view text) = 0;
    /// The ground; it is seen after `Redraw`.
    virtual void BackColor(OleColor color) = 0;
    virtual void Redraw() = 0;
    /// Moves and resizes the box, in logical pixels of its control. Lines are wrapped where it has room for several.
    virtual void Move(const Rect& rect) = 0;
};
using InfoBoxPtr = std::unique_ptr<InfoBox>;

/// A button with a caption that mouse and keyboard press.
class CommandButton {
public:
    virtual ~CommandButton() = default;

    virtual void Caption(std::string_view caption) = 0;
    /// What the button needs to show its caption whole, in logical pixels.
    virtual Size PreferredSize() const = 0;
    virtual bool Enabled() const = 0;
    virtual void Enabled(bool bEnabled) = 0;
    virtual void OnClick(std::function<void()> handler) = 0;
    virtual void Move(const Rect& rect) = 0;
    virtual std::intptr_t hWnd() const = 0;
};
using CommandButtonPtr = std::unique_ptr<CommandButton>;

} // namespace zqbchwcx
