#pragma once

#include "zqbchwcx/platform/ImageList.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx::reference {

/// Where a text module gets its pictures from; the windowing system's adapter has them.
class PictureProvider {
public:
    virtual ~PictureProvider() = default;

    /// Throws when there is no picture of that name.
    virtual ImagePtr Picture(std::string_view name) = 0;
    virtual std::intptr_t hInstance() const = 0;
};

} // namespace zqbchwcx::reference
