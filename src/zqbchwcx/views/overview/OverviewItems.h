#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceTooltips.h"
#include "zqbchwcx/views/shared/PositionDescription.h"
#include "zqbchwcx/views/shared/SelectionSnapshot.h"

#include <vector>

namespace zqbchwcx {

/// A rack, place or gap of an overview.
struct OverviewItem {
    PositionDescription what; ///< of no position where the overview shows none
    Rect rect;                ///< logical pixels of the control
    bool bSelected = false;
    bool bFocused = false;
};

/// What the picture of an overview shows, for those who do not see it. Every member reports its own errors and then
/// answers as for a position that is not shown.
class OverviewItems {
public:
    OverviewItems(const ViewContext& context, const PlaceLayout& layout, const Canvas& canvas,
                  const SelectionSnapshot& selection, const PlaceTooltips& tooltips)
        : mContext(context), mLayout(layout), mCanvas(canvas), mSelection(selection), mTooltips(tooltips)
    {
    }

    /// The positions of the racks, in the station's order.
    std::vector<std::int32_t> Racks() const noexcept;
    /// The positions of the gaps and places of a rack in turn, from the gap before its first place to the last gap.
    std::vector<std::int32_t> InRack(std::int32_t lRack) const noexcept;
    OverviewItem At(std::int32_t lPosition) const noexcept;
    bool IsSelected(std::int32_t lPosition) const noexcept;
    /// The position with the focus, which may be one that is not shown; -1 for none.
    std::int32_t FocusPosition() const noexcept { return mContext.FocusPosition(); }
    /// What is told of the place beyond its description: in diagnostics and comparison its state. Lines of text, empty
    /// for none.
    std::string DetailsAt(std::int32_t lPosition) const noexcept;

private:
    bool Shows(const PositionInfo& position) const;
    /// Their numbers; none of a rack that the overview does not show.
    std::vector<std::int32_t> ShownPlacesOf(std::int32_t lRack) const;
    Rect RectOf(const PositionDescription& what) const;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    const Canvas& mCanvas;
    const SelectionSnapshot& mSelection;
    const PlaceTooltips& mTooltips;
};

} // namespace zqbchwcx
