#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PictureGround.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>

namespace zqbchwcx {

/// Draws and erases the mark of the focused place or gap. Positions that are neither have no mark.
class FocusMarks {
public:
    /// Draws a place anew; not called for places that the rack does not have.
    using RedrawPlace = std::function<void(std::int32_t lRack, std::int32_t lPlace)>;

    FocusMarks(const ViewContext& context, const PlaceLayout& layout, const Canvas& canvas, PictureGround& ground,
               RedrawPlace redrawPlace);

    void Set(const PositionInfo& position) noexcept;
    void Reset(const PositionInfo& position) noexcept;

private:
    void P_SetPlaceFocus(std::int32_t lRack, std::int32_t lPlace) noexcept;
    void P_ResetPlaceFocus(const PositionInfo& place) noexcept;
    void P_SetGapFocus(std::int32_t lRack, std::int32_t lGap) noexcept;
    void P_ResetGapFocus(const PositionInfo& gap) noexcept;
    OleColor FocusColor() const;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    const Canvas& mCanvas;
    PictureGround& mGround;
    RedrawPlace mRedrawPlace;
};

} // namespace zqbchwcx
