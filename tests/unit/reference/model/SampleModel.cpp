#include "tests/unit/reference/model/SampleModel.h"

#include "reference/model/editing/EditModule.h"
#include "reference/model/editing/PlaceModules.h"
#include "reference/model/rules/CheckStation.h"
#include "reference/model/rules/Occupancy.h"

#include <utility>

namespace zqbchwcx::testing {

using namespace reference;

namespace {

ModuleType Type(std::string orderNumber, ModuleFamily family, std::int32_t places = 1, std::int32_t inputs = 0,
                std::int32_t outputs = 0)
{
    ModuleType type;
    type.name = {orderNumber + " module", orderNumber + "-Baugruppe"};
    type.description = {"A " + orderNumber, "Ein " + orderNumber};
    type.orderNumber = std::move(orderNumber);
    type.family = family;
    type.picture = "IDB_CRX_MODULE_IO_DIGITAL";
    type.placeCount = places;
    type.inputBytes = inputs;
    type.outputBytes = outputs;
    return type;
}

ParameterDefinition Parameter(std::string key, ParameterKind kind, ParameterValue defaultValue, double minimum = 0,
                              double maximum = 0)
{
    ParameterDefinition definition;
    definition.label = {key, key};
    definition.key = std::move(key);
    definition.kind = kind;
    definition.defaultValue = std::move(defaultValue);
    definition.minimum = minimum;
    definition.maximum = maximum;
    return definition;
}

std::vector<ModuleType> SampleTypes()
{
    ModuleType di = Type("DI", ModuleFamily::Digital, 1, 2, 0);
    di.parameters = {Parameter("alarm", ParameterKind::Boolean, false),
                     Parameter("delay", ParameterKind::Integer, std::int64_t{3}, 0, 20),
                     Parameter("scale", ParameterKind::Real, 1.5, -10, 10),
                     Parameter("edge", ParameterKind::Choice, std::string("rising")),
                     Parameter("label", ParameterKind::Text, std::string(), 0, 8)};
    di.parameters[3].choices = {{"rising", {"Rising", "Steigend"}}, {"falling", {"Falling", "Fallend"}}};
    ModuleType counter = Type("CNT3", ModuleFamily::Counter, 3);
    counter.subModules = {"SUB", "SUB"};
    ModuleType sub = Type("SUB", ModuleFamily::Counter, 1, 4, 4);
    sub.isSubModule = true;
    ModuleType central = Type("CENTRAL", ModuleFamily::Communication);
    central.fitsDistributed = false;
    ModuleType head = Type("HEAD", ModuleFamily::Interface);
    head.fitsCentral = false;
    head.picture = "HEAD";
    ModuleType head2 = Type("HEAD2", ModuleFamily::Interface, 2);
    head2.fitsCentral = false;
    return {Type("PS", ModuleFamily::PowerSupply),
            Type("CPU", ModuleFamily::Controller),
            Type("IM", ModuleFamily::Interface),
            di,
            Type("DO", ModuleFamily::Digital, 1, 0, 2),
            Type("AI2", ModuleFamily::Analog, 2, 8, 0),
            counter,
            sub,
            Type("CP", ModuleFamily::Communication),
            Type("DM", ModuleFamily::Dummy),
            head,
            head2,
            central};
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

StationData EmptyStation(std::int32_t kind, std::size_t racks)
{
    StationData data;
    data.kind = kind;
    for (std::size_t rack = 0; rack < racks; ++rack) {
        auto places = std::make_shared<RackData>();
        places->places.resize(kind == 0 ? 11 : 24);
        data.racks.push_back(std::move(places));
    }
    return data;
}

ModuleDataPtr NewModuleData(const std::string& orderNumber)
{
    auto module = std::make_shared<ModuleData>();
    module->orderNumber = orderNumber;
    return module;
}

ModuleBlock Block(std::initializer_list<std::string> orderNumbers)
{
    ModuleBlock block;
    for (const std::string& orderNumber : orderNumbers)
        block.push_back(orderNumber.empty() ? nullptr : NewModuleData(orderNumber));
    return block;
}

PlainStation::PlainStation(StationData data) : moData(std::move(data)) {}

EditContext PlainStation::Context()
{
    moAddresses = AddressesOf(moData, *SampleCatalogue());
    return {moData, *SampleCatalogue(), *moAddresses};
}

std::optional<Rule> PlainStation::Place(std::int32_t lPosition, const ModuleBlock& block)
{
    return Keep(PlaceBlock(Context(), lPosition, block));
}

std::optional<Rule> PlainStation::Move(std::int32_t lPosition, const ModuleBlock& block,
                                       const std::vector<PlaceRef>& sources)
{
    return Keep(MoveBlock(Context(), lPosition, block, sources));
}

std::optional<Rule> PlainStation::Delete(const std::vector<PlaceRef>& places)
{
    return Keep(DeleteAt(Context(), places));
}

std::optional<Rule> PlainStation::Set(PlaceRef place, const std::string& name, const std::string& value)
{
    return Keep(SetAttribute(Context(), place, name, value));
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

const ModuleData& PlainStation::At(PlaceRef place) const
{
    return *moData.racks.at(static_cast<std::size_t>(place.rack))
                ->places.at(static_cast<std::size_t>(place.place - 1))
                .module;
}

} // namespace zqbchwcx::testing
