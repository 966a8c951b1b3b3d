#include "app/host/AppServices.h"

#include "app/host/DesktopClipboard.h"
#include "app/host/SettingsStore.h"
#include "app/host/ShippedData.h"
#include "app/host/Strings.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/reference/model/contract/ModelFactory.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"
#include "zqbchwcx/reference/services/HostObjects.h"
#include "zqbchwcx/reference/services/LiveInstances.h"
#include "zqbchwcx/reference/services/MemoryStore.h"
#include "zqbchwcx/reference/services/PictureProvider.h"
#include "zqbchwcx/reference/services/Settings.h"
#include "zqbchwcx/reference/services/WaitingApplication.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>

namespace quillon_ed {

using namespace zqbchwcx;
using reference::Language;

namespace {

const QString LanguageKey = QStringLiteral("Language");
/// The resources stand where an installed library would have its files.
constexpr char ResourceRoot[] = ":";
constexpr std::string_view ExchangeFormatName = "VxHWExchange";

/// The single pictures of the views.
class CompiledPictures : public reference::PictureProvider {
public:
    explicit CompiledPictures(std::shared_ptr<qt::QtToolkit> toolkit) : moToolkit(std::move(toolkit)) {}

    ImagePtr Picture(std::string_view name) override { return moToolkit->Pictures().Picture(name); }
    std::intptr_t hInstance() const override { return 0; }

private:
    std::shared_ptr<qt::QtToolkit> moToolkit;
};

/// What the desktop says about drags.
std::shared_ptr<reference::MemoryStore> DesktopStore()
{
    auto store = std::make_shared<reference::MemoryStore>();
    const std::string distance = std::to_string(QApplication::startDragDistance());
    store->Store(reference::DesktopKey, reference::DragWidthName, distance);
    store->Store(reference::DesktopKey, reference::DragHeightName, distance);
    return store;
}

HostApplicationPtr MakeApplication()
{
    return std::make_shared<reference::WaitingApplication>([shown = false](bool wait) mutable {
        if (std::exchange(shown, wait) == wait) return;
        if (wait) QApplication::setOverrideCursor(Qt::WaitCursor);
        else QApplication::restoreOverrideCursor();
    });
}

} // namespace

AppServices::AppServices(QSettings& settings)
    : moSettings(settings), moToolkit(std::make_shared<qt::QtToolkit>()),
      moTexts(std::make_shared<reference::Texts>(ShippedTexts(Language::English), ShippedTexts(Language::German),
                                                 std::make_shared<CompiledPictures>(moToolkit))),
      moErrors(std::make_shared<reference::ErrorLog>()), moClipboard(std::make_shared<DesktopClipboard>()),
      moPictures(std::make_unique<ModulePictures>(moToolkit))
{
    auto context = std::make_shared<reference::ModelContext>();
    context->catalogue = std::make_shared<const reference::Catalogue>(ShippedCatalogue());
    context->language = [texts = moTexts] { return texts->CurrentLanguage(); };
    moContext = std::move(context);
    Install();
    ShowLanguage(StoredLanguage());
}

AppServices::~AppServices()
{
    G_InstallServiceRoot({});
}

void AppServices::Install()
{
    const auto stored = std::make_shared<SettingsStore>(moSettings);
    ServiceRoot root;
    root.toolkit = moToolkit;
    root.settingsReader = std::make_shared<reference::Settings>(
        std::vector<std::shared_ptr<const reference::KeyValueStore>>{stored, DesktopStore()});
    root.textManager = moTexts;
    root.errorService = moErrors;
    root.instanceTracker = std::make_shared<reference::LiveInstances>();
    root.objectFactory = std::make_shared<reference::HostObjects>(
        MakeApplication(),
        [clipboard = moClipboard] {
            return std::make_shared<reference::TypeExchange>(qt::ClipboardFormatNumber(ExchangeFormatName), clipboard);
        },
        stored, [this] { return mMakeControllerInfo ? mMakeControllerInfo() : nullptr; });
    root.modelFactory = std::make_shared<reference::ModelFactory>(moContext);
    root.libraryDirectory = ResourceRoot;
    G_InstallServiceRoot([root] { return root; });
}

QString AppServices::Text(std::int32_t lId) const
{
    return ToQString(moTexts->Text(lId));
}

Language AppServices::StoredLanguage() const
{
    const QString stored = moSettings.value(LanguageKey).toString();
    const QString code = stored.isEmpty() ? QLocale::system().name() : stored;
    return code.startsWith(QLatin1String("de")) ? Language::German : Language::English;
}

void AppServices::ShowLanguage(Language language)
{
    // The library's texts first: widgets fetch them when they hear of the new language.
    moTexts->CurrentLanguage(language);
    moTranslation.Set(language);
    emit languageChanged();
}

void AppServices::StoreLanguage(Language language)
{
    moSettings.setValue(LanguageKey, language == Language::German ? QStringLiteral("de") : QStringLiteral("en"));
    ShowLanguage(language);
}

} // namespace quillon_ed
