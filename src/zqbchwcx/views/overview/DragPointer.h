#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/ModulePictures.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/shared/ViewContext.h"

namespace zqbchwcx {

/// The picture of the dragged modules, which follows the mouse during a drag.
class DragPointer {
public:
    DragPointer(const ViewContext& context, const PlaceStyle& style, const Canvas& canvas,
                ModulePictures& modulePictures)
        : mContext(context), mStyle(style), mCanvas(canvas), mModulePictures(modulePictures)
    {
    }

    /// The box that is the pointer; it lies in the same control as the picture, and above it.
    void Use(PictureBoxPtr pic) { mpicDrag = std::move(pic); }

    /// Draws the dragged modules if the pointer is hidden, and moves it to the point of the picture.
    void MoveTo(Point at) noexcept;
    void Hide() noexcept;

private:
    void Compose(const VxHWModulesPtr& oModules);
    void P_DrawModuleToDragPointer(const VxHWModule& oModule, std::int32_t lLeft) noexcept;

    const ViewContext& mContext;
    const PlaceStyle& mStyle;
    const Canvas& mCanvas;
    ModulePictures& mModulePictures;
    PictureBoxPtr mpicDrag;
};

} // namespace zqbchwcx
