#pragma once

#include <QByteArray>
#include <QString>

namespace quillon_ed {

/// Writes the file in one step. Throws FileError when it cannot be written, or when there is nothing to write
/// because the bytes could not be made; the file is then as it was.
void WriteBytes(const QString& fileName, const QByteArray& bytes);

} // namespace quillon_ed
