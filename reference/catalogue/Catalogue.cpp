#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <utility>

namespace zqbchwcx::reference {

Catalogue::Catalogue(std::string maker, std::vector<ModuleType> types, std::vector<CatalogueGroup> groups)
    : msMaker(std::move(maker)), mcolTypes(std::move(types)), mcolGroups(std::move(groups))
{
    for (std::size_t i = 0; i < mcolTypes.size(); ++i) mcolIndexByOrderNumber.emplace(mcolTypes[i].orderNumber, i);
}

const ModuleType* Catalogue::Find(std::string_view orderNumber) const
{
    const auto found = mcolIndexByOrderNumber.find(std::string(orderNumber));
    return found == mcolIndexByOrderNumber.end() ? nullptr : &mcolTypes[found->second];
}

} // namespace zqbchwcx::reference
