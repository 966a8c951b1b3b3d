#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Tooltips.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <string>

namespace zqbchwcx {

/// Tells what is under the mouse.
///
/// Configuration: the station's texts, or text 6100 for an empty place that can be filled.
/// Diagnostics, one line each: the operating state of a controller (6101 RUN, 6102 STOP, 6103 HOLD), and, if the module
/// reports a failure, its states by category (1: 2021, 4: 2026, 2: 2027).
/// Compare: a text for the result, then the compare service's own text for the place. Result 1: 6107, 2: 6119,
/// 5 and 6: 6108, 7 and 8: 6112; 3: 6109 for the compare types 0 and 1 and 6110 for type 2; 4: 6110 for type 0 and 6111
/// for the types 1 and 2.
class PlaceTooltips : public TooltipCallback {
public:
    PlaceTooltips(const ViewContext& context, const PlaceLayout& layout, const TextModuleUse& texts)
        : mContext(context), mLayout(layout), mTexts(texts)
    {
    }

    /// Answers for the window until `Disconnect`.
    void Connect(std::intptr_t hWnd) noexcept;
    void Disconnect() noexcept { moConnection.reset(); }

    Tooltip GetTooltip(Point at) noexcept override;
    /// What is told of the place; empty for nothing.
    std::string TextOf(const VxHWRackPlacePtr& oPlace) const;

private:
    std::string P_GetTooltipHWConfiguration(const VxHWRackPlacePtr& oPlace) const noexcept;
    std::string P_GetTooltipHWDiagnostics(const VxHWRackPlacePtr& oPlace) const noexcept;
    std::string P_GetTooltipHWCompare(const VxHWRackPlacePtr& oPlace) const noexcept;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    const TextModuleUse& mTexts;
    TooltipConnectionPtr moConnection;
};

} // namespace zqbchwcx
