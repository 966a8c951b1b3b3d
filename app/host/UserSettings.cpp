#include "app/host/UserSettings.h"

#include "zqbchwcx/reference/files/FileSystem.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

QString FileName()
{
    return QStringLiteral("%1/%2/%3.conf")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
             QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

} // namespace

UserSettings::UserSettings()
{
    QString fileName = FileName();
    try {
        const std::string name = QFile::encodeName(fileName).toStdString();
        if (SystemFiles().Status(name)) ReadFile(SystemFiles(), name, LargestFile);
    } catch (const FileError& error) {
        moRefused = error;
        moInstead.emplace();
        fileName = moInstead->filePath(QStringLiteral("settings.conf"));
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): what cannot be looked at is read as empty
    }
    moSettings = std::make_unique<QSettings>(fileName, QSettings::NativeFormat);
}

} // namespace quillon_ed
