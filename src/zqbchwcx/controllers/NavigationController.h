#pragma once

#include "zqbchwcx/controllers/StationController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// The mouse in modes that change nothing: every press, whichever button and modifiers it comes with, moves focus and
/// anchor, and never the selection. A press in a gap means the place to its left. What a double click on a place opens
/// is the mode's.
class NavigationMouse : public StationController, public IVxHWMouseInputController {
public:
    bool CanSelectByRubberBand() const noexcept override { return false; }
    void DblClick(std::int32_t lPosition) noexcept override;
    void MouseDown(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept override;
    void MouseUp(std::int32_t /*lPosition*/, std::int16_t /*nButton*/, std::int16_t /*nShift*/) noexcept override {}

protected:
    using StationController::StationController;

private:
    /// The line, from 1, is that of the sub-module that was clicked; 0 for the place itself.
    virtual void Open(const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine) = 0;
};

/// The keys in such modes: a cursor key moves focus and anchor, Return opens what the mode opens, the others do
/// nothing.
class NavigationKey : public StationController, public IVxHWKeyInputController {
public:
    void CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept override;
    void SpaceKeyDown(std::int16_t /*nShift*/) noexcept override {}
    void Delete() noexcept override {}
    void Cut() noexcept override {}
    void Copy() noexcept override {}
    void Paste() noexcept override {}
    void KeyReturn() noexcept override;

protected:
    using StationController::StationController;

private:
    virtual void Open(const VxHWRackPlacePtr& oPlace) = 0;
};

} // namespace zqbchwcx
