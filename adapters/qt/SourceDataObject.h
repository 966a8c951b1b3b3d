#pragma once

#include "zqbchwcx/platform/DataObject.h"

#include <QMimeData>

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace zqbchwcx::qt {

/// The data that a source offers. Announced formats get their data when somebody asks.
class SourceDataObject : public DataObject {
public:
    /// Called with the number of an announced format whose data are wanted; it sets them.
    void OnWanted(std::function<void(std::int16_t nFormat)> handler) { mOnWanted = std::move(handler); }

    void SetData(std::int16_t nFormat, const ByteArray& data) override;
    void AnnounceFormat(std::int16_t nFormat) override;
    bool GetFormat(std::int16_t nFormat) const override;
    ByteArray GetData(std::int16_t nFormat) const override;

    QStringList MimeTypes() const;
    ByteArray DataOfType(const QString& mimeType) const;

private:
    std::function<void(std::int16_t)> mOnWanted;
    std::map<std::int16_t, std::optional<ByteArray>> mcolData;
};
using SourceDataObjectPtr = std::shared_ptr<SourceDataObject>;

/// A source's data as the desktop's drag and clipboard take them.
class SourceMimeData : public QMimeData {
    Q_OBJECT
public:
    explicit SourceMimeData(SourceDataObjectPtr source) : mSource(std::move(source)) {}

    const SourceDataObjectPtr& Source() const { return mSource; }

    QStringList formats() const override;
    bool hasFormat(const QString& mimeType) const override;

protected:
    QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

private:
    SourceDataObjectPtr mSource;
};

QByteArray ToQByteArray(const ByteArray& data);
ByteArray ToByteArray(const QByteArray& data);

} // namespace zqbchwcx::qt
