#include "zqbchwcx/reference/catalogue/CatalogueReader.h"

#include "zqbchwcx/reference/catalogue/ParameterReader.h"
#include "zqbchwcx/reference/diag/StateWord.h"
#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/JsonCursor.h"
#include "zqbchwcx/reference/json/StationNames.h"

#include <array>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace zqbchwcx::reference {
namespace {

constexpr std::string_view Format = "quillon-catalogue";
constexpr std::int32_t NewestVersion = 1;
constexpr std::size_t LargestFile = std::size_t{16} << 20;
constexpr std::size_t MostTypes = 100'000;
constexpr std::size_t MostGroups = 1'000;
constexpr std::size_t MostFacts = 100;
constexpr std::size_t MostFaults = 1'000;
constexpr std::int32_t MostBytes = 65536;

constexpr std::array FamilyNames{
    NamedValue<ModuleFamily>{"powerSupply", ModuleFamily::PowerSupply},
    NamedValue<ModuleFamily>{"controller", ModuleFamily::Controller},
    NamedValue<ModuleFamily>{"interface", ModuleFamily::Interface},
    NamedValue<ModuleFamily>{"digital", ModuleFamily::Digital},
    NamedValue<ModuleFamily>{"analog", ModuleFamily::Analog},
    NamedValue<ModuleFamily>{"counter", ModuleFamily::Counter},
    NamedValue<ModuleFamily>{"communication", ModuleFamily::Communication},
    NamedValue<ModuleFamily>{"dummy", ModuleFamily::Dummy},
};

/// Reads the documents together: what one of them defines, all may use.
class CatalogueReader {
public:
    /// The head of a document and the parameter sets, which the types of every document may use.
    void ReadHead(const JsonDocument& document)
    {
        const JsonCursor file(document);
        ReadFormatVersion(file, Format, NewestVersion);
        file.AllowMembers({"$schema", "format", "version", "maker", "parameterSets", "types", "groups", "faults"});
        ReadMaker(file.Member("maker"));
        if (const auto sets = file.OptionalMember("parameterSets")) ReadParameterSets(*sets);
        if (const auto faults = file.OptionalMember("faults"))
            for (const JsonCursor& fault : faults->Elements(MostFaults)) ReadFault(fault);
    }

    void ReadTypes(const JsonDocument& document)
    {
        const JsonCursor file(document);
        if (const auto types = file.OptionalMember("types"))
            for (const JsonCursor& type : types->Elements(MostTypes)) ReadType(type);
        if (const auto groups = file.OptionalMember("groups"))
            for (const JsonCursor& group : groups->Elements(MostGroups)) mcolGroups.push_back(ReadGroup(group));
    }

    Catalogue Finish()
    {
        for (const auto& [orderNumber, cursor] : mcolSubModuleUses)
            if (const auto* type = FindType(orderNumber); !type || !type->isSubModule)
                cursor.Fail(type ? "is no sub-module" : "there is no module type of this order number");
        for (const auto& [orderNumber, cursor] : mcolGroupUses)
            if (!FindType(orderNumber)) cursor.Fail("there is no module type of this order number");
        return {msMaker, std::move(mcolTypes), std::move(mcolGroups), std::move(mcolFaults)};
    }

private:
    using Uses = std::vector<std::pair<std::string, JsonCursor>>;

    void ReadMaker(const JsonCursor& cursor)
    {
        const std::string maker = cursor.Text(1, MaxTextBytes);
        if (!msMaker.empty() && maker != msMaker) cursor.Fail("the other files name \"" + msMaker + "\"");
        msMaker = maker;
    }

    void ReadParameterSets(const JsonCursor& cursor)
    {
        for (const auto& [name, definitions] : cursor.Members()) {
            const auto [set, isNew] = mcolParameterSets.try_emplace(name);
            if (!isNew) definitions.Fail("another file has a parameter set of this name");
            for (const JsonCursor& definition : definitions.Elements(MaxParameters))
                set->second.push_back(ReadParameterDefinition(definition));
        }
    }

    void ReadFault(const JsonCursor& cursor)
    {
        cursor.AllowMembers({"code", "families", "text", "remedy"});
        const JsonCursor code = cursor.Member("code");
        const FaultText text{ReadLocalizedText(cursor.Member("text")), ReadLocalizedText(cursor.Member("remedy"))};
        const auto add = [&](std::optional<ModuleFamily> family, const JsonCursor& where) {
            if (!mcolFaults.emplace(std::pair(family, code.Integer32(1, LargestFaultCode)), text).second)
                where.Fail("this fault code has a text already");
        };
        const auto families = cursor.OptionalMember("families");
        if (!families) return add({}, code);
        for (const JsonCursor& family : families->Elements(FamilyNames.size())) add(family.Named(FamilyNames), family);
    }

    void ReadType(const JsonCursor& cursor)
    {
        cursor.AllowMembers({"orderNumber", "family", "name", "description", "picture", "places", "inputBytes",
                             "outputBytes", "stations", "subModules", "isSubModule", "parameterSets", "parameters",
                             "facts"});
        ModuleType type;
        type.orderNumber = cursor.Member("orderNumber").Text(1, MaxTextBytes);
        type.family = cursor.Member("family").Named(FamilyNames);
        type.name = ReadLocalizedText(cursor.Member("name"));
        type.description = ReadLocalizedText(cursor.Member("description"));
        if (const auto isSubModule = cursor.OptionalMember("isSubModule")) type.isSubModule = isSubModule->Boolean();
        ReadPlacing(cursor, type);
        ReadSizes(cursor, type);
        ReadSubModules(cursor, type);
        ReadParameters(cursor, type);
        ReadFacts(cursor, type);

        if (!mcolIndexByOrderNumber.emplace(type.orderNumber, mcolTypes.size()).second)
            cursor.Member("orderNumber").Fail("stands twice in the catalogue");
        mcolTypes.push_back(std::move(type));
    }

    /// A sub-module stands in no place and therefore has no picture, width or station of its own.
    static void ReadPlacing(const JsonCursor& cursor, ModuleType& type)
    {
        if (type.isSubModule) {
            for (const auto* name : {"picture", "places", "stations", "subModules"})
                if (const auto member = cursor.OptionalMember(name)) member->Fail("sub-modules do not have this");
            return;
        }
        if (const auto picture = cursor.OptionalMember("picture")) type.picture = picture->Text(1, MaxTextBytes);
        if (const auto places = cursor.OptionalMember("places")) type.placeCount = places->Integer32(1, MaxPlaces);

        std::set<std::int32_t> kinds;
        for (const JsonCursor& station : cursor.Member("stations").Elements(StationKindNames.size()))
            if (!kinds.insert(station.Named(StationKindNames)).second) station.Fail("stands twice");
        if (kinds.empty()) cursor.Member("stations").Fail("must not be empty");
        const bool fitsA = kinds.contains(1);
        const bool fitsB = kinds.contains(2);
        type.fitsCentral = kinds.contains(0);
        type.fitsDistributed = fitsA || fitsB;
        if (fitsA != fitsB) type.distributedKind = fitsA ? 1 : 2;
    }

    static void ReadSizes(const JsonCursor& cursor, ModuleType& type)
    {
        if (const auto bytes = cursor.OptionalMember("inputBytes")) type.inputBytes = bytes->Integer32(0, MostBytes);
        if (const auto bytes = cursor.OptionalMember("outputBytes")) type.outputBytes = bytes->Integer32(0, MostBytes);
    }

    void ReadSubModules(const JsonCursor& cursor, ModuleType& type)
    {
        const auto subModules = cursor.OptionalMember("subModules");
        if (!subModules) return;
        for (const JsonCursor& subModule : subModules->Elements(MaxSubModules)) {
            type.subModules.push_back(subModule.Text(1, MaxTextBytes));
            mcolSubModuleUses.emplace_back(type.subModules.back(), subModule);
        }
    }

    void ReadParameters(const JsonCursor& cursor, ModuleType& type) const
    {
        std::set<std::string> keys;
        const auto add = [&](const ParameterDefinition& definition, const JsonCursor& where) {
            if (!keys.insert(definition.key).second)
                where.Fail("the parameter \"" + definition.key + "\" stands twice in this type");
            type.parameters.push_back(definition);
        };
        if (const auto names = cursor.OptionalMember("parameterSets"))
            for (const JsonCursor& name : names->Elements(MaxParameters)) {
                const auto set = mcolParameterSets.find(name.Text(1, MaxTextBytes));
                if (set == mcolParameterSets.end()) name.Fail("there is no parameter set of this name");
                for (const ParameterDefinition& definition : set->second) add(definition, name);
            }
        if (const auto definitions = cursor.OptionalMember("parameters"))
            for (const JsonCursor& definition : definitions->Elements(MaxParameters))
                add(ReadParameterDefinition(definition), definition);
        if (type.parameters.size() > MaxParameters)
            cursor.Fail("has more than " + std::to_string(MaxParameters) + " parameters");
        CheckOrder(cursor, type);
    }

    /// A parameter is compared with a number of the same type, and the defaults are in order.
    static void CheckOrder(const JsonCursor& cursor, const ModuleType& type)
    {
        for (const ParameterDefinition& lower : type.parameters) {
            if (lower.notAbove.empty()) continue;
            const ParameterDefinition* upper = FindParameter(type, lower.notAbove);
            if (!upper || upper == &lower || !IsNumber(upper->kind))
                cursor.Fail("the parameter \"" + lower.key + "\" is compared with \"" + lower.notAbove +
                            "\", which is no other number of this type");
            if (NumberIn(lower.defaultValue) > NumberIn(upper->defaultValue))
                cursor.Fail("the default of \"" + lower.key + "\" is greater than that of \"" + upper->key + "\"");
        }
    }

    static void ReadFacts(const JsonCursor& cursor, ModuleType& type)
    {
        const auto facts = cursor.OptionalMember("facts");
        if (!facts) return;
        for (const JsonCursor& fact : facts->Elements(MostFacts)) {
            fact.AllowMembers({"label", "value"});
            type.facts.emplace_back(ReadLocalizedText(fact.Member("label")), ReadLocalizedText(fact.Member("value")));
        }
    }

    CatalogueGroup ReadGroup(const JsonCursor& cursor)
    {
        cursor.AllowMembers({"name", "types", "groups", "faults"});
        CatalogueGroup group;
        group.name = ReadLocalizedText(cursor.Member("name"));
        if (const auto types = cursor.OptionalMember("types"))
            for (const JsonCursor& type : types->Elements(MostTypes)) {
                group.orderNumbers.push_back(type.Text(1, MaxTextBytes));
                mcolGroupUses.emplace_back(group.orderNumbers.back(), type);
            }
        if (const auto groups = cursor.OptionalMember("groups"))
            for (const JsonCursor& inner : groups->Elements(MostGroups)) group.groups.push_back(ReadGroup(inner));
        return group;
    }

    const ModuleType* FindType(const std::string& orderNumber) const
    {
        const auto found = mcolIndexByOrderNumber.find(orderNumber);
        return found == mcolIndexByOrderNumber.end() ? nullptr : &mcolTypes[found->second];
    }

    std::string msMaker;
    std::map<std::string, std::vector<ParameterDefinition>> mcolParameterSets;
    std::vector<ModuleType> mcolTypes;
    std::vector<CatalogueGroup> mcolGroups;
    FaultTexts mcolFaults;
    std::unordered_map<std::string, std::size_t> mcolIndexByOrderNumber;
    Uses mcolSubModuleUses;
    Uses mcolGroupUses;
};

} // namespace

Catalogue ReadCatalogue(const std::vector<JsonDocument>& documents)
{
    CatalogueReader reader;
    for (const JsonDocument& document : documents) reader.ReadHead(document);
    for (const JsonDocument& document : documents) reader.ReadTypes(document);
    return reader.Finish();
}

Catalogue LoadCatalogue(const std::vector<std::string>& fileNames)
{
    std::vector<JsonDocument> documents;
    documents.reserve(fileNames.size());
    for (const std::string& fileName : fileNames)
        documents.push_back(ParseStrictJson(ReadFile(SystemFiles(), fileName, LargestFile), fileName));
    return ReadCatalogue(documents);
}

Catalogue LoadCatalogueDirectory(const std::string& directory)
{
    std::vector<std::string> fileNames;
    for (const std::string& name : ListFiles(SystemFiles(), directory))
        if (name.ends_with(".json")) fileNames.push_back(std::string(directory).append("/").append(name));
    if (fileNames.empty()) throw FileError(directory, "", "there is no catalogue file (*.json) in this directory");
    return LoadCatalogue(fileNames);
}

} // namespace zqbchwcx::reference
