#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// Where settings are kept.
class KeyValueStore {
public:
    virtual ~KeyValueStore() = default;

    /// Null when nothing is stored under that key path and name.
    virtual std::optional<std::string> Value(std::string_view keyPath, std::string_view name) const = 0;
    virtual void Store(std::string_view keyPath, std::string_view name, std::string_view value) = 0;
};

} // namespace zqbchwcx::reference
