#pragma once

#include "zqbchwcx/reference/services/KeyValueStore.h"

#include <map>
#include <utility>

namespace zqbchwcx::reference {

/// Settings that last as long as the program; also what a host sets from its desktop.
class MemoryStore : public KeyValueStore {
public:
    std::optional<std::string> Value(std::string_view keyPath, std::string_view name) const override
    {
        const auto found = mcolValues.find({std::string(keyPath), std::string(name)});
        return found == mcolValues.end() ? std::nullopt : std::optional(found->second);
    }

    void Store(std::string_view keyPath, std::string_view name, std::string_view value) override
    {
        mcolValues[{std::string(keyPath), std::string(name)}] = value;
    }

private:
    std::map<std::pair<std::string, std::string>, std::string> mcolValues;
};

} // namespace zqbchwcx::reference
