#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PictureStrip.h"
#include "zqbchwcx/views/shared/SinglePictures.h"
#include "zqbchwcx/views/shared/ViewContext.h"

namespace zqbchwcx {

/// Draws what a rack of a central station has besides its places: the rail and the rack number.
class RackPainter {
public:
    RackPainter(const ViewContext& context, const Canvas& canvas, const SinglePictures& singlePictures)
        : mContext(context), mCanvas(canvas), mSinglePictures(singlePictures)
    {
    }

    void Load(TextModule& textModule);

    /// Erases the picture and draws the rails of all bands, whether or not the station has the rack.
    void DrawEmptyRails();
    /// The rail picture; it is transparent where places and rack number lie.
    void DrawRail(std::int32_t lRack);
    void DrawNumber(const VxHWRack& oRack);
    /// Erases all focus marks above and below the places of the rack.
    void ClearFocusStrips(std::int32_t lRack);

private:
    const ViewContext& mContext;
    const Canvas& mCanvas;
    const SinglePictures& mSinglePictures;
    ImageListPtr moImages;
};

} // namespace zqbchwcx
