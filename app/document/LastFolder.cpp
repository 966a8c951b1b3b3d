#include "app/document/LastFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace quillon_ed {

namespace {

const QString Key = QStringLiteral("LastFolder");

} // namespace

QString LastFolder(const QSettings& settings)
{
    for (const QString& folder :
         {settings.value(Key).toString(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
          QDir::homePath()}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
    }
    return QDir::rootPath();
}

void RememberFolderOf(const QString& fileName, QSettings& settings)
{
    settings.setValue(Key, QFileInfo(fileName).absolutePath());
}

} // namespace quillon_ed
