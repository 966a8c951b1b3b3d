#pragma once

#include <QWidget>

#include <cstdint>

namespace zqbchwcx::qt {

/// A window's handle in this program; 0 for no window. It is valid as long as the window.
inline std::intptr_t HandleOf(const QWidget* widget)
{
    return reinterpret_cast<std::intptr_t>(widget);
}

inline QWidget* WidgetOf(std::intptr_t hWnd)
{
    return reinterpret_cast<QWidget*>(hWnd);
}

} // namespace zqbchwcx::qt
