#include "zqbchwcx/views/overview/DragPointer.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/views/overview/CentralPictures.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/GroupFrame.h"

namespace zqbchwcx {
namespace {

// The mouse points into the first module, not at its corner.
constexpr std::int32_t MouseOffset = 9;

} // namespace

void DragPointer::P_SetDragPointer(Point at) noexcept
{
    G_Trap(mContext.className, "P_SetDragPointer", [&] {
        auto& picDrag = *G_Require(mpicDrag, "The drag pointer");
        const auto oModules = mContext.DragDropCtrl()->DragModules();
        if (!oModules || oModules->Count() == 0) return;
        const bool bCompose = !picDrag.Visible();
        const auto& picture = mCanvas.Box();
        picDrag.Move(MakeRect(picture.Left() + at.x - MouseOffset, picture.Top() + at.y - MouseOffset,
                              oModules->Count() * CentralPlaceLayout::PlaceWidth, CentralPlaceLayout::PlaceHeight));
        if (!bCompose) return;
        Compose(oModules);
        picDrag.Visible(true);
    });
}

void DragPointer::Hide() noexcept
{
    G_Trap(mContext.className, "P_SetDragPointer", [&] {
        if (mpicDrag && mpicDrag->Visible()) mpicDrag->Visible(false);
    });
}

void DragPointer::Compose(const VxHWModulesPtr& oModules)
{
    mpicDrag->BackColor(mContext.backColor);
    std::int32_t lLeft = 0;
    for (const auto& oModule : *oModules) {
        P_DrawModuleToDragPointer(*oModule, lLeft);
        lLeft += CentralPlaceLayout::PlaceWidth;
    }
    mpicDrag->Refresh();
}

void DragPointer::P_DrawModuleToDragPointer(const VxHWModule& oModule, std::int32_t lLeft) noexcept
{
    G_Trap(mContext.className, "P_DrawModuleToDragPointer", [&] {
        const std::string key = oModule.IsEmpty() ? std::string(CentralPictures::PlaceActive)
                                                  : mModulePictures.KeyOf(oModule, CentralPictures::ModuleDefault);
        mpicDrag->DrawListImage(mModulePictures.List(), key, {lLeft, 0}, DrawStyle::Normal);
        if (oModule.IndexInParent() < 1) return;
        mpicDrag->DrawListImage(mModulePictures.List(), G_GroupFrameKey(oModule, oModule.ParentModule()), {lLeft, 0},
                                DrawStyle::Transparent);
    });
}

} // namespace zqbchwcx
