#pragma once

#include "zqbchwcx/foundation/Array2D.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/DataObject.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// A station of the host's hardware model. Every operation may throw; what is thrown is reported, nothing is retried.
/// No object that it returns may be null: where there is nothing, there is an empty collection or an empty module. A
/// null that comes all the same is an error of the operation that asked. What an argument may be null for is said with
/// the operation.
///
/// A position is that of a place or of a gap (`PlacePosition.h`). At a place, modules are put into places that are
/// empty. At a gap they are put between its two places (gap 0 lies before place 1): others make room, or the rules
/// refuse it.
///
/// Empty modules in a collection stand for places that stay empty; they keep the distance of the others and are never
/// placed themselves.
///
/// The model raises the events after each change, on the user-interface thread, possibly in the middle of a library
/// call that changed it.
class VxHWStation {
public:
    virtual ~VxHWStation() = default;

    /// 0 offline; 1 or 2 online.
    virtual std::int32_t DisplayMode() const = 0;
    /// 0 central station; 1 and 2 the variants of the distributed station.
    virtual std::int32_t StationKind() const = 0;
    virtual bool IsReadOnly() const = 0;
    /// Racks by their number, from 0; also those that are not present.
    virtual VxHWRacksPtr Racks() const = 0;
    /// False while a batch of changes is running: the views then ignore the events.
    virtual bool IsDrawable() const = 0;
    virtual void IsDrawable(bool bDrawable) = 0;
    /// Called once at the end of the configuration wiring.
    virtual void StartConfiguration() = 0;
    /// Opens the diagnostics display of the module in the place, or of its sub-module when that is not null.
    virtual void ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) = 0;

    /// Places copies of the modules at the position, one behind the other; fills `oPlaces` with the places that
    /// received modules. False, with nothing changed, when the rules do not allow it or there is no module to place.
    virtual bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                              const VxHWRackPlacesPtr& oPlaces) = 0;
    /// Moves the modules from the source places to the position; otherwise as `PlaceModules`. The modules are
    /// those of the source places, maybe as they came through a text; refused when they are others.
    virtual bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                             const VxHWRackPlacesPtr& oSourcePlaces, const VxHWRackPlacesPtr& oPlaces) = 0;
    /// Places that hold nothing are passed over; with one member of a module spanning several places, all of it goes.
    virtual void DeleteModules(const VxHWRackPlacesPtr& oPlaces) = 0;
    /// The module of the place is not empty and has a dialog. The library ignores the result.
    virtual std::int32_t OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace) = 0;
    /// Writes an attribute (name in upper case) of the module in the place and raises `RackPlaceChange`.
    virtual bool SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value) = 0;
    /// Whether the modules may be put at the position; the source places are null unless it is a move, for which they
    /// count as free.
    virtual bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                             const VxHWRackPlacesPtr& oSourcePlaces) const = 0;
    /// Per rack (from 0) and place (from 1): -1 where the module may be dropped. The module is not empty.
    virtual Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const = 0;
    /// The modules on the clipboard; an empty collection when there are none.
    virtual VxHWModulesPtr ClipboardModules() const = 0;
    /// The modules that a "VxHWConfigText" text, and the exchange object unless it is null, describe. The text wins
    /// where there is one; the exchange object, which may hold the host's own format, is for those that bring no text.
    virtual VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const = 0;
    virtual void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const = 0;
    /// Called first with a module that the host wants inserted, neither null nor empty.
    virtual void PrepareModule(const VxHWModulePtr& oModule) = 0;
    /// The member modules that make up a module spanning several places; empty for a module of a single place.
    virtual VxHWModulesPtr ExpandModule(const VxHWModulePtr& oModule) = 0;
    /// Gives a module that has places for sub-modules, and none in them, those of its type.
    virtual void CreateSubModules(const VxHWModulePtr& oModule) = 0;
    /// The places that the parent module's members occupy, in the order of their `IndexInParent`.
    virtual VxHWRackPlacesPtr ParentModulePlaces(const VxHWModulePtr& oParentModule) const = 0;
    /// Whether the place belongs to a module spanning several places.
    virtual bool HasGroupFrame(const VxHWRackPlacePtr& oPlace) const = 0;
    /// Reads the diagnostic state anew.
    virtual void RefreshDiagnostics() = 0;
    /// Reads an online station anew.
    virtual void RefreshOnline() = 0;
    /// In configuration mode, for a place whose module is empty; an empty text shows no tooltip.
    virtual std::string EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const = 0;
    /// In configuration mode; an empty text shows no tooltip.
    virtual std::string ModuleTooltip(const VxHWModulePtr& oModule) const = 0;

    Event<const VxHWRackPtr&> RackChange;
    Event<const VxHWRackPlacePtr&> RackPlaceChange;
    Event<> TotalRefresh;
};

} // namespace zqbchwcx
