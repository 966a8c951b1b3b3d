#pragma once

#include <cstdint>

namespace zqbchwcx {

/// A colour in the platform's format: either R + 256·G + 65536·B with channels 0..255, or a reference to a system
/// colour with the high bit set (0x80000000 + system colour index). References are translated only where drawn.
using OleColor = std::int32_t;

constexpr OleColor G_Rgb(std::int32_t red, std::int32_t green, std::int32_t blue)
{
    return red + 256 * green + 65536 * blue;
}

constexpr OleColor G_SystemColor(std::uint32_t index)
{
    return static_cast<OleColor>(0x80000000U + index);
}

inline constexpr OleColor vxColorWindowBackground = G_SystemColor(5);
inline constexpr OleColor vxColorWindowText = G_SystemColor(8);
inline constexpr OleColor vxColorHighlight = G_SystemColor(13);
inline constexpr OleColor vxColorHighlightText = G_SystemColor(14);
inline constexpr OleColor vxColorButtonFace = G_SystemColor(15);
inline constexpr OleColor vxColorButtonShadow = G_SystemColor(16);
inline constexpr OleColor vxColorGrayText = G_SystemColor(17);
inline constexpr OleColor vxColorButtonText = G_SystemColor(18);
inline constexpr OleColor vxColorButtonHighlight = G_SystemColor(20);
inline constexpr OleColor vxColorLight3D = G_SystemColor(22);

/// Transparent in every bitmap of the library.
inline constexpr OleColor vxColorCyan = G_Rgb(0, 255, 255);

} // namespace zqbchwcx
