#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWCompareControl.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/managers/ModeControllers.h"

namespace zqbchwcx {

/// Connects two stations, their comparison, an overview of the first one, a table and a list of differences, and the
/// controllers of compare mode, which only navigate.
///
/// Create, `Initialize` once, `Refresh` any number of times, `Terminate` once; outside of that, a call reports an error
/// and does nothing. Destroying a manager does not terminate it. A view that a host does not have is a `QuietView` or a
/// `QuietCompareView`.
class VxHWCompManager {
public:
    VxHWCompManager() noexcept;
    ~VxHWCompManager();
    VxHWCompManager(const VxHWCompManager&) = delete;
    VxHWCompManager& operator=(const VxHWCompManager&) = delete;

    /// Null outside of `Initialize` and `Terminate`.
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept;
    /// Compares, draws all views, and focuses the first usable place of rack 0 of the first station; nothing is
    /// selected. A failure leaves what is connected by then.
    void Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview,
                    IVxHWCompareControlPtr oiRackTableCompare, IVxHWCompareControlPtr oiDeltaList,
                    VxHWStationPtr oHWStation1, VxHWStationPtr oHWStation2, VxHWCompareServicePtr oHWCompare,
                    HWCompareType eCompareType) noexcept;
    void Terminate() noexcept;
    /// Lets the stations that are online be read anew, compares, and draws all views.
    void Refresh() noexcept;

private:
    void P_InitSelection() noexcept;
    void CompareAndDraw() const;
    IVxHWControlPtr RackOverview() const;
    IVxHWCompareControlPtr RackTable() const;
    IVxHWCompareControlPtr DeltaList() const;

    InstanceRegistration mRegistration;
    IVxHWControlPtr moiRackOverview;
    IVxHWCompareControlPtr moiRackTableCompare;
    IVxHWCompareControlPtr moiDeltaList;
    VxHWCompareServicePtr moHWCompare;
    VxHWStationPtr moHWStation1;
    VxHWStationPtr moHWStation2;
    ModeControllers mControllers;
};

} // namespace zqbchwcx
