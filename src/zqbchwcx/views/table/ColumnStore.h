#pragma once

#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx {

/// Keeps the widths and the order of a table's columns in the host's option service, each a list of decimal numbers
/// with "|" behind every one ("32|78|93|"), in the order in which the columns were added.
class ColumnStore {
public:
    /// Errors are reported under the class.
    explicit ColumnStore(std::string_view className) : msClassName(className) {}

    /// What is stored for the widths parameter; the order is stored beside it. Without a parameter nothing is.
    void ReadSettings(const std::string& parameter) noexcept;
    /// Gives the grid the stored widths greater than 0, and the stored order if it fits.
    void Apply(Grid& grid) const;
    void SaveSettings(const std::string& parameter, const Grid& grid) noexcept;

private:
    OptionService& P_GetOptionService();

    std::string_view msClassName;
    OptionServicePtr moOptionService;
    std::vector<std::int32_t> mcolWidths;
    std::vector<std::int32_t> mcolOrder;
};

/// The numbers of such a list. A piece that is no number is 0.
std::vector<std::int32_t> G_NumbersOf(std::string_view list);
std::string G_ListOf(const std::vector<std::int32_t>& numbers);

} // namespace zqbchwcx
