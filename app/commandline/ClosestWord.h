#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon_ed {

/// The word that was probably meant by a mistyped one: the one that at most two single-character changes make of
/// it; empty when there is none. Words of up to three characters must not change by more than one.
std::string ClosestWord(std::string_view typed, const std::vector<std::string>& words);

} // namespace quillon_ed
