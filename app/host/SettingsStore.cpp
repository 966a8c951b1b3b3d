#include "app/host/SettingsStore.h"

#include "app/host/Strings.h"

#include <QSettings>

namespace quillon_ed {

std::optional<std::string> SettingsStore::Value(std::string_view keyPath, std::string_view name) const
{
    QString key = ToQString(keyPath) + u'/' + ToQString(name);
    key.replace(u'\\', u'/');
    const QVariant value = moSettings.value(key);
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

} // namespace quillon_ed
