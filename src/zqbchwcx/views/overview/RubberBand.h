#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <optional>

namespace zqbchwcx {

/// The rectangle that selects places by being drawn over them.
class RubberBand {
public:
    RubberBand(const ViewContext& context, const PlaceLayout& layout, Canvas& canvas)
        : mContext(context), mLayout(layout), mCanvas(canvas)
    {
    }

    bool IsActive() const { return moStart.has_value(); }
    /// Starts anew at the point, which the mouse was pressed at.
    void Start(Point at);
    void MoveTo(Point at) noexcept;
    /// Selects what lies within, instead of what was selected.
    void Finish(Point at) noexcept;

private:
    enum class Mode { Move, Finish };

    void P_RubberBand(Mode eMode, Point at) noexcept;
    void P_SelectRubberContent(Point start, Point end) noexcept;
    /// Nothing for a rack that is not there; the mouse passes over it.
    VxHWRackPtr PresentRack(std::int32_t lRack) const;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    Canvas& mCanvas;
    std::optional<Point> moStart;
};

} // namespace zqbchwcx
