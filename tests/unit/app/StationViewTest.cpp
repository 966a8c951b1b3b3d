#include "tests/unit/app/AppStage.h"

#include "app/document/SharedView.h"
#include "app/window/CellMessage.h"
#include "app/window/ConfigurationView.h"
#include "app/window/ModuleInserter.h"
#include "app/window/ModuleList.h"
#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/qt/MimeDataObject.h"
#include "zqbchwcx/qt/PositionText.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackTableRIOWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"

#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

namespace quillon_ed {
namespace {

using namespace zqbchwcx;
using reference::ViewState;

constexpr std::int32_t Feedback = G_PlacePosition(0, 4);
constexpr std::int32_t Field = G_PlacePosition(0, 5);
constexpr std::int32_t Empty = G_PlacePosition(0, 11);

class StationViewTest : public testing::AppStage {
protected:
    StationViewTest() : document(OpenExample()), view(std::make_unique<ConfigurationView>(*document, nullptr)) {}

    void Select(std::vector<std::int32_t> places)
    {
        ShowView(*view->Handler(), *document->Station(), {places, places.back(), places.front()});
    }
    ViewState Shown() const { return CaptureView(*view->Handler()); }
    bool IsEmpty(std::int32_t lPosition) const
    {
        return document->Station()->PlaceAt({0, lPosition / 2})->Module()->IsEmpty();
    }
    /// The example in racks of another length.
    void ShowRacks(std::size_t racks, std::size_t places)
    {
        view.reset();
        reference::StationData data = OpenExample()->Station()->Data();
        reference::RackData rack = *data.racks.front();
        rack.places.resize(places);
        rack.places.back().module = rack.places.front().module;
        data.racks.assign(racks, std::make_shared<const reference::RackData>(rack));
        document = MakeDocument(data);
        view = std::make_unique<ConfigurationView>(*document, nullptr);
    }

    std::unique_ptr<Document> document;
    std::unique_ptr<ConfigurationView> view;
};

TEST_F(StationViewTest, UndoBringsSelectionAndFocusBackAndRedoThoseAfterTheStep)
{
    Select({Feedback, Field});
    const ViewState before{{Feedback, Field}, Field, Feedback};
    view->Manager().Delete();
    EXPECT_TRUE(IsEmpty(Feedback));
    EXPECT_EQ(document->History().UndoName(), "Delete");
    const ViewState after = Shown();
    Select({Empty});
    document->History().Undo();
    EXPECT_FALSE(IsEmpty(Feedback));
    EXPECT_EQ(Shown(), before);
    document->History().Redo();
    EXPECT_EQ(Shown(), after);
}

TEST_F(StationViewTest, UndoOfADropBringsBackTheViewFromBeforeTheDrag)
{
    Select({Feedback});
    const ViewState before = Shown();
    const auto controller = view->DragDropController();
    const std::unique_ptr<QMimeData> mime(ModuleDragData(*document->Station(), QStringLiteral("Q3-DI16-A")));
    const DataObjectPtr data = qt::DataObjectOf(mime.get());
    std::int32_t effect = vxDropEffectCopy;
    controller->OLEDragOver(Field, data, effect, vxButtonLeft, 0, vxDragEnter);
    controller->OLEDragOver(Empty, data, effect, vxButtonLeft, 0, vxDragOver);
    EXPECT_EQ(view->Handler()->FocusPosition(), Empty) << "the focus follows the mouse";
    effect = vxDropEffectCopy;
    controller->OLEDragDrop(Empty, data, effect, vxButtonLeft, 0);
    EXPECT_FALSE(IsEmpty(Empty));
    EXPECT_EQ(Shown().selection, std::vector{Empty});
    document->History().Undo();
    EXPECT_TRUE(IsEmpty(Empty));
    EXPECT_EQ(Shown(), before);
}

TEST_F(StationViewTest, AnInsertionIsOneStepAndARefusalSaysWhyAndChangesNothing)
{
    Select({Empty});
    EXPECT_EQ(InsertModule(services, *document, *view, QStringLiteral("Q3-DI16-A")), QString());
    EXPECT_FALSE(IsEmpty(Empty));
    EXPECT_EQ(document->History().UndoName(), "Insert");
    const QString occupied = InsertModule(services, *document, *view, QStringLiteral("Q3-DI16-A"));
    Select({Feedback});
    const QString notThere = InsertModule(services, *document, *view, QStringLiteral("Q3-PS05-A"));
    EXPECT_FALSE(occupied.isEmpty() || notThere.isEmpty());
    EXPECT_NE(occupied, notThere) << "a refusal says why";
    EXPECT_TRUE(document->Station()->IsDrawable());
    document->History().Undo();
    EXPECT_FALSE(document->IsModified());
}

TEST_F(StationViewTest, ARefusedEditSaysWhyAtItsCell)
{
    auto& table = *view->findChild<qt::RackTableWidget*>();
    view->show();
    auto& grid = *table.findChild<QTableView*>();
    Select({Field});
    const std::string before = document->Station()->PlaceAt({0, 5})->Module()->InputAddressText();
    QTest::keyClick(&grid, Qt::Key_F2);
    auto* editor = grid.findChild<QLineEdit*>();
    ASSERT_TRUE(editor != nullptr && editor->isVisible());
    editor->setText(QStringLiteral("0"));
    QTest::keyClick(editor, Qt::Key_Return);
    const auto* message = view->findChild<CellMessage*>();
    EXPECT_TRUE(message->isVisible());
    EXPECT_THAT(message->text().toStdString(), ::testing::MatchesRegex("\"0\" was not taken: .*place 4.*"));
    EXPECT_EQ(document->Station()->PlaceAt({0, 5})->Module()->InputAddressText(), before);
}

TEST_F(StationViewTest, WhatIsComposedIsSeenInTheCellAndCanBeGivenUp)
{
    view->show();
    auto& grid = *view->findChild<qt::RackTableWidget*>()->findChild<QTableView*>();
    Select({Field});
    const std::string before = document->Station()->PlaceAt({0, 5})->Module()->InputAddressText();
    const auto compose = [](QWidget& widget, const QString& text, const QString& commit = {}) {
        QInputMethodEvent event(text, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(&widget, &event);
    };
    const auto shownEditor = [&]() -> QLineEdit* {
        for (auto* editor : grid.findChildren<QLineEdit*>())
            if (editor->isVisible()) return editor;
        return nullptr;
    };
    compose(grid, QStringLiteral("4"));
    QLineEdit* editor = shownEditor();
    ASSERT_TRUE(editor != nullptr);
    const QImage composing = editor->grab().toImage();
    compose(*editor, {});
    EXPECT_NE(composing, editor->grab().toImage());
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(document->Station()->PlaceAt({0, 5})->Module()->InputAddressText(), before);
    EXPECT_FALSE(document->IsModified());

    compose(grid, QStringLiteral("4"));
    editor = shownEditor();
    ASSERT_TRUE(editor != nullptr);
    compose(*editor, {}, QStringLiteral("40"));
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(document->Station()->PlaceAt({0, 5})->Module()->InputAddressText(), "40");
}

TEST_F(StationViewTest, TheRowsOfADistributedStationsTableAndItsArrowGoTogether)
{
    view.reset();
    reference::StationData data = OpenExample(":/examples/baggage-conveyor.station.json")->Station()->Data();
    reference::RackData rack = *data.racks.front();
    rack.places.resize(64);
    data.racks.front() = std::make_shared<const reference::RackData>(rack);
    document = MakeDocument(data);
    view = std::make_unique<ConfigurationView>(*document, nullptr);
    view->resize(900, 414);
    view->show();
    QCoreApplication::processEvents();
    auto& overview = *view->findChild<qt::RackOverviewRIOWidget*>()->Control();
    auto& table = *view->findChild<qt::RackTableRIOWidget*>()->Control();
    EXPECT_EQ(overview.RackTableTopRow(), 1);
    EXPECT_EQ(overview.RackTableRowsInView(), (414 - VxHWRackTableRIO::HeaderBottom) / 15);
    Select({G_PlacePosition(0, 60)});
    EXPECT_GT(table.TopRow(), 30);
    EXPECT_EQ(overview.RackTableTopRow(), table.TopRow());
    EXPECT_EQ(InsertModule(services, *document, *view, QStringLiteral("QT-DI08-A")), QString());
    EXPECT_FALSE(IsEmpty(G_PlacePosition(0, 60)));
}

/// A station that is larger than the table has the list of its modules instead.
class ModuleListTest : public StationViewTest {
protected:
    ModuleListTest() { ShowRacks(2, 12); }
    QTableView& List() const { return *view->findChild<ModuleList*>()->findChild<QTableView*>(); }
    std::vector<int> SelectedRows() const
    {
        std::vector<int> rows;
        for (const auto& index : List().selectionModel()->selectedRows()) rows.push_back(index.row());
        return rows;
    }
};

TEST_F(ModuleListTest, SharesSelectionAndFocusWithTheStation)
{
    Select({Feedback, Field});
    EXPECT_EQ(SelectedRows(), (std::vector{3, 4}));
    List().selectRow(10);
    EXPECT_EQ(Shown(), (ViewState{{Empty}, Empty, Empty}));
    Select({G_PlacePosition(0, 2)});
    QTest::keyClick(&List(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(SelectedRows(), (std::vector<int>{1, 2}));
    EXPECT_EQ(Shown().selection.size(), 2U);
}

TEST_F(ModuleListTest, HasItsMenuOnTheKeyboard)
{
    int asked = 0;
    QObject::connect(view.get(), &StationView::menuRequested, [&] { ++asked; });
    QTest::keyClick(&List(), Qt::Key_F10);
    EXPECT_EQ(asked, 0);
    QTest::keyClick(&List(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(asked, 1);
}

TEST_F(StationViewTest, PositionsAreToldForPeople)
{
    const auto text = [&](std::int32_t lPosition) {
        const auto what = G_DescribePosition(*document->Station(), lPosition);
        return qt::PositionTexts(what).join(QStringLiteral(" · ")).toStdString();
    };
    EXPECT_THAT(text(Feedback), ::testing::MatchesRegex("Rack 0 · Place 4 · .*Q3-DI16-A · I .*"));
    EXPECT_EQ(text(Empty), "Rack 0 · Place 11 · empty");
    EXPECT_EQ(text(G_GapPosition(0, 4)), "Rack 0 · Gap before place 5");
    EXPECT_EQ(text(G_GapPosition(0, 0)), "Rack 0 · Gap before place 1");
    EXPECT_EQ(text(G_GapPosition(0, 11)), "Rack 0 · Gap behind place 11");
    EXPECT_EQ(text(vxNoPosition), "");
}

TEST_F(StationViewTest, APictureThatIsNotWholeSaysSo)
{
    const auto told = [&](std::size_t racks, std::size_t places) {
        ShowRacks(racks, places);
        QString text;
        for (const auto* label : view->findChildren<QLabel*>()) text += label->text();
        return text.toStdString();
    };
    EXPECT_EQ(told(4, 11), "");
    EXPECT_EQ(told(2, 13), "The picture shows 11 of 13 places in a rack; modules left out: 2");
    const auto inRack = 1 + std::ranges::count_if(OpenExample()->Station()->Data().racks.front()->places,
                                                  [](const auto& place) { return place.module != nullptr; });
    EXPECT_EQ(told(5, 12), "The picture shows 4 of 5 racks and 11 of 12 places in a rack; modules left out: " +
                               std::to_string(4 + inRack));
}

TEST_F(StationViewTest, EveryExampleCanBeShownAndClosed)
{
    for (const QString& example : ShippedExamples()) {
        view.reset();
        document = OpenExample(example.toLatin1().constData());
        view = std::make_unique<ConfigurationView>(*document, nullptr);
        EXPECT_GT(view->findChild<QTableView*>()->model()->rowCount(), 0) << example.toStdString();
        document->History().Undo();
        EXPECT_FALSE(document->IsModified());
    }
}

} // namespace
} // namespace quillon_ed
