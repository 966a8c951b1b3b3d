#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/overview/RowPainter.h"
#include "zqbchwcx/views/overview/RowsCursor.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackOverviewRIO";

constexpr std::int32_t UsualBarWidth = 13;
constexpr std::int32_t UsualVisibleRows = 4;
constexpr Rect ViewportRect = MakeRect(UsualBarWidth, 14, 289, 386);
constexpr Rect PictureRect = MakeRect(0, 0, 217, 386);
constexpr Size MinimumSize{230, 414};
constexpr std::int32_t ArrowIndentation = 215;

// Where row 1 of the table begins is a row's height below these: its rows are counted from the header.
constexpr std::int32_t TableRowHeight = 15;
constexpr std::int32_t TableHeader = 6 + TableRowHeight;
constexpr std::int32_t TableHeaderCompare = 26 + TableRowHeight;

} // namespace

OverviewKind VxHWRackOverviewRIO::DistributedKind()
{
    return {.className = ClassName,
            .pictureName = "pic_Scroll",
            .layout = mLayout,
            .style = mStyle,
            .lTableHeader = TableHeader,
            .lTableHeaderCompare = TableHeaderCompare,
            .makeGround =
                [this](const ViewContext& context, const Canvas& canvas, const SinglePictures& singlePictures) {
                    return std::make_unique<RowPainter>(context, canvas, singlePictures, mLayout, mStyle);
                },
            .cursorTarget = [this](const class VxHWStation&, std::int32_t lFocus, std::int16_t nKeyCode,
                                   std::int16_t nShift,
                                   bool bFine) { return G_RowsCursorTarget(mLayout, lFocus, nKeyCode, nShift, bFine); },
            .tableRow = [this](const PositionInfo& place) { return TableRow(place); }};
}

VxHWRackOverviewRIO::VxHWRackOverviewRIO(UserControl& oControl) noexcept
    : OverviewControl(oControl, DistributedKind()),
      mScroller(mContext, mGate, mCanvas, RowsLayout::RowHeight,
                {[this] { mArrow.Update(); }, [this](Point at) { mInput.ExtendRubberBand(at); }}),
      mlBarWidth(UsualBarWidth)
{
    mInput.OnRubberBand([this](std::optional<Point> at) { mScroller.FollowBand(at); });
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        auto& toolkit = *G_ServiceRoot().toolkit;
        mControl.Font("Tahoma", 8.25);
        auto picBack = toolkit.CreateChildControl(mControl, "pic_Back", ViewportRect);
        picBack->Font("Tahoma", 8.25);
        CreatePicture(toolkit, *picBack, PictureRect);
        mCanvas.UseViewport(std::move(picBack), ViewportRect);
        mScroller.Create(toolkit, mControl);
        CreateRest(toolkit, ArrowIndentation);
        msysinfMain->OnSettingChanged([this](std::int32_t lSetting) { sysinf_Main_SettingChanged(lSetting); });
    });
}

void VxHWRackOverviewRIO::CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept
{
    G_Trap(ClassName, "CoordinatesByPosition", [&] {
        const Point at = mLayout.PointOf(G_PositionInfo(lPosition));
        X = at.x;
        Y = at.y;
    });
}

void VxHWRackOverviewRIO::PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept
{
    G_Trap(ClassName, "PositionByCoordinates", [&] {
        // Rows that are scrolled out of the viewport are under nothing.
        const auto& viewport = mCanvas.Viewport();
        const bool bInside =
            viewport && X >= viewport->left && X < viewport->right && Y >= viewport->top && Y < viewport->bottom;
        lPosition = bInside ? mLayout.PositionAt(mCanvas.InPicture({X, Y})) : vxNoPosition;
    });
}

void VxHWRackOverviewRIO::ShowAllRows(bool bShow) noexcept
{
    mbShowAllRows = bShow;
    G_Trap(ClassName, "ShowAllRows", [&] { P_InitView(false); });
}

std::int32_t VxHWRackOverviewRIO::VisibleRows() const
{
    return mbShowAllRows ? std::max(mLayout.RowCount(), UsualVisibleRows) : UsualVisibleRows;
}

void VxHWRackOverviewRIO::RackTableTopRow(std::int32_t lTopRow) noexcept
{
    mlTableTopRow = lTopRow;
    mArrow.Update();
}

void VxHWRackOverviewRIO::RackTableRowsInView(std::int32_t lRows) noexcept
{
    mlTableRowsInView = lRows;
    mArrow.Update();
}

std::optional<std::int32_t> VxHWRackOverviewRIO::TableRow(const PositionInfo& place) const
{
    const auto cell = mLayout.CellOf(place);
    if (!cell || !mScroller.IsVisible(cell->lRow)) return {};
    const std::int32_t lRow = mLayout.Shown().IndexOf(place.lNumber) - std::max(mlTableTopRow, 1);
    const std::int32_t lHeader = mContext.eStyle == vxStyleHWCompare ? TableHeaderCompare : TableHeader;
    const std::int32_t lRows =
        mlTableRowsInView > 0 ? mlTableRowsInView : (mControl.Height() / vxTwipsPerPixel - lHeader) / TableRowHeight;
    return lRow >= 0 && lRow < lRows ? std::optional(lRow) : std::nullopt;
}

void VxHWRackOverviewRIO::OnStationType()
{
    const VxEnumStationType eType = mContext.eStationType;
    if (eType == vxStationTypeDistributed1 || eType == vxStationTypeDistributed2)
        mStyle = G_DistributedPlaceStyle(eType);
}

const PictureStrip* VxHWRackOverviewRIO::PlacePictures() const
{
    return G_DistributedPictures(mContext.Station()->StationKind());
}

void VxHWRackOverviewRIO::Arrange()
{
    P_InitPlacePositions();
    P_InitView(true);
}

void VxHWRackOverviewRIO::P_InitPlacePositions()
{
    mLayout.Shown({});
    mLayout.Shown(ShownPlaces::Of(mContext.oStation));
}

void VxHWRackOverviewRIO::P_InitView(bool bFromTop)
{
    mScroller.Rows(mLayout.RowCount(), VisibleRows(), bFromTop);
    Resize();
}

void VxHWRackOverviewRIO::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        // Places may have become usable, or be so no more.
        if (!mContext.oStation || ShownPlaces::Of(mContext.oStation) == mLayout.Shown()) return;
        P_InitPlacePositions();
        const DrawingBracket drawing(mCanvas);
        P_InitView(false);
        P_SetBackground();
    });
    OverviewControl::Refresh();
}

void VxHWRackOverviewRIO::moHWStation_RackPlaceChange(const VxHWRackPlacePtr& oPlace) noexcept
{
    bool bRearranged = false;
    G_Trap(ClassName, "moHWStation_RackPlaceChange", [&] {
        if (mGate.IsRefreshing() || oPlace->Rack()->Number() != 0) return;
        const bool bShown = oPlace->Usability() != vxPlaceNotUsable;
        bRearranged = bShown != mLayout.Shows(0, oPlace->Number()) && mGate.MayDrawModelEvent();
    });
    if (!bRearranged) return OverviewControl::moHWStation_RackPlaceChange(oPlace);
    ContentChange.Raise();
    Refresh();
}

void VxHWRackOverviewRIO::BringIntoView(const PositionInfo& position)
{
    if (const auto cell = mLayout.CellOf(position)) mScroller.EnsureVisible(cell->lRow);
}

bool VxHWRackOverviewRIO::MouseWheel(float notches) noexcept
{
    return G_TrapValue(ClassName, "UserControl_MouseWheel", false, [&] { return mScroller.Wheel(notches); });
}

void VxHWRackOverviewRIO::sysinf_Main_SettingChanged(std::int32_t lSetting) noexcept
{
    G_Trap(ClassName, "sysinf_Main_SettingChanged", [&] {
        if (lSetting != vxSettingNonClientMetrics) return;
        mlBarWidth = msysinfMain->ScrollBarSize();
        Resize();
    });
}

void VxHWRackOverviewRIO::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        // A wider bar takes nothing from the picture.
        const std::int32_t lWider = mlBarWidth - UsualBarWidth;
        const std::int32_t lMoreRows = VisibleRows() - UsualVisibleRows;
        const Size size = KeepMinimumSize(
            {MinimumSize.width + std::max(lWider, 0), MinimumSize.height + lMoreRows * RowsLayout::RowHeight});
        mScroller.Place(mlBarWidth, size.width);
        mArrow.Cover({lWider, 0, size.width, size.height});
    });
}

} // namespace zqbchwcx
