#include "zqbchwcx/views/overview/PlacePainter.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/overview/GroupFrame.h"
#include "zqbchwcx/views/shared/NumberText.h"

namespace zqbchwcx {
namespace {

DrawStyle Selected(DrawStyle eStyle)
{
    return static_cast<DrawStyle>(static_cast<int>(eStyle) + static_cast<int>(DrawStyle::Blended));
}

} // namespace

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
        // It shows through the picture's transparent pixels.
        if (mStyle.bNumberBelowPicture) DrawNumber(surface, look, oPlace->Number(), at);
        DrawContent(surface, look, at, bSelected);
    }
    if (!mStyle.frameMid.empty() && mContext.Station()->HasGroupFrame(oPlace)) DrawGroupFrame(oPlace);
    mStatusSymbols.Draw(surface, oPlace, at);
}

void PlacePainter::DrawContent(Surface& surface, const Look& look, Point placeAt, bool bSelected)
{
    const auto& pictures = mModulePictures.List();
    if (!mStyle.placeFrame.empty())
        surface.DrawListImage(pictures, look.bDrop ? mStyle.placeFrameDrop : mStyle.placeFrame, placeAt,
                              DrawStyle::Normal);
    if (look.bModule && mStyle.bEraseBehindModule)
        surface.FillBox(MakeRect(placeAt.x, placeAt.y, mStyle.place.width, mStyle.place.height), mContext.backColor);
    const DrawStyle eStyle = look.bModule ? mStyle.module : mStyle.emptyPlace;
    surface.DrawListImage(pictures, look.key, placeAt, bSelected ? Selected(eStyle) : eStyle);
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
    Look look;
    if (!mStyle.inactive.empty() && lUsability != vxPlaceActive) {
        if (lUsability != vxPlaceNotUsable && lUsability != vxPlaceInactive) return look;
        look.key = PlaceKey(bDrag ? mStyle.inactiveNoDrop : mStyle.inactive, lPlace);
        look.bNumber = lUsability == vxPlaceInactive;
        look.bGrayed = true;
        return look;
    }
    const auto oModule = oPlace->Module();
    look.bModule = !oModule->IsEmpty();
    // A drag leaves modules alone, but for the frame around their places.
    const bool bAsk = bDrag && (!look.bModule || !mStyle.placeFrameDrop.empty());
    look.bDrop = bAsk && mContext.DragDropCtrl()->IsDropPlace(oPlace);
    if (look.bModule) look.key = mModulePictures.KeyOf(*oModule, mStyle.moduleDefault);
    else if (!bDrag) look.key = PlaceKey(mStyle.active, lPlace);
    else look.key = PlaceKey(look.bDrop ? mStyle.drop : mStyle.noDrop, lPlace);
    return look;
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
    if (mStyle.frameMid.empty()) return; // stations of this kind have no frames
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
