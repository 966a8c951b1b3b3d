#include "zqbchwcx/qt/MimeDataObject.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/SourceDataObject.h"

namespace zqbchwcx::qt {

void MimeDataObject::SetData(std::int16_t /*nFormat*/, const ByteArray& /*data*/)
{
    throw VxError(vxErrorInvalidArgument, "The data of another program cannot be set");
}

void MimeDataObject::AnnounceFormat(std::int16_t nFormat)
{
    SetData(nFormat, {});
}

bool MimeDataObject::GetFormat(std::int16_t nFormat) const
{
    return mData && mData->hasFormat(ClipboardMimeType(nFormat));
}

ByteArray MimeDataObject::GetData(std::int16_t nFormat) const
{
    return mData ? ToByteArray(mData->data(ClipboardMimeType(nFormat))) : ByteArray();
}

DataObjectPtr DataObjectOf(const QMimeData* data)
{
    if (const auto* source = qobject_cast<const SourceMimeData*>(data)) return source->Source();
    return std::make_shared<MimeDataObject>(data);
}

} // namespace zqbchwcx::qt
