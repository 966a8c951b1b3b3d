#pragma once

#include <string_view>

namespace zqbchwcx::reference {

/// A value of an enumeration and what it is called in files.
template <class Value>
struct NamedValue {
    std::string_view name;
    Value value;
};

/// The name of a value; the first one for a value that the table does not hold.
template <class Value, class Table>
std::string_view NameOf(const Value& value, const Table& table)
{
    for (const auto& entry : table)
        if (entry.value == value) return entry.name;
    return std::begin(table)->name;
}

} // namespace zqbchwcx::reference
