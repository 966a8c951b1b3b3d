#include "tests/qt/EventRecorder.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/QtClipboard.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

class Drag : public ::testing::Test {
protected:
    Drag() { mBox.Receiver(&mEvents); }
    ~Drag() override { mBox.Receiver(nullptr); }

    template <class Event>
    Qt::DropAction Send(QPoint at, Qt::KeyboardModifiers modifiers = {})
    {
        Event event(at, Qt::CopyAction | Qt::MoveAction, &mForeign, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&mBox, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    const std::int16_t mFormat = qt::ClipboardFormatNumber("VxHWConfigText");
    qt::ControlWidget mControl{nullptr, qt::ControlWidget::Backdrop::Own};
    qt::PictureBoxWidget mBox{mControl, "pic_Main", MakeRect(0, 0, 100, 100)};
    EventRecorder mEvents;
    QMimeData mForeign;
};

TEST_F(Drag, overAWindowIsEnterThenOverThenLeaveOrDrop)
{
    mForeign.setData("application/x-vxhwconfigtext", "text");
    mEvents.lAnswer = vxDropEffectCopy;
    EXPECT_EQ(Send<QDragEnterEvent>({3, 4}, Qt::ShiftModifier), Qt::CopyAction);
    mEvents.lAnswer = vxDropEffectMove;
    EXPECT_EQ(Send<QDragMoveEvent>({5, 6}, Qt::ControlModifier), Qt::MoveAction);
    mEvents.lAnswer = vxDropEffectNone;
    EXPECT_EQ(Send<QDragMoveEvent>({7, 8}), Qt::IgnoreAction);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&mBox, &leave);
    QApplication::sendEvent(&mBox, &leave);
    Send<QDragEnterEvent>({9, 9});
    mEvents.lines.pop_back();
    mEvents.lAnswer = vxDropEffectMove;
    EXPECT_EQ(Send<QDropEvent>({9, 9}), Qt::MoveAction);
    EXPECT_EQ(mEvents.lines, (Lines{"over text 3 1 1 3 4 0", "over text 3 1 2 5 6 2", "over text 3 1 0 7 8 2",
                                    "over text 3 1 0 7 8 1", "drop text 3 1 0 9 9"}));
}

TEST_F(Drag, aRefusedPositionDoesNotEndTheDrag)
{
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &mForeign, Qt::LeftButton, {});
    QDragMoveEvent move({1, 1}, Qt::CopyAction, &mForeign, Qt::LeftButton, {});
    QApplication::sendEvent(&mBox, &enter);
    EXPECT_TRUE(enter.isAccepted()) << "or the window would not be told of further positions";
    EXPECT_EQ(enter.dropAction(), Qt::IgnoreAction);
    mEvents.lAnswer = vxDropEffectMove;
    QApplication::sendEvent(&mBox, &move);
    EXPECT_FALSE(move.isAccepted()) << "an effect that the source does not allow";
}

TEST_F(Drag, announcedDataAreAskedForOnceAndOnlyWhenWanted)
{
    const auto other = qt::ClipboardFormatNumber("Host Exchange");
    auto source = std::make_shared<qt::SourceDataObject>();
    int asked = 0;
    source->OnWanted([&](std::int16_t nFormat) {
        ++asked;
        source->SetData(nFormat, Bytes("late"));
    });
    source->SetData(mFormat, Bytes("now"));
    source->AnnounceFormat(other);
    const qt::SourceMimeData mime(source);
    EXPECT_TRUE(mime.hasFormat("application/x-host exchange"));
    EXPECT_TRUE(source->GetFormat(other));
    EXPECT_EQ(mime.data("application/x-vxhwconfigtext"), "now");
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(mime.data("application/x-host exchange"), "late");
    EXPECT_EQ(source->GetData(other), Bytes("late"));
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(mime.data("text/plain").isEmpty());
}

TEST_F(Drag, withoutDataOrEffectsIsCompleteAtOnce)
{
    mBox.Drag();
    mEvents.onStart = [&](DataObject& /*data*/, std::int32_t& lAllowed) { lAllowed = vxDropEffectCopyOrMove; };
    mBox.Drag();
    mEvents.onStart = [&](DataObject& data, std::int32_t& /*lAllowed*/) { data.SetData(mFormat, Bytes("x")); };
    mBox.Drag();
    EXPECT_EQ(mEvents.lines, (Lines{"start", "complete 0", "start", "complete 0", "start", "complete 0"}));
}

TEST(Clipboard, carriesFormatsByNumber)
{
    using qt::QtClipboard;
    const auto first = qt::ClipboardFormatNumber("VxHWConfigText");
    const auto second = qt::ClipboardFormatNumber("Second");
    EXPECT_EQ(qt::ClipboardFormatNumber("VXHWCONFIGTEXT"), first);
    QtClipboard::SetData({{first, Bytes("one")}, {second, Bytes("two")}});
    EXPECT_EQ(QtClipboard::GetData(first), Bytes("one"));
    QtClipboard::SetData({{second, Bytes("three")}});
    EXPECT_TRUE(QtClipboard::GetFormat(second) && !QtClipboard::GetFormat(first) && !QtClipboard::GetFormat(1));
    EXPECT_TRUE(QtClipboard::GetData(first).empty());
    EXPECT_THROW(QtClipboard::SetData({{1, Bytes("x")}}), VxError);
}

} // namespace
} // namespace zqbchwcx::testing
