#include "zqbchwcx/reference/model/rules/CheckStation.h"

#include "zqbchwcx/reference/model/rules/AddressMap.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <tuple>

namespace zqbchwcx::reference {
namespace {

struct AddressRange {
    std::int32_t begin;
    std::int64_t end;
    PlaceRef place;
};

class StationCheck {
public:
    StationCheck(const StationData& data, const Catalogue& catalogue)
        : mrData(data), mrCatalogue(catalogue), mlAreaSize(AddressAreaSize(data))
    {
    }

    std::vector<Refusal> Run()
    {
        for (std::size_t rack = 0; rack < mrData.racks.size(); ++rack) CheckRack(static_cast<std::int32_t>(rack));
        CheckOverlaps(AddressArea::Input, mcolInputs);
        CheckOverlaps(AddressArea::Output, mcolOutputs);
        std::stable_sort(mcolFound.begin(), mcolFound.end(),
                         [](const Refusal& a, const Refusal& b) { return a.place < b.place; });
        return std::move(mcolFound);
    }

private:
    void Note(Objection objection)
    {
        if (objection) mcolFound.push_back(*std::move(objection));
    }

    void Note(std::vector<Refusal> found)
    {
        mcolFound.insert(mcolFound.end(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    }

    void CheckRack(std::int32_t rack)
    {
        const RackData& places = *mrData.racks[static_cast<std::size_t>(rack)];
        bool hasModules = false;
        PlaceRef last;
        std::int32_t lastEnd = 0;
        for (std::size_t i = 0; i < places.places.size(); ++i) {
            const ModuleDataPtr& module = places.places[i].module;
            if (!module) continue;
            hasModules = true;
            const PlaceRef place{rack, static_cast<std::int32_t>(i) + 1};
            if (place.place < lastEnd) Note(SpanOverlap(last, place));
            CheckModule(*module, place);
            if (const std::int32_t end = place.place + SpanOf(*module, mrCatalogue); end > lastEnd) {
                last = place;
                lastEnd = end;
            }
        }
        if (hasModules) Note(AgainstRack(mrData, rack));
        Note(AgainstMissingLeader(mrData, mrCatalogue, rack));
    }

    static Refusal SpanOverlap(PlaceRef first, PlaceRef second)
    {
        const LocalizedText where = PlaceText(first);
        return {
            Rule::PlaceOccupied,
            second,
            {"The module begins inside the one at " + where.en, "Die Baugruppe beginnt innerhalb der auf " + where.de}};
    }

    void CheckModule(const ModuleData& module, PlaceRef place)
    {
        if (const ModuleType* type = mrCatalogue.Find(module.orderNumber)) {
            Note(AgainstType(mrData, *type, place));
            Note(AgainstPlaces(mrData, place, type->placeCount));
        }
        Note(AgainstModule(module, mrCatalogue, place));
        Note(AgainstAddresses(module, mrCatalogue, mlAreaSize, place));
        CollectRanges(module, place);
    }

    void CollectRanges(const ModuleData& module, PlaceRef place)
    {
        if (const ModuleType* type = mrCatalogue.Find(module.orderNumber)) {
            for (const AddressArea area : {AddressArea::Input, AddressArea::Output}) {
                const auto& address = AddressIn(area, module);
                const std::int32_t bytes = BytesIn(area, *type);
                auto& ranges = area == AddressArea::Input ? mcolInputs : mcolOutputs;
                if (address && bytes > 0) ranges.push_back({*address, std::int64_t{*address} + bytes, place});
            }
        }
        for (const ModuleData& subModule : module.subModules) CollectRanges(subModule, place);
    }

    void CheckOverlaps(AddressArea area, std::vector<AddressRange>& ranges)
    {
        std::sort(ranges.begin(), ranges.end(), [](const AddressRange& a, const AddressRange& b) {
            return std::tie(a.begin, a.place) < std::tie(b.begin, b.place);
        });
        const AddressRange* furthest = nullptr;
        for (const AddressRange& range : ranges) {
            if (furthest && range.begin < furthest->end) NoteOverlap(area, *furthest, range);
            if (!furthest || range.end > furthest->end) furthest = &range;
        }
    }

    void NoteOverlap(AddressArea area, const AddressRange& a, const AddressRange& b)
    {
        const AddressRange& first = a.place < b.place ? a : b;
        const AddressRange& second = a.place < b.place ? b : a;
        const LocalizedText what = AreaText(area);
        const LocalizedText where = PlaceText(first.place);
        const std::string range = std::to_string(second.begin) + ".." + std::to_string(second.end - 1);
        mcolFound.push_back({Rule::AddressOverlap,
                             second.place,
                             {"The " + what.en + " " + range + " overlap those of " + where.en,
                              "Die " + what.de + " " + range + " überschneiden die von " + where.de}});
    }

    const StationData& mrData;
    const Catalogue& mrCatalogue;
    std::int32_t mlAreaSize;
    std::vector<AddressRange> mcolInputs;
    std::vector<AddressRange> mcolOutputs;
    std::vector<Refusal> mcolFound;
};

} // namespace

std::vector<Refusal> CheckStation(const StationData& data, const Catalogue& catalogue)
{
    return StationCheck(data, catalogue).Run();
}

} // namespace zqbchwcx::reference
