#include "tests/qt/GridStage.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/PopupFormWidget.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

class Windows : public ::testing::Test, public GridStage {
protected:
    Windows() { ShowActive(); }

    QPoint TabMiddle(int tab) { return Tabs().tabRect(tab).center(); }
    bool Tells(const std::string& line)
    {
        return QTest::qWaitFor([&] { return std::count(events.lines.begin(), events.lines.end(), line) > 0; });
    }
};

TEST_F(Windows, tabsTellOfClicksAndOfWhatRestsOnThem)
{
    tabs->SelectedTab(2);
    tabs->Enabled(2, false);
    EXPECT_EQ(tabs->SelectedTab(), 2) << "a disabled tab stays selected";
    tabs->Enabled(2, true);
    EXPECT_EQ(events.lines, Lines{}) << "what the program does is no news";

    for (const int tab : {3, 1}) {
        const QPointF at = TabMiddle(tab);
        QMouseEvent move(QEvent::MouseMove, at, Tabs().mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(&Tabs(), &move);
    }
    EXPECT_TRUE(Tells("hover 1"));
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, TabMiddle(0));
    EXPECT_TRUE(Tells("click 0"));
    QMimeData data;
    QDragEnterEvent enter(TabMiddle(2), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&Tabs(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDragMoveEvent move(TabMiddle(2), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&Tabs(), &move);
    EXPECT_EQ(move.dropAction(), Qt::IgnoreAction);
    EXPECT_TRUE(Tells("drag hover 2"));
    EXPECT_EQ(events.Take(), (Lines{"hover 1", "click 0", "drag hover 2"}));

    tabs->Caption(0, "A & B");
    EXPECT_EQ(Tabs().tabText(0), "A && B");
    EXPECT_EQ(Tabs().accessibleTabName(0), "A & B");
    EXPECT_THROW(tabs->Caption(4, "none"), VxError);
    EXPECT_EQ(Tabs().height(), 21);
}

TEST_F(Windows, aPopupFormTakesNoFocusAndIsGoneWhenItsWindowChanges)
{
    struct Recorder : PopupFormEvents {
        void MouseDown(std::int16_t nButton, std::int16_t /*nShift*/, Point at) noexcept override
        {
            lines.push_back("down " + std::to_string(nButton) + " " + std::to_string(at.x));
        }
        void DblClick() noexcept override { lines.emplace_back("double"); }
        void Closed() noexcept override { lines.emplace_back("closed"); }
        Lines lines;
    } received;
    const auto form = toolkit.CreatePopupForm(site, "frm_SubModules");
    form->Events(&received);
    auto* shown = control.findChild<qt::PopupFormWidget*>("frm_SubModules");
    const auto show = [&] {
        form->Show(MakeRect(30, 40, 100, 50));
        EXPECT_TRUE(form->Visible());
    };
    show();
    EXPECT_EQ(shown->geometry(), QRect(30, 40, 100, 50));
    EXPECT_TRUE(grid->HasFocus());
    form->DrawLeftText("A name that is too long for it", MakeRect(2, 2, 40, 13), vxColorWindowText);
    const QImage& picture = shown->Picture().Pixels();
    EXPECT_NE(picture.copy(0, 0, 42, 16), picture.copy(42, 0, 42, 16));
    EXPECT_EQ(picture.copy(42, 0, 58, 50), picture.copy(42, 0, 58, 50).mirrored()) << "text left its box";
    QTest::mouseDClick(shown, Qt::LeftButton, {}, {7, 7});
    EXPECT_EQ(received.lines.back(), "double");
    EXPECT_TRUE(form->WorkArea({50, 50}).width() > 0 && form->TextHeight() > 8);

    received.lines.clear();
    for (const auto& change :
         std::vector<std::function<void()>>{[&] { window.move(window.pos() + QPoint(5, 0)); },
                                            [&] { window.resize(420, 240); }, [&] { window.showMinimized(); }}) {
        show();
        change();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form->Visible(); }));
        window.showNormal();
    }
    EXPECT_EQ(received.lines, (Lines{"closed", "closed", "closed"}));
}

TEST_F(Windows, aSpySeesTheFocusGoAndAHookThePresses)
{
    Lines seen;
    const auto note = [&seen](const char* what) {
        return [&seen, what](std::int32_t lMessage, std::intptr_t hWnd) {
            const QWidget* met = qt::WidgetOf(hWnd);
            seen.push_back(what + std::to_string(lMessage) + " " +
                           (met != nullptr ? met->objectName().toStdString() : "other"));
        };
    };
    auto spy = toolkit.CreateWindowSpy(grid->hWnd(), note("spy "));
    Tabs().setFocus();
    grid->SetFocus();
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(std::exchange(seen, {}), (Lines{"spy 8 vxtab_Main", "spy 8 other"}));
    spy.reset();
    EXPECT_THROW(toolkit.CreateWindowSpy(0, note("")), VxError);

    auto hook = toolkit.CreateMouseHook(note("hook "));
    const QPoint inGrid = Window().mapTo(&window, QPoint(50, 50));
    QTest::mouseMove(window.windowHandle(), inGrid);
    QTest::mousePress(window.windowHandle(), Qt::RightButton, {}, inGrid);
    QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {}, inGrid);
    EXPECT_EQ(seen.front(), "hook 516 vxgrd_Main");
    hook.reset();
    seen.clear();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inGrid);
    EXPECT_EQ(seen, Lines{});
}

} // namespace
} // namespace zqbchwcx::testing
