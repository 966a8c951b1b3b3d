#include "zqbchwcx/views/shared/RedrawGate.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {

RedrawGate::RedrawGate(const ViewContext& context, Drawings drawings)
    : mContext(context), mDrawings(std::move(drawings))
{
}

bool RedrawGate::DrawsModelEvents() const
{
    return mbDrawOnModelEvents && mContext.Station()->IsDrawable();
}

bool RedrawGate::MayDrawModelEvent()
{
    if (!DrawsModelEvents()) return false;
    CatchUp();
    return true;
}

bool RedrawGate::MayDrawNow()
{
    const bool bDrawable = mContext.Station()->IsDrawable();
    if (!bDrawable) mePending = Pending::Everything;
    return bDrawable;
}

void RedrawGate::SelectionChanged() noexcept
{
    mePending = std::max(mePending, Pending::Selection);
    CatchUp();
}

void RedrawGate::EverythingChanged() noexcept
{
    mePending = Pending::Everything;
    CatchUp();
}

void RedrawGate::CatchUp() noexcept
{
    G_Trap(mContext.className, "P_DrawPending", [&] {
        if (mePending == Pending::Nothing || !IsDrawable()) return;
        const Pending ePending = std::exchange(mePending, Pending::Nothing);
        if (ePending == Pending::Everything) mDrawings.everything();
        else mDrawings.selection();
    });
}

bool RedrawGate::IsDrawable() const
{
    return mContext.oStation && mContext.oStation->IsDrawable();
}

RedrawGate::RefreshBracket::RefreshBracket(RedrawGate& gate)
    : mGate(gate), mbDrawOnModelEvents(std::exchange(gate.mbDrawOnModelEvents, true))
{
    ++mGate.mnRefreshes;
    mGate.mePending = mGate.IsDrawable() ? Pending::Nothing : Pending::Everything;
}

RedrawGate::RefreshBracket::~RefreshBracket()
{
    --mGate.mnRefreshes;
    mGate.mbDrawOnModelEvents = mbDrawOnModelEvents;
}

} // namespace zqbchwcx
