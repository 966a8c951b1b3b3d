#pragma once

#include "zqbchwcx/controllers/StationController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/platform/Timer.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace zqbchwcx {

/// Drag and drop in configuration mode. One object serves all views of the mode, so that a drag may leave one view
/// and enter another; a short timer bridges the way between them.
class VxHWConfigCtrlDD : public StationController,
                         public IVxHWDragDropController,
                         public std::enable_shared_from_this<VxHWConfigCtrlDD> {
public:
    VxHWConfigCtrlDD() noexcept;
    ~VxHWConfigCtrlDD() override;

    void AddSubscriber(const IVxHWDragDropCtrlEventsPtr& oSubscriber) noexcept override;
    void RemoveAllSubscribers() noexcept override;

    VxEnumDragDropStates State() const noexcept override;
    std::int32_t DropPosition() const noexcept override;
    VxHWModulesPtr DragModules() const noexcept override;
    Array2D<std::int32_t> PossibleDropPlaces() const noexcept override;
    void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept override;
    void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept override;
    void OLEDragOver(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                     std::int16_t nShift, std::int16_t nState) noexcept override;
    /// A drop that fails ends the drag all the same; the modules of the source stay where they are.
    void OLEDragDrop(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                     std::int16_t nShift) noexcept override;
    void OLECompleteDrag(std::int32_t& lEffect) noexcept override;
    bool IsDropPlace(const VxHWRackPlacePtr& oPlace) const noexcept override;
    bool IsValidDragPosition(std::int32_t lPosition) const noexcept override;

private:
    void P_FillDragModules(const DataObjectPtr& oData, bool bWithExchange) noexcept;
    void P_FillPossibleDropPlaces() noexcept;
    bool P_CanBePlaced(std::int32_t lPosition, std::int16_t nShift) noexcept;
    void P_CheckDropEffect(std::int32_t& lEffect, bool bCanDrop, std::int16_t nButton, std::int16_t nShift) noexcept;
    void P_State(VxEnumDragDropStates eNew) noexcept;
    void P_RaiseEvent_StateChange(VxEnumDragDropStates ePrevious) noexcept;
    void moTimer_Timer() noexcept;

    /// Whether the drag moves modules of this mode; with Ctrl, or from elsewhere, it copies.
    bool IsMove(std::int16_t nShift) const;
    void LeaveView();
    void EnterView();
    void MoveOver(std::int32_t lPosition, std::int16_t nShift);
    /// Puts the drag modules at the position and selects where they came to stand. Whether the place was allowed.
    bool DropAt(std::int32_t lPosition, std::int16_t nShift);
    void RestoreFocus();
    void ForgetDropDecisions();
    void EndDrag();

    VxEnumDragDropStates meState = vxDragDropStateInactive;
    std::int32_t mlDropPosition = 0;
    /// Where the focus goes back to when the drag leaves or the drop is refused.
    /// Nothing when no drag with modules entered: a drop then leaves the focus where it is.
    std::optional<std::int32_t> mlFocusAtEnter;
    VxHWModulesPtr moDragModules;
    Array2D<std::int32_t> malPossibleDropPlaces;
    /// The drag started from this mode's selection.
    bool mbDragSource = false;
    /// The station's answers during this drag, by position. The first answer for a position holds.
    std::map<std::int32_t, bool> mcolCanBePlaced;
    std::vector<std::weak_ptr<IVxHWDragDropCtrlEvents>> mcolSubscribers;
    bool mbLastCanDrop = false;
    TimerPtr moTimer;
};

} // namespace zqbchwcx
