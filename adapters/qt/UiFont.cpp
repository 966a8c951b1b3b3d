#include "adapters/qt/UiFont.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QString>

#include <array>
#include <cmath>

namespace zqbchwcx::qt {
namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;

bool LoadTahoma()
{
    bool bLoaded = false;
    for (const char* file : {"tahoma.ttf", "tahomabd.ttf"}) {
        for (const char* directory :
             {"/usr/share/wine/fonts/", "/usr/share/fonts/truetype/wine/", "/usr/share/fonts/truetype/"}) {
            const QString path = QString::fromLatin1(directory) + QString::fromLatin1(file);
            if (!QFileInfo::exists(path)) continue;
            bLoaded = QFontDatabase::addApplicationFont(path) >= 0 || bLoaded;
            break;
        }
    }
    return bLoaded;
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
