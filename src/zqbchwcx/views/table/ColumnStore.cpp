#include "zqbchwcx/views/table/ColumnStore.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <algorithm>
#include <charconv>

namespace zqbchwcx {
namespace {

constexpr std::string_view OrderSuffix = "Order";

} // namespace

void ColumnStore::ReadSettings(const std::string& parameter) noexcept
{
    G_Trap(msClassName, "P_ReadSettings", [&] {
        mcolWidths.clear();
        mcolOrder.clear();
        if (parameter.empty()) return;
        OptionService& options = P_GetOptionService();
        mcolWidths = G_NumbersOf(options.Read(parameter));
        mcolOrder = G_NumbersOf(options.Read(std::string(parameter).append(OrderSuffix)));
    });
}

void ColumnStore::Apply(Grid& grid) const
{
    const std::size_t columns = std::min(mcolWidths.size(), static_cast<std::size_t>(grid.ColumnCount()));
    for (std::size_t k = 0; k < columns; ++k)
        if (mcolWidths[k] > 0) grid.ColumnWidth(static_cast<std::int32_t>(k) + 1, mcolWidths[k]);
    grid.ColumnOrder(mcolOrder);
}

void ColumnStore::SaveSettings(const std::string& parameter, const Grid& grid) noexcept
{
    G_Trap(msClassName, "P_SaveSettings", [&] {
        if (parameter.empty() || grid.ColumnCount() == 0) return;
        std::vector<std::int32_t> widths;
        for (std::int32_t lColumn = 1; lColumn <= grid.ColumnCount(); ++lColumn)
            widths.push_back(grid.ColumnWidth(lColumn));
        OptionService& options = P_GetOptionService();
        options.Write(parameter, G_ListOf(widths));
        options.Write(std::string(parameter).append(OrderSuffix), G_ListOf(grid.ColumnOrder()));
    });
}

OptionService& ColumnStore::P_GetOptionService()
{
    if (!moOptionService) moOptionService = G_ServiceRoot().objectFactory->CreateOptionService();
    return *G_Require(moOptionService, "The option service");
}

std::vector<std::int32_t> G_NumbersOf(std::string_view list)
{
    std::vector<std::int32_t> numbers;
    while (!list.empty()) {
        const std::string_view piece = list.substr(0, list.find('|'));
        std::int32_t lNumber = 0;
        std::from_chars(piece.data(), piece.data() + piece.size(), lNumber);
        numbers.push_back(lNumber);
        list.remove_prefix(std::min(piece.size() + 1, list.size()));
    }
    return numbers;
}

std::string G_ListOf(const std::vector<std::int32_t>& numbers)
{
    std::string list;
    for (const std::int32_t lNumber : numbers) list.append(std::to_string(lNumber)).append("|");
    return list;
}

} // namespace zqbchwcx
