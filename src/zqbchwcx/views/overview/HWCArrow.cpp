#include "zqbchwcx/views/overview/HWCArrow.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "HWCArrow";
constexpr std::string_view IndentationKey = "Indentation";
constexpr std::int32_t DefaultIndentation = 100;

constexpr std::int32_t Thickness = 3;
constexpr std::int32_t HalfThickness = Thickness / 2;
constexpr std::int32_t StubHeight = 10;
constexpr std::int32_t HeadColumnWidth = 2;

constexpr std::array<Rect, 4> ShaftDesign{MakeRect(0, 0, 3, 10), MakeRect(0, 0, 200, 3), MakeRect(0, 0, 3, 39),
                                          MakeRect(0, 0, 24, 3)};
constexpr std::array<Rect, 4> HeadDesign{MakeRect(224, 34, 2, 7), MakeRect(226, 35, 2, 5), MakeRect(228, 36, 2, 3),
                                         MakeRect(230, 37, 2, 1)};
constexpr std::int32_t HeadWidth = HeadColumnWidth * static_cast<std::int32_t>(HeadDesign.size());

/// A horizontal piece of the shaft whose middle row is y.
constexpr Rect Run(std::int32_t left, std::int32_t right, std::int32_t y)
{
    return {left, y - HalfThickness, right, y - HalfThickness + Thickness};
}

void MoveAndShow(const ShapePtr& shape, const Rect& rect)
{
    auto& piece = *G_Require(shape, "A piece of the arrow");
    piece.Move(rect);
    if (!piece.Visible()) piece.Visible(true);
}

} // namespace

HWCArrow::HWCArrow(UserControl& oControl) noexcept : mRegistration(ClassName), mControl(oControl)
{
    G_Trap(ClassName, "UserControl_Initialize", [&] {
        auto& toolkit = *G_ServiceRoot().toolkit;
        for (std::size_t i = 0; i < mashpArrow.size(); ++i)
            mashpArrow[i] = toolkit.CreateShape(mControl, "shp_Arrow", ShaftDesign[i]);
        for (std::size_t i = 0; i < mashpEnd.size(); ++i) {
            mashpEnd[i] = toolkit.CreateShape(mControl, "shp_End", HeadDesign[i]);
            const bool bTip = i + 1 == HeadDesign.size();
            if (mashpEnd[i]) mashpEnd[i]->Slope(bTip ? 0 : HeadDesign[i + 1].height());
        }
    });
    P_HideArrow();
}

void HWCArrow::ReadProperties(const PropertyBag& bag) noexcept
{
    G_Trap(ClassName, "UserControl_ReadProperties",
           [&] { mlIndentation = bag.ReadProperty(IndentationKey, DefaultIndentation); });
}

void HWCArrow::WriteProperties(PropertyBag& bag) const noexcept
{
    G_Trap(ClassName, "UserControl_WriteProperties",
           [&] { bag.WriteProperty(IndentationKey, mlIndentation, DefaultIndentation); });
}

void HWCArrow::Show(std::int32_t X, std::int32_t Y, std::int32_t RowY) noexcept
{
    G_Trap(ClassName, "Show", [&] { P_PositionArrow({X, Y}, {mControl.Width() / vxTwipsPerPixel, RowY}); });
}

void HWCArrow::Hide() noexcept
{
    P_HideArrow();
}

void HWCArrow::P_PositionArrow(Point from, Point to) noexcept
{
    G_Trap(ClassName, "P_PositionArrow", [&] {
        const std::int32_t runY = from.y - StubHeight;
        const std::int32_t headLeft = to.x - HeadWidth;
        // The turn reaches over the whole thickness of both runs, so that the corners are closed.
        const auto [upper, lower] = std::minmax(runY, to.y);
        const Rect turn{mlIndentation, Run(0, 0, upper).top, mlIndentation + Thickness, Run(0, 0, lower).bottom};

        MoveAndShow(mashpArrow[0], MakeRect(from.x, runY, Thickness, StubHeight));
        MoveAndShow(mashpArrow[1], Run(from.x, mlIndentation, runY));
        MoveAndShow(mashpArrow[2], turn);
        MoveAndShow(mashpArrow[3], Run(mlIndentation, std::max(headLeft, mlIndentation), to.y));
        for (std::size_t i = 0; i < mashpEnd.size(); ++i) {
            const std::int32_t height = HeadDesign[i].height();
            const std::int32_t left = headLeft + HeadColumnWidth * static_cast<std::int32_t>(i);
            MoveAndShow(mashpEnd[i], MakeRect(left, to.y - height / 2, HeadColumnWidth, height));
        }
    });
}

void HWCArrow::P_HideArrow() noexcept
{
    G_Trap(ClassName, "P_HideArrow", [&] {
        for (const auto* pieces : {&mashpArrow, &mashpEnd}) {
            for (const auto& shape : *pieces) {
                if (shape) shape->Visible(false);
            }
        }
    });
}

} // namespace zqbchwcx
