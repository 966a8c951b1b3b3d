#include "zqbchwcx/qt/UiFont.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QString>

#include <cmath>

namespace zqbchwcx::qt {
namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;

/// Only the regular cut: the bold one of this free font has the stems of the regular one, and is no bolder than it.
/// Qt makes a bold one that is.
bool LoadTahoma()
{
    for (const char* directory :
         {"/usr/share/wine/fonts/", "/usr/share/fonts/truetype/wine/", "/usr/share/fonts/truetype/"}) {
        const QString path = QString::fromLatin1(directory) + QStringLiteral("tahoma.ttf");
        if (QFileInfo::exists(path)) return QFontDatabase::addApplicationFont(path) >= 0;
    }
    return false;
}

bool IsAvailable(const QString& family)
{
    if (QFontDatabase::hasFamily(family)) return true;
    if (family != u"Tahoma") return false;
    static const bool bLoaded = LoadTahoma();
    return bLoaded && QFontDatabase::hasFamily(family);
}

} // namespace

QFont UiFont(std::string_view family, double points)
{
    const QString name = QString::fromUtf8(family.data(), static_cast<qsizetype>(family.size()));
    QFont font = IsAvailable(name) ? QFont(name) : QGuiApplication::font();
    font.setPixelSize(static_cast<int>(std::lrint(points * PixelsPerPoint)));
    return font;
}

QFont DefaultUiFont()
{
    constexpr double Points = 8.25;
    return UiFont({}, Points);
}

QFont ScaledFont(const QFont& font, double ratio)
{
    QFont scaled = font;
    scaled.setPixelSize(static_cast<int>(std::lrint(font.pixelSize() * ratio)));
    return scaled;
}

} // namespace zqbchwcx::qt
