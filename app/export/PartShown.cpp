#include "app/export/PartShown.h"

#include "app/host/Strings.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quillon_ed {

using namespace zqbchwcx::reference;
using Layout = zqbchwcx::CentralPlaceLayout;

namespace {

/// A table is the picture of its rack only.
std::vector<RackDataPtr> RacksOf(const StationData& station, const PictureContent& content)
{
    if (content.HasOverview()) return station.racks;
    return {station.racks.at(static_cast<std::size_t>(content.rack))};
}

} // namespace

std::optional<LocalizedText> PartShown(const StationData& station, const PictureContent& content)
{
    if (station.kind != zqbchwcx::vxStationKindCentral) return {};
    const std::vector<RackDataPtr> racks = RacksOf(station, content);
    std::size_t mostPlaces = 0;
    std::size_t missing = 0;
    for (std::size_t rack = 0; rack < racks.size(); ++rack) {
        const auto& places = racks[rack]->places;
        mostPlaces = std::max(mostPlaces, places.size());
        const std::size_t shown =
            rack < Layout::RackCount ? std::min<std::size_t>(Layout::PlaceCount, places.size()) : 0;
        missing +=
            static_cast<std::size_t>(std::count_if(places.begin() + static_cast<std::ptrdiff_t>(shown), places.end(),
                                                   [](const PlaceData& place) { return place.module != nullptr; }));
    }
    LocalizedText parts;
    const auto add = [&](std::int32_t shown, std::size_t all, const char* en, const char* de) {
        if (all <= static_cast<std::size_t>(shown)) return;
        const std::string and_ = parts.en.empty() ? "" : " and ";
        const std::string und = parts.de.empty() ? "" : " und ";
        parts.en += and_ + std::to_string(shown) + " of " + std::to_string(all) + en;
        parts.de += und + std::to_string(shown) + " von " + std::to_string(all) + de;
    };
    add(Layout::RackCount, racks.size(), " racks", " Trägern");
    add(Layout::PlaceCount, mostPlaces, " places in a rack", " Plätzen eines Trägers");
    if (parts.en.empty()) return {};
    return LocalizedText{"The picture shows " + parts.en + "; modules left out: " + std::to_string(missing),
                         "Das Bild zeigt " + parts.de + "; ausgelassene Baugruppen: " + std::to_string(missing)};
}

QString PartShownText(const Station& station, const PictureContent& content)
{
    const auto text = PartShown(station.Data(), content);
    return text ? ToQString(*text, station.Context()->CurrentLanguage()) : QString();
}

} // namespace quillon_ed
