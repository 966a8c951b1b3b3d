#include "app/document/ProposedName.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace quillon_ed {

QString ProposedName(const Document& document, const QString& otherFolder)
{
    const QFileInfo file(document.FileName());
    if (!document.FileName().isEmpty()) {
        static const QRegularExpression endings(QStringLiteral("(\\.station)?\\.json$"));
        return QDir(file.dir().exists() ? file.path() : otherFolder).filePath(file.fileName().remove(endings));
    }
    // No file system takes all of these in a name.
    static const QRegularExpression separators(QStringLiteral("[/\\\\:*?\"<>|]"));
    return QDir(otherFolder).filePath(document.Title().replace(separators, QStringLiteral("-")));
}

} // namespace quillon_ed
