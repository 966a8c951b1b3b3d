#pragma once

#include "zqbchwcx/reference/services/KeyValueStore.h"

class QSettings;

namespace quillon_ed {

/// What the user has stored for the library, in the program's own settings.
class SettingsStore : public zqbchwcx::reference::KeyValueStore {
public:
    /// The settings outlive the store.
    explicit SettingsStore(QSettings& settings) : moSettings(settings) {}

    std::optional<std::string> Value(std::string_view keyPath, std::string_view name) const override;
    void Store(std::string_view keyPath, std::string_view name, std::string_view value) override;

private:
    QSettings& moSettings;
};

} // namespace quillon_ed
