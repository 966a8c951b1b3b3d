#include "zqbchwcx/reference/compare/CompareModules.h"

#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

/// A file may hold 5 where another one holds 5.0.
bool SameValue(const ParameterValue& first, const ParameterValue& second)
{
    if (first == second) return true;
    const auto a = NumberIn(first);
    const auto b = NumberIn(second);
    return a && b && *a == *b;
}

/// Compares two modules that stand in for each other and collects what differs.
class Finder {
public:
    Finder(const Catalogue& catalogue, const CompareOptions& options, std::vector<ModuleFinding>& findings)
        : mCatalogue(catalogue), mOptions(options), mcolFindings(findings)
    {
    }

    /// Slot 0: the module itself, whose sub-modules are compared, too.
    void Compare(const ModuleData& first, const ModuleData& second, std::size_t slot)
    {
        if (first == second) return;
        const bool bSameType = first.orderNumber == second.orderNumber;
        if (!bSameType) Add(slot == 0 ? Aspect::OrderNumber : Aspect::SubModule, slot);
        if (!mOptions.ignoreNames && first.name != second.name) Add(Aspect::Name, slot);
        if (!mOptions.ignoreComments && first.comment != second.comment) Add(Aspect::Comment, slot);
        if (!mOptions.ignoreAddresses) {
            if (first.inputAddress != second.inputAddress) Add(Aspect::InputAddress, slot);
            if (first.outputAddress != second.outputAddress) Add(Aspect::OutputAddress, slot);
        }
        if (!mOptions.ignoreParameters && bSameType) CompareParameters(first, second, slot);
        if (!mOptions.ignoreSubModules && slot == 0) CompareSubModules(first.subModules, second.subModules);
    }

private:
    void Add(Aspect aspect, std::size_t slot, const std::string& parameter = {})
    {
        mcolFindings.push_back({aspect, slot, parameter});
    }

    void CompareParameters(const ModuleData& first, const ModuleData& second, std::size_t slot)
    {
        if (first.parameters == second.parameters) return;
        const ModuleType* type = mCatalogue.Find(first.orderNumber);
        if (type)
            for (const ParameterDefinition& definition : type->parameters)
                if (!SameValue(ValueOf(first, definition), ValueOf(second, definition)))
                    Add(Aspect::Parameter, slot, definition.key);
        const auto isKnown = [type](const std::string& key) { return type && FindParameter(*type, key); };
        for (const auto& [key, value] : first.parameters) {
            if (isKnown(key)) continue;
            const auto other = second.parameters.find(key);
            if (other == second.parameters.end()) AddOneSided(type, slot, key);
            else if (!SameValue(value, other->second)) Add(Aspect::Parameter, slot, key);
        }
        for (const auto& [key, value] : second.parameters)
            if (!isKnown(key) && !first.parameters.contains(key)) AddOneSided(type, slot, key);
    }

    /// A type of the catalogue has no defaults but those that it tells.
    void AddOneSided(const ModuleType* type, std::size_t slot, const std::string& key)
    {
        Add(type ? Aspect::Parameter : Aspect::UncertainParameter, slot, key);
    }

    void CompareSubModules(const std::vector<ModuleData>& first, const std::vector<ModuleData>& second)
    {
        const std::size_t both = std::min(first.size(), second.size());
        for (std::size_t i = 0; i < both; ++i) Compare(first[i], second[i], i + 1);
        for (std::size_t i = both; i < std::max(first.size(), second.size()); ++i) Add(Aspect::SubModule, i + 1);
    }

    const Catalogue& mCatalogue;
    const CompareOptions& mOptions;
    std::vector<ModuleFinding>& mcolFindings;
};

} // namespace

std::vector<ModuleFinding> FindDifferences(const ModuleData& first, const ModuleData& second,
                                           const Catalogue& catalogue, const CompareOptions& options)
{
    std::vector<ModuleFinding> findings;
    Finder(catalogue, options, findings).Compare(first, second, 0);
    return findings;
}

CompareResult ResultOf(const std::vector<ModuleFinding>& findings)
{
    const auto has = [&](Aspect aspect) {
        return std::any_of(findings.begin(), findings.end(),
                           [aspect](const ModuleFinding& finding) { return finding.aspect == aspect; });
    };
    if (findings.empty()) return CompareResult::Equal;
    if (has(Aspect::OrderNumber)) return CompareResult::OtherModule;
    if (has(Aspect::SubModule)) return CompareResult::OtherSubModules;
    if (has(Aspect::Parameter)) return CompareResult::OtherParameters;
    if (std::all_of(findings.begin(), findings.end(),
                    [](const ModuleFinding& finding) { return finding.aspect == Aspect::UncertainParameter; }))
        return CompareResult::PotentiallyEqual;
    return CompareResult::OtherAttributes;
}

} // namespace zqbchwcx::reference
