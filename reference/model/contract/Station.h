#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/reference/model/Outcome.h"
#include "zqbchwcx/reference/model/contract/EditKind.h"
#include "zqbchwcx/reference/model/contract/StationServices.h"
#include "zqbchwcx/reference/model/contract/StationState.h"
#include "zqbchwcx/reference/model/editing/Edit.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// A station held in memory. Every change goes through the edits of reference/model/editing; one that a rule stands
/// against changes nothing, makes the operation answer False, and is told by `Refused`.
///
/// While `IsDrawable` is False, changes raise their events as ever, but views draw nothing; when it becomes True again,
/// `TotalRefresh` tells them to draw what they missed.
class Station : public VxHWStation {
public:
    Station(ModelContextPtr oContext, StationData data, StationServices services = {});

    std::int32_t DisplayMode() const override { return moState->Data().displayMode; }
    std::int32_t StationKind() const override { return moState->Data().kind; }
    /// Of an online station, too.
    bool IsReadOnly() const override { return AgainstEditing().has_value(); }
    VxHWRacksPtr Racks() const override;
    bool IsDrawable() const override { return mbDrawable; }
    void IsDrawable(bool bDrawable) override;
    /// Nothing to be done: the station is ready as soon as it is made.
    void StartConfiguration() override {}
    void ShowModuleDiagnostics(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) override;

    bool PlaceModules(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                      const VxHWRackPlacesPtr& oPlaces) override;
    bool MoveModules(std::int32_t lPosition, const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oSourcePlaces,
                     const VxHWRackPlacesPtr& oPlaces) override;
    void DeleteModules(const VxHWRackPlacesPtr& oPlaces) override;
    /// 1 when the user changed something, else 0.
    std::int32_t OpenModuleParamDialog(const VxHWRackPlacePtr& oPlace) override;
    bool SetModuleAttribute(const VxHWRackPlacePtr& oPlace, std::string_view name, std::string_view value) override;
    bool CanBePlaced(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                     const VxHWRackPlacesPtr& oSourcePlaces) const override;
    Array2D<std::int32_t> GetPossibleDropPlaces(const VxHWModulePtr& oModule) const override;
    /// Damaged content of the clipboard counts as none and is told by `Refused`.
    VxHWModulesPtr ClipboardModules() const override;
    /// Reads the text, or the exchange object's data when the text is empty. Throws VxError for damaged text.
    VxHWModulesPtr ModulesFromConfigText(std::string_view text, const ExchangeDataPtr& oExchange) const override;
    void WriteModulesToExchange(const VxHWModulesPtr& oModules, const ExchangeDataPtr& oExchange) const override;
    /// Throws VxError for an empty module. A module that stands nowhere forgets its addresses, so that it gets new
    /// ones.
    void PrepareModule(const VxHWModulePtr& oModule) override;
    VxHWModulesPtr ExpandModule(const VxHWModulePtr& oModule) override;
    void CreateSubModules(const VxHWModulePtr& oModule) override;
    VxHWRackPlacesPtr ParentModulePlaces(const VxHWModulePtr& oParentModule) const override;
    bool HasGroupFrame(const VxHWRackPlacePtr& oPlace) const override;
    void RefreshDiagnostics() override;
    void RefreshOnline() override;
    std::string EmptyPlaceTooltip(const VxHWRackPlacePtr& oPlace) const override;
    std::string ModuleTooltip(const VxHWModulePtr& oModule) const override;

    const StationData& Data() const { return moState->Data(); }
    const Catalogue& ModuleTypes() const { return moState->ModuleTypes(); }
    const ModelContextPtr& Context() const { return moState->Context(); }
    EditContext EditFrom() const { return moState->EditFrom(); }
    /// Why nothing in the station may be changed; nothing when it may.
    Objection AgainstEditing() const;
    /// Why the modules cannot be put there; nothing when they can.
    Objection AgainstPlacing(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                             const VxHWRackPlacesPtr& oSourcePlaces) const;
    /// A module of the catalogue that stands nowhere yet. Throws VxError for an order number that is not in it.
    VxHWModulePtr CreateModule(std::string_view orderNumber) const;
    VxHWRackPlacePtr PlaceAt(PlaceRef place) const;

    /// Takes over another state as it is (a loaded station, a step of the history) and tells what differs. No edit:
    /// neither rules nor `Changing` and `Changed` apply.
    void Restore(StationData data);
    /// Makes an edit that its function has allowed; nothing happens when it changes nothing.
    void Apply(StationData data, EditKind kind);

    /// Around each edit that changes something.
    Event<EditKind> Changing;
    Event<EditKind> Changed;
    /// Around each batch: False before its first change, True after its events.
    Event<bool> DrawableChange;
    /// An operation that a rule stood against.
    Event<const Refusal&> Refused;

private:
    /// Applies the edit, or tells why not; returns which of the two.
    bool Finish(const Outcome<Edit>& edit, EditKind kind);
    bool FinishPlacing(const Outcome<Edit>& edit, EditKind kind, const VxHWRackPlacesPtr& oPlaces);
    Outcome<Edit> TryPlacing(std::int32_t lPosition, const VxHWModulesPtr& oModules, bool bMove,
                             const VxHWRackPlacesPtr& oSourcePlaces) const;
    void Tell(const StationChange& change);

    StationStatePtr moState;
    StationServices moServices;
    bool mbDrawable = true;
};
using StationPtr = std::shared_ptr<Station>;

} // namespace zqbchwcx::reference
