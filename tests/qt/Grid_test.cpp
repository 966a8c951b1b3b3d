#include "tests/qt/GridStage.h"
#include "tests/qt/Palettes.h"
#include "tests/qt/ReferencePicture.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/GridEditor.h"
#include "zqbchwcx/qt/GridHeader.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

TEST(GridPicture, looksAsStoredInLightDarkAndHighContrast)
{
    GridStage stage;
    stage.ShowActive();
    EXPECT_TRUE(LooksLikeReference(stage.Picture(1), "grid-1x"));
    EXPECT_TRUE(LooksLikeReference(stage.Picture(2), "grid-2x"));
    const PaletteChange dark(DarkPalette());
    QCoreApplication::processEvents();
    stage.grid->StartEditing({4, 6}, std::nullopt);
    EXPECT_TRUE(LooksLikeReference(stage.Picture(1), "grid-editing-dark-1x"));
    EXPECT_TRUE(LooksLikeReference(stage.Picture(2), "grid-editing-dark-2x"));
    stage.grid->EndEditing(false);
    const PaletteChange contrast(ContrastPalette());
    QCoreApplication::processEvents();
    EXPECT_TRUE(LooksLikeReference(stage.Picture(1), "grid-contrast-1x"));
}

/// Where a line between rows ends, seen from the top: the last row of pixels of each line in a column of empty cells.
std::vector<int> LineEnds(const QImage& picture, int x, int from)
{
    std::vector<int> ends;
    for (int y = from; y + 1 < picture.height(); ++y)
        if (picture.pixel(x, y) != picture.pixel(x, y + 1) && picture.pixel(x, y + 1) == qRgb(255, 255, 255))
            ends.push_back(y + 1);
    return ends;
}

TEST(GridGeometry, rowsLieAtTheSameLogicalPlaceAtEveryRatioAndFontSize)
{
    const PaletteChange light(LightPalette());
    for (const double points : {8.25, 12.0}) {
        GridStage stage(points);
        stage.grid->Reset();
        stage.grid->AddColumn("One");
        stage.grid->RowCount(11);
        EXPECT_EQ(stage.tabs->InnerRect(), (Rect{0, 21, 384, 206}));
        EXPECT_EQ(stage.grid->CellRect({11, 1}), MakeRect(0, 20 + 150, 384, 15));
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const qt::PixelGrid pixels(ratio);
            std::vector<int> expected;
            for (int row = 0; row < 11; ++row) expected.push_back(pixels.Edge(41 + 15 * row));
            EXPECT_EQ(LineEnds(stage.Picture(ratio), pixels.Edge(200), pixels.Edge(30)), expected) << ratio;
        }
    }
}

TEST(GridGeometry, everyColumnHasRoomAndTheLastTakesWhatIsLeftOver)
{
    using qt::FittedWidths;
    using Widths = std::vector<std::int32_t>;
    EXPECT_EQ(FittedWidths({32, 78, 60}, 200, 16), (Widths{32, 78, 90}));
    EXPECT_EQ(FittedWidths({32, 116, 60}, 148, 16), (Widths{26, 78, 44}));
    EXPECT_EQ(FittedWidths({32, 78}, 20, 16), (Widths{16, 16}));
    EXPECT_EQ(FittedWidths({}, 20, 16), Widths{});
}

TEST(GridGeometry, widenedColumnsShowTheirTextsWholeAndTheLastTakesTheRest)
{
    GridStage stage;
    const QString text = QStringLiteral("Longer than most");
    const int needed = QFontMetrics(stage.control.TextFont()).horizontalAdvance(text);
    stage.grid->CellText({11, 2}, text.toStdString());
    EXPECT_LT(stage.grid->CellRect({11, 2}).width(), needed);
    stage.Window().WidenColumns();
    EXPECT_GT(stage.grid->CellRect({11, 2}).width(), needed);
    EXPECT_EQ(stage.grid->CellRect({11, stage.grid->ColumnCount()}).right, 384);
}

class GridInput : public ::testing::Test, public GridStage {
protected:
    GridInput() { ShowActive(); }
};

TEST_F(GridInput, keysGoToTheReceiverFirst)
{
    events.nConsumed = vxKeyDown;
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_F2, Qt::Key_Return}) QTest::keyClick(&Window(), key);
    QTest::keyClick(&Window(), Qt::Key_X);
    QTest::keyClick(&Window(), Qt::Key_Down, Qt::AltModifier);
    events.nConsumed = vxKeyTab;
    QTest::keyClick(&Window(), Qt::Key_Tab);
    EXPECT_TRUE(grid->HasFocus());
    EXPECT_THAT(events.Take(), ::testing::IsSupersetOf(
                                   {"key 40 0", "key 113 0", "key 13 0", "key 88 0", "text x", "key 40 4", "key 9 0"}));
    EXPECT_EQ(grid->CurrentCell(), (GridCell{4, 6})) << "the grid moves nothing by itself";
}

TEST_F(GridInput, aSecondPressOnTheCurrentEditableCellOpensTheEditorAndADoubleClickDoesNot)
{
    QApplication::setDoubleClickInterval(20);
    const auto press = [&](GridCell cell) { QTest::mouseClick(Cells(), Qt::LeftButton, {}, Middle(cell)); };
    events.onDown = [&](const GridMouse& mouse) { grid->CurrentCell(grid->CellAt(mouse.at), true); };
    press({6, 6});
    EXPECT_EQ(grid->CurrentCell(), (GridCell{6, 6}));
    QTest::mouseDClick(Cells(), Qt::LeftButton, {}, Middle({6, 6}));
    QTest::qWait(60);
    EXPECT_FALSE(grid->EditedCell()) << "a first press, or a double click";
    press({6, 6});
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid->EditedCell() == GridCell{6, 6}; }));
    EXPECT_THAT(events.lines, ::testing::IsSupersetOf({"double 1 352,102", "start 6/6"}));
}

TEST_F(GridInput, anEditorWritesOrGivesUp)
{
    const GridCell cell{2, 6};
    ASSERT_TRUE(grid->StartEditing(cell, std::nullopt));
    qt::GridEditor* editor = Window().Editor();
    EXPECT_EQ(editor->selectedText(), "Mixer");
    EXPECT_EQ(editor->geometry(), Window().visualRect(Window().Model().IndexOf(cell)).adjusted(0, 0, -1, -1));
    QTest::keyClicks(editor, "Stirrer");
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(grid->CellText(cell), "Mixer");
    EXPECT_TRUE(grid->HasFocus());

    grid->StartEditing(cell, "A very long comment that needs more room than its cell has to offer");
    EXPECT_EQ(Window().Editor()->geometry().right() + 1, Cells()->width());
    EXPECT_LT(Window().Editor()->geometry().left(), grid->CellRect(cell).left);
    grid->CommitEditor();
    EXPECT_TRUE(grid->EditedCell());
    grid->CellText(cell, "undone");
    EXPECT_EQ(Window().Editor()->text(), "undone") << "nothing was typed since";
    QTest::keyClick(Window().Editor(), Qt::Key_X);
    grid->CellText(cell, "other");
    grid->EndEditing(true);
    EXPECT_EQ(grid->CellText(cell), "x");

    grid->StartEditing(cell, "lost focus");
    tabs->Events(nullptr);
    Tabs().setFocus();
    EXPECT_EQ(grid->CellText(cell), "lost focus");
    events.bRefuses = true;
    EXPECT_FALSE(grid->StartEditing(cell, std::nullopt));
    EXPECT_EQ(std::count(events.lines.begin(), events.lines.end(), "end 2/6"), 3);
}

TEST_F(GridInput, whileEditingTheReceiverHasTheKeysFirstAndUndoLeavesTheEditor)
{
    grid->StartEditing({2, 6}, std::nullopt);
    qt::GridEditor* editor = Window().Editor();
    events.Take();
    events.nConsumed = vxKeyReturn;
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(grid->EditedCell());
    QTest::keyClicks(editor, "new");
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), "new") << "undoing is the host's";
    EXPECT_EQ(std::count(events.lines.begin(), events.lines.end(), "key 90 2"), 1);
    events.nConsumed = -1;
    QTest::keyClick(editor, Qt::Key_Tab);
    EXPECT_FALSE(grid->EditedCell());
    EXPECT_EQ(grid->CellText({2, 6}), "new");
}

TEST_F(GridInput, aPushButtonIsClickedWhenItIsReleasedWhereItWasPressed)
{
    QTest::mouseClick(Cells(), Qt::LeftButton, {}, Middle({5, 4}));
    EXPECT_EQ(events.Take(), (Lines{"down 1 232,87", "up 1 232,87", "button 5/4"}));
    QTest::mousePress(Cells(), Qt::LeftButton, {}, Middle({5, 4}));
    QTest::mouseRelease(Cells(), Qt::LeftButton, {}, Middle({6, 4}));
    QTest::mouseClick(Cells(), Qt::RightButton, {}, Middle({5, 4}));
    EXPECT_FALSE(::testing::Value(events.lines, ::testing::Contains("button 5/4")));
}

TEST_F(GridInput, columnsThatTheUserMovesOrResizesKeepTheirNumbers)
{
    auto& header = Window().Header();
    QWidget* captions = header.viewport();
    const auto drag = [&](QPoint from, QPoint to) {
        QTest::mousePress(captions, Qt::LeftButton, {}, from);
        QTest::mouseMove(captions, (from + to) / 2);
        QMouseEvent move(QEvent::MouseMove, to, captions->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(captions, &move);
        QTest::mouseRelease(captions, Qt::LeftButton, {}, to);
    };
    drag({32 + 78 - 1, 10}, {32 + 98 - 1, 10});
    EXPECT_EQ(grid->ColumnWidth(2), 98);
    drag({10, 10}, {100, 10});
    EXPECT_EQ(grid->ColumnOrder(), (std::vector<std::int32_t>{2, 1, 3, 4, 5, 6}));
    EXPECT_EQ(events.Take(), (Lines{"columns", "columns"}));
    EXPECT_EQ(grid->CellAt({5, 30}), (GridCell{1, 2}));
    grid->ColumnOrder({6, 1, 2, 3, 4, 5});
    grid->ColumnOrder({1, 1, 2, 3, 4, 5});
    grid->ColumnWidth(2, 40);
    EXPECT_EQ(grid->ColumnOrder().front(), 6);
    EXPECT_EQ(events.lines, Lines{}) << "what the program does is no news";
}

TEST_F(GridInput, dragsTellTheirPointInTheGrid)
{
    QMimeData data;
    QDragEnterEvent enter({3, 4}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Cells(), &enter);
    QDropEvent drop({5, 6}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Cells(), &drop);
    grid->OLEDrag();
    EXPECT_EQ(events.lines, (Lines{"over 1 3,24 0", "drop 1 5,26", "drag", "complete 0"}));
}

TEST_F(GridInput, tooltipsArePlainTextAndShowWhatIsCutOff)
{
    const auto ask = [&](GridCell cell) {
        QHelpEvent help(QEvent::ToolTip, Middle(cell), Cells()->mapToGlobal(Middle(cell)));
        QApplication::sendEvent(Cells(), &help);
        return QToolTip::text();
    };
    EXPECT_FALSE(Qt::mightBeRichText(ask({1, 2})));
    EXPECT_EQ(ask({4, 6}), "Limit switches, conveyor belt and gate");
}

TEST_F(GridInput, scrollsByRowsAndTellsTheTopRow)
{
    grid->Move(MakeRect(0, 21, 384, 20 + 5 * 15));
    grid->MakeRowVisible(7);
    EXPECT_EQ(grid->TopRow(), 3);
    EXPECT_EQ(grid->CellRect({3, 1}).top, 20);
    grid->MakeRowVisible(5);
    EXPECT_EQ(events.lines, Lines{"top"});
}

TEST_F(GridInput, refusesWhatIsNotThereAndMayOutliveItsWindow)
{
    EXPECT_THROW(grid->CellText({12, 1}), VxError);
    EXPECT_THROW(grid->CellText({1, 7}, "x"), VxError);
    EXPECT_EQ(grid->CellAt({-1, 5}), (GridCell{-1, 0}));
    events.onDown = [this](const GridMouse& /*mouse*/) { grid.reset(); };
    const auto cells = Cells();
    QTest::mouseClick(cells, Qt::LeftButton, {}, {5, 5});
    grid = toolkit.CreateGrid(site, "vxgrd_Main", MakeRect(0, 0, 10, 10));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete &Window();
    grid->Redraw(true);
    EXPECT_EQ(grid->CurrentCell(), GridCell{});
}

} // namespace
} // namespace zqbchwcx::testing
