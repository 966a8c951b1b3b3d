// The smallest host: a window with the rack overview of a station and its table, in configuration mode.
//
// Usage: embed STATION ASSETS [PICTURE]
//   ASSETS holds the folders catalogue/ and texts/; with PICTURE the window is written to that file, and not shown.
//
// A host with a hardware model of its own leaves reference/ out and gives the library its own station and services.

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/reference/catalogue/CatalogueReader.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/model/contract/ModelFactory.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"
#include "zqbchwcx/reference/services/ErrorLog.h"
#include "zqbchwcx/reference/services/HostObjects.h"
#include "zqbchwcx/reference/services/LiveInstances.h"
#include "zqbchwcx/reference/services/MemoryStore.h"
#include "zqbchwcx/reference/services/PictureProvider.h"
#include "zqbchwcx/reference/services/Settings.h"
#include "zqbchwcx/reference/services/Texts.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

#include "ui_views.h"
#include <QApplication>

#include <cstdio>
#include <exception>
#include <string>

using namespace zqbchwcx;

namespace {

class Pictures : public reference::PictureProvider {
public:
    explicit Pictures(std::shared_ptr<qt::QtToolkit> toolkit) : moToolkit(std::move(toolkit)) {}

    ImagePtr Picture(std::string_view name) override { return moToolkit->Pictures().Picture(name); }
    std::intptr_t hInstance() const override { return 0; }

private:
    std::shared_ptr<qt::QtToolkit> moToolkit;
};

/// Step 1: say which services the library uses.
void InstallServices(const reference::ModelContextPtr& context, const std::string& assets)
{
    ServiceRoot root;
    const auto toolkit = std::make_shared<qt::QtToolkit>();
    root.toolkit = toolkit;
    root.settingsReader = std::make_shared<reference::Settings>(
        std::vector<std::shared_ptr<const reference::KeyValueStore>>{std::make_shared<reference::MemoryStore>()});
    root.textManager = std::make_shared<reference::Texts>(reference::LoadTextTable(assets + "/texts/en.json", "en"),
                                                          reference::LoadTextTable(assets + "/texts/de.json", "de"),
                                                          std::make_shared<Pictures>(toolkit));
    root.errorService = std::make_shared<reference::ErrorLog>();
    root.instanceTracker = std::make_shared<reference::LiveInstances>();
    root.objectFactory = std::make_shared<reference::HostObjects>(nullptr, [] {
        return std::make_shared<reference::TypeExchange>(qt::ClipboardFormatNumber("VxHWExchange"), nullptr);
    });
    root.modelFactory = std::make_shared<reference::ModelFactory>(context);
    root.libraryDirectory = assets;
    G_InstallServiceRoot([root] { return root; });
}

int Show(const std::string& fileName, const std::string& assets, const QString& picture)
{
    auto context = std::make_shared<reference::ModelContext>();
    context->catalogue =
        std::make_shared<const reference::Catalogue>(reference::LoadCatalogueDirectory(assets + "/catalogue"));
    InstallServices(context, assets);

    // Step 2: have a station.
    const auto station = std::make_shared<reference::Station>(
        context, reference::LoadStation(fileName, *context->catalogue).data, reference::StationServices{});

    // Step 3: make the widgets; views.ui holds them as Qt Designer shows it.
    QWidget window;
    Ui::Views views;
    views.setupUi(&window);

    // Step 4: let the manager of the mode connect them.
    VxHWConfigManager manager;
    manager.Initialize(vxStationTypeCentral, views.overview->Control(), views.table->Control(), station);
    views.overview->Control()->Refresh();
    views.table->Control()->Refresh();

    int result = 0;
    if (picture.isEmpty()) {
        window.show();
        result = QApplication::exec();
    } else if (!window.grab().save(picture)) {
        std::fprintf(stderr, "embed: %s cannot be written\n", qPrintable(picture));
        result = 1;
    }
    manager.Terminate();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 3 && argc != 4) {
        std::fputs("Usage: embed STATION ASSETS [PICTURE]\n", stderr);
        return 2;
    }
    try {
        return Show(argv[1], argv[2], argc == 4 ? QString::fromLocal8Bit(argv[3]) : QString());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "embed: %s\n", error.what());
        return 1;
    }
}
