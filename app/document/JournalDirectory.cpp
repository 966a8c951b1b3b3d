#include "app/document/JournalDirectory.h"

#include <QStandardPaths>

namespace quillon_ed {

std::string JournalDirectory()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    return (data + QStringLiteral("/journals")).toStdString();
}

} // namespace quillon_ed
