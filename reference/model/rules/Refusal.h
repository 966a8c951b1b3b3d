#pragma once

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/PlaceRef.h"

#include <optional>
#include <string_view>

namespace zqbchwcx::reference {

/// The rules that edits keep and checks look for.
enum class Rule {
    ReadOnly,
    NothingToPlace,
    NoSuchPlace,
    RackNotPresent,
    PlaceNotUsable,
    PlaceInactive,
    PlaceOccupied,
    UnknownType,
    SubModuleAlone,
    StationKind,
    WrongPlace,
    SpanTooLong,
    LeaderMissing,
    GapInsideModule,
    NoRoomToShift,
    SourcesDiffer,
    NoFreeAddress,
    AddressSyntax,
    AddressRange,
    AddressOverlap,
    AddressMissing,
    AddressUnexpected,
    NoSuchAttribute,
    TextTooLong,
    UnknownParameter,
    ValueNotAllowed,
    SubModules,
    DamagedText,
    Online,
};

/// The rule's stable name in reports, such as "wrong-place".
std::string_view RuleId(Rule rule);

/// A rule that stands against something: which one, where, and why, for people.
struct Refusal {
    Rule rule = Rule::NothingToPlace;
    PlaceRef place;
    LocalizedText text;
};

/// "place 4 of rack 0", "Platz 4 von Träger 0"; the rack alone for place 0.
LocalizedText PlaceText(PlaceRef place);

/// Nothing when there is no objection.
using Objection = std::optional<Refusal>;

/// Error numbers of refusals: this plus the number of the rule.
inline constexpr std::int32_t RefusalErrorBase = 33000;

/// The refusal as an error for operations that can only throw.
VxError ToError(const Refusal& refusal, Language language);

} // namespace zqbchwcx::reference
