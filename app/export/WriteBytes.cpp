#include "app/export/WriteBytes.h"

#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QFile>

namespace quillon_ed {

void WriteBytes(const QString& fileName, const QByteArray& bytes)
{
    using namespace zqbchwcx::reference;
    const std::string name = QFile::encodeName(fileName).toStdString();
    if (bytes.isEmpty())
        throw FileError(name, {}, "the content could not be made", "der Inhalt konnte nicht erzeugt werden");
    AtomicWrite(SystemFiles(), name, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace quillon_ed
