#include "tests/support/model/SampleModel.h"

#include "zqbchwcx/reference/model/rules/CheckStation.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace zqbchwcx::testing {

using namespace reference;

namespace {

ModuleType Type(const std::string& orderNumber, ModuleFamily family, std::int32_t places = 1, std::int32_t inputs = 0,
                std::int32_t outputs = 0)
{
    ModuleType type;
    type.orderNumber = type.picture = orderNumber;
    type.family = family;
    type.name = {orderNumber + " module", orderNumber + "-Baugruppe"};
    type.description = {"A " + orderNumber, "Ein " + orderNumber};
    type.placeCount = places;
    type.inputBytes = inputs;
    type.outputBytes = outputs;
    return type;
}

/// Gives the type its picture, with its number of places behind the name; makes one that is not there.
void Pictured(std::vector<ModuleType>& types, const std::string& orderNumber, std::string picture)
{
    auto found = std::find_if(types.begin(), types.end(), [&](auto& type) { return type.orderNumber == orderNumber; });
    if (found == types.end()) found = types.insert(found, Type(orderNumber, ModuleFamily::Digital));
    if (picture.ends_with('2') || picture.ends_with('3')) found->placeCount = picture.back() - '0', picture.pop_back();
    found->picture = std::move(picture);
}

std::vector<ModuleType> SampleTypes()
{
    ModuleType di = Type("DI", ModuleFamily::Digital, 1, 2);
    di.parameters = {
        {"alarm", {}, {}, ParameterKind::Boolean, "", 0, 0, false, {}},
        {"delay", {}, {}, ParameterKind::Integer, "ms", 0, 20, std::int64_t{3}, {}},
        {"scale", {}, {}, ParameterKind::Real, "", -10, 10, 1.5, {}, "delay"},
        {"edge", {}, {}, ParameterKind::Choice, "", 0, 0, "rising", {{"rising", {}}, {"falling", {}}}},
        {"label", {}, {}, ParameterKind::Text, "", 0, 8, "", {}},
    };
    ModuleType counter = Type("CNT3", ModuleFamily::Counter, 3);
    counter.subModules = {"SUB", "SUB"};
    ModuleType sub = Type("SUB", ModuleFamily::Counter, 1, 4, 4);
    sub.isSubModule = true;
    ModuleType central = Type("CENTRAL", ModuleFamily::Communication);
    central.fitsDistributed = false;
    ModuleType head = Type("HEAD2", ModuleFamily::Interface, 2);
    head.fitsCentral = false;
    std::vector<ModuleType> types{di, counter, sub, head, central};
    types.push_back(Type("PS", ModuleFamily::PowerSupply));
    types.push_back(Type("CPU", ModuleFamily::Controller));
    types.push_back(Type("IM", ModuleFamily::Interface));
    types.push_back(Type("DO", ModuleFamily::Digital, 1, 0, 2));
    types.push_back(Type("AI2", ModuleFamily::Analog, 2, 8));
    types.push_back(Type("CP", ModuleFamily::Communication));
    types.push_back(Type("DM", ModuleFamily::Dummy));
    for (const char* kind :
         {"PS", "CPU", "IM", "CPUC", "CPUM", "DEFAULT", "DUMMY", "IO_ANALOG", "IO_DIGITAL", "IO_DIGITAL2",
          "IO_DIGITAL3", "MERID_CPU", "MERID_IM", "MERID_IO_ANALOG", "MERID_IO_DIGITAL", "MERID_DUMMY", "NO_PICTURE"})
        Pictured(types, kind, "IDB_CRX_MODULE_" + std::string(kind));
    for (const char* file : {"Pump", "NoSuchFile", "idb_of_another_list"}) Pictured(types, file, file);
    return types;
}

} // namespace

std::shared_ptr<const Catalogue> SampleCatalogue()
{
    static const auto catalogue =
        std::make_shared<const Catalogue>("Sample", SampleTypes(), std::vector<CatalogueGroup>{});
    return catalogue;
}

ModelContextPtr SampleContext()
{
    return std::make_shared<ModelContext>(ModelContext{SampleCatalogue(), {}});
}

StationData EmptyStation(std::int32_t kind, std::size_t racks, std::size_t places)
{
    if (places == 0) places = kind == 0 ? 11 : 24;
    StationData data;
    data.kind = kind;
    for (std::size_t rack = 0; rack < racks; ++rack) {
        auto empty = std::make_shared<RackData>();
        empty->places.resize(places);
        data.racks.push_back(std::move(empty));
    }
    return data;
}

ModuleDataPtr NewModuleData(const std::string& orderNumber)
{
    auto module = std::make_shared<ModuleData>();
    module->orderNumber = orderNumber;
    return module;
}

ModuleBlock Block(const std::string& orderNumbers)
{
    ModuleBlock block;
    std::istringstream words(orderNumbers);
    for (std::string word; words >> word;)
        if (word != "+") block.push_back(word == "-" ? nullptr : NewModuleData(word));
    return block;
}

EditContext PlainStation::Context()
{
    moAddresses = AddressesOf(moData, *SampleCatalogue());
    return {moData, *SampleCatalogue(), *moAddresses};
}

std::optional<Rule> PlainStation::Keep(const Outcome<Edit>& edit)
{
    if (!edit) return edit.Reason().rule;
    moData = edit.Result().data;
    return {};
}

void PlainStation::Usability(PlaceRef place, std::int32_t usability)
{
    RackDataPtr& rack = moData.racks[static_cast<std::size_t>(place.rack)];
    auto changed = std::make_shared<RackData>(*rack);
    changed->places[static_cast<std::size_t>(place.place - 1)].usability = usability;
    rack = changed;
}

void PlainStation::PutUnchecked(PlaceRef place, ModuleData module)
{
    StationDraft draft(Context());
    draft.Put(place, std::make_shared<ModuleData>(std::move(module)));
    moData = draft.Data();
}

std::string PlainStation::Row(std::int32_t rack) const
{
    const RackData& data = *moData.racks[static_cast<std::size_t>(rack)];
    const Occupancy occupancy(data, *SampleCatalogue());
    std::string row;
    for (std::int32_t place = 1; place <= occupancy.PlaceCount(); ++place) {
        if (place > 1) row += ' ';
        const std::int32_t first = occupancy.FirstPlace(place);
        if (first == 0) row += "-";
        else if (first < place) row += "+";
        else row += data.places[static_cast<std::size_t>(place - 1)].module->orderNumber;
    }
    return row;
}

} // namespace zqbchwcx::testing
