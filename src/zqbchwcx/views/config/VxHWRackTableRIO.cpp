#include "zqbchwcx/views/config/VxHWRackTableRIO.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/table/TableCursor.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackTableRIO";

constexpr std::int32_t MinimumHeight = 3000; // twips

} // namespace

VxHWRackTableRIO::VxHWRackTableRIO(UserControl& oControl) noexcept
    : TableControl(oControl,
                   {ClassName, "RIO", mRows,
                    [this](const class VxHWStation&, std::int32_t lFocus, std::int16_t nKeyCode, std::int16_t nShift) {
                        return G_ShownTableCursorTarget(mRows.Shown(), lFocus, nKeyCode, nShift);
                    }}),
      mTopRowConnection(mInput.TopRowChange.Connect([this] { TopRowChange.Raise(); }))
{
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        mControl.Font("Tahoma", 8.25);
        P_GridInit();
    });
}

std::int32_t VxHWRackTableRIO::TopRow() const noexcept
{
    return G_TrapValue(ClassName, "TopRow", std::int32_t{1}, [&] { return mContent.Grid().TopRow(); });
}

void VxHWRackTableRIO::P_InitPlacePositions()
{
    mRows.Shown({});
    mRows.Shown(ShownPlaces::Of(mContext.oStation));
}

void VxHWRackTableRIO::ShowScrollBar()
{
    const bool bAlways = mContext.eStationType == vxStationTypeDistributed1;
    mContent.Grid().VerticalScrollBar(bAlways ? GridScrollBar::Always : GridScrollBar::WhenNeeded);
}

void VxHWRackTableRIO::BeforeRefresh()
{
    // Places may have become usable, or be so no more.
    if (ShownPlaces::Of(mContext.oStation) == mRows.Shown()) return;
    mfrmSubModules.Unload();
    mContent.Grid().EndEditing(false);
    mEditing.Forget();
    P_InitPlacePositions();
    mContent.InitializeRows();
}

void VxHWRackTableRIO::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    bool bRearranged = false;
    G_Trap(ClassName, "moHWStation_RackPlaceChange", [&] {
        const bool bShown = oPlace->Usability() != vxPlaceNotUsable;
        const bool bHasRow = mRows.RowOf(oPlace->Number()) != 0;
        bRearranged = bShown != bHasRow && oPlace->Rack()->Number() == 0 && mGate.MayDrawModelEvent();
    });
    if (bRearranged) Refresh();
    else TableControl::moHWStation_RackPlaceChange(oPlace);
}

void VxHWRackTableRIO::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const std::int32_t lWidth = std::max(mControl.Width(), MinimumWidth);
        const std::int32_t lHeight = std::max(mControl.Height(), MinimumHeight);
        if (lWidth != mControl.Width() || lHeight != mControl.Height()) mControl.Size(lWidth, lHeight);
        const std::int32_t lPixels = lHeight / vxTwipsPerPixel;
        MoveGrid(MakeRect(0, 0, lWidth / vxTwipsPerPixel, lPixels), HeaderBottom);
        const std::int32_t lRows = (lPixels - HeaderBottom) / RowHeight;
        if (std::exchange(mlRowsInView, lRows) != lRows) RowsInViewChange.Raise();
    });
}

} // namespace zqbchwcx
