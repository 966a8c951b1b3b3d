#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <array>
#include <string>

namespace zqbchwcx::reference {

std::string_view RuleId(Rule rule)
{
    static constexpr std::array ids = {
        "read-only",         "nothing-to-place",   "no-such-place",     "rack-not-present", "place-not-usable",
        "place-inactive",    "place-occupied",     "unknown-type",      "sub-module-alone", "station-kind",
        "wrong-place",       "span-too-long",      "leader-missing",    "gap-in-module",    "no-room-to-shift",
        "sources-differ",    "no-free-address",    "address-syntax",    "address-range",    "address-overlap",
        "address-missing",   "address-unexpected", "no-such-attribute", "text-too-long",    "unknown-parameter",
        "value-not-allowed", "sub-modules",        "damaged-text",      "online",
    };
    static_assert(ids.size() == static_cast<std::size_t>(Rule::Online) + 1);
    return ids[static_cast<std::size_t>(rule)];
}

LocalizedText PlaceText(PlaceRef place)
{
    if (place.rack < 0) return {"the station", "der Station"};
    const std::string rack = std::to_string(place.rack);
    if (place.place <= 0) return {"rack " + rack, "Träger " + rack};
    const std::string number = std::to_string(place.place);
    return {"place " + number + " of rack " + rack, "Platz " + number + " von Träger " + rack};
}

VxError ToError(const Refusal& refusal, Language language)
{
    return {RefusalErrorBase + static_cast<std::int32_t>(refusal.rule), refusal.text.In(language)};
}

} // namespace zqbchwcx::reference
