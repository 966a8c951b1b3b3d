#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// The popup menu of an overview, with the rules that enable its commands.
class PlaceMenu {
public:
    PlaceMenu(const ViewContext& context, const PlaceLayout& layout, const Canvas& canvas, const TextModuleUse& texts)
        : mContext(context), mLayout(layout), mCanvas(canvas), mTexts(texts)
    {
    }

    void Create(Toolkit& toolkit, UserControl& oControl);
    /// Opens the menu at the focus (keyboard) or at the mouse; only in configuration, and only if a command is enabled.
    void P_OpenPopupMenu(bool bByKeyboard) noexcept;

private:
    enum Item : std::int32_t {
        pmnu_EditModuleParams,
        pmnu_Line1,
        pmnu_Cut,
        pmnu_Copy,
        pmnu_Paste,
        pmnu_Line2,
        pmnu_Delete,
    };
    struct Commands {
        bool bEditModuleParams = false;
        bool bCut = false;
        bool bCopy = false;
        bool bPaste = false;
        bool bDelete = false;
    };

    void P_SetLanguageTexts() noexcept;
    Commands EnabledCommands() const;
    bool P_IsEditableModuleInSelection() const noexcept;
    bool CanPaste() const;
    void Enable(const Commands& commands);
    Point FocusPoint() const;
    void Click(std::int32_t lItem) noexcept;

    const ViewContext& mContext;
    const PlaceLayout& mLayout;
    const Canvas& mCanvas;
    const TextModuleUse& mTexts;
    PopupMenuPtr mpmnuMain;
};

} // namespace zqbchwcx
