#include "zqbchwcx/views/overview/ScrollButton.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/platform/Input.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr OleColor DragTarget = G_Rgb(84, 180, 228);

} // namespace

ScrollButton::ScrollButton(const ViewContext& context, RedrawGate& gate, std::string_view suffix, ButtonArrow eArrow,
                           Actions actions)
    : mContext(context), mGate(gate), msName(std::string("cmd_Scroll").append(suffix)),
      msFrameName(std::string("fra_Scroll").append(suffix)), meArrow(eArrow), mActions(std::move(actions))
{
}

ScrollButton::~ScrollButton()
{
    G_Trap(mContext.className, "UserControl_Terminate", [&] {
        if (mcmdScroll) mcmdScroll->Events(nullptr);
    });
}

void ScrollButton::Create(Toolkit& toolkit, UserControl& oControl, const Rect& rect)
{
    mfraScroll = toolkit.CreateFrame(oControl, msFrameName, rect);
    mcmdScroll = toolkit.CreateButton(oControl, msName, rect, meArrow);
    mcmdScroll->Events(this);
    Visible(false);
}

Button& ScrollButton::Button() const
{
    return *G_Require(mcmdScroll, "The scroll button");
}

Frame& ScrollButton::Frame() const
{
    return *G_Require(mfraScroll, "The frame of the scroll button");
}

void ScrollButton::Move(const Rect& rect)
{
    Frame().Move(rect);
    Button().Move(rect);
}

void ScrollButton::Visible(bool bVisible)
{
    Frame().Visible(bVisible);
    Button().Visible(bVisible);
}

void ScrollButton::Enabled(bool bEnabled)
{
    mbEnabled = bEnabled;
    Button().ArrowColor(bEnabled ? vxColorButtonText : vxColorGrayText);
}

void ScrollButton::Pressed(bool bPressed)
{
    if (Button().Pressed() != bPressed) Button().Pressed(bPressed);
}

void ScrollButton::MarkAsTarget(bool bTarget)
{
    Frame().BackColor(bTarget ? DragTarget : static_cast<OleColor>(vxColorButtonFace));
}

void ScrollButton::MouseDown(std::int16_t nButton) noexcept
{
    G_Trap(mContext.className, msName + "_MouseDown", [&] {
        if (nButton != vxButtonLeft || !mbEnabled) return;
        Pressed(true);
        mActions.press();
    });
}

void ScrollButton::MouseUp(std::int16_t nButton) noexcept
{
    G_Trap(mContext.className, msName + "_MouseUp", [&] {
        if (nButton != vxButtonLeft) return;
        Pressed(false);
        mActions.end();
    });
}

void ScrollButton::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                               std::int16_t nShift, std::int16_t nState) noexcept
{
    G_Trap(mContext.className, msName + "_OLEDragOver", [&] {
        mContext.DragDropCtrl()->OLEDragOver(vxNoPosition, oData, lEffect, nButton, nShift, nState);
        if (nState != vxDragLeave && !mbEnabled) return;
        Pressed(nState != vxDragLeave);
        if (nState == vxDragLeave) mActions.end();
        else mActions.dragOver();
    });
    mGate.CatchUp();
}

} // namespace zqbchwcx
