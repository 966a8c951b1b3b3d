#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/editing/Edit.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The text of the "VxHWConfigText" format: a first line "VxHWConfigText 1" (the name and the version), then a JSON
/// object whose member `modules` lists the block from left to right: a module as an object with all its facts, an
/// empty place as null. A module that spans several places stands once.
inline constexpr std::string_view ConfigTextName = "VxHWConfigText";
inline constexpr int ConfigTextVersion = 1;
inline constexpr std::size_t LargestConfigText = std::size_t{64} << 20;

std::string WriteConfigText(const ModuleBlock& block);

/// Reads exactly what `WriteConfigText` writes. Throws VxError, saying where and why, for any other text: without the
/// first line, of another version, cut off, too long, with unknown or missing members, with a module that the
/// catalogue does not know, or with one that breaks the rules of its type.
ModuleBlock ReadConfigText(std::string_view text, const Catalogue& catalogue);

/// Whether the text begins with the first line of this version.
bool IsConfigText(std::string_view text);

} // namespace zqbchwcx::reference
