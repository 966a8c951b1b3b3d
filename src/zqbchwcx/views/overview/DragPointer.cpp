#include "zqbchwcx/views/overview/DragPointer.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/views/overview/GroupFrame.h"

namespace zqbchwcx {

void DragPointer::MoveTo(Point at) noexcept
{
    G_Trap(mContext.className, "P_SetDragPointer", [&] {
        auto& picDrag = *G_Require(mpicDrag, "The drag pointer");
        const auto oModules = mContext.DragDropCtrl()->DragModules();
        if (!oModules || oModules->Count() == 0) return;
        const bool bCompose = !picDrag.Visible();
        const Point corner = mCanvas.InControl({at.x - mStyle.dragged.x, at.y - mStyle.dragged.y});
        picDrag.Move(MakeRect(corner.x, corner.y, oModules->Count() * mStyle.place.width, mStyle.place.height));
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
    for (const auto& oModule : oModules) {
        P_DrawModuleToDragPointer(*oModule, lLeft);
        lLeft += mStyle.place.width;
    }
    mpicDrag->Refresh();
}

void DragPointer::P_DrawModuleToDragPointer(const VxHWModule& oModule, std::int32_t lLeft) noexcept
{
    G_Trap(mContext.className, "P_DrawModuleToDragPointer", [&] {
        const std::string key =
            oModule.IsEmpty() ? std::string(mStyle.active) : mModulePictures.KeyOf(oModule, mStyle.moduleDefault);
        if (!mStyle.placeFrame.empty())
            mpicDrag->DrawListImage(mModulePictures.List(), mStyle.placeFrame, {lLeft, 0}, DrawStyle::Normal);
        mpicDrag->DrawListImage(mModulePictures.List(), key, {lLeft, 0}, DrawStyle::Normal);
        if (oModule.IndexInParent() < 1 || mStyle.frameMid.empty()) return;
        mpicDrag->DrawListImage(mModulePictures.List(), G_GroupFrameKey(mStyle, oModule, oModule.ParentModule()),
                                {lLeft, 0}, DrawStyle::Transparent);
    });
}

} // namespace zqbchwcx
