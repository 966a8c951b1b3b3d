#pragma once

#include "zqbchwcx/platform/DataObject.h"

#include <QMimeData>
#include <QPointer>

namespace zqbchwcx::qt {

/// What another program offers by drag or clipboard. Only to be read; empty once the desktop has taken it back.
class MimeDataObject : public DataObject {
public:
    explicit MimeDataObject(const QMimeData* data) : mData(data) {}

    /// Throws VxError: data of others cannot be set.
    void SetData(std::int16_t nFormat, const ByteArray& data) override;
    void AnnounceFormat(std::int16_t nFormat) override;
    bool GetFormat(std::int16_t nFormat) const override;
    ByteArray GetData(std::int16_t nFormat) const override;

private:
    QPointer<const QMimeData> mData;
};

/// The data object behind what is dragged or on the clipboard: the source's own when it is of this program.
DataObjectPtr DataObjectOf(const QMimeData* data);

} // namespace zqbchwcx::qt
