#include "zqbchwcx/views/config/VxHWRackOverview.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/views/overview/CentralCursor.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/RackPainter.h"

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWRackOverview";

constexpr Rect PictureRect = MakeRect(4, 0, 238, 392);
constexpr Size MinimumSize{235, 392};
constexpr std::int32_t ArrowIndentation = 238;

const CentralPlaceLayout Layout;

OverviewKind CentralKind()
{
    return {.className = ClassName,
            .pictureName = "pic_Main",
            .layout = Layout,
            .style = G_CentralPlaceStyle,
            .lTableHeader = 41,
            .lTableHeaderCompare = 61,
            .makeGround = std::make_unique<RackPainter, const ViewContext&, const Canvas&, const SinglePictures&>,
            .cursorTarget = G_CentralCursorTarget,
            .tableRow = [](const PositionInfo& place) { return std::optional(place.lNumber - 1); }};
}

} // namespace

VxHWRackOverview::VxHWRackOverview(UserControl& oControl) noexcept
    : OverviewControl(oControl, CentralKind()), mLinks(mContext)
{
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        auto& toolkit = *G_ServiceRoot().toolkit;
        mControl.Font("Tahoma", 8.25);
        CreatePicture(toolkit, mControl, PictureRect);
        mLinks.Create(toolkit, mControl);
        CreateRest(toolkit, ArrowIndentation);
    });
}

void VxHWRackOverview::CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept
{
    G_Trap(ClassName, "CoordinatesByPosition", [&] {
        const Point at = mCanvas.InControl(Layout.PointOf(G_PositionInfo(lPosition)));
        X = at.x;
        Y = at.y;
    });
}

void VxHWRackOverview::PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept
{
    G_Trap(ClassName, "PositionByCoordinates", [&] { lPosition = Layout.PositionAt(mCanvas.InPicture({X, Y})); });
}

void VxHWRackOverview::OnPlaceDrawn(std::int32_t lPlace)
{
    if (lPlace == InterfaceModuleLinks::PlaceNumber) mLinks.Update();
}

void VxHWRackOverview::Resize() noexcept
{
    G_Trap(ClassName, "UserControl_Resize", [&] {
        const Size size = KeepMinimumSize(MinimumSize);
        mArrow.Cover(MakeRect(0, 0, size.width, size.height));
    });
}

} // namespace zqbchwcx
