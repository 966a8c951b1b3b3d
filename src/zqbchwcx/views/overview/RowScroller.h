#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/ScrollButton.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/ScrollState.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>
#include <optional>
#include <string>

namespace zqbchwcx {

/// Scrolls the picture of an overview by rows: with a bar, two buttons, the wheel, and by itself where a rubber band
/// leaves the viewport. Where all rows are in the viewport, neither bar nor buttons are shown.
class RowScroller : private ScrollBarEvents {
public:
    struct Handlers {
        std::function<void()> scrolled;        ///< another row is the first
        std::function<void(Point)> extendBand; ///< the rubber band reaches to that point of the picture now
    };

    /// Heights in logical pixels.
    RowScroller(const ViewContext& context, RedrawGate& gate, Canvas& canvas, std::int32_t lRowHeight,
                Handlers handlers);
    ~RowScroller() override;
    RowScroller(const RowScroller&) = delete;
    RowScroller& operator=(const RowScroller&) = delete;

    /// Makes the buttons and the bar. The picture is there already.
    void Create(Toolkit& toolkit, UserControl& oControl);
    /// The picture has that many rows, of which the viewport shows so many. From the top: the first one, as for another
    /// station.
    void Rows(std::int32_t lRows, std::int32_t lVisibleRows, bool bFromTop);
    /// The bar's width moves everything else; the viewport ends at the control's right edge. Logical pixels.
    void Place(std::int32_t lBarWidth, std::int32_t lControlWidth);

    std::int32_t FirstRow() const { return mState.Value(); }
    bool IsVisible(std::int32_t lRow) const { return lRow >= FirstRow() && lRow < FirstRow() + mlVisibleRows; }
    void EnsureVisible(std::int32_t lRow);
    /// False when there is no row in that direction.
    bool Wheel(float notches);
    /// The mouse holds the end of a rubber band at that point of the picture; nothing when the band has ended.
    void FollowBand(std::optional<Point> at);
    /// While a drag goes on, buttons that can scroll are marked.
    void DragActive(bool bActive);

private:
    enum class Direction { Up = -1, Down = 1 };
    enum class Repeating { No, ForButton, ForBand };

    // ScrollBarEvents
    void Change() noexcept override { TakeBar("scb_Main_Change"); }
    void Scroll() noexcept override { TakeBar("scb_Main_Scroll"); }

    void TakeBar(std::string_view procedure) noexcept;
    void P_Scroll() noexcept;
    void P_ScrollOnRubberBand(Direction eDirection);
    void Press(Direction eDirection);
    void DragOver(Direction eDirection);
    void Repeat(Repeating eRepeating, Direction eDirection, std::int32_t lMilliseconds);
    void EndRepeating();
    void tmr_Scroll_Timer() noexcept;
    bool CanScroll(Direction eDirection) const;
    void ScrollBy(std::int32_t lRows) { mState.Value(FirstRow() + lRows); }
    void StepBand();
    ScrollButton& ButtonOf(Direction eDirection) { return eDirection == Direction::Up ? mUp : mDown; }
    ScrollButton::Actions ActionsOf(Direction eDirection);
    Rect PictureRect() const;
    std::int32_t ViewportHeight() const;
    void MarkTargets(bool bDrag);
    ScrollBar& Bar() const;
    Timer& Clock() const;

    const ViewContext& mContext;
    Canvas& mCanvas;
    std::int32_t mlRowHeight;
    Handlers mHandlers;
    ScrollState mState;
    EventConnection mStateConnection;
    ScrollButton mUp;
    ScrollButton mDown;
    ScrollBarPtr mscbMain;
    TimerPtr mtmrScroll;
    std::int32_t mlRows = 0;
    std::int32_t mlVisibleRows = 4;
    std::int32_t mlPictureWidth = 0;
    Repeating meRepeating = Repeating::No;
    Direction meDirection = Direction::Down;
    float mNotches = 0; ///< of the wheel, not a whole row yet
    Point mBandEnd;     ///< in the viewport
};

} // namespace zqbchwcx
