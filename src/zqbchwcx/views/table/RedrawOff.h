#pragma once

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/platform/Grid.h"

#include <string_view>

namespace zqbchwcx {

/// Holds back the grid's drawing while it lives; then the grid draws again, if it did before.
class RedrawOff {
public:
    /// The class is the one whose failure to switch the drawing on again is reported. Both outlive this.
    RedrawOff(std::string_view className, Grid& grid) : msClassName(className), mGrid(grid), mbRedraw(grid.Redraw())
    {
        mGrid.Redraw(false);
    }
    ~RedrawOff()
    {
        G_Trap(msClassName, "AutoRefresh", [&] { mGrid.Redraw(mbRedraw); });
    }
    RedrawOff(const RedrawOff&) = delete;
    RedrawOff& operator=(const RedrawOff&) = delete;

private:
    std::string_view msClassName;
    Grid& mGrid;
    bool mbRedraw;
};

} // namespace zqbchwcx
