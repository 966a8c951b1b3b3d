#include "tests/unit/app/WindowStage.h"

#include "app/document/SharedView.h"
#include "app/plant/DetailsWindow.h"
#include "app/plant/FaultLogDock.h"
#include "app/plant/PlantCommands.h"
#include "app/window/ConfigurationView.h"
#include "app/window/DiagnosticsView.h"
#include "app/window/StationViews.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"
#include "zqbchwcx/reference/diag/Recording.h"
#include "zqbchwcx/reference/diag/Simulation.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace quillon_ed {
namespace {

using namespace zqbchwcx;
using namespace std::chrono_literals;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class DiagnosticsTest : public testing::WindowStage {
protected:
    DiagnosticsTest() { window->show(); }

    Document& Current() { return *window->Files().Current(); }
    DiagnosticsView& View() { return *window->findChild<DiagnosticsView*>(); }
    FaultLogDock& Log() { return *window->findChild<FaultLogDock*>(); }
    /// The first rack's; empty without faults.
    std::string Badge()
    {
        const auto* badge = window->findChild<QLabel*>(QStringLiteral("rackBadge"));
        return badge->isVisible() ? badge->text().toStdString() : std::string();
    }

    /// A recording of the station in which each command comes a second after the one before.
    QString Record(const std::vector<const char*>& commands)
    {
        const reference::StationData& data = Current().Station()->Data();
        reference::Simulation plant(data);
        reference::Time at{1'700'000'000s};
        std::string text =
            reference::WriteRecordingHead({data.name, plant.Map().Fingerprint(), plant.Map().RegisterCount()});
        const auto write = [&] {
            text +=
                reference::WriteRecordedChange({at, reference::ConnectionKind::Connected, {}, 0, plant.Registers()});
            at += 1s;
        };
        write();
        for (const char* command : commands) {
            plant.Apply(std::get<reference::PlantCommand>(reference::ParsePlantCommand(command, plant.Map())));
            write();
        }
        WriteFile(Path("plant.jsonl"), QByteArray::fromStdString(text));
        return QStringLiteral("recording:") + Path("plant.jsonl");
    }
    /// Shows the station while the commands are played, none yet.
    void Play(const std::vector<const char*>& commands, const char* resource = testing::Waterworks)
    {
        Open(resource);
        Action("Diagnostics")->trigger();
        const QString source = Record(commands);
        auto& plant = window->Plant();
        plant.Connect(source);
        plant.Play(false);
    }
    void Step() { window->Plant().Step(); }
    std::vector<std::string> LoggedTexts()
    {
        std::vector<std::string> texts;
        const auto& model = *Log().findChild<QTreeView*>()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.push_back(
                (model.index(row, 1).data().toString() + u' ' + model.index(row, 3).data().toString()).toStdString());
        return texts;
    }
};

TEST_F(DiagnosticsTest, TheModeChangesWithSelectionFocusAndScrolling)
{
    Open(":/examples/strip-mill-cooling.station.json");
    auto* view = window->findChild<StationView*>();
    const std::int32_t lPlace = G_PlacePosition(0, 50);
    ShowView(*view->Handler(), *Current().Station(), {{lPlace}, lPlace, lPlace});
    const auto before = CaptureView(*view->Handler());
    const auto scrolled = view->Views().Scrolled();
    Action("Diagnostics")->trigger();
    EXPECT_EQ(CaptureView(*View().Handler()), before);
    EXPECT_EQ(View().Views().Scrolled(), scrolled);
    EXPECT_GT(*std::ranges::max_element(scrolled), 0);
    for (const char* text : {"Copy", "Delete", "Cut", "Paste", "Parameters…", "Undo"})
        EXPECT_FALSE(IsEnabled(text)) << text;
    EXPECT_TRUE(Log().isVisible());
    QTest::keyClick(&View(), Qt::Key_1, Qt::ControlModifier);
    ASSERT_TRUE(window->findChild<ConfigurationView*>() != nullptr);
    EXPECT_EQ(CaptureView(*window->findChild<StationView*>()->Handler()), before);
    EXPECT_TRUE(IsEnabled("Copy"));
    EXPECT_FALSE(Log().isVisible());
}

TEST_F(DiagnosticsTest, WhatAPlantTellsIsShownLoggedAndCounted)
{
    Play({"place 0/4 fail channel 3 code 2", "place 0/5 lost", "place 0/4 ok"});
    EXPECT_EQ(Badge(), "");
    Step();
    EXPECT_EQ(Badge(), "1");
    View().GoTo({0, 4});
    Current().Station()->ShowModuleDiagnostics(Current().Station()->PlaceAt({0, 4}), nullptr);
    auto* details = window->findChild<DetailsWindow*>();
    ASSERT_TRUE(details != nullptr);
    EXPECT_EQ(details->findChild<QTreeWidget*>()->topLevelItemCount(), 1);
    EXPECT_EQ(details->findChild<QTreeWidget*>()->topLevelItem(0)->text(1), "3");
    Step();
    EXPECT_EQ(Badge(), "2");
    Step();
    EXPECT_EQ(Badge(), "1");
    EXPECT_EQ(details->findChild<QTreeWidget*>()->topLevelItemCount(), 0) << "it follows the plant";
    const auto logged = LoggedTexts();
    ASSERT_EQ(logged.size(), 5U); // with the connection and the controller's state
    EXPECT_THAT(logged[2], StartsWith("0/4 "));
    EXPECT_THAT(logged[2], EndsWith(", channel 3"));
    EXPECT_EQ(logged[4], "0/4 Gone: " + logged[2].substr(4));
    // An entry leads to its place; the filter holds for the file, too.
    auto* list = Log().findChild<QTreeView*>();
    emit list->activated(list->model()->index(3, 0));
    EXPECT_EQ(View().Handler()->FocusPosition(), G_PlacePosition(0, 5));
    Log().findChild<QLineEdit*>()->setText(QStringLiteral("0/5"));
    EXPECT_EQ(LoggedTexts().size(), 1U);
    EXPECT_EQ(Log().Csv().count("\r\n"), 2);
    window->Plant().Disconnect();
    EXPECT_THAT(StatusTexts().join(u'|').toStdString(), HasSubstr("not connected"));
}

TEST_F(DiagnosticsTest, AnotherArrangementOfModulesIsAnotherPlant)
{
    Play({});
    EXPECT_THAT(StatusTexts().join(u'|').toStdString(), HasSubstr("onnected"));
    Action("Configuration")->trigger();
    auto* editing = window->findChild<ConfigurationView*>();
    ShowView(*editing->Handler(), *Current().Station(), {{8}, 8, 8});
    editing->Manager().Delete();
    Action("Diagnostics")->trigger();
    EXPECT_EQ(window->Plant().Session().Plant()->State().connection.kind, reference::ConnectionKind::OtherStation);
}

TEST_F(DiagnosticsTest, SourcesThatCannotBeUsedSayWhy)
{
    Open();
    Action("Diagnostics")->trigger();
    Answer("Close");
    window->Plant().Connect(QStringLiteral("recording:") + Path("none.jsonl"));
    EXPECT_FALSE(window->Plant().Session().HasSource());
    WriteFile(Path("text.jsonl"), "hello\n");
    Answer("Close");
    window->Plant().Connect(QStringLiteral("recording:") + Path("text.jsonl"));
    EXPECT_FALSE(window->Plant().Session().HasSource());
    const QString source = Record({"place 0/4 fail"});
    QFile file(Path("plant.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("{damaged\n");
    file.close();
    window->Plant().Connect(source);
    EXPECT_TRUE(window->Plant().Session().HasSource()) << "the rest of it is played";
}

/// A source that tells what a simulation says when it is asked.
class SteppedSource : public reference::DiagSource {
public:
    SteppedSource(const reference::StationData& station, reference::PlantPtr plant)
        : moSimulation(station), moPlant(std::move(plant))
    {
        moSimulation.PlayRandomly(11);
    }

    void Open() override { moPlant->Take(0, moSimulation.Registers()); }
    void Close() override { moPlant->Lose(reference::ConnectionKind::Closed); }
    void PollNow() override
    {
        moSimulation.Advance(2s);
        Open();
    }

private:
    reference::Simulation moSimulation;
    reference::PlantPtr moPlant;
};

OpenedSource MakeStepped(const reference::StationData& station, reference::PlantPtr plant)
{
    return {std::make_unique<SteppedSource>(station, std::move(plant)), {}};
}

TEST_F(DiagnosticsTest, WhatIsDrawnStepByStepIsWhatARefreshDraws)
{
    for (const char* example : {testing::Waterworks, ":/examples/baggage-conveyor.station.json",
                                ":/examples/robot-tool-changer.station.json"}) {
        SCOPED_TRACE(example);
        Open(example);
        if (!window->findChild<DiagnosticsView*>()) Action("Diagnostics")->trigger();
        auto& session = window->Plant().Session();
        session.Connect(QStringLiteral("stepped"), MakeStepped);
        std::minstd_rand random(3);
        const auto places = static_cast<unsigned>(Current().Station()->Data().racks.front()->places.size());
        for (int step = 0; step < 60; ++step) {
            switch (random() % 4) {
            case 0:
                session.Poll();
                break;
            case 1:
                session.Plant()->Lose(reference::ConnectionKind::NotReachable);
                break;
            case 2:
                View().GoTo({0, 1 + static_cast<std::int32_t>(random() % places)});
                break;
            default:
                QTest::keyClick(View().Views().OverviewWidget(), random() % 2 == 0 ? Qt::Key_Right : Qt::Key_Down);
            }
            QCoreApplication::processEvents();
            const QImage drawn = View().grab().toImage();
            View().Views().Overview()->Refresh();
            View().Views().Table()->Refresh();
            QCoreApplication::processEvents();
            const QImage fresh = View().grab().toImage();
            ASSERT_EQ(drawn, fresh) << step;
        }
    }
}

TEST_F(DiagnosticsTest, ARecordingOfAPlantCanBePlayed)
{
    Open();
    Action("Diagnostics")->trigger();
    auto& plant = window->Plant();
    plant.Session().Connect(QStringLiteral("stepped"), MakeStepped);
    SaveAs(Path("plant.jsonl"));
    Action("Record…")->trigger();
    ASSERT_TRUE(plant.IsRecording());
    while (LoggedTexts().size() < 6) plant.Poll();
    Action("Record…")->trigger();
    EXPECT_FALSE(plant.IsRecording());
    const auto logged = LoggedTexts();
    Log().findChild<QPushButton*>(QStringLiteral("clearLog"))->click();
    plant.Connect(QStringLiteral("recording:") + Path("plant.jsonl"));
    plant.Play(false);
    while (!dynamic_cast<reference::RecordedSource&>(*plant.Session().Source()).IsAtEnd()) plant.Step();
    const auto played = LoggedTexts();
    for (const std::string& entry : {logged[2], logged[3]}) EXPECT_THAT(played, ::testing::Contains(entry));
}

} // namespace
} // namespace quillon_ed
