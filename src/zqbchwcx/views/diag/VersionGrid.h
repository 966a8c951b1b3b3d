#pragma once

#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/diag/PanelContent.h"

#include <string_view>
#include <vector>

namespace zqbchwcx {

/// The table of order number, components and versions in the diagnostics panel. It is read only; Up and Down walk its
/// rows for whoever reads them by keyboard.
class VersionGrid : private GridEvents {
public:
    /// Errors are reported under the class name.
    explicit VersionGrid(std::string_view className) : msClassName(className) {}
    ~VersionGrid() override;
    VersionGrid(const VersionGrid&) = delete;
    VersionGrid& operator=(const VersionGrid&) = delete;

    /// Makes the grid with its columns; their captions are the keys where there are no texts.
    void Create(Toolkit& toolkit, UserControl& parent, const TextModuleUse& texts) noexcept;
    /// Equal rows leave the current cell as it is.
    void Show(const std::vector<VersionRow>& rows) noexcept;
    void BackColor(OleColor color);
    void Move(const Rect& rect);

private:
    // GridEvents
    bool OnStartEditing(GridCell /*cell*/) noexcept override { return false; }
    void OnEndEditing(GridCell /*cell*/) noexcept override {}
    bool OnKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept override;
    void OnKeyUp(std::int16_t /*nKeyCode*/, std::int16_t /*nShift*/) noexcept override {}
    bool OnCharacters(std::string_view /*text*/) noexcept override { return true; }
    void OnMouseDown(const GridMouse& mouse) noexcept override;
    void OnMouseUp(const GridMouse& /*mouse*/) noexcept override {}
    void OnMouseMoveOver(const GridMouse& /*mouse*/) noexcept override {}
    void OnMouseDblClk(const GridMouse& /*mouse*/) noexcept override {}
    void OnClickedButton(GridCell /*cell*/) noexcept override {}
    std::string OnDisplayTooltip(GridCell cell) noexcept override;
    void OnTopRowChanged() noexcept override {}
    void OnColumnsChanged() noexcept override {}
    void OnResetColumns() noexcept override {}
    void OLEStartDrag(const DataObjectPtr& /*oData*/, std::int32_t& lAllowedEffects) noexcept override;
    void OLESetData(const DataObjectPtr& /*oData*/, std::int16_t /*nDataFormat*/) noexcept override {}
    void OLEDragOver(const DataObjectPtr& /*oData*/, std::int32_t& lEffect, const GridMouse& /*mouse*/,
                     std::int16_t /*nState*/) noexcept override;
    void OLEDragDrop(const DataObjectPtr& /*oData*/, std::int32_t& lEffect,
                     const GridMouse& /*mouse*/) noexcept override;
    void OLECompleteDrag(std::int32_t& /*lEffect*/) noexcept override {}

    std::string_view msClassName;
    GridPtr mvxgrdInfoVersion;
    std::vector<VersionRow> mcolShown;
};

} // namespace zqbchwcx
