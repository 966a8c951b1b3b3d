#pragma once

#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/services/KeyValueStore.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {

/// Where the library looks for what it reads.
inline constexpr std::string_view PathsKey = "Software\\Halvar\\Quillon_Ed\\General\\Paths";
inline constexpr std::string_view DataDirectoryName = "DataDirectory";
inline constexpr std::string_view DesktopKey = "Control Panel\\Desktop";
inline constexpr std::string_view DragWidthName = "DragWidth";
inline constexpr std::string_view DragHeightName = "DragHeight";

/// Reads settings from several stores: the first one that holds a value wins.
class Settings : public SettingsReader {
public:
    explicit Settings(std::vector<std::shared_ptr<const KeyValueStore>> stores) : mcolStores(std::move(stores)) {}

    std::string Read(std::string_view keyPath, std::string_view name, std::string_view defaultValue) override
    {
        for (const auto& store : mcolStores)
            if (auto value = store->Value(keyPath, name)) return *std::move(value);
        return std::string(defaultValue);
    }

private:
    std::vector<std::shared_ptr<const KeyValueStore>> mcolStores;
};

} // namespace zqbchwcx::reference
