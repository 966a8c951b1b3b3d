#pragma once

#include <cstdint>

namespace zqbchwcx {

/// A point in logical pixels (96 dpi), origin at the top-left corner of the surface or control it belongs to.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const Point&) const = default;
};

/// A width and height in logical pixels.
struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const Size&) const = default;
};

/// A rectangle in logical pixels; right and bottom are the first column and row outside it.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const Rect&) const = default;

    constexpr std::int32_t width() const { return right - left; }
    constexpr std::int32_t height() const { return bottom - top; }
};

/// The rectangle with its top-left corner at (left, top).
constexpr Rect MakeRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height)
{
    return {left, top, left + width, top + height};
}

} // namespace zqbchwcx
