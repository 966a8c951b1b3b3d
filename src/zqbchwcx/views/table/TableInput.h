#pragma once

#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/table/CellEditing.h"
#include "zqbchwcx/views/table/SubModuleForm.h"
#include "zqbchwcx/views/table/TableContent.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace zqbchwcx {

/// Turns what happens on the grid of a table into calls of the controllers, each with the position of the place in the
/// row, and gives the cells that are edited their keys.
class TableInput : public GridEvents {
public:
    /// Where a cursor key leads from the focus, or nothing.
    using CursorTarget = std::function<std::optional<std::int32_t>(const VxHWStation& oStation, std::int32_t lFocus,
                                                                   std::int16_t nKeyCode, std::int16_t nShift)>;

    TableInput(const ViewContext& context, const TextModuleUse& texts, TableContent& content, CellEditing& editing,
               frm_SubModules& subModules, PlaceMenu& menu, RedrawGate& gate, CursorTarget cursorTarget);

    void CloseSubModules() noexcept { mSubModules.Unload(); }

    Event<> TopRowChange;

    bool OnStartEditing(GridCell cell) noexcept override;
    void OnEndEditing(GridCell cell) noexcept override;
    bool OnKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void OnKeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    bool OnCharacters(std::string_view text) noexcept override;
    void OnMouseDown(const GridMouse& mouse) noexcept override;
    void OnMouseUp(const GridMouse& mouse) noexcept override;
    void OnMouseMoveOver(const GridMouse& mouse) noexcept override;
    void OnMouseDblClk(const GridMouse& mouse) noexcept override;
    void OnClickedButton(GridCell cell) noexcept override;
    std::string OnDisplayTooltip(GridCell cell) noexcept override;
    void OnTopRowChanged() noexcept override;
    void OnColumnsChanged() noexcept override;
    void OnResetColumns() noexcept override;
    void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept override;
    void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept override;
    void OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse,
                     std::int16_t nState) noexcept override;
    void OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, const GridMouse& mouse) noexcept override;
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override;

private:
    template <class Body>
    void Trap(std::string_view event, Body&& body) noexcept;
    bool KeyDownInForm(std::int16_t nKeyCode);
    bool KeyDownInTable(std::int16_t nKeyCode, std::int16_t nShift);
    void P_CursorKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept;
    void OpenSubModules(GridCell cell);
    void OpenSubModulesOfFocus();
    std::int32_t PositionAt(Point at) const;

    const ViewContext& mContext;
    const TextModuleUse& mTexts;
    TableContent& mContent;
    CellEditing& mEditing;
    frm_SubModules& mSubModules;
    PlaceMenu& mMenu;
    RedrawGate& mGate;
    CursorTarget mCursorTarget;
    Size mDragThreshold;
    std::optional<Point> moDragStart;
    std::int32_t mlMouseDownPosition = vxNoPosition;
    /// The row whose form the press closed: the click that it becomes does not open it again.
    std::int32_t mlClosedByPress = 0;
    std::int32_t mlFormRow{}; ///< of the form that was opened last
    /// Shift was held when F10 went down: whichever of the two is released first, the menu opens.
    bool mbMenuKeyDown = false;
};

} // namespace zqbchwcx
