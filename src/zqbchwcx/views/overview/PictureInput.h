#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/DragPointer.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/overview/RubberBand.h"
#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace zqbchwcx {

/// Turns what happens on the picture into calls of the controllers, each with the place position under the mouse.
class PictureInput : public PictureBoxEvents {
public:
    PictureInput(const ViewContext& context, const PlaceLayout& layout, Canvas& canvas, PlaceMenu& menu,
                 DragPointer& dragPointer, RedrawGate& gate, std::string_view pictureName,
                 std::function<void()> onKeyboardFocus);

    void DragThreshold(Size threshold) { mDragThreshold = threshold; }
    /// Told where the mouse holds the end of a rubber band; nothing when the band has ended.
    void OnRubberBand(std::function<void(std::optional<Point>)> handler) { mOnRubberBand = std::move(handler); }
    /// The picture was scrolled under the mouse, which is at the point now.
    void ExtendRubberBand(Point at) noexcept { mRubberBand.MoveTo(at); }

    void MouseDown(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override;
    void MouseMove(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override;
    void MouseUp(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept override;
    void DblClick() noexcept override;
    void GotFocus() noexcept override;
    void LostFocus() noexcept override;
    void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept override;
    void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y, std::int16_t nState) noexcept override;
    void OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton, std::int16_t nShift,
                     float x, float y) noexcept override;
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override;

private:
    template <class Body>
    bool Trap(std::string_view event, Body&& body) noexcept;
    bool IsBeyondThreshold(Point at) const;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    Canvas& mCanvas;
    PlaceMenu& mMenu;
    DragPointer& mDragPointer;
    RubberBand mRubberBand;
    std::string msProcedurePrefix;
    RedrawGate& mGate;
    std::function<void()> mOnKeyboardFocus;
    std::function<void(std::optional<Point>)> mOnRubberBand = [](std::optional<Point>) {};
    Size mDragThreshold{4, 4};
    std::optional<Point> moDragStart;
    std::int32_t mlLastMouseDownPosition = vxNoPosition;
};

} // namespace zqbchwcx
