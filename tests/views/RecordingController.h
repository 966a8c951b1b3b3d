#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// All three controllers of a mode in one: keeps every call as a line and answers what the test has set.
class RecordingController : public IVxHWMouseInputController,
                            public IVxHWKeyInputController,
                            public IVxHWDragDropController {
public:
    bool CanSelectByRubberBand() const noexcept override { return canSelectByRubberBand; }
    void DblClick(std::int32_t lPosition) noexcept override { Line("DblClick", lPosition); }
    void MouseDown(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept override
    {
        Line("MouseDown", lPosition, nButton, nShift);
    }
    void MouseUp(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept override
    {
        Line("MouseUp", lPosition, nButton, nShift);
    }

    void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept override
    {
        Line("CursorKeyDown", lNewPosition, nShift);
    }
    void SpaceKeyDown(std::int16_t nShift) noexcept override { Line("SpaceKeyDown", nShift); }
    void Delete() noexcept override { Line("Delete"); }
    void Cut() noexcept override { Line("Cut"); }
    void Copy() noexcept override { Line("Copy"); }
    void Paste() noexcept override
    {
        Line("Paste");
        if (onPaste) onPaste();
    }
    void KeyReturn() noexcept override { Line("KeyReturn"); }

    VxEnumDragDropStates State() const noexcept override { return state; }
    std::int32_t DropPosition() const noexcept override { return -1; }
    VxHWModulesPtr DragModules() const noexcept override { return dragModules; }
    Array2D<std::int32_t> PossibleDropPlaces() const noexcept override { return {}; }
    void OLEStartDrag(const DataObjectPtr&, std::int32_t& lAllowedEffects) noexcept override
    {
        Line("OLEStartDrag");
        lAllowedEffects = 3;
    }
    void OLESetData(const DataObjectPtr&, std::int16_t nDataFormat) noexcept override
    {
        Line("OLESetData", nDataFormat);
    }
    void OLEDragOver(std::int32_t lPosition, const DataObjectPtr&, std::int32_t& lEffect, std::int16_t nButton,
                     std::int16_t nShift, std::int16_t nState) noexcept override
    {
        Line("OLEDragOver", lPosition, lEffect, nButton, nShift, nState);
        lEffect = 1;
    }
    void OLEDragDrop(std::int32_t lPosition, const DataObjectPtr&, std::int32_t& lEffect, std::int16_t nButton,
                     std::int16_t nShift) noexcept override
    {
        Line("OLEDragDrop", lPosition, lEffect, nButton, nShift);
        lEffect = 2;
    }
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override { Line("OLECompleteDrag", lEffect); }
    bool IsDropPlace(const VxHWRackPlacePtr& oPlace) const noexcept override { return oPlace->Key() == dropPlace; }
    bool IsValidDragPosition(std::int32_t lPosition) const noexcept override { return lPosition == dragPosition; }

    std::vector<std::string> Take() { return std::exchange(mcolLines, {}); }

    bool canSelectByRubberBand = true;
    VxEnumDragDropStates state = vxDragDropStateInactive;
    VxHWModulesPtr dragModules;
    std::string dropPlace; ///< its key
    std::int32_t dragPosition = -2;
    std::function<void()> onPaste;

private:
    template <class... Arguments>
    void Line(std::string line, Arguments... arguments)
    {
        ((line += " " + std::to_string(arguments)), ...);
        mcolLines.push_back(std::move(line));
    }

    std::vector<std::string> mcolLines;
};

} // namespace zqbchwcx::testing
