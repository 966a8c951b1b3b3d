#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/ModulePictures.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/overview/StatusSymbols.h"
#include "zqbchwcx/views/shared/ViewContext.h"

namespace zqbchwcx {

/// Draws the places of a station.
class PlacePainter {
public:
    PlacePainter(const ViewContext& context, const PlaceStyle& style, const PlaceLayout& layout, const Canvas& canvas,
                 ModulePictures& modulePictures, const SinglePictures& singlePictures);

    /// Number, picture, group frame and status symbols of a place that the layout shows. Throws what the model throws.
    void Draw(const VxHWRackPlacePtr& oPlace, bool bSelected);
    /// The place's part of the frame around a module that spans several places.
    void DrawGroupFrame(const VxHWRackPlacePtr& oPlace) noexcept;

private:
    /// What a place shows; without a key, neither number nor picture.
    struct Look {
        std::string key;
        bool bNumber = true;
        bool bGrayed = false;
        bool bModule = false;
        bool bDrop = false;
    };

    /// The key of a place picture, which closes the rail at its end.
    std::string PlaceKey(std::string_view key, std::int32_t lPlace) const;
    Look LookOf(const VxHWRackPlacePtr& oPlace);
    void DrawContent(Surface& surface, const Look& look, Point placeAt, bool bSelected);
    void DrawNumber(Surface& surface, const Look& look, std::int32_t lNumber, Point placeAt) const;
    Point PlaceAt(const VxHWRackPlace& oPlace) const;

    const ViewContext& mContext;
    const PlaceStyle& mStyle;
    const PlaceLayout& mLayout;
    const Canvas& mCanvas;
    ModulePictures& mModulePictures;
    StatusSymbols mStatusSymbols;
};

} // namespace zqbchwcx
