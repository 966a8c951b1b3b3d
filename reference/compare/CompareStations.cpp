#include "zqbchwcx/reference/compare/CompareStations.h"

#include "zqbchwcx/reference/compare/FindMoved.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::reference {
namespace {

/// One rack of a station, which may lack it.
class RackSide {
public:
    RackSide(const StationData& station, std::size_t rack, const Catalogue& catalogue)
    {
        if (rack >= station.racks.size()) return;
        mpRack = station.racks[rack].get();
        mOccupancy = Occupancy(*mpRack, catalogue);
    }

    std::int32_t PlaceCount() const { return mOccupancy.PlaceCount(); }
    /// Where the module begins that fills the place; 0 for none.
    std::int32_t FirstPlace(std::int32_t place) const { return mOccupancy.FirstPlace(place); }
    /// Null for `FirstPlace` 0.
    ModuleDataPtr ModuleAt(std::int32_t firstPlace) const
    {
        return firstPlace == 0 ? nullptr : mpRack->places[static_cast<std::size_t>(firstPlace - 1)].module;
    }

private:
    const RackData* mpRack = nullptr;
    Occupancy mOccupancy;
};

class Comparer {
public:
    Comparer(const StationData& first, const StationData& second, const Catalogue& catalogue,
             const CompareOptions& options)
        : mFirst(first), mSecond(second), mCatalogue(catalogue), mOptions(options)
    {
    }

    StationComparison Run() &&
    {
        const auto differs = [this](StationAspect aspect, bool bDiffers) {
            if (bDiffers) mComparison.stationDifferences.push_back({aspect});
        };
        differs(StationAspect::Kind, mFirst.kind != mSecond.kind);
        differs(StationAspect::Name, !mOptions.ignoreNames && mFirst.name != mSecond.name);
        differs(StationAspect::Lock, !mOptions.ignoreLock && mFirst.readOnly != mSecond.readOnly);
        // Places of different kinds of station have nothing to do with each other.
        if (mFirst.kind != mSecond.kind) return std::move(mComparison);
        differs(StationAspect::RackCount, mFirst.racks.size() != mSecond.racks.size());
        mComparison.results.resize(std::max(mFirst.racks.size(), mSecond.racks.size()));
        for (std::size_t rack = 0; rack < mComparison.results.size(); ++rack) CompareRack(rack);
        return std::move(mComparison);
    }

private:
    void CompareRack(std::size_t rack)
    {
        auto& results = mComparison.results[rack];
        const bool bBoth = rack < mFirst.racks.size() && rack < mSecond.racks.size();
        if (bBoth && mFirst.racks[rack] == mSecond.racks[rack]) {
            results.assign(mFirst.racks[rack]->places.size(), CompareResult::Equal);
            return;
        }
        if (bBoth) CompareShape(static_cast<std::int32_t>(rack), *mFirst.racks[rack], *mSecond.racks[rack]);
        ComparePlaces(rack);
    }

    void CompareShape(std::int32_t lRack, const RackData& first, const RackData& second)
    {
        auto& differences = mComparison.stationDifferences;
        const std::size_t common = std::min(first.places.size(), second.places.size());
        if (first.places.size() != second.places.size()) differences.push_back({StationAspect::PlaceCount, {lRack, 0}});
        if (mOptions.ignoreUsability) return;
        if (first.state != second.state) differences.push_back({StationAspect::RackState, {lRack, 0}});
        for (std::size_t i = 0; i < common; ++i)
            if (first.places[i].usability != second.places[i].usability)
                differences.push_back({StationAspect::Usability, {lRack, static_cast<std::int32_t>(i + 1)}});
    }

    void ComparePlaces(std::size_t rack)
    {
        const RackSide first(mFirst, rack, mCatalogue);
        const RackSide second(mSecond, rack, mCatalogue);
        auto& results = mComparison.results[rack];
        results.reserve(static_cast<std::size_t>(std::max(first.PlaceCount(), second.PlaceCount())));
        const std::size_t firstOfRack = mComparison.placeDifferences.size();
        std::pair<std::int32_t, std::int32_t> last;
        for (std::int32_t place = 1; place <= std::max(first.PlaceCount(), second.PlaceCount()); ++place) {
            const std::int32_t begin1 = first.FirstPlace(place);
            const std::int32_t begin2 = second.FirstPlace(place);
            const bool bGoesOn = std::exchange(last, {begin1, begin2}) == std::pair(begin1, begin2);
            if (begin1 == 0 && begin2 == 0) {
                const bool bBoth = place <= std::min(first.PlaceCount(), second.PlaceCount());
                results.push_back(bBoth ? CompareResult::Equal : CompareResult::NotCompared);
                continue;
            }
            if (bGoesOn) {
                results.push_back(results.back());
                if (results.back() != CompareResult::Equal) mComparison.placeDifferences.back().lastPlace = place;
                continue;
            }
            PlaceDifference difference{{static_cast<std::int32_t>(rack), place},
                                       place,
                                       CompareResult::Equal,
                                       first.ModuleAt(begin1),
                                       second.ModuleAt(begin2),
                                       begin1,
                                       begin2};
            difference.result = ResultOfPair(difference, begin1 == begin2);
            results.push_back(difference.result);
            if (difference.result != CompareResult::Equal)
                mComparison.placeDifferences.push_back(std::move(difference));
        }
        const auto& all = mComparison.placeDifferences;
        FindMoved({all.begin() + static_cast<std::ptrdiff_t>(firstOfRack), all.end()}, mOptions, mComparison.moved);
    }

    CompareResult ResultOfPair(const PlaceDifference& pair, bool bSamePart) const
    {
        if (!pair.second) return CompareResult::OnlyFirst;
        if (!pair.first) return CompareResult::OnlySecond;
        if (!bSamePart) return CompareResult::OtherModule;
        if (pair.first == pair.second) return CompareResult::Equal;
        return ResultOf(FindDifferences(*pair.first, *pair.second, mCatalogue, mOptions));
    }

    const StationData& mFirst;
    const StationData& mSecond;
    const Catalogue& mCatalogue;
    const CompareOptions& mOptions;
    StationComparison mComparison;
};

} // namespace

CompareResult StationComparison::ResultAt(PlaceRef place) const
{
    if (place.rack < 0 || place.place < 1) return CompareResult::NotCompared;
    const auto rack = static_cast<std::size_t>(place.rack);
    const auto index = static_cast<std::size_t>(place.place - 1);
    if (rack >= results.size() || index >= results[rack].size()) return CompareResult::NotCompared;
    return results[rack][index];
}

const PlaceDifference* StationComparison::DifferenceAt(PlaceRef place) const
{
    const auto behind =
        std::upper_bound(placeDifferences.begin(), placeDifferences.end(), place,
                         [](PlaceRef wanted, const PlaceDifference& each) { return wanted < each.place; });
    if (behind == placeDifferences.begin()) return nullptr;
    const PlaceDifference& found = *std::prev(behind);
    return found.place.rack == place.rack && place.place <= found.lastPlace ? &found : nullptr;
}

StationComparison CompareStations(const StationData& first, const StationData& second, const Catalogue& catalogue,
                                  const CompareOptions& options)
{
    return Comparer(first, second, catalogue, options).Run();
}

} // namespace zqbchwcx::reference
