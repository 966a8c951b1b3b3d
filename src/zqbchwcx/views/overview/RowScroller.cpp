#include "zqbchwcx/views/overview/RowScroller.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zqbchwcx {
namespace {

// Milliseconds.
constexpr std::int32_t FirstRepeat = 500;
constexpr std::int32_t NextRepeat = 100;
constexpr std::int32_t RepeatInDrag = 250;

constexpr std::int32_t ButtonWidth = 217;
constexpr std::int32_t ButtonHeight = 14;
constexpr std::int32_t BarWidth = 13;
/// Below the last row that is seen.
constexpr std::int32_t Margin = 2;

} // namespace

RowScroller::RowScroller(const ViewContext& context, RedrawGate& gate, Canvas& canvas, std::int32_t lRowHeight,
                         Handlers handlers)
    : mContext(context), mCanvas(canvas), mlRowHeight(lRowHeight), mHandlers(std::move(handlers)),
      mStateConnection(mState.Change.Connect([this] { P_Scroll(); })),
      mUp(context, gate, "Up", ButtonArrow::Up, ActionsOf(Direction::Up)),
      mDown(context, gate, "Down", ButtonArrow::Down, ActionsOf(Direction::Down))
{
}

RowScroller::~RowScroller()
{
    G_Trap(mContext.className, "UserControl_Terminate", [&] {
        if (mscbMain) mscbMain->Events(nullptr);
        if (mtmrScroll) mtmrScroll->Enabled(false);
    });
}

ScrollButton::Actions RowScroller::ActionsOf(Direction eDirection)
{
    return {[this, eDirection] { Press(eDirection); }, [this, eDirection] { DragOver(eDirection); },
            [this] { EndRepeating(); }};
}

void RowScroller::Create(Toolkit& toolkit, UserControl& oControl)
{
    const std::int32_t lViewport = ViewportHeight();
    mlPictureWidth = mCanvas.Box().ScaleSize().width;
    mUp.Create(toolkit, oControl, MakeRect(BarWidth, 0, ButtonWidth, ButtonHeight));
    mscbMain = toolkit.CreateScrollBar(oControl, "scb_Main", MakeRect(0, ButtonHeight, BarWidth, lViewport));
    mscbMain->Events(this);
    mscbMain->Visible(false);
    mDown.Create(toolkit, oControl, MakeRect(BarWidth, ButtonHeight + lViewport, ButtonWidth, ButtonHeight));
    mtmrScroll = toolkit.CreateTimer();
    mtmrScroll->OnTimer([this] { tmr_Scroll_Timer(); });
}

ScrollBar& RowScroller::Bar() const
{
    return *G_Require(mscbMain, "The scroll bar");
}

Timer& RowScroller::Clock() const
{
    return *G_Require(mtmrScroll, "The timer of the scroll buttons");
}

void RowScroller::Rows(std::int32_t lRows, std::int32_t lVisibleRows, bool bFromTop)
{
    EndRepeating();
    mlRows = lRows;
    mlVisibleRows = lVisibleRows;
    mNotches = 0;
    const bool bScrolls = lRows > mlVisibleRows;
    Bar().Range(std::max(lRows - mlVisibleRows, 0), mlVisibleRows);
    Bar().Visible(bScrolls);
    mUp.Visible(bScrolls);
    mDown.Visible(bScrolls);
    mState.Maximum(lRows - mlVisibleRows);
    if (bFromTop) mState.Value(0);
    P_Scroll();
}

void RowScroller::Place(std::int32_t lBarWidth, std::int32_t lControlWidth)
{
    const std::int32_t lViewport = ViewportHeight();
    Bar().Move(MakeRect(0, ButtonHeight, lBarWidth, lViewport));
    mUp.Move(MakeRect(lBarWidth, 0, ButtonWidth, ButtonHeight));
    mDown.Move(MakeRect(lBarWidth, ButtonHeight + lViewport, ButtonWidth, ButtonHeight));
    mCanvas.MoveViewport({lBarWidth, ButtonHeight, std::max(lControlWidth, lBarWidth), ButtonHeight + lViewport});
}

std::int32_t RowScroller::ViewportHeight() const
{
    return mlVisibleRows * mlRowHeight + Margin;
}

Rect RowScroller::PictureRect() const
{
    const std::int32_t lRows = std::max(mlRows, mlVisibleRows);
    return MakeRect(0, -FirstRow() * mlRowHeight, mlPictureWidth, lRows * mlRowHeight + Margin);
}

void RowScroller::P_Scroll() noexcept
{
    G_Trap(mContext.className, "P_Scroll", [&] {
        Bar().Value(FirstRow());
        mCanvas.Box().Move(PictureRect());
        mUp.Enabled(CanScroll(Direction::Up));
        mDown.Enabled(CanScroll(Direction::Down));
        MarkTargets(mContext.IsDragActive());
        mHandlers.scrolled();
    });
}

void RowScroller::TakeBar(std::string_view procedure) noexcept
{
    G_Trap(mContext.className, procedure, [&] { mState.Value(Bar().Value()); });
}

bool RowScroller::CanScroll(Direction eDirection) const
{
    return eDirection == Direction::Up ? FirstRow() > mState.Minimum() : FirstRow() < mState.Maximum();
}

void RowScroller::EnsureVisible(std::int32_t lRow)
{
    mState.Value(std::clamp(FirstRow(), lRow - mlVisibleRows + 1, lRow));
}

bool RowScroller::Wheel(float notches)
{
    const Direction eDirection = notches > 0 ? Direction::Up : Direction::Down;
    if (notches == 0 || !CanScroll(eDirection)) return false;
    if (std::signbit(mNotches) != std::signbit(notches)) mNotches = 0;
    mNotches += notches;
    const float rows = std::trunc(mNotches);
    mNotches -= rows;
    ScrollBy(-static_cast<std::int32_t>(rows));
    return true;
}

void RowScroller::Press(Direction eDirection)
{
    ScrollBy(static_cast<std::int32_t>(eDirection));
    if (ButtonOf(eDirection).Enabled()) Repeat(Repeating::ForButton, eDirection, FirstRepeat);
}

void RowScroller::DragOver(Direction eDirection)
{
    const bool bGoesOn = meRepeating == Repeating::ForButton && meDirection == eDirection;
    if (!bGoesOn) Repeat(Repeating::ForButton, eDirection, RepeatInDrag);
}

void RowScroller::Repeat(Repeating eRepeating, Direction eDirection, std::int32_t lMilliseconds)
{
    meRepeating = eRepeating;
    meDirection = eDirection;
    Clock().Interval(lMilliseconds);
    Clock().Enabled(true);
}

void RowScroller::EndRepeating()
{
    meRepeating = Repeating::No;
    Clock().Enabled(false);
}

void RowScroller::tmr_Scroll_Timer() noexcept
{
    G_Trap(mContext.className, "tmr_Scroll_Timer", [&] {
        if (meRepeating == Repeating::No) return Clock().Enabled(false);
        if (meRepeating == Repeating::ForBand) return StepBand();
        ScrollBy(static_cast<std::int32_t>(meDirection));
        ScrollButton& button = ButtonOf(meDirection);
        if (!button.Enabled()) {
            button.Pressed(false);
            EndRepeating();
        } else if (!mContext.IsDragActive()) {
            Clock().Interval(NextRepeat);
        }
    });
}

void RowScroller::FollowBand(std::optional<Point> at)
{
    const std::int32_t lTop = FirstRow() * mlRowHeight;
    const std::int32_t lViewport = ViewportHeight();
    const bool bAbove = at && at->y < lTop;
    const bool bBelow = at && at->y >= lTop + lViewport;
    if (at) mBandEnd = {at->x, at->y - lTop};
    if (bAbove || bBelow) P_ScrollOnRubberBand(bAbove ? Direction::Up : Direction::Down);
    else if (meRepeating == Repeating::ForBand) EndRepeating();
}

void RowScroller::P_ScrollOnRubberBand(Direction eDirection)
{
    if (meRepeating == Repeating::ForBand && meDirection == eDirection) return;
    Repeat(Repeating::ForBand, eDirection, NextRepeat);
    StepBand();
}

void RowScroller::StepBand()
{
    if (!CanScroll(meDirection)) return EndRepeating();
    ScrollBy(static_cast<std::int32_t>(meDirection));
    mHandlers.extendBand({mBandEnd.x, mBandEnd.y + FirstRow() * mlRowHeight});
}

void RowScroller::DragActive(bool bActive)
{
    MarkTargets(bActive);
    if (bActive) return;
    mUp.Pressed(false);
    mDown.Pressed(false);
    EndRepeating();
}

void RowScroller::MarkTargets(bool bDrag)
{
    for (ScrollButton* button : {&mUp, &mDown}) button->MarkAsTarget(bDrag && button->Enabled());
}

} // namespace zqbchwcx
