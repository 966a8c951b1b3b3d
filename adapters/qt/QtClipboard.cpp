#include "zqbchwcx/qt/QtClipboard.h"

#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/SourceDataObject.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace zqbchwcx::qt {

bool QtClipboard::GetFormat(std::int16_t nFormat)
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content != nullptr && content->hasFormat(ClipboardMimeType(nFormat));
}

ByteArray QtClipboard::GetData(std::int16_t nFormat)
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content == nullptr ? ByteArray() : ToByteArray(content->data(ClipboardMimeType(nFormat)));
}

void QtClipboard::SetData(const std::vector<Entry>& entries)
{
    if (entries.empty()) {
        QGuiApplication::clipboard()->clear();
        return;
    }
    auto content = std::make_unique<QMimeData>();
    for (const Entry& entry : entries) content->setData(RequiredMimeType(entry.nFormat), ToQByteArray(entry.data));
    QGuiApplication::clipboard()->setMimeData(content.release());
}

} // namespace zqbchwcx::qt
