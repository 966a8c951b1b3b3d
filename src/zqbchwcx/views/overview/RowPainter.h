#pragma once

#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PictureGround.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/overview/RowsLayout.h"
#include "zqbchwcx/views/shared/SinglePictures.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <string_view>

namespace zqbchwcx {

/// Draws what a distributed station has besides its places: the pieces of the rail at both ends of each row, and the
/// numbers below the places.
class RowPainter : public PictureGround {
public:
    RowPainter(const ViewContext& context, const Canvas& canvas, const SinglePictures& singlePictures,
               const RowsLayout& layout, const PlaceStyle& style)
        : mContext(context), mCanvas(canvas), mSinglePictures(singlePictures), mLayout(layout), mStyle(style)
    {
    }

    void Load(TextModule& /*textModule*/) override {}
    void DrawEmpty() override;
    void DrawRack(const VxHWRack& /*oRack*/) override {}
    void EraseMarks(const PositionInfo& position) override;

private:
    void DrawRow(std::int32_t lRow);
    void DrawPiece(std::string_view name, std::int32_t lLeft, std::int32_t lRow);

    const ViewContext& mContext;
    const Canvas& mCanvas;
    const SinglePictures& mSinglePictures;
    const RowsLayout& mLayout;
    const PlaceStyle& mStyle;
};

} // namespace zqbchwcx
