#include "zqbchwcx/views/overview/RackPainter.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/views/shared/NumberText.h"

#include <array>

namespace zqbchwcx {
namespace {

constexpr std::string_view RailKey = "IDB_CRX_RACK";
constexpr std::array<std::string_view, 1> RailKeys{RailKey};
constexpr Size RailSize{218, 62};
constexpr std::int32_t RailLeft = 11;
constexpr std::int32_t RailTop = 29;
constexpr Point TileOffset{12, 30};

// The strips are 217 × 5 from corner to corner, both corners included: the marks reach into the last row.
constexpr std::int32_t StripWidth = 218;
constexpr std::int32_t StripHeight = 6;
constexpr std::int32_t UpperStripTop = 24;
constexpr std::int32_t LowerStripTop = 90;
// What is below it is covered by the places.
constexpr std::int32_t GapLineErasedHeight = 47;

} // namespace

void RackPainter::Load(TextModule& textModule)
{
    moImages = LoadStrip(textModule, {RailKey, RailSize, RailKeys});
}

void RackPainter::DrawEmpty()
{
    mCanvas.Box().BackColor(mContext.backColor);
    for (std::int32_t lRack = 0; lRack < CentralPlaceLayout::RackCount; ++lRack) DrawRail(lRack);
}

void RackPainter::DrawRail(std::int32_t lRack)
{
    mCanvas.Box().DrawListImage(*G_Require(moImages, "The rail picture"), RailKey,
                                {RailLeft, CentralPlaceLayout::BandTop(lRack) + RailTop}, DrawStyle::Transparent);
}

void RackPainter::DrawRack(const VxHWRack& oRack)
{
    if (!CentralPlaceLayout::ShowsRack(oRack.Number())) return;
    const std::int32_t lState = oRack.State();
    if (lState != vxRackPresent && lState != vxRackNotPresent) return;
    const bool bPresent = lState == vxRackPresent;
    const Point at{TileOffset.x, CentralPlaceLayout::BandTop(oRack.Number()) + TileOffset.y};
    mSinglePictures.Draw(mCanvas.Box(), bPresent ? "IDB_CRX_RACKNR_ACTIVE" : "IDB_CRX_RACKNR_INACTIVE", at,
                         DrawStyle::Normal);
    G_DrawNumber(mContext.className, mCanvas.Box(), oRack.Number(), at,
                 bPresent ? NumberMode::Bold : NumberMode::Grayed);
}

void RackPainter::EraseMarks(const PositionInfo& position)
{
    const std::int32_t top = CentralPlaceLayout::BandTop(position.lRack);
    for (const std::int32_t stripTop : {top + UpperStripTop, top + LowerStripTop}) {
        mCanvas.Box().FillBox(MakeRect(RailLeft, stripTop, StripWidth, StripHeight), mContext.backColor);
    }
    if (position.eType == vxPositionGap) {
        const Rect line = mLayout.GapLine(position.lRack, position.lNumber);
        mCanvas.Box().FillBox(MakeRect(line.left - 1, line.top - 1, 1, GapLineErasedHeight), mContext.backColor);
    }
    DrawRail(position.lRack);
}

} // namespace zqbchwcx
