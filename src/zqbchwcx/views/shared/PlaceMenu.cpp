#include "zqbchwcx/views/shared/PlaceMenu.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <array>
#include <optional>

namespace zqbchwcx {
namespace {

/// An item of the menu, in menu order; a separator has no text number.
struct ItemDefinition {
    std::string_view name;
    std::string_view caption;
    std::int32_t lTextId = 0;
    std::string_view procedure = {};
    void (IVxHWKeyInputController::*command)() noexcept = nullptr;
    bool EditCommands::*possible = nullptr;
};

constexpr std::array<ItemDefinition, 7> Items{{
    {"pmnu_EditModuleParams", "41001", 41001, "pmnu_EditModuleParams_Click", &IVxHWKeyInputController::KeyReturn,
     &EditCommands::bEditModuleParams},
    {"pmnu_Line1", "-"},
    {"pmnu_Cut", "57635", 57635, "pmnu_Cut_Click", &IVxHWKeyInputController::Cut, &EditCommands::bCut},
    {"pmnu_Copy", "57634", 57634, "pmnu_Copy_Click", &IVxHWKeyInputController::Copy, &EditCommands::bCopy},
    {"pmnu_Paste", "57637", 57637, "pmnu_Paste_Click", &IVxHWKeyInputController::Paste, &EditCommands::bPaste},
    {"pmnu_Line2", "-"},
    {"pmnu_Delete", "57632", 57632, "pmnu_Delete_Click", &IVxHWKeyInputController::Delete, &EditCommands::bDelete},
}};
constexpr std::int32_t EditModuleParams = 0;

} // namespace

void PlaceMenu::Create(Toolkit& toolkit, UserControl& oControl)
{
    mpmnuMain = toolkit.CreatePopupMenu(oControl, "pmnu_Main");
    for (const auto& item : Items) mpmnuMain->Add(item.name, item.caption);
    mpmnuMain->OnClick([this](std::int32_t lItem) { Click(lItem); });
    P_SetLanguageTexts();
}

void PlaceMenu::P_SetLanguageTexts() noexcept
{
    G_Trap(mContext.className, "P_SetLanguageTexts", [&] {
        const auto& oTexts = mTexts.get();
        if (!oTexts) return;
        for (std::int32_t lItem = 0; lItem < static_cast<std::int32_t>(Items.size()); ++lItem) {
            const std::int32_t lTextId = Items[static_cast<std::size_t>(lItem)].lTextId;
            if (lTextId != 0) mpmnuMain->Caption(lItem, oTexts->Text(lTextId));
        }
    });
}

void PlaceMenu::Open(bool bByKeyboard) noexcept
{
    G_Trap(mContext.className, "P_OpenPopupMenu", [&] {
        if (mContext.eStyle != vxStyleHWConfig) return;
        auto& menu = *G_Require(mpmnuMain, "The popup menu");
        Enable({});
        const EditCommands possible =
            G_PossibleEditCommands(mContext.className, mContext.oStation, mContext.oSelHandler);
        if (possible == EditCommands()) return;
        Enable(possible);
        // The host's language may have changed since the menu was made.
        P_SetLanguageTexts();
        const auto at = bByKeyboard ? std::optional(mFocusPoint()) : std::nullopt;
        menu.Show(at, possible.bEditModuleParams ? std::optional(EditModuleParams) : std::nullopt);
    });
}

void PlaceMenu::Enable(const EditCommands& possible)
{
    for (std::size_t item = 0; item < Items.size(); ++item)
        if (Items[item].possible != nullptr)
            mpmnuMain->Enabled(static_cast<std::int32_t>(item), possible.*Items[item].possible);
}

void PlaceMenu::Click(std::int32_t lItem) noexcept
{
    const auto& item = Items[static_cast<std::size_t>(lItem)];
    if (item.command == nullptr) return;
    G_Trap(mContext.className, item.procedure, [&] { (*mContext.KeyCtrl().*item.command)(); });
}

} // namespace zqbchwcx
