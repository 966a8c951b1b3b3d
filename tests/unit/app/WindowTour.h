#pragma once

#include "tests/unit/app/AppStage.h"

#include "app/dialogs/AboutDialog.h"
#include "app/dialogs/NewStationDialog.h"
#include "app/dialogs/ParameterDialog.h"
#include "app/dialogs/RecoveryDialog.h"
#include "app/dialogs/ShortcutsDialog.h"
#include "app/window/MainWindow.h"
#include "app/window/StationView.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>
#include <string>

namespace quillon_ed::testing {

/// Shows the window in all its states and every dialog of the program, one after the other.
class WindowTour : public AppStage {
protected:
    using Visit = std::function<void(QWidget& window, const std::string& name)>;

    /// What a file can carry, in the state that the visits begin with.
    struct Content {
        QString stationFile;
        zqbchwcx::reference::ModuleData module;
        const zqbchwcx::reference::Catalogue* catalogue = nullptr;
        bool everyType = false; ///< the parameters of each type of the catalogue as well
    };

    Content Shipped()
    {
        Content content;
        content.stationFile = Path("waterworks.station.json");
        WriteFile(content.stationFile, ReadWhole(QString::fromLatin1(Waterworks)));
        content.module.orderNumber = "Q3-CP30-C";
        content.catalogue = &services.Catalogue();
        for (const std::string& number : content.catalogue->Find(content.module.orderNumber)->subModules)
            content.module.subModules.emplace_back().orderNumber = number;
        return content;
    }

    void Show(const Content& content, const Visit& visit)
    {
        ShowWindow(content, visit);
        ShowDialogs(content, visit);
    }

    static void VisitShown(QWidget& window, const std::string& name, const Visit& visit)
    {
        window.show();
        for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
        visit(window, name);
    }

    /// Visits what `open` shows and waits for, and closes it.
    static void VisitModal(const std::string& name, const Visit& visit, const std::function<void()>& open)
    {
        bool visited = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || visited) return;
            visited = true;
            VisitShown(*dialog, name, visit);
            dialog->reject();
        });
        timer.start(1);
        open();
        EXPECT_TRUE(visited) << name;
    }

    void ShowWindow(const Content& content, const Visit& visit)
    {
        RecentFiles(settings, nullptr).Add(content.stationFile);
        MainWindow window(services);
        window.Start({});
        for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
        VisitShown(window, "start page", visit);
        ASSERT_TRUE(window.Files().OpenFile(content.stationFile));
        const auto handler = window.findChild<StationView*>()->Handler();
        handler->FocusPosition(zqbchwcx::G_PlacePosition(0, 4));
        VisitShown(window, "central station", visit);
        emit window.Files().warned(content.stationFile);
        VisitShown(window, "message", visit);
        window.Files().OpenExample(QStringLiteral(":/examples/assembly-cell.station.json"));
        VisitShown(window, "distributed station", visit);
        const QString damaged = content.stationFile + QStringLiteral(".json");
        WriteFile(damaged, "{");
        VisitModal("damaged file", visit, [&] { window.Files().OpenFile(damaged); });
        VisitModal("about", visit, [&] { ShowAbout(&window); });
        VisitModal("shortcuts", visit, [&] { ShowShortcuts(&window); });
    }

    void ShowDialogs(const Content& content, const Visit& visit)
    {
        using namespace zqbchwcx::reference;
        NewStationDialog newStation(nullptr);
        VisitShown(newStation, "new station", visit);
        const std::string file = content.stationFile.toStdString();
        RecoveryDialog recovery({{file, {file, {}}, 0, std::nullopt}, {file, {}, 0, file}}, nullptr);
        VisitShown(recovery, "recovery", visit);
        ParameterDialogContext context;
        context.catalogue = content.catalogue;
        context.language = services.CurrentLanguage();
        for (const ModuleType& type : content.catalogue->Types()) {
            if (type.isSubModule || !content.everyType) continue;
            ModuleData module;
            module.orderNumber = type.orderNumber;
            ParameterDialog dialog(module, context, nullptr);
            VisitShown(dialog, "parameters of " + type.orderNumber, visit);
        }
        ParameterDialog dialog(content.module, context, nullptr);
        VisitShown(dialog, "parameters with sub-modules", visit);
        context.readOnly = true;
        ParameterDialog readOnly(content.module, context, nullptr);
        VisitShown(readOnly, "parameters, read-only", visit);
    }
};

/// Another font of the desktop for as long as it lives.
class FontChange {
public:
    explicit FontChange(int points) : moPrevious(QApplication::font())
    {
        QFont font = moPrevious;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    ~FontChange() { QApplication::setFont(moPrevious); }
    FontChange(const FontChange&) = delete;
    FontChange& operator=(const FontChange&) = delete;

private:
    QFont moPrevious;
};

} // namespace quillon_ed::testing
