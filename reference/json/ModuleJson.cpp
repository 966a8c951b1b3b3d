#include "zqbchwcx/reference/json/ModuleJson.h"

#include "zqbchwcx/reference/json/ParameterJson.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::reference {
namespace {

/// A whole number stands for a real one where the catalogue says that the parameter is real.
ParameterValue AsDefined(ParameterValue value, const std::string& key, const ModuleType* type)
{
    const auto* whole = std::get_if<std::int64_t>(&value);
    if (!whole || !type) return value;
    const bool isReal =
        std::any_of(type->parameters.begin(), type->parameters.end(), [&](const ParameterDefinition& definition) {
            return definition.key == key && definition.kind == ParameterKind::Real;
        });
    return isReal ? ParameterValue(static_cast<double>(*whole)) : value;
}

void ReadParameters(const JsonCursor& parameters, const ModuleType* type, ModuleData& module)
{
    const auto members = parameters.Members();
    if (members.size() > MaxParameters)
        parameters.Fail("has more than " + std::to_string(MaxParameters) + " parameters",
                        "hat mehr als " + std::to_string(MaxParameters) + " Parameter");
    for (const auto& [key, value] : members) {
        if (key.empty() || key.size() > MaxTextBytes)
            value.Fail("the parameter's name is empty or too long", "der Name des Parameters ist leer oder zu lang");
        module.parameters.emplace_hint(module.parameters.end(), key, AsDefined(ParameterFromJson(value), key, type));
    }
}

ModuleData ReadModule(const JsonCursor& cursor, const Catalogue& catalogue, bool isSubModule)
{
    cursor.AllowMembers(
        {"orderNumber", "name", "comment", "inputAddress", "outputAddress", "parameters", "subModules"});
    ModuleData module;
    module.orderNumber = cursor.Member("orderNumber").Text(1, MaxTextBytes);
    if (const auto name = cursor.OptionalMember("name")) module.name = name->Text(0, MaxTextBytes);
    if (const auto comment = cursor.OptionalMember("comment")) module.comment = comment->Text(0, MaxTextBytes);
    if (const auto address = cursor.OptionalMember("inputAddress"))
        module.inputAddress = address->Integer32(0, MaxAddress);
    if (const auto address = cursor.OptionalMember("outputAddress"))
        module.outputAddress = address->Integer32(0, MaxAddress);
    if (const auto parameters = cursor.OptionalMember("parameters"))
        ReadParameters(*parameters, catalogue.Find(module.orderNumber), module);
    if (const auto subModules = cursor.OptionalMember("subModules")) {
        if (isSubModule)
            subModules->Fail("sub-modules have no sub-modules of their own", "Submodule haben keine eigenen Submodule");
        for (const JsonCursor& subModule : subModules->Elements(MaxSubModules))
            module.subModules.push_back(ReadModule(subModule, catalogue, true));
    }
    return module;
}

} // namespace

ModuleData ModuleFromJson(const JsonCursor& module, const Catalogue& catalogue)
{
    return ReadModule(module, catalogue, false);
}

nlohmann::ordered_json ModuleToJson(const ModuleData& module)
{
    nlohmann::ordered_json json = {{"orderNumber", module.orderNumber}};
    if (!module.name.empty()) json["name"] = module.name;
    if (!module.comment.empty()) json["comment"] = module.comment;
    if (module.inputAddress) json["inputAddress"] = *module.inputAddress;
    if (module.outputAddress) json["outputAddress"] = *module.outputAddress;
    for (const auto& [key, value] : module.parameters) json["parameters"][key] = ParameterToJson(value);
    for (const ModuleData& subModule : module.subModules) json["subModules"].push_back(ModuleToJson(subModule));
    return json;
}

} // namespace zqbchwcx::reference
