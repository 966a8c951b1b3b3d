#include "zqbchwcx/views/overview/PlaceMenu.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

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
};

constexpr std::array<ItemDefinition, 7> Items{{
    {"pmnu_EditModuleParams", "41001", 41001, "pmnu_EditModuleParams_Click", &IVxHWKeyInputController::KeyReturn},
    {"pmnu_Line1", "-"},
    {"pmnu_Cut", "57635", 57635, "pmnu_Cut_Click", &IVxHWKeyInputController::Cut},
    {"pmnu_Copy", "57634", 57634, "pmnu_Copy_Click", &IVxHWKeyInputController::Copy},
    {"pmnu_Paste", "57637", 57637, "pmnu_Paste_Click", &IVxHWKeyInputController::Paste},
    {"pmnu_Line2", "-"},
    {"pmnu_Delete", "57632", 57632, "pmnu_Delete_Click", &IVxHWKeyInputController::Delete},
}};

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

void PlaceMenu::P_OpenPopupMenu(bool bByKeyboard) noexcept
{
    G_Trap(mContext.className, "P_OpenPopupMenu", [&] {
        if (mContext.eStyle != vxStyleHWConfig) return;
        static_cast<void>(G_Require(mpmnuMain, "The popup menu"));
        Enable({});
        const Commands commands = EnabledCommands();
        if (!commands.bEditModuleParams && !commands.bCopy && !commands.bPaste) return;
        Enable(commands);
        // The host's language may have changed since the menu was made.
        P_SetLanguageTexts();
        const auto at = bByKeyboard ? std::optional(FocusPoint()) : std::nullopt;
        const auto lDefault =
            commands.bEditModuleParams ? std::optional<std::int32_t>(pmnu_EditModuleParams) : std::nullopt;
        mpmnuMain->Show(at, lDefault);
    });
}

PlaceMenu::Commands PlaceMenu::EnabledCommands() const
{
    const auto oStation = mContext.Station();
    Commands commands;
    commands.bEditModuleParams = P_IsEditableModuleInSelection();
    commands.bCopy = mContext.SelHandler()->IsModuleInSelection() && oStation->DisplayMode() == vxDisplayModeOffline;
    const bool bEditable = !oStation->IsReadOnly();
    commands.bCut = commands.bDelete = commands.bCopy && bEditable;
    commands.bPaste = bEditable && CanPaste();
    return commands;
}

bool PlaceMenu::P_IsEditableModuleInSelection() const noexcept
{
    bool bFound = false;
    G_Trap(mContext.className, "P_IsEditableModuleInSelection", [&] {
        const auto oPlaces = mContext.SelHandler()->SelPlaces();
        for (const auto& oPlace : *oPlaces) {
            const auto oModule = oPlace->Module();
            if (oModule->IsEmpty() || !oModule->HasParamDialog()) continue;
            bFound = true;
            return;
        }
    });
    return bFound;
}

bool PlaceMenu::CanPaste() const
{
    const auto oModules = mContext.Station()->ClipboardModules();
    return oModules && oModules->Count() > 0 &&
           mContext.Station()->CanBePlaced(mContext.FocusPosition(), oModules, false, nullptr);
}

void PlaceMenu::Enable(const Commands& commands)
{
    mpmnuMain->Enabled(pmnu_EditModuleParams, commands.bEditModuleParams);
    mpmnuMain->Enabled(pmnu_Cut, commands.bCut);
    mpmnuMain->Enabled(pmnu_Copy, commands.bCopy);
    mpmnuMain->Enabled(pmnu_Paste, commands.bPaste);
    mpmnuMain->Enabled(pmnu_Delete, commands.bDelete);
}

Point PlaceMenu::FocusPoint() const
{
    const Point inPicture = mLayout.MenuPointOf(G_PositionInfo(mContext.FocusPosition()));
    return {mCanvas.Box().Left() + inPicture.x, mCanvas.Box().Top() + inPicture.y};
}

void PlaceMenu::Click(std::int32_t lItem) noexcept
{
    const auto& item = Items[static_cast<std::size_t>(lItem)];
    if (item.command == nullptr) return;
    G_Trap(mContext.className, item.procedure, [&] { (*mContext.KeyCtrl().*item.command)(); });
}

} // namespace zqbchwcx
