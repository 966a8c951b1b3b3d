// The smallest host: a window with the rack overview of a station, in configuration mode.
//
// Usage: embed STATION ASSETS   (ASSETS holds the folders catalogue/ and texts/)
//
// A host with a hardware model of its own leaves reference/ out and gives the library its own station and services.

#include "adapters/qt/ClipboardFormats.h"
#include "adapters/qt/QtToolkit.h"
#include "adapters/qt/RackOverviewWidget.h"
#include "foundation/ServiceRoot.h"
#include "managers/VxHWConfigManager.h"
#include "reference/catalogue/CatalogueReader.h"
#include "reference/files/StationReader.h"
#include "reference/model/contract/ModelFactory.h"
#include "reference/model/contract/Station.h"
#include "reference/model/contract/TypeExchange.h"
#include "reference/services/ErrorLog.h"
#include "reference/services/HostObjects.h"
#include "reference/services/LiveInstances.h"
#include "reference/services/MemoryStore.h"
#include "reference/services/PictureProvider.h"
#include "reference/services/QuietView.h"
#include "reference/services/Settings.h"
#include "reference/services/Texts.h"
#include "views/config/VxHWRackOverview.h"

#include <QApplication>
#include <QHBoxLayout>

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

int Show(const std::string& fileName, const std::string& assets)
{
    auto context = std::make_shared<reference::ModelContext>();
    context->catalogue =
        std::make_shared<const reference::Catalogue>(reference::LoadCatalogueDirectory(assets + "/catalogue"));
    InstallServices(context, assets);

    // Step 2: have a station.
    const auto station = std::make_shared<reference::Station>(
        context, reference::LoadStation(fileName, *context->catalogue).data, reference::StationServices{});

    // Step 3: put the widget into a layout.
    QWidget window;
    auto* overview = new qt::RackOverviewWidget(&window);
    (new QHBoxLayout(&window))->addWidget(overview);

    // Step 4: let the manager of the mode connect them. There is no table beside this overview.
    VxHWConfigManager manager;
    manager.Initialize(vxStationTypeCentral, overview->Control(), std::make_shared<reference::QuietView>(), station);
    overview->Control()->Refresh();

    window.show();
    const int result = QApplication::exec();
    manager.Terminate();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("Usage: embed STATION ASSETS\n", stderr);
        return 2;
    }
    try {
        return Show(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "embed: %s\n", error.what());
        return 1;
    }
}
