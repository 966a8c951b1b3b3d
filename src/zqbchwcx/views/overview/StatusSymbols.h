#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/Surface.h"
#include "zqbchwcx/views/overview/ModulePictures.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/shared/SinglePictures.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <string_view>

namespace zqbchwcx {

/// Draws what the comparison or the diagnostics say about a place over its picture.
class StatusSymbols {
public:
    StatusSymbols(const ViewContext& context, const PlaceStyle& style, const ModulePictures& modulePictures,
                  const SinglePictures& singlePictures)
        : mContext(context), mStyle(style), mModulePictures(modulePictures), mSinglePictures(singlePictures)
    {
    }

    /// The symbols that the view's style asks for; none in configuration.
    void Draw(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept;

private:
    void P_SetHWCompareSymbols(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept;
    void P_SetHWDiagSymbols(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept;
    void DrawSymbol(Surface& surface, std::string_view name, Point placeAt, Point offset) const noexcept;

    const ViewContext& mContext;
    const PlaceStyle& mStyle;
    const ModulePictures& mModulePictures;
    const SinglePictures& mSinglePictures;
};

} // namespace zqbchwcx
