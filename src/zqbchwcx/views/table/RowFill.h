#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <string>
#include <string_view>

namespace zqbchwcx {

/// Fills the cells of a row with what its place holds, in the columns of the view's style.
class RowFill {
public:
    RowFill(const ViewContext& context, const TextModuleUse& texts) : mContext(context), mTexts(texts) {}

    /// Texts that every filling needs; read again when the language may have changed.
    void ReadTexts();

    /// Number, colours and content. Throws what the model throws.
    void Fill(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const;

private:
    void FillNumber(Grid& grid, std::int32_t lRow, const VxHWRackPlace& oPlace) const;
    void P_FillRowHWConfig(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const;
    void P_FillRowHWDiag(Grid& grid, std::int32_t lRow, const VxHWRackPlacePtr& oPlace) const;
    void FillModule(Grid& grid, std::int32_t lRow, const VxHWModule& oModule) const;
    /// The address text, or the button that opens the sub-modules. True for the button.
    bool FillAddress(Grid& grid, GridCell cell, const VxHWModule& oModule, const std::string& address) const;

    const ViewContext& mContext;
    const TextModuleUse& mTexts;
    std::string msSubModules;
};

} // namespace zqbchwcx
