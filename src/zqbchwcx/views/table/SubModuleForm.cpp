#include "zqbchwcx/views/table/SubModuleForm.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/table/ColumnSet.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "frm_SubModules";

constexpr std::int32_t FrameWidth = 1;
constexpr std::int32_t SeparatorTop = 3;
constexpr std::int32_t SeparatorBottom = 6;
constexpr std::int32_t TextInset = 4; // as in the cells of the table

bool IsButtonPress(std::int32_t lMessage)
{
    switch (lMessage) {
    case vxMessageNonClientLeftDown:
    case vxMessageNonClientRightDown:
    case vxMessageNonClientMiddleDown:
    case vxMessageLeftDown:
    case vxMessageRightDown:
    case vxMessageMiddleDown:
        return true;
    default:
        return false;
    }
}

} // namespace

frm_SubModules::frm_SubModules() noexcept : mRegistration(ClassName) {}

frm_SubModules::~frm_SubModules()
{
    Form_Unload();
    G_Trap(ClassName, "Form_Terminate", [&] {
        if (moForm) moForm->Events(nullptr);
    });
}

void frm_SubModules::Create(Toolkit& toolkit, UserControl& oControl)
{
    mpToolkit = &toolkit;
    moForm = toolkit.CreatePopupForm(oControl, ClassName);
    moForm->Events(this);
}

void frm_SubModules::ShowCombo(const Rect& cell, const Grid& grid, const VxHWRackPlacePtr& oPlace,
                               std::int16_t /*nStyle*/, const IVxHWMouseInputControllerPtr& oiMouseCtrl) noexcept
{
    const bool bShown = G_Trap(ClassName, "ShowCombo", [&] {
        moPlace = oPlace;
        moiMouseCtrl = oiMouseCtrl;
        moMouseDown.reset();
        mlMarkedLine = 0;
        mhGrid = grid.hWnd();
        mbClosedByPress = false;
        P_SetPosition(cell, grid);
        mbVisible = true;
        P_DrawContent();
        moSpy = mpToolkit->CreateWindowSpy(
            grid.hWnd(), [this](std::int32_t lMessage, std::intptr_t hOther) { moSpy_WndProc(lMessage, hOther); });
        moMouseHook = mpToolkit->CreateMouseHook(
            [this](std::int32_t lMessage, std::intptr_t hWnd) { moMouseHook_MouseAction(lMessage, hWnd); });
    });
    if (!bShown) Form_Unload();
}

std::int32_t frm_SubModules::LineCount() const
{
    const auto oPlace = moPlace; // the form may be closed in the middle of the call
    return oPlace->Module()->SubModuleCount();
}

void frm_SubModules::P_SetPosition(const Rect& cell, const Grid& grid)
{
    auto& form = *G_Require(moForm, "The form");
    const auto rectOf = [&](std::string_view key) { return grid.CellRect({1, grid.ColumnIndex(key)}); };
    mbBasicAddress = grid.ColumnIndex(ColumnKey::BasicAddress) > 0;
    const Rect name = rectOf(ColumnKey::Module);
    const Rect first = rectOf(mbBasicAddress ? ColumnKey::BasicAddress : ColumnKey::InputAddress);
    const Rect second = mbBasicAddress ? first : rectOf(ColumnKey::OutputAddress);
    const std::int32_t lLeft = std::min({name.left, first.left, second.left});
    const std::int32_t lWidth = std::max({name.right, first.right, second.right}) - lLeft;
    const auto columnOf = [&](const Rect& rect) { return Column{rect.left - lLeft, rect.right - lLeft - 1}; };
    mcolColumns = {columnOf(name), columnOf(first)};
    if (!mbBasicAddress) mcolColumns.push_back(columnOf(second));

    mlLineHeight = std::max(form.TextHeight(), 1);
    const std::int32_t lHeight = LineCount() * mlLineHeight + 2 * FrameWidth;
    const Rect area = form.WorkArea({cell.left, cell.top});
    const bool bUpwards = cell.bottom + lHeight > area.bottom && cell.top - lHeight >= area.top;
    form.Show(MakeRect(grid.ScreenPosition().x + lLeft, bUpwards ? cell.top - lHeight : cell.bottom, lWidth, lHeight));
}

void frm_SubModules::P_DrawContent() noexcept
{
    G_Trap(ClassName, "P_DrawContent", [&] {
        const Size size = moForm->ScaleSize();
        moForm->FillBox(MakeRect(0, 0, size.width, size.height), vxColorWindowBackground);
        const Point corners[] = {{0, 0}, {size.width - 1, 0}, {size.width - 1, size.height - 1}, {0, size.height - 1}};
        for (std::size_t k = 0; k < std::size(corners); ++k)
            moForm->DrawLine(corners[k], corners[(k + 1) % std::size(corners)], vxColorButtonText);
        for (std::int32_t lLine = 1; lLine <= LineCount(); ++lLine) P_DrawLine(lLine);
        for (const Column& column : mcolColumns)
            if (column.lRight < size.width - 1)
                moForm->DrawLine({column.lRight, SeparatorTop}, {column.lRight, size.height - SeparatorBottom},
                                 vxColorButtonShadow);
    });
}

void frm_SubModules::P_DrawLine(std::int32_t lLine) noexcept
{
    G_Trap(ClassName, "P_DrawLine", [&] {
        const std::int32_t lTop = (lLine - 1) * mlLineHeight + FrameWidth;
        const bool bMarked = lLine == mlMarkedLine;
        const OleColor textColor = bMarked ? vxColorHighlightText : vxColorWindowText;
        moForm->FillBox({FrameWidth, lTop, moForm->ScaleSize().width - FrameWidth, lTop + mlLineHeight},
                        bMarked ? vxColorHighlight : vxColorWindowBackground);
        const auto texts = TextsOf(lLine);
        for (std::size_t k = 0; k < mcolColumns.size(); ++k) {
            const Column& column = mcolColumns[k];
            const Rect box{column.lLeft + TextInset, lTop, column.lRight - TextInset, lTop + mlLineHeight};
            moForm->DrawLeftText(texts[k], box, textColor);
        }
    });
}

std::vector<std::string> frm_SubModules::TextsOf(std::int32_t lLine) const
{
    const auto oPlace = moPlace; // the form may be closed in the middle of the call
    const auto oSubModule = oPlace->Module()->SubModules()->Item(lLine - 1);
    if (mbBasicAddress) return {oSubModule->Name(), oSubModule->BasicAddressText()};
    return {oSubModule->Name(), oSubModule->InputAddressText(), oSubModule->OutputAddressText()};
}

void frm_SubModules::TellMarkedLine()
{
    std::string told;
    for (const std::string& text : TextsOf(mlMarkedLine)) {
        if (text.empty()) continue;
        if (!told.empty()) told += ", ";
        told += text;
    }
    moForm->Tell(told);
}

std::int32_t frm_SubModules::P_GetMousePosition(Point at) const noexcept
{
    return G_TrapValue(ClassName, "P_GetMousePosition", vxNoPosition, [&] {
        const Size size = moForm->ScaleSize();
        if (at.y < 1 || at.y > size.height - 2 || at.x < 1 || at.x > size.width - 2) return vxNoPosition;
        const std::int32_t lLine = (at.y - 1) / mlLineHeight + 1;
        return PositionOfLine(lLine);
    });
}

std::int32_t frm_SubModules::PositionOfLine(std::int32_t lLine) const
{
    const auto oPlace = moPlace;
    return G_SubModulePosition(lLine, oPlace->Rack()->Number(), oPlace->Number());
}

void frm_SubModules::MouseDown(std::int16_t /*nButton*/, std::int16_t /*nShift*/, Point at) noexcept
{
    moMouseDown = at;
}

void frm_SubModules::DblClick() noexcept
{
    G_Trap(ClassName, "Form_DblClick", [&] {
        if (mbVisible && moMouseDown) Open(P_GetMousePosition(*moMouseDown));
    });
}

void frm_SubModules::Open(std::int32_t lPosition) noexcept
{
    if (lPosition == vxNoPosition) return;
    const auto oiMouseCtrl = moiMouseCtrl;
    Form_Unload();
    if (oiMouseCtrl) oiMouseCtrl->DblClick(lPosition);
}

void frm_SubModules::StartWalking() noexcept
{
    if (mbVisible) Walk(1);
}

void frm_SubModules::Walk(std::int32_t lLines) noexcept
{
    G_Trap(ClassName, "P_DrawContent", [&] {
        mlMarkedLine = std::clamp(mlMarkedLine + lLines, 1, std::max(LineCount(), 1));
        P_DrawContent();
        TellMarkedLine();
    });
}

void frm_SubModules::OpenMarkedLine() noexcept
{
    G_Trap(ClassName, "Form_DblClick", [&] { Open(PositionOfLine(mlMarkedLine)); });
}

void frm_SubModules::moSpy_WndProc(std::int32_t lMessage, std::intptr_t hOther) noexcept
{
    G_Trap(ClassName, "moSpy_WndProc", [&] {
        if (lMessage == vxMessageKillFocus && hOther != moForm->hWnd()) Form_Unload();
    });
}

void frm_SubModules::moMouseHook_MouseAction(std::int32_t lMessage, std::intptr_t hWnd) noexcept
{
    G_Trap(ClassName, "moMouseHook_MouseAction", [&] {
        if (hWnd == moForm->hWnd() || !IsButtonPress(lMessage)) return;
        mbClosedByPress = hWnd == mhGrid;
        Form_Unload();
    });
}

void frm_SubModules::Form_Unload() noexcept
{
    if (!std::exchange(mbVisible, false)) return;
    G_Trap(ClassName, "Form_Unload", [&] {
        moPlace = nullptr;
        moiMouseCtrl = nullptr;
        mlMarkedLine = 0;
        moSpy.reset();
        moMouseHook.reset();
        moForm->Hide();
    });
}

} // namespace zqbchwcx
