#include "zqbchwcx/reference/json/JsonCursor.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/JsonPointer.h"

#include <algorithm>
#include <limits>

namespace zqbchwcx::reference {

void JsonCursor::Fail(const std::string& reason, const std::string& germanReason) const
{
    throw FileError(moDocument->fileName, FindPointer(moDocument->root, *moValue), reason, germanReason);
}

void JsonCursor::RequireObject() const
{
    if (!moValue->is_object()) Fail("must be an object", "muss ein Objekt sein");
}

JsonCursor JsonCursor::Member(std::string_view name) const
{
    if (const auto member = OptionalMember(name)) return *member;
    const std::string quoted = "\"" + std::string(name) + "\"";
    Fail("the member " + quoted + " is missing", "das Element " + quoted + " fehlt");
}

std::optional<JsonCursor> JsonCursor::OptionalMember(std::string_view name) const
{
    RequireObject();
    const auto member = moValue->find(name);
    if (member == moValue->end()) return std::nullopt;
    return JsonCursor(*moDocument, *member);
}

void JsonCursor::AllowMembers(std::initializer_list<std::string_view> names) const
{
    RequireObject();
    for (auto member = moValue->begin(); member != moValue->end(); ++member)
        if (std::find(names.begin(), names.end(), member.key()) == names.end())
            JsonCursor(*moDocument, *member).Fail("the member is unknown", "das Element ist unbekannt");
}

std::vector<std::pair<std::string, JsonCursor>> JsonCursor::Members() const
{
    RequireObject();
    std::vector<std::pair<std::string, JsonCursor>> members;
    members.reserve(moValue->size());
    for (auto member = moValue->begin(); member != moValue->end(); ++member)
        members.emplace_back(member.key(), JsonCursor(*moDocument, *member));
    return members;
}

std::vector<JsonCursor> JsonCursor::Elements(std::size_t largestCount) const
{
    if (!moValue->is_array()) Fail("must be an array", "muss eine Liste sein");
    if (moValue->size() > largestCount)
        Fail("has " + std::to_string(moValue->size()) + " elements; at most " + std::to_string(largestCount) +
                 " are allowed",
             "hat " + std::to_string(moValue->size()) + " Elemente; höchstens " + std::to_string(largestCount) +
                 " sind erlaubt");
    std::vector<JsonCursor> elements;
    elements.reserve(moValue->size());
    for (const auto& element : *moValue) elements.push_back(JsonCursor(*moDocument, element));
    return elements;
}

bool JsonCursor::Boolean() const
{
    if (!IsBoolean()) Fail("must be true or false", "muss true oder false sein");
    return moValue->get<bool>();
}

std::int64_t JsonCursor::Integer(std::int64_t smallest, std::int64_t largest) const
{
    if (!IsInteger()) Fail("must be an integer", "muss eine ganze Zahl sein");
    const bool isBeyondSigned =
        moValue->is_number_unsigned() &&
        moValue->get<std::uint64_t>() > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    const auto value = moValue->get<std::int64_t>();
    if (isBeyondSigned || value < smallest || value > largest)
        Fail("must be an integer from " + std::to_string(smallest) + " to " + std::to_string(largest),
             "muss eine ganze Zahl von " + std::to_string(smallest) + " bis " + std::to_string(largest) + " sein");
    return value;
}

std::int32_t JsonCursor::Integer32(std::int32_t smallest, std::int32_t largest) const
{
    return static_cast<std::int32_t>(Integer(smallest, largest));
}

double JsonCursor::Real() const
{
    if (!IsNumber()) Fail("must be a number", "muss eine Zahl sein");
    return moValue->get<double>();
}

const std::string& JsonCursor::StringValue() const
{
    if (!IsText()) Fail("must be a string", "muss ein Text sein");
    return moValue->get_ref<const std::string&>();
}

std::string JsonCursor::Text(std::size_t shortest, std::size_t longest) const
{
    const std::string& text = StringValue();
    if (text.size() < shortest)
        shortest == 1 ? Fail("must not be empty", "darf nicht leer sein") : Fail("is too short", "ist zu kurz");
    if (text.size() > longest)
        Fail("is longer than " + std::to_string(longest) + " bytes (it has " + std::to_string(text.size()) + ")",
             "ist länger als " + std::to_string(longest) + " Bytes (es sind " + std::to_string(text.size()) + ")");
    return text;
}

std::int32_t ReadFormatVersion(const JsonCursor& file, std::string_view format, std::int32_t newestVersion)
{
    const JsonCursor name = file.Member("format");
    if (name.Text(0, std::numeric_limits<std::size_t>::max()) != format)
        name.Fail("must be \"" + std::string(format) + "\"", "muss \"" + std::string(format) + "\" sein");
    const JsonCursor version = file.Member("version");
    const auto number = version.Integer(1, std::numeric_limits<std::int64_t>::max());
    if (number > newestVersion)
        version.Fail("the file has version " + std::to_string(number) + "; this program reads versions up to " +
                         std::to_string(newestVersion),
                     "die Datei hat die Version " + std::to_string(number) + "; dieses Programm liest Versionen bis " +
                         std::to_string(newestVersion));
    return static_cast<std::int32_t>(number);
}

} // namespace zqbchwcx::reference
