#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/selection/EditCommands.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <cstdint>
#include <functional>

namespace zqbchwcx {

/// The popup menu of overviews and tables.
class PlaceMenu {
public:
    /// `focusPoint` answers where a menu for the focus opens, in logical pixels of the control.
    PlaceMenu(const ViewContext& context, const TextModuleUse& texts, std::function<Point()> focusPoint)
        : mContext(context), mTexts(texts), mFocusPoint(std::move(focusPoint))
    {
    }

    void Create(Toolkit& toolkit, UserControl& oControl);
    /// Opens the menu at the focus (keyboard) or at the mouse; only in configuration, and only if a command is
    /// possible.
    void Open(bool bByKeyboard) noexcept;

private:
    void P_SetLanguageTexts() noexcept;
    void Enable(const EditCommands& possible);
    void Click(std::int32_t lItem) noexcept;

    const ViewContext& mContext;
    const TextModuleUse& mTexts;
    std::function<Point()> mFocusPoint;
    PopupMenuPtr mpmnuMain;
};

} // namespace zqbchwcx
