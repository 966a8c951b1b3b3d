#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/HostServices.h"

namespace zqbchwcx {

/// What the picture of an overview shows besides the places: rails, and what stands around the places.
class PictureGround {
public:
    virtual ~PictureGround() = default;

    /// Throws what the host throws when it has not the pictures.
    virtual void Load(TextModule& textModule) = 0;
    /// Erases the picture and draws the ground of an empty station.
    virtual void DrawEmpty() = 0;
    /// What the picture shows of a rack itself, if anything.
    virtual void DrawRack(const VxHWRack& oRack) = 0;
    /// Takes away the mark of a place or gap that has one, and every other mark in the same row of places. The stem of
    /// a gap's mark lies on the places beside it, which are drawn anew after this.
    virtual void EraseMarks(const PositionInfo& position) = 0;
};

} // namespace zqbchwcx
