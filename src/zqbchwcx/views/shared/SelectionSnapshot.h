#pragma once

#include "zqbchwcx/foundation/Array2D.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx {

/// The selection that a view shows, and which places still show an older one.
class SelectionSnapshot {
public:
    struct PlaceIndex {
        std::int32_t lRack = 0;
        std::int32_t lPlace = 0;
    };

    /// Starts with nothing selected: racks 0..lRackCount - 1, places 1..lPlaceCount.
    void Reset(std::int32_t lRackCount, std::int32_t lPlaceCount);
    void Clear() { Reset(0, 0); }
    void Take(const Array2D<bool>& selected);

    /// False outside the selection's bounds.
    bool IsSelected(std::int32_t lRack, std::int32_t lPlace) const;
    /// The place is drawn as `IsSelected` says.
    void MarkDrawn(std::int32_t lRack, std::int32_t lPlace);
    /// The places whose drawing is out of date, by rack and place.
    std::vector<PlaceIndex> Outdated() const;

private:
    Array2D<bool> mSelected;
    Array2D<bool> mDrawn;
};

} // namespace zqbchwcx
