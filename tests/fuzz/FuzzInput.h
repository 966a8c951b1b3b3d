#pragma once

#include "zqbchwcx/reference/catalogue/CatalogueReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace zqbchwcx::reference {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

inline const Catalogue& FuzzCatalogue()
{
    static const Catalogue catalogue = LoadCatalogueDirectory(QUILLON_SOURCE_DIR "/assets/catalogue");
    return catalogue;
}

/// Ends the run as a finding.
inline void Demand(bool condition, const char* what)
{
    if (condition) return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace zqbchwcx::reference
