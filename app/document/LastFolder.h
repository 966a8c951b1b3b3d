#pragma once

#include <QString>

class QSettings;

namespace quillon_ed {

/// The folder of the file that was read or written last. When it is gone: the user's documents, home or, at last, the
/// root, so that whatever is proposed there can exist.
QString LastFolder(const QSettings& settings);
void RememberFolderOf(const QString& fileName, QSettings& settings);

} // namespace quillon_ed
