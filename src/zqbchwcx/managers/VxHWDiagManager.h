#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/managers/ModeControllers.h"

namespace zqbchwcx {

/// Connects the station, its diagnostics, an overview, a table, a panel and the controllers of diagnostics mode, which
/// only navigate.
///
/// Create, `Initialize` once, `Refresh` any number of times, `Terminate` once; outside of that, a call reports an error
/// and does nothing. Destroying a manager does not terminate it. A view that a host does not have is a `QuietView`.
class VxHWDiagManager {
public:
    VxHWDiagManager() noexcept;
    ~VxHWDiagManager();
    VxHWDiagManager(const VxHWDiagManager&) = delete;
    VxHWDiagManager& operator=(const VxHWDiagManager&) = delete;

    /// Null outside of `Initialize` and `Terminate`.
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept;
    /// Gives the service the station, draws overview and table, and focuses the first usable place of rack 0; nothing
    /// is selected. A failure leaves what is connected by then.
    void Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview, IVxHWControlPtr oiRackTable,
                    IVxHWControlPtr oiDiagPanel, VxHWStationPtr oHWStation, VxHWDiagServicePtr oHWDiag) noexcept;
    void Terminate() noexcept;
    /// Lets the station read its diagnostic state anew, then draws all views. For the change of a single place, the
    /// views have `RefreshPlace`.
    void Refresh() noexcept;

private:
    void P_InitSelection() noexcept;
    IVxHWControlPtr RackOverview() const;
    IVxHWControlPtr RackTable() const;
    IVxHWControlPtr DiagPanel() const;

    InstanceRegistration mRegistration;
    IVxHWControlPtr moiRackOverview;
    IVxHWControlPtr moiRackTable;
    IVxHWControlPtr moiDiagPanel;
    VxHWDiagServicePtr moHWDiag;
    VxHWStationPtr moHWStation;
    ModeControllers mControllers;
};

} // namespace zqbchwcx
