#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon_ed {

/// Of words, at least one. Distances are counted in single-character changes.

/// The word that was probably meant by a mistyped one: the nearest one, when at most two changes make it; empty when
/// there is none. Words of up to three characters must not change by more than one.
std::string ClosestWord(std::string_view typed, const std::vector<std::string>& words);

/// The nearest word, however far; the first of several.
std::string NearestWord(std::string_view typed, const std::vector<std::string>& words);

} // namespace quillon_ed
