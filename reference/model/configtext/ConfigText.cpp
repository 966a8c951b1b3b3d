#include "zqbchwcx/reference/model/configtext/ConfigText.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/ModuleJson.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <memory>
#include <string>
#include <utility>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t MostItems = std::size_t{MaxRacks} * MaxPlaces;
constexpr std::size_t DeepestNesting = 16;

std::string FirstLine()
{
    return std::string(ConfigTextName) + " " + std::to_string(ConfigTextVersion) + "\n";
}

[[noreturn]] void Refuse(const std::string& reason)
{
    throw VxError(RefusalErrorBase + static_cast<std::int32_t>(Rule::DamagedText),
                  std::string(ConfigTextName) + ": " + reason);
}

ModuleDataPtr ReadItem(const JsonCursor& item, const Catalogue& catalogue)
{
    if (item.IsNull()) return nullptr;
    auto module = std::make_shared<ModuleData>(ModuleFromJson(item, catalogue));
    // Addresses are left to the place where the module lands.
    if (const std::vector<Refusal> found = AgainstModule(*module, catalogue, {}); !found.empty())
        item.Fail(found.front().text.en, found.front().text.de);
    return module;
}

ModuleBlock ReadBlock(std::string_view json, const Catalogue& catalogue)
{
    const JsonDocument document = ParseStrictJson(json, ConfigTextName, {LargestConfigText, DeepestNesting});
    const JsonCursor root(document);
    root.AllowMembers({"modules"});
    ModuleBlock block;
    for (const JsonCursor& item : root.Member("modules").Elements(MostItems))
        block.push_back(ReadItem(item, catalogue));
    return block;
}

} // namespace

std::string WriteConfigText(const ModuleBlock& block)
{
    nlohmann::ordered_json modules = nlohmann::ordered_json::array();
    for (const ModuleDataPtr& module : block)
        modules.push_back(module ? ModuleToJson(*module) : nlohmann::ordered_json(nullptr));
    return FirstLine() + nlohmann::ordered_json{{"modules", std::move(modules)}}.dump(1);
}

ModuleBlock ReadConfigText(std::string_view text, const Catalogue& catalogue)
{
    if (text.size() > LargestConfigText) Refuse("the text is too long");
    if (!IsConfigText(text)) {
        if (text.starts_with(ConfigTextName)) Refuse("the text is of another version than 1");
        Refuse("the text does not begin with \"" + std::string(ConfigTextName) + "\"");
    }
    try {
        return ReadBlock(text.substr(FirstLine().size()), catalogue);
    } catch (const FileError& error) {
        throw VxError(RefusalErrorBase + static_cast<std::int32_t>(Rule::DamagedText), error.what());
    }
}

bool IsConfigText(std::string_view text)
{
    return text.starts_with(FirstLine());
}

} // namespace zqbchwcx::reference
