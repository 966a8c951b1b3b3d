#pragma once

#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace zqbchwcx {

/// The keys by which code finds a column, wherever the user has moved it.
namespace ColumnKey {

inline constexpr std::string_view RackPlace = "RackPlace";
inline constexpr std::string_view Status = "Status";
inline constexpr std::string_view Module = "Module";
inline constexpr std::string_view OrderNumber = "ORDN";
inline constexpr std::string_view InputAddress = "I-Address";
inline constexpr std::string_view OutputAddress = "O-Address";
inline constexpr std::string_view BasicAddress = "Basic Address";
inline constexpr std::string_view Comment = "Comment";

} // namespace ColumnKey

/// A column of a table.
struct ColumnDefinition {
    std::string_view key;
    std::int32_t lCaptionText = 0;
    std::int32_t lWidth = 0; ///< logical pixels; 0 leaves the grid's own
    CellAlignment alignment = CellAlignment::Left;
    CellKind kind = CellKind::Text;
};

using ColumnSet = std::span<const ColumnDefinition>;

ColumnSet G_ConfigColumns();
ColumnSet G_DiagColumns();

/// Makes the columns of the grid, which has none.
void G_AddColumns(Grid& grid, ColumnSet columns, TextModule& texts);
/// Gives the columns the widths and the order that they start with.
void G_ResetColumns(Grid& grid, ColumnSet columns);

} // namespace zqbchwcx
