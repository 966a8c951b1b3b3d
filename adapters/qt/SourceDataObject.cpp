#include "zqbchwcx/qt/SourceDataObject.h"

#include "zqbchwcx/qt/ClipboardFormats.h"

#include <cstring>

namespace zqbchwcx::qt {

void SourceDataObject::SetData(std::int16_t nFormat, const ByteArray& data)
{
    RequiredMimeType(nFormat);
    mcolData.insert_or_assign(nFormat, data);
}

void SourceDataObject::AnnounceFormat(std::int16_t nFormat)
{
    RequiredMimeType(nFormat);
    mcolData.insert_or_assign(nFormat, std::nullopt);
}

bool SourceDataObject::GetFormat(std::int16_t nFormat) const
{
    return mcolData.contains(nFormat);
}

ByteArray SourceDataObject::GetData(std::int16_t nFormat) const
{
    const auto found = mcolData.find(nFormat);
    if (found == mcolData.end()) return {};
    if (!found->second && mOnWanted) mOnWanted(nFormat);
    return found->second.value_or(ByteArray());
}

QStringList SourceDataObject::MimeTypes() const
{
    QStringList types;
    for (const auto& entry : mcolData) types.append(ClipboardMimeType(entry.first));
    return types;
}

ByteArray SourceDataObject::DataOfType(const QString& mimeType) const
{
    for (const auto& entry : mcolData) {
        if (ClipboardMimeType(entry.first) == mimeType) return GetData(entry.first);
    }
    return {};
}

QStringList SourceMimeData::formats() const
{
    return mSource->MimeTypes();
}

bool SourceMimeData::hasFormat(const QString& mimeType) const
{
    return formats().contains(mimeType);
}

QVariant SourceMimeData::retrieveData(const QString& mimeType, QMetaType /*type*/) const
{
    return hasFormat(mimeType) ? QVariant(ToQByteArray(mSource->DataOfType(mimeType))) : QVariant();
}

QByteArray ToQByteArray(const ByteArray& data)
{
    return {reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size())};
}

ByteArray ToByteArray(const QByteArray& data)
{
    ByteArray bytes(static_cast<std::size_t>(data.size()));
    if (!bytes.empty()) std::memcpy(bytes.data(), data.constData(), bytes.size());
    return bytes;
}

} // namespace zqbchwcx::qt
