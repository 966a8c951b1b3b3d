#include "app/host/SettingsStore.h"

#include "app/host/Strings.h"

#include <QSettings>

namespace quillon_ed {
namespace {

QString KeyOf(std::string_view keyPath, std::string_view name)
{
    QString key = ToQString(keyPath) + u'/' + ToQString(name);
    return key.replace(u'\\', u'/');
}

} // namespace

std::optional<std::string> SettingsStore::Value(std::string_view keyPath, std::string_view name) const
{
    const QVariant value = moSettings.value(KeyOf(keyPath, name));
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void SettingsStore::Store(std::string_view keyPath, std::string_view name, std::string_view value)
{
    moSettings.setValue(KeyOf(keyPath, name), ToQString(value));
}

} // namespace quillon_ed
