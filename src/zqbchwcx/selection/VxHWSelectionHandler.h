#pragma once

#include "zqbchwcx/foundation/Array2D.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// The selection and the focus that all views and controllers of one mode share.
///
/// Controllers change `SelPlaces`, set `ShiftSelPosition` and `FocusPosition`, and call `SelChangeComplete` once at the
/// end; views redraw from the events. Every member reports its own errors and returns what it has.
class VxHWSelectionHandler {
public:
    VxHWSelectionHandler() noexcept;
    ~VxHWSelectionHandler();
    VxHWSelectionHandler(const VxHWSelectionHandler&) = delete;
    VxHWSelectionHandler& operator=(const VxHWSelectionHandler&) = delete;

    /// The collection of selected places itself, in the order in which they were added.
    VxHWRackPlacesPtr SelPlaces() const noexcept;
    /// A copy: True by rack number (from 0) and place number (from 1) where the place was selected at the last
    /// `SelChangeComplete`. Every rack is taken to have as many places as rack 0; empty without a station.
    Array2D<bool> SelPlacesArray() const noexcept;
    /// A place position; -1 for no focus. An equal value raises nothing.
    std::int32_t FocusPosition() const noexcept;
    void FocusPosition(std::int32_t lPosition) noexcept;
    /// The anchor of range selections with Shift held.
    std::int32_t ShiftSelPosition() const noexcept;
    void ShiftSelPosition(std::int32_t lPosition) noexcept;
    /// Tells everybody that `SelPlaces` has changed.
    void SelChangeComplete() noexcept;
    /// Adds the places from one position to the other, in that order; nothing when they lie in different racks.
    void SelectRange(std::int32_t lFromPosition, std::int32_t lToPosition) noexcept;
    /// Selects the places of the rack and no others.
    void SelectRack(const VxHWRackPtr& oRack) noexcept;
    /// Whether a member of the module that spans several places is selected.
    bool IsParentModuleSelected(const VxHWModulePtr& oParentModule) const noexcept;
    bool IsModuleInSelection() const noexcept;
    bool IsModuleInFocus() const noexcept;
    /// One module per selected place, empty ones included, then those of the further places of modules that span
    /// several places. A new collection; null when it could not be created.
    VxHWModulesPtr GetSelectedModules() const noexcept;
    /// Leaves the clipboard alone when no module is selected. False when an error kept the modules from the clipboard.
    bool SetSelectionToClipboard() const noexcept;

    /// Only for the controllers of this library: like `GetSelectedModules`, but tells whether the collection is
    /// complete, so that nobody takes a part of the modules for all of them.
    bool CollectSelectedModules(VxHWModulesPtr& oModules) const noexcept;
    /// Only for the managers of this library: the station whose places are selected; null for none.
    VxHWStationPtr VxHWStation() const noexcept;
    void VxHWStation(VxHWStationPtr oStation) noexcept;

    Event<> SelChange;
    /// With the previous focus position.
    Event<std::int32_t> FocusChange;

private:
    /// Whether the answer could be found; it is False until then.
    bool FindModuleInSelection(bool& bFound) const noexcept;

    InstanceRegistration mRegistration;
    VxHWRackPlacesPtr moSelPlaces;
    Array2D<bool> mabSelPlaces;
    std::int32_t mlFocusPosition = -1;
    std::int32_t mlShiftSelPosition = -1;
    VxHWStationPtr moStation;
};
using VxHWSelectionHandlerPtr = std::shared_ptr<VxHWSelectionHandler>;

} // namespace zqbchwcx
