#pragma once

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// How a result of the comparison is told, the same in tooltips, tables and list.
namespace CompareTexts {

/// The text number of a place's result for the pair of stations that the compare type names; 0 for none.
std::int32_t ResultText(std::int32_t lResult, std::int32_t lCompareType);
/// The symbol of a place's result; empty for none.
std::string_view ResultPicture(std::int32_t lResult);

} // namespace CompareTexts
} // namespace zqbchwcx
