#pragma once

#include "zqbchwcx/reference/json/FileError.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace quillon_ed {

/// The user's settings, kept from run to run. A file that is larger than any real one is neither read nor replaced:
/// what is set then lasts for this run.
class UserSettings {
public:
    /// Needs the names of organisation and application.
    UserSettings();

    QSettings& Settings() { return *moSettings; }
    /// Why the user's own settings are not used; nothing when they are.
    const std::optional<zqbchwcx::reference::FileError>& Refused() const { return moRefused; }

    static constexpr qint64 LargestFile = qint64{1} << 20;

private:
    std::optional<zqbchwcx::reference::FileError> moRefused;
    std::optional<QTemporaryDir> moInstead;
    std::unique_ptr<QSettings> moSettings;
};

} // namespace quillon_ed
