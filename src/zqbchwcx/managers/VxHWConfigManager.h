#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/managers/ModeControllers.h"

namespace zqbchwcx {

/// Connects the station, an overview, a table and the controllers of configuration mode, and hands the host's commands
/// on to the key controller.
///
/// Create, `Initialize` once, any number of commands, `Terminate` once. A command outside of that reports an error and
/// does nothing. Destroying a manager does not terminate it. While initialised, the views hold the controllers, so that
/// a host finds them there (`IVxHWControl::VxHWDragDropController` and the like).
class VxHWConfigManager {
public:
    VxHWConfigManager() noexcept;
    ~VxHWConfigManager();
    VxHWConfigManager(const VxHWConfigManager&) = delete;
    VxHWConfigManager& operator=(const VxHWConfigManager&) = delete;

    /// Null outside of `Initialize` and `Terminate`.
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept;
    /// A read-only station gets the read-only controllers. Focuses and selects the first usable place of rack 0. A
    /// failure leaves what is connected by then.
    void Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview, IVxHWControlPtr oiRackTable,
                    VxHWStationPtr oHWStation) noexcept;
    void Terminate() noexcept;
    /// Places the module on every selected place that can take it or, when nothing is selected, at the focus. Whether
    /// it was placed at least once. Selection and focus stay. An error leaves the station's drawing switched off.
    bool SetSingleModuleToCurPos(const VxHWModulePtr& oModule) noexcept;
    void Delete() noexcept;
    void Cut() noexcept;
    void Copy() noexcept;
    void Paste() noexcept;
    void EditModuleParams() noexcept;

private:
    void CreateControllers();
    void Subscribe(const IVxHWControlPtr& oiView) const;
    void P_InitSelection() noexcept;
    VxHWModulesPtr ModulesToInsert(const VxHWModulePtr& oModule) const;
    bool PlaceAtSelectionOrFocus(const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) const;
    /// Whether the station took the modules at the position.
    bool PlaceAt(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) const;
    template <class Command>
    void Forward(const char* procedureName, Command command) noexcept;

    InstanceRegistration mRegistration;
    IVxHWControlPtr moiRackOverview;
    IVxHWControlPtr moiRackTable;
    VxHWStationPtr moHWStation;
    ModeControllers mControllers;
};

} // namespace zqbchwcx
