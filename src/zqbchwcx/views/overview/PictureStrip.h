#pragma once

#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/platform/ImageList.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace zqbchwcx {

/// A strip bitmap of the host's resources: its cells, from the left, are known by the keys.
struct PictureStrip {
    std::string_view name;
    std::int32_t lCellWidth = 0;
    std::span<const std::string_view> keys;
};

/// Throws what the host throws when it has no such strip.
ImageListPtr LoadStrip(TextModule& textModule, const PictureStrip& strip);

} // namespace zqbchwcx
