#include "zqbchwcx/views/overview/PlacePainter.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/overview/CentralPictures.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/GroupFrame.h"
#include "zqbchwcx/views/shared/NumberText.h"

namespace zqbchwcx {
namespace {

constexpr Point NumberOffset{3, 33};
constexpr StatusSymbols::Offsets SymbolOffsets{{3, 3}, {3, 45}, {1, 43}};

/// A place picture at the end of the rail closes it.
std::string PlaceKey(std::string_view key, std::int32_t lPlace)
{
    return std::string(key).append(lPlace >= CentralPlaceLayout::PlaceCount ? "_END" : "");
}

} // namespace

PlacePainter::PlacePainter(const ViewContext& context, const PlaceLayout& layout, const Canvas& canvas,
                           ModulePictures& modulePictures, const SinglePictures& singlePictures)
    : mContext(context), mLayout(layout), mCanvas(canvas), mModulePictures(modulePictures),
      mStatusSymbols(context, modulePictures, singlePictures, SymbolOffsets, CentralPictures::ModuleDefault)
{
}

void PlacePainter::Draw(const VxHWRackPlacePtr& oPlace, bool bSelected)
{
    auto& surface = mCanvas.Box();
    const Point at = PlaceAt(*oPlace);
    const Look look = LookOf(oPlace);
    if (!look.key.empty()) {
        // The number lies below the picture and shows through its transparent pixels.
        DrawNumber(surface, look, oPlace->Number(), at);
        surface.DrawListImage(mModulePictures.List(), look.key, at, bSelected ? DrawStyle::Blended : DrawStyle::Normal);
    }
    if (mContext.Station()->HasGroupFrame(oPlace)) P_DrawBorder(oPlace);
    mStatusSymbols.Draw(surface, oPlace, at);
}

PlacePainter::Look PlacePainter::LookOf(const VxHWRackPlacePtr& oPlace)
{
    const std::int32_t lUsability = oPlace->Usability();
    const std::int32_t lPlace = oPlace->Number();
    const bool bDrag = mContext.IsDragActive();
    if (lUsability == vxPlaceNotUsable || lUsability == vxPlaceInactive) {
        return {PlaceKey(bDrag ? CentralPictures::PlaceInactiveNoDrop : CentralPictures::PlaceInactive, lPlace),
                lUsability == vxPlaceInactive, true};
    }
    if (lUsability != vxPlaceActive) return {};

    const auto oModule = oPlace->Module();
    if (!oModule->IsEmpty()) return {mModulePictures.KeyOf(*oModule, CentralPictures::ModuleDefault)};
    if (!bDrag) return {PlaceKey(CentralPictures::PlaceActive, lPlace)};
    return {PlaceKey(mContext.DragDropCtrl()->IsDropPlace(oPlace) ? CentralPictures::PlaceDrop
                                                                  : CentralPictures::PlaceNoDrop,
                     lPlace)};
}

void PlacePainter::DrawNumber(Surface& surface, const Look& look, std::int32_t lNumber, Point placeAt) const
{
    const Point at{placeAt.x + NumberOffset.x, placeAt.y + NumberOffset.y};
    if (look.bNumber) {
        P_DrawNumber(mContext.className, surface, lNumber, at, look.bGrayed ? NumberMode::Grayed : NumberMode::Plain);
    } else {
        // The whole box, however high the digits of the font are: the place may have shown a number before.
        surface.FillBox(MakeRect(at.x, at.y, G_NumberBox.width, G_NumberBox.height), mContext.backColor);
    }
}

void PlacePainter::P_DrawBorder(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "P_DrawBorder", [&] {
        const auto oModule = oPlace->Module();
        const auto oParent = oModule->IndexInParent() >= 1
                                 ? oModule->ParentModule()
                                 : oPlace->Rack()->Places()->Item(oPlace->Number() - 1)->Module()->ParentModule();
        const bool bSelected = mContext.SelHandler()->IsParentModuleSelected(oParent);
        mCanvas.Box().DrawListImage(mModulePictures.List(), G_GroupFrameKey(*oModule, oParent), PlaceAt(*oPlace),
                                    bSelected ? DrawStyle::TransparentBlended : DrawStyle::Transparent);
    });
}

Point PlacePainter::PlaceAt(const VxHWRackPlace& oPlace) const
{
    const Rect rect = mLayout.PlaceRect(oPlace.Rack()->Number(), oPlace.Number());
    return {rect.left, rect.top};
}

} // namespace zqbchwcx
