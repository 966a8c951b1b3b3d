#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// A button that scrolls by a row, in a frame that shows it as a target during a drag.
class ScrollButton : private ButtonEvents {
public:
    /// What the button asks for. Repeating goes on until it ends.
    struct Actions {
        std::function<void()> press;    ///< scroll, and repeat
        std::function<void()> dragOver; ///< repeat, slowly; told again and again
        std::function<void()> end;
    };
    /// "Up" or "Down": the end of its names.
    ScrollButton(const ViewContext& context, RedrawGate& gate, std::string_view suffix, ButtonArrow eArrow,
                 Actions actions);
    ~ScrollButton() override;
    ScrollButton(const ScrollButton&) = delete;
    ScrollButton& operator=(const ScrollButton&) = delete;

    void Create(Toolkit& toolkit, UserControl& oControl, const Rect& rect);
    void Move(const Rect& rect);
    void Visible(bool bVisible);
    /// Whether there is a row to scroll to; the arrow shows it.
    bool Enabled() const { return mbEnabled; }
    void Enabled(bool bEnabled);
    void Pressed(bool bPressed);
    void MarkAsTarget(bool bTarget);

private:
    void MouseDown(std::int16_t nButton) noexcept override;
    void MouseUp(std::int16_t nButton) noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     std::int16_t nState) noexcept override;

    zqbchwcx::Button& Button() const;
    zqbchwcx::Frame& Frame() const;

    const ViewContext& mContext;
    RedrawGate& mGate;
    std::string msName;
    std::string msFrameName;
    ButtonArrow meArrow;
    Actions mActions;
    FramePtr mfraScroll;
    ButtonPtr mcmdScroll;
    bool mbEnabled = false;
};

} // namespace zqbchwcx
