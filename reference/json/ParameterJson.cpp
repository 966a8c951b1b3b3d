#include "zqbchwcx/reference/json/ParameterJson.h"

#include <limits>

namespace zqbchwcx::reference {

ParameterValue ParameterFromJson(const JsonCursor& value)
{
    if (value.IsBoolean()) return value.Boolean();
    if (value.IsInteger())
        return value.Integer(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
    if (value.IsNumber()) return value.Real();
    if (value.IsText()) return value.Text(0, MaxTextBytes);
    value.Fail("must be true, false, a number or a string", "muss true, false, eine Zahl oder ein Text sein");
}

nlohmann::ordered_json ParameterToJson(const ParameterValue& value)
{
    return std::visit([](const auto& held) { return nlohmann::ordered_json(held); }, value);
}

} // namespace zqbchwcx::reference
