#include "zqbchwcx/qt/ClipboardFormats.h"

#include "zqbchwcx/foundation/VxError.h"

#include <QStringList>

#include <string>

namespace zqbchwcx::qt {
namespace {

/// The first number of named formats on desktops that number them, as a signed 16-bit value.
constexpr int FirstFormat = -0x4000;

QStringList& KnownTypes()
{
    static QStringList types;
    return types;
}

} // namespace

std::int16_t ClipboardFormatNumber(std::string_view name)
{
    const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    const QString type = QStringLiteral("application/x-") + text.toLower();
    auto& types = KnownTypes();
    if (!types.contains(type)) types.append(type);
    return static_cast<std::int16_t>(FirstFormat + static_cast<int>(types.indexOf(type)));
}

QString ClipboardMimeType(std::int16_t nFormat)
{
    return KnownTypes().value(nFormat - FirstFormat);
}

QString RequiredMimeType(std::int16_t nFormat)
{
    QString type = ClipboardMimeType(nFormat);
    if (type.isEmpty())
        throw VxError(vxErrorInvalidArgument, "There is no clipboard format " + std::to_string(nFormat));
    return type;
}

} // namespace zqbchwcx::qt
