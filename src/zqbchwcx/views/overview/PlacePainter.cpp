#include "zqbchwcx/views/overview/PlacePainter.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/overview/GroupFrame.h"
#include "zqbchwcx/views/shared/NumberText.h"

namespace zqbchwcx {

PlacePainter::PlacePainter(const ViewContext& context, const PlaceStyle& style, const PlaceLayout& layout,
                           const Canvas& canvas, ModulePictures& modulePictures, const SinglePictures& singlePictures)
    : mContext(context), mStyle(style), mLayout(layout), mCanvas(canvas), mModulePictures(modulePictures),
      mStatusSymbols(context, style, modulePictures, singlePictures)
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
    if (mContext.Station()->HasGroupFrame(oPlace)) DrawGroupFrame(oPlace);
    mStatusSymbols.Draw(surface, oPlace, at);
}

std::string PlacePainter::PlaceKey(std::string_view key, std::int32_t lPlace) const
{
    return std::string(key).append(mStyle.lEndPlace != 0 && lPlace >= mStyle.lEndPlace ? "_END" : "");
}

PlacePainter::Look PlacePainter::LookOf(const VxHWRackPlacePtr& oPlace)
{
    const std::int32_t lUsability = oPlace->Usability();
    const std::int32_t lPlace = oPlace->Number();
    const bool bDrag = mContext.IsDragActive();
    if (lUsability == vxPlaceNotUsable || lUsability == vxPlaceInactive) {
        return {PlaceKey(bDrag ? mStyle.inactiveNoDrop : mStyle.inactive, lPlace), lUsability == vxPlaceInactive, true};
    }
    if (lUsability != vxPlaceActive) return {};

    const auto oModule = oPlace->Module();
    if (!oModule->IsEmpty()) return {mModulePictures.KeyOf(*oModule, mStyle.moduleDefault)};
    if (!bDrag) return {PlaceKey(mStyle.active, lPlace)};
    return {PlaceKey(mContext.DragDropCtrl()->IsDropPlace(oPlace) ? mStyle.drop : mStyle.noDrop, lPlace)};
}

void PlacePainter::DrawNumber(Surface& surface, const Look& look, std::int32_t lNumber, Point placeAt) const
{
    const Point at{placeAt.x + mStyle.number.x, placeAt.y + mStyle.number.y};
    if (look.bNumber) {
        G_DrawNumber(mContext.className, surface, lNumber, at, look.bGrayed ? NumberMode::Grayed : NumberMode::Plain);
    } else {
        // The whole box, however high the digits of the font are: the place may have shown a number before.
        surface.FillBox(MakeRect(at.x, at.y, G_NumberBox.width, G_NumberBox.height), mContext.backColor);
    }
}

void PlacePainter::DrawGroupFrame(const VxHWRackPlacePtr& oPlace) noexcept
{
    G_Trap(mContext.className, "P_DrawBorder", [&] {
        const auto oModule = oPlace->Module();
        const auto oParent = oModule->IndexInParent() >= 1
                                 ? oModule->ParentModule()
                                 : oPlace->Rack()->Places()->Item(oPlace->Number() - 1)->Module()->ParentModule();
        const bool bSelected = mContext.SelHandler()->IsParentModuleSelected(oParent);
        mCanvas.Box().DrawListImage(mModulePictures.List(), G_GroupFrameKey(mStyle, *oModule, oParent),
                                    PlaceAt(*oPlace),
                                    bSelected ? DrawStyle::TransparentBlended : DrawStyle::Transparent);
    });
}

Point PlacePainter::PlaceAt(const VxHWRackPlace& oPlace) const
{
    const Rect rect = mLayout.PlaceRect(oPlace.Rack()->Number(), oPlace.Number());
    return {rect.left, rect.top};
}

} // namespace zqbchwcx
