#include "tests/qt/EventRecorder.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/qt/QtUserControl.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

/// A control with one picture box, under the other one a shape, in a window with another focusable child.
class Input : public ::testing::Test {
protected:
    Input()
    {
        mSite.Events(&mControlEvents);
        mBox = mToolkit.CreatePictureBox(mSite, "pic_Main", MakeRect(4, 0, 100, 80));
        mBox->Events(&mBoxEvents);
        mCover = mToolkit.CreatePictureBox(mSite, "pic_Drag", MakeRect(40, 0, 100, 80));
        mShape = mToolkit.CreateShape(mSite, "shp_Arrow", MakeRect(0, 0, 150, 20));
        mNeighbour.setFocusPolicy(Qt::StrongFocus);
        mWindow.resize(200, 100);
        mControl.resize(150, 100);
        mNeighbour.setGeometry(150, 0, 50, 100);
        mWindow.show();
        QApplication::setActiveWindow(&mWindow);
        mBox->SetFocus();
        mBoxEvents.lines.clear();
        mControlEvents.lines.clear();
    }
    ~Input() override
    {
        mBox->Events(nullptr);
        mSite.Events(nullptr);
    }

    QWidget* Box() { return mControl.findChild<qt::PictureBoxWidget*>("pic_Main"); }

    qt::QtToolkit mToolkit;
    EventRecorder mBoxEvents;
    EventRecorder mControlEvents;
    QWidget mWindow;
    qt::ControlWidget mControl{&mWindow, qt::ControlWidget::Backdrop::Own};
    QWidget mNeighbour{&mWindow};
    qt::QtUserControl mSite{mControl};
    PictureBoxPtr mBox;
    PictureBoxPtr mCover;
    ShapePtr mShape;
};

TEST_F(Input, theMouseTellsButtonsModifiersAndPixels)
{
    QTest::mousePress(Box(), Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, {7, 9});
    QTest::mouseMove(Box(), {8, 9});
    QMouseEvent held(QEvent::MouseMove, QPointF(12.7, 3.5), QPointF(), Qt::NoButton, Qt::LeftButton | Qt::RightButton,
                     Qt::AltModifier);
    QApplication::sendEvent(Box(), &held);
    QTest::mouseRelease(Box(), Qt::RightButton, Qt::NoModifier, {8, 9});
    EXPECT_THAT(mBoxEvents.Take(), ::testing::IsSupersetOf({"down 2 3 7 9", "move 3 4 12 3", "up 2 0 8 9"}));
}

TEST_F(Input, aDoubleClickIsDownUpDoubleUp)
{
    QTest::mouseClick(Box(), Qt::LeftButton, {}, {5, 5});
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(Box(), &second);
    QTest::mouseRelease(Box(), Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(mBoxEvents.Take(), (Lines{"down 1 0 5 5", "up 1 0 5 5", "double", "up 1 0 5 5"}));
}

TEST_F(Input, whatHasNoReceiverLetsTheMouseThrough)
{
    EXPECT_EQ(mControl.childAt(50, 10), Box()) << "below a box without receiver and a shape";
    mCover->Events(&mBoxEvents);
    EXPECT_EQ(mControl.childAt(50, 10)->objectName(), "pic_Drag");
    mCover->Events(nullptr);
    mCover->Visible(false);
    EXPECT_FALSE(mCover->Visible());
    EXPECT_EQ(mControl.childAt(50, 10), Box());

    const auto viewport = mToolkit.CreateChildControl(mSite, "pic_Back", MakeRect(20, 0, 60, 80));
    EXPECT_EQ(mControl.childAt(50, 10), Box()) << "below an empty control";
    auto inViewport = mToolkit.CreatePictureBox(*viewport, "pic_Scroll", MakeRect(0, 0, 50, 200));
    EXPECT_NE(mControl.childAt(50, 10)->objectName(), "pic_Scroll");
    inViewport->Events(&mBoxEvents);
    EXPECT_EQ(mControl.childAt(50, 10)->objectName(), "pic_Scroll");
    inViewport->Events(nullptr);
}

TEST_F(Input, keysReachTheControlAndArrowsDoNotLeaveIt)
{
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space, Qt::Key_Enter})
        QTest::keyPress(Box(), key, Qt::ShiftModifier);
    QTest::keyClick(Box(), Qt::Key_F10, Qt::ShiftModifier);
    QTest::keyClick(Box(), Qt::Key_Menu);
    EXPECT_EQ(mControlEvents.lines, (Lines{"key 37 1", "key 38 1", "key 39 1", "key 40 1", "key 32 1", "key 13 1",
                                           "key 121 1", "release 121 1", "key 93 0", "release 93 0"}));
    EXPECT_TRUE(mBox->HasFocus());
}

TEST_F(Input, focusIsToldAndAMenuDoesNotTakeIt)
{
    mNeighbour.setFocus();
    mControl.setFocus();
    EXPECT_EQ(mBoxEvents.Take(), (Lines{"no focus", "focus"}));

    const auto menu = mToolkit.CreatePopupMenu(mSite, "pmnu_Main");
    menu->Add("pmnu_First", "First");
    menu->Add("pmnu_Line", "-");
    menu->Add("pmnu_Second", "Second");
    menu->Enabled(0, false);
    Lines clicks;
    menu->OnClick([&](std::int32_t lItem) { clicks.push_back(std::to_string(lItem)); });
    bool bBold = false;
    QTimer::singleShot(50, [&] {
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(shown, nullptr);
        bBold = shown->defaultAction() != nullptr && shown->defaultAction()->text() == "Second";
        EXPECT_EQ(shown->pos(), mControl.mapToGlobal(QPoint(30, 33)));
        QTest::keyClick(shown, Qt::Key_Down);
        QTest::keyClick(shown, Qt::Key_Return);
    });
    menu->Show(Point{30, 33}, 2);
    EXPECT_EQ(clicks, Lines{"2"}) << "the disabled item and the separator are passed over";
    EXPECT_TRUE(bBold);
    EXPECT_TRUE(mBox->HasFocus());
    EXPECT_EQ(mBoxEvents.Take(), Lines{});
}

TEST_F(Input, tooltipsShowPlainTextInTheirArea)
{
    struct Callback : TooltipCallback {
        Tooltip GetTooltip(Point at) noexcept override
        {
            return at.x < 50 ? Tooltip{"DI 16 <b>\r\n24 V", {0, 0, 50, 50}} : Tooltip{};
        }
    } callback;
    auto connection = mToolkit.GetTooltipService().Connect(mBox->hWnd(), callback);
    const auto ask = [&](QPoint at) {
        QHelpEvent help(QEvent::ToolTip, at, Box()->mapToGlobal(at));
        QApplication::sendEvent(Box(), &help);
    };
    ask({10, 10});
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_FALSE(Qt::mightBeRichText(QToolTip::text())) << "markup in a name is text";
    ask({60, 10});
    QTest::qWait(400);
    EXPECT_FALSE(QToolTip::isVisible());
    connection.reset();
    ask({10, 10});
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(Input, aTimerRepeatsUntilItIsStoppedInItsOwnEvent)
{
    const auto timer = mToolkit.CreateTimer();
    int count = 0;
    timer->Interval(5);
    timer->OnTimer([&] {
        if (++count == 3) timer->Enabled(false);
    });
    timer->Enabled(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return count == 3; }, 2000));
    QTest::qWait(30);
    EXPECT_EQ(count, 3);
}

TEST(InputTranslation, knowsTheKeysOfEveryKeyboard)
{
    const std::pair<Qt::Key, int> keys[] = {{Qt::Key_A, 65},
                                            {Qt::Key_0, 48},
                                            {Qt::Key_F1, 112},
                                            {Qt::Key_Clear, vxKeyClear},
                                            {Qt::Key_Delete, vxKeyDelete},
                                            {Qt::Key_MediaPlay, 0}};
    for (const auto& [key, code] : keys) EXPECT_EQ(qt::ToKeyCode(key), code);
}

} // namespace
} // namespace zqbchwcx::testing
