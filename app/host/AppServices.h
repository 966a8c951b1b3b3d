#pragma once

#include "app/host/ModulePictures.h"
#include "app/host/PlainLabels.h"
#include "app/host/ReadableColors.h"
#include "app/host/UiTranslation.h"
#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/contract/ModelContext.h"
#include "zqbchwcx/reference/model/contract/StationServices.h"
#include "zqbchwcx/reference/services/ErrorLog.h"
#include "zqbchwcx/reference/services/Texts.h"

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

class QSettings;

namespace zqbchwcx::qt {
class QtToolkit;
}

namespace quillon_ed {

/// The host that the library runs in: the Qt toolkit and the reference services, installed for as long as this lives.
/// Needs a QApplication. One at a time.
class AppServices : public QObject {
    Q_OBJECT

public:
    /// Reads what is compiled into the program; throws FileError when that is not in order. The settings outlive the
    /// services.
    explicit AppServices(QSettings& settings);
    ~AppServices() override;

    const zqbchwcx::reference::Catalogue& Catalogue() const { return *moContext->catalogue; }
    const zqbchwcx::reference::ModelContextPtr& Context() const { return moContext; }
    const zqbchwcx::reference::ClipboardPtr& Clipboard() const { return moClipboard; }
    zqbchwcx::reference::ErrorLog& Errors() { return *moErrors; }
    ModulePictures& Pictures() { return *moPictures; }
    QSettings& Settings() { return moSettings; }
    /// Who tells what is known of the controller; nothing is without it.
    void ControllerInfoFrom(std::function<zqbchwcx::ControllerInfoPtr()> make)
    {
        mMakeControllerInfo = std::move(make);
    }
    /// A text of the library's text module.
    QString Text(std::int32_t lId) const;

    zqbchwcx::reference::Language CurrentLanguage() const { return moTexts->CurrentLanguage(); }
    /// The language for this run.
    void ShowLanguage(zqbchwcx::reference::Language language);
    /// The language for this run and the next ones.
    void StoreLanguage(zqbchwcx::reference::Language language);

signals:
    /// The library's texts and the catalogue's are to be shown in the new language. Widgets hear of it by
    /// LanguageChange.
    void languageChanged();

private:
    zqbchwcx::reference::Language StoredLanguage() const;
    void Install();

    QSettings& moSettings;
    PlainLabels moPlainLabels;
    ReadableColors moReadableColors;
    UiTranslation moTranslation;
    std::shared_ptr<zqbchwcx::qt::QtToolkit> moToolkit;
    std::shared_ptr<zqbchwcx::reference::Texts> moTexts;
    std::shared_ptr<zqbchwcx::reference::ErrorLog> moErrors;
    zqbchwcx::reference::ModelContextPtr moContext;
    zqbchwcx::reference::ClipboardPtr moClipboard;
    std::unique_ptr<ModulePictures> moPictures;
    std::function<zqbchwcx::ControllerInfoPtr()> mMakeControllerInfo;
};

} // namespace quillon_ed
