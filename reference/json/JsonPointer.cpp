#include "zqbchwcx/reference/json/JsonPointer.h"

namespace zqbchwcx::reference {
namespace {

/// Extends the pointer from `current` down to the value; false, with the pointer as it was, when it is not below.
bool Descend(const nlohmann::json& current, const nlohmann::json& value, std::string& pointer)
{
    if (&current == &value) return true;
    if (!current.is_structured()) return false;
    const std::size_t length = pointer.size();
    for (auto element = current.begin(); element != current.end(); ++element) {
        pointer += current.is_object() ? PointerToken(element.key())
                                       : "/" + std::to_string(std::distance(current.begin(), element));
        if (Descend(*element, value, pointer)) return true;
        pointer.resize(length);
    }
    return false;
}

} // namespace

std::string PointerToken(std::string_view name)
{
    std::string token = "/";
    for (const char character : name) {
        if (character == '~') token += "~0";
        else if (character == '/') token += "~1";
        else token += character;
    }
    return token;
}

std::string FindPointer(const nlohmann::json& root, const nlohmann::json& value)
{
    std::string pointer;
    Descend(root, value, pointer);
    return pointer;
}

} // namespace zqbchwcx::reference
