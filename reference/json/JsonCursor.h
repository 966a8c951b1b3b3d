#pragma once

#include "zqbchwcx/reference/json/JsonDocument.h"
#include "zqbchwcx/reference/json/NamedValue.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// A place in a JSON document that is read strictly: whatever is missing, unknown, of another type or out of range is
/// refused with a FileError that names the file, the place and the reason. Valid as long as the document.
class JsonCursor {
public:
    explicit JsonCursor(const JsonDocument& document) : JsonCursor(document, document.root) {}
    /// A value inside the document.
    JsonCursor(const JsonDocument& document, const nlohmann::json& value) : moDocument(&document), moValue(&value) {}

    /// Refuses the file for what is at this place.
    [[noreturn]] void Fail(const std::string& reason, const std::string& germanReason = {}) const;

    /// The member of an object. Refused when it is missing.
    JsonCursor Member(std::string_view name) const;
    std::optional<JsonCursor> OptionalMember(std::string_view name) const;
    /// Refuses an object with members other than these.
    void AllowMembers(std::initializer_list<std::string_view> names) const;
    /// The members of an object in the order of their names.
    std::vector<std::pair<std::string, JsonCursor>> Members() const;

    /// The elements of an array. Refused when there are more.
    std::vector<JsonCursor> Elements(std::size_t largestCount) const;

    bool IsNull() const { return moValue->is_null(); }
    bool IsObject() const { return moValue->is_object(); }
    bool IsBoolean() const { return moValue->is_boolean(); }
    bool IsInteger() const { return moValue->is_number_integer(); }
    bool IsNumber() const { return moValue->is_number(); }
    bool IsText() const { return moValue->is_string(); }

    bool Boolean() const;
    std::int64_t Integer(std::int64_t smallest, std::int64_t largest) const;
    std::int32_t Integer32(std::int32_t smallest, std::int32_t largest) const;
    double Real() const;
    /// Lengths in bytes of UTF-8.
    std::string Text(std::size_t shortest, std::size_t longest) const;

    /// A value of an enumeration, written as its name.
    template <class Table>
    auto Named(const Table& table) const
    {
        const std::string& name = StringValue();
        for (const auto& entry : table)
            if (entry.name == name) return entry.value;
        std::string names;
        for (const auto& entry : table) names.append(names.empty() ? "\"" : ", \"").append(entry.name).append("\"");
        Fail("must be one of " + names, "muss eines von diesen sein: " + names);
    }

private:
    const std::string& StringValue() const;
    void RequireObject() const;

    const JsonDocument* moDocument;
    const nlohmann::json* moValue;
};

/// Reads the head that every file of this system begins with: `format` and `version`. Versions from 1 to the newest
/// one are read; returns the file's.
std::int32_t ReadFormatVersion(const JsonCursor& file, std::string_view format, std::int32_t newestVersion);

} // namespace zqbchwcx::reference
