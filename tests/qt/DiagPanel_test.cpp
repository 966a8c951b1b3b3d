#include "tests/qt/Palettes.h"
#include "tests/qt/ReferencePicture.h"
#include "tests/support/StationStage.h"
#include "tests/support/model/FakeModelServices.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"
#include "zqbchwcx/qt/DiagPanelWidget.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"

#include <QAccessible>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

namespace zqbchwcx::testing {
namespace {

/// The real panel beside another window that takes the keyboard, at a faulty module.
class DiagPanelWidget : public ::testing::Test {
protected:
    DiagPanelWidget()
    {
        services.host->texts = {{2006, "Module:"},         {2007, "Status:"},
                                {2008, "Module width:"},   {2009, "Order number"},
                                {2010, "Component"},       {2011, "Version"},
                                {2012, "Address:"},        {2013, "Place:"},
                                {2014, "Rack:"},           {2015, "Version:"},
                                {2016, "System:"},         {2017, "Diagnostics..."},
                                {2050, "Central station"}, {2021, "Module faulty"},
                                {2027, "Fault reported"},  {6104, "<b>No</b> information"}};
        panel = std::make_unique<qt::DiagPanelWidget>(&window);
        services.host->components = {{"Firmware", "V 2.1"}, {"Loader", "V 1.0"}};
        station->Put(0, 2, "CPU");
        diag->failures = {{"0/2", 1}};
        diag->diagStates = {{"0/2", 1}, {"0/2", 2}};
        manager.Initialize(vxStationTypeCentral, view, view, panel->Control(), station, diag);
    }
    ~DiagPanelWidget() override { manager.Terminate(); }

    QPlainTextEdit& Box(const char* name) { return *panel->findChild<QPlainTextEdit*>(name); }
    QImage Picture(int ratio)
    {
        QImage picture(panel->size() * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        QApplication::processEvents();
        panel->render(&picture);
        return picture;
    }

    TestServices services{SampleContext(), std::make_shared<qt::QtToolkit>()};
    WatchedStationPtr MakeStation()
    {
        reference::StationServices asked;
        asked.moduleDiagnostics = [this](reference::PlaceRef, std::int32_t) { onOpen(); };
        return std::make_shared<WatchedStation>(
            services.log, std::make_shared<reference::Station>(SampleContext(), EmptyStation(vxStationKindCentral, 1),
                                                               std::move(asked)));
    }

    std::function<void()> onOpen = [] {};
    WatchedStationPtr station = MakeStation();
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(services.log);
    std::shared_ptr<RecordingView> view = std::make_shared<RecordingView>(services.log, "view");
    QWidget window;
    std::unique_ptr<qt::DiagPanelWidget> panel; ///< reads its texts at the start
    VxHWDiagManager manager;
};

TEST_F(DiagPanelWidget, looksTheSameAtEveryRatioAndInEveryPalette)
{
    window.resize(panel->size());
    window.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.setFocus(); // no caret blinks in the boxes
    manager.VxHWSelectionHandler()->FocusPosition(G_PlacePosition(0, 2));
    EXPECT_TRUE(LooksLikeReference(Picture(1), "diag-panel-1x"));
    const PaletteChange dark(DarkPalette());
    EXPECT_TRUE(LooksLikeReference(Picture(2), "diag-panel-dark-2x"));
}

TEST_F(DiagPanelWidget, isReadAndCopiedByKeyboard)
{
    window.resize(panel->size());
    window.show();
    QApplication::setActiveWindow(&window);
    manager.VxHWSelectionHandler()->FocusPosition(G_PlacePosition(0, 2));
    panel->setFocus();
    std::string way;
    for (int i = 0; i < 9; ++i) {
        way += " " + QApplication::focusWidget()->objectName().toStdString();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(way, " vxinf_ModuleName vxinf_Status vxinf_Address vxinf_ModuleWidth vxinf_Place vxinf_Rack "
                   "vxinf_SystemID vxgrd_InfoVersion vxinf_ModuleName")
        << "the button is off";
    Box("vxinf_Status").setFocus();
    QTest::keyClick(&Box("vxinf_Status"), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Box("vxinf_Status"), Qt::Key_X);
    QTest::keyClick(&Box("vxinf_Status"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Module faulty\nFault reported");
    manager.Refresh();
    EXPECT_TRUE(Box("vxinf_Status").textCursor().hasSelection()) << "a refresh leaves what is being copied";

    auto* spoken = QAccessible::queryAccessibleInterface(&Box("vxinf_Status"));
    EXPECT_EQ(spoken->text(QAccessible::Name), "Status:");
    EXPECT_EQ(spoken->textInterface()->text(0, 13), "Module faulty");
    EXPECT_TRUE(spoken->state().readOnly);
}

TEST_F(DiagPanelWidget, itsButtonTellsWhyItIsOffAndLivesThroughWhatItOpens)
{
    window.show();
    auto* button = panel->findChild<QPushButton*>("vxcmd_AdditionalInfo");
    manager.VxHWSelectionHandler()->FocusPosition(G_PlacePosition(0, 2));
    QHelpEvent help(QEvent::ToolTip, {3, 3}, button->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(button, &help);
    EXPECT_FALSE(QToolTip::text().contains("<b>")) << "foreign text is no HTML";
    EXPECT_TRUE(QToolTip::text().contains("No"));
    diag->infos = {"0/2"};
    manager.Refresh();
    services.Lines().clear();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(services.Lines(), std::vector<std::string>{"ShowModuleDiagnostics 0/2"});
    onOpen = [&] { manager.Terminate(); };
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Box("vxinf_Status").toPlainText(), "") << "the mode is over";
    EXPECT_EQ(services.host->reports.size(), 0U);
}

} // namespace
} // namespace zqbchwcx::testing
