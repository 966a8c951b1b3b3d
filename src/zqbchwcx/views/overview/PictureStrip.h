#pragma once

#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/platform/ImageList.h"

#include <span>
#include <string_view>

namespace zqbchwcx {

/// A strip bitmap of the host's resources: its cells, from the left, are known by the keys.
struct PictureStrip {
    std::string_view name;
    Size cell; ///< logical pixels
    std::span<const std::string_view> keys;
    /// The list is made empty, for cells of that size, and the strip added to it.
    bool bAdded = false;
};

/// Throws what the host throws when it has no such strip.
ImageListPtr LoadStrip(TextModule& textModule, const PictureStrip& strip);

} // namespace zqbchwcx
