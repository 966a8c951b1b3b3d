#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <array>
#include <cstddef>

namespace zqbchwcx {

/// What the diagnostics panel tells about a module, in the order of the captions' texts.
enum class PanelField : std::size_t { ModuleName, Status, ModuleWidth, Address, Place, Rack, Version, SystemID };
inline constexpr std::size_t PanelFieldCount = 8;

template <class Value>
struct ByPanelField : std::array<Value, PanelFieldCount> {
    using std::array<Value, PanelFieldCount>::operator[];
    Value& operator[](PanelField eField) { return (*this)[static_cast<std::size_t>(eField)]; }
    const Value& operator[](PanelField eField) const { return (*this)[static_cast<std::size_t>(eField)]; }
};

/// Where everything in the panel lies, in logical pixels of the panel.
struct PanelLayout {
    ByPanelField<Rect> captions;
    ByPanelField<Rect> values; ///< that of the version is the grid
    Rect button;
};

inline constexpr std::int32_t vxPanelMinimumWidth = 5760;  ///< twips
inline constexpr std::int32_t vxPanelMinimumHeight = 4275; ///< twips

/// Shares a panel of the size (not less than the smallest one) among what it holds: the values below each other behind
/// their captions, the version grid with all the height that is left, and in a wide panel beside them. The texts are
/// what the captions and the button's need.
PanelLayout G_PanelLayout(Size panel, const ByPanelField<Size>& captions, Size button);

} // namespace zqbchwcx
