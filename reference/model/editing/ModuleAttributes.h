#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"

#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The attributes of a module, which people read and write as texts: "NAME", "COMMENT", "I-ADDRESS", "O-ADDRESS",
/// "BASIC ADDRESS" (read only: the first of the two), and "PARAMETER " with the key of a parameter. Names are compared
/// without regard to upper and lower case. The type is null when the catalogue does not know it.

enum class AttributeKind { Name, Comment, InputAddress, OutputAddress, BasicAddress, Parameter };

/// An attribute that the module has.
struct Attribute {
    AttributeKind kind = AttributeKind::Name;
    const ParameterDefinition* parameter = nullptr; ///< of AttributeKind::Parameter
};

/// Nothing when the module has no such attribute.
std::optional<Attribute> FindAttribute(const ModuleData& module, const ModuleType* type, std::string_view name);
std::string AttributeText(const ModuleData& module, const ModuleType* type, const Attribute& attribute);

/// The module's own name, else that of its type, else the order number.
std::string ReadableName(const ModuleData& module, const Catalogue& catalogue, Language language);

/// "4", or "4..7" for several bytes; empty without an address.
std::string AddressText(AddressArea area, const ModuleData& module, const ModuleType* type);
/// The first byte of the inputs, else of the outputs; empty without addresses.
std::string BasicAddressText(const ModuleData& module);

/// The module's own value of a parameter, or the default.
const ParameterValue& ValueOf(const ModuleData& module, const ParameterDefinition& definition);
std::string ValueText(const ParameterValue& value);
/// The value that the text means for the parameter; nothing when the text has another form. Booleans are "0", "1",
/// "false" and "true", numbers are written with a decimal point.
std::optional<ParameterValue> ValueFromText(const ParameterDefinition& definition, std::string_view text);

} // namespace zqbchwcx::reference
