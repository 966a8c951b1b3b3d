#include "app/document/ProposedName.h"

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace quillon_ed {

QString ProposedName(const Document& document)
{
    if (!document.FileName().isEmpty()) {
        static const QRegularExpression endings(QStringLiteral("(\\.station)?\\.json$"));
        return document.FileName().remove(endings);
    }
    // No file system takes all of these in a name.
    static const QRegularExpression separators(QStringLiteral("[/\\\\:*?\"<>|]"));
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return documents.filePath(document.Title().replace(separators, QStringLiteral("-")));
}

} // namespace quillon_ed
