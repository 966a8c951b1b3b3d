#pragma once

#include <QPoint>
#include <Qt>

#include <functional>
#include <memory>

namespace zqbchwcx::qt {

/// Hears of every press of a mouse button on the screen, whichever program it is for; ends with the object.
class RawPresses {
public:
    using Handler = std::function<void(Qt::MouseButton button, QPoint onScreen)>;

    /// Null where the desktop does not tell of such presses.
    static std::unique_ptr<RawPresses> Watch(Handler handler);

    virtual ~RawPresses() = default;
};

} // namespace zqbchwcx::qt
