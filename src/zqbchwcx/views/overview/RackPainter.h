#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/PictureGround.h"
#include "zqbchwcx/views/overview/PictureStrip.h"
#include "zqbchwcx/views/shared/SinglePictures.h"
#include "zqbchwcx/views/shared/ViewContext.h"

namespace zqbchwcx {

/// Draws what a rack of a central station has besides its places: the rail and the rack number.
class RackPainter : public PictureGround {
public:
    RackPainter(const ViewContext& context, const Canvas& canvas, const SinglePictures& singlePictures)
        : mContext(context), mCanvas(canvas), mSinglePictures(singlePictures)
    {
    }

    void Load(TextModule& textModule) override;
    /// Draws the rails of all bands, whether or not the station has the rack.
    void DrawEmpty() override;
    /// The rack number, which shows whether the rack is present.
    void DrawRack(const VxHWRack& oRack) override;
    void EraseMarks(const PositionInfo& position) override;

private:
    /// The rail picture; it is transparent where places and rack number lie.
    void DrawRail(std::int32_t lRack);

    const ViewContext& mContext;
    const Canvas& mCanvas;
    const SinglePictures& mSinglePictures;
    CentralPlaceLayout mLayout;
    ImageListPtr moImages;
};

} // namespace zqbchwcx
