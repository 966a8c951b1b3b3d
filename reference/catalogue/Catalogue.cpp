#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <utility>

#include <algorithm>

namespace zqbchwcx::reference {

bool IsNumber(ParameterKind kind)
{
    return kind == ParameterKind::Integer || kind == ParameterKind::Real;
}

std::optional<double> NumberIn(const ParameterValue& value)
{
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
    return {};
}

const ParameterDefinition* FindParameter(const ModuleType& type, std::string_view key)
{
    const auto found = std::find_if(type.parameters.begin(), type.parameters.end(),
                                    [&](const ParameterDefinition& definition) { return definition.key == key; });
    return found == type.parameters.end() ? nullptr : &*found;
}

Catalogue::Catalogue(std::string maker, std::vector<ModuleType> types, std::vector<CatalogueGroup> groups,
                     FaultTexts faults)
    : msMaker(std::move(maker)), mcolTypes(std::move(types)), mcolGroups(std::move(groups)),
      mcolFaults(std::move(faults))
{
    for (std::size_t i = 0; i < mcolTypes.size(); ++i) mcolIndexByOrderNumber.emplace(mcolTypes[i].orderNumber, i);
}

const ModuleType* Catalogue::Find(std::string_view orderNumber) const
{
    const auto found = mcolIndexByOrderNumber.find(std::string(orderNumber));
    return found == mcolIndexByOrderNumber.end() ? nullptr : &mcolTypes[found->second];
}

const FaultText* Catalogue::FindFault(std::optional<ModuleFamily> family, std::int32_t code) const
{
    auto found = mcolFaults.find({family, code});
    if (found == mcolFaults.end()) found = mcolFaults.find({std::nullopt, code});
    return found == mcolFaults.end() ? nullptr : &found->second;
}

} // namespace zqbchwcx::reference
