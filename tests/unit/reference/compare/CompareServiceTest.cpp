#include "zqbchwcx/reference/compare/CompareService.h"
#include "tests/support/Samples.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/reference/compare/CompareReport.h"
#include "zqbchwcx/reference/model/contract/Module.h"

#include <gmock/gmock.h>

namespace zqbchwcx::reference {
namespace {

using ::testing::ElementsAre;

using Change = void (*)(ModuleData& module);

ModuleDataPtr Positioning(Change change = [](ModuleData&) {})
{
    ModuleData module = MakeModule("Q3-PO03-W");
    for (int axis = 0; axis < 3; ++axis) module.subModules.push_back(MakeModule("Q3-PO03-AX"));
    change(module);
    return std::make_shared<const ModuleData>(std::move(module));
}

ModuleDataPtr Make(const char* orderNumber, const std::map<std::string, ParameterValue>& parameters = {})
{
    ModuleData module = MakeModule(orderNumber);
    module.parameters = parameters;
    return std::make_shared<const ModuleData>(std::move(module));
}

/// One rack of that many places with modules from place 1 on.
StationData OneRack(const std::vector<ModuleDataPtr>& modules, std::size_t places = 8, std::int32_t kind = 0)
{
    auto rack = std::make_shared<RackData>();
    rack->places.resize(places);
    for (std::size_t i = 0; i < modules.size(); ++i) rack->places[i].module = modules[i];
    StationData station;
    station.kind = kind;
    station.racks.push_back(std::move(rack));
    return station;
}

/// Two stations of the shipped catalogue and the service between them.
class Pair {
public:
    Pair(StationData first, StationData second, Language language = Language::English)
        : oFirst(Make(std::move(first), language)), oSecond(Make(std::move(second), language))
    {
    }

    /// A digit for each place of the first station's rack.
    std::string Results() const
    {
        std::string digits;
        for (const auto& place : oFirst->Racks()->Item(0)->Places())
            digits += std::to_string(service.PlaceResult(place));
        return digits;
    }
    /// "kind path: value1 / value2".
    std::vector<std::string> Differences(std::int32_t lPlace) const
    {
        std::vector<std::string> lines;
        if (const auto differences = service.ParameterDifferencesOf(oFirst->PlaceAt({0, lPlace})))
            for (const auto& each : differences)
                lines.push_back(std::to_string(each->Kind()) + " " + each->Path() + ": " + each->Value1() + " / " +
                                each->Value2());
        return lines;
    }

    StationPtr oFirst;
    StationPtr oSecond;
    std::vector<std::string> shown;
    CompareService service{oFirst, oSecond, ComparePair::ProjectAndPlant,
                           [this](PlaceRef place, const ParameterDifferencePtr& difference) {
                               shown.push_back(std::to_string(place.place) + (difference ? difference->Path() : ""));
                           }};

private:
    static StationPtr Make(StationData data, Language language)
    {
        auto context = std::make_shared<ModelContext>(ModelContext{SharedCatalogue(), [=] { return language; }});
        return std::make_shared<Station>(std::move(context), std::move(data));
    }
};

TEST(CompareService, TellsHowAPlaceDiffers)
{
    const ModuleDataPtr input = Make("Q3-DI16-A");
    const ModuleDataPtr unknown = Make("UNKNOWN", {{"a", std::int64_t{1}}});
    const struct {
        const char* what;
        std::vector<ModuleDataPtr> first, second;
        const char* results;
    } cases[] = {
        {"nothing", {nullptr, input}, {nullptr, input}, "11111111"},
        {"one side", {input, nullptr}, {nullptr, input}, "34111111"},
        {"another type of another length", {Positioning()}, {input}, "53311111"},
        {"another part of a long module", {nullptr, Positioning()}, {Positioning()}, "45531111"},
        {"another sub-module",
         {Positioning()},
         {Positioning([](ModuleData& module) { module.subModules.pop_back(); })},
         "66611111"},
        {"a parameter and a name",
         {Positioning()},
         {Positioning([](ModuleData& module) {
             module.name = "Mixer";
             module.subModules[1].parameters["feedConstant"] = 20.5;
         })},
         "77711111"},
        {"a comment of a sub-module",
         {Positioning()},
         {Positioning([](ModuleData& module) { module.subModules[1].comment = "left"; })},
         "88811111"},
        {"a default that a file spells out",
         {Make("Q3-PS05-D")},
         {Make("Q3-PS05-D",
               {{"alarmContact", FindParameter(*ShippedCatalogue().Find("Q3-PS05-D"), "alarmContact")->defaultValue}})},
         "11111111"},
        {"what an unknown type may have by default", {unknown}, {Make("UNKNOWN")}, "21111111"},
        {"what differs in an unknown type",
         {unknown},
         {Make("UNKNOWN", {{"a", std::int64_t{2}}, {"b", true}})},
         "71111111"},
        {"another way to write a number", {unknown}, {Make("UNKNOWN", {{"a", 1.0}})}, "11111111"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Pair(OneRack(each.first), OneRack(each.second)).Results(), each.results) << each.what;
}

TEST(CompareService, GivesValuesAsPeopleReadThemByGroupAndChannel)
{
    const auto changed = [](ModuleData& module) {
        module.name = "A|B";
        module.outputAddress = 8;
        module.parameters["coupled"] = true;
        module.parameters["my|own"] = std::string("x");
        module.subModules[1].parameters["feedConstant"] = 20.5;
    };
    const StationData first =
        OneRack({Positioning(), nullptr, nullptr, Make("Q3-DI16-F"), Make("UNKNOWN", {{"a", true}})});
    const StationData second = OneRack({Positioning(changed), nullptr, nullptr,
                                        Make("Q3-DI16-F", {{"inputDelay", std::string("0.5")}}), Make("UNKNOWN")});
    const Pair english(first, second);
    EXPECT_THAT(english.Differences(1),
                ElementsAre("0 ||Name:  / A|B", "2 ||Outputs:  / 8..71", "1 ||Axes run coupled: off / on",
                            "1 ||my|own:  / x", "1 Axis|2|Feed constant: 10 mm / 20.5 mm"));
    EXPECT_THAT(english.Differences(4), ElementsAre("1 ||Input delay: 3 ms / 0.5 ms"));
    EXPECT_THAT(english.Differences(5), ElementsAre()) << "what is uncertain is no difference";
    const Pair german(first, second, Language::German);
    EXPECT_EQ(german.Differences(1).back(), "1 Achse|2|Vorschubkonstante: 10 mm / 20,5 mm");
    EXPECT_THAT(german.Differences(4), ElementsAre("1 ||Eingangsverzögerung: 3 ms / 0,5 ms"));
}

TEST(CompareService, DescribesAPlaceAndLetsTheHostShowIt)
{
    Pair pair(OneRack({Make("Q3-DI16-A")}), OneRack({Make("Q3-DI16-A")}));
    const auto place = pair.oFirst->PlaceAt({0, 1});
    pair.oFirst->SetModuleAttribute(place, "COMMENT", "new");
    pair.service.Compare();
    EXPECT_EQ(pair.service.PlaceText(place), "DI 16xDC24V\r\nComment: new / ");
    pair.service.ShowParameterDifferences(place, pair.service.ParameterDifferencesOf(place)->Item(1));
    pair.service.ShowParameterDifferences(place, {});
    EXPECT_THAT(pair.shown, ElementsAre("1||Comment", "1"));
    pair.service.Ignore({.ignoreComments = true});
    pair.service.Compare();
    EXPECT_FALSE(pair.service.ParameterDifferencesOf(place));
}

TEST(CompareStations, TellsOtherKindsAndSizesAsSuch)
{
    const auto told = [](const StationData& first, const StationData& second) {
        const auto comparison = CompareStations(first, second, ShippedCatalogue());
        std::string text;
        for (const auto& each : comparison.stationDifferences) {
            const auto words = DescribeDifference(first, second, each, Language::English);
            text += words.name + ": " + words.value1 + " / " + words.value2 + "; ";
        }
        for (const auto& rack : comparison.results)
            for (const CompareResult each : rack) text += std::to_string(static_cast<int>(each));
        return text;
    };
    const ModuleDataPtr input = Make("Q3-DI16-A");
    EXPECT_EQ(told(OneRack({input}), OneRack({nullptr, input}, 8, 2)),
              "Kind of station: central / distributed, variant B; ")
        << "and no guess about the places";
    StationData second = OneRack({input, nullptr, nullptr, input}, 4);
    second.readOnly = true;
    auto more = std::make_shared<RackData>();
    more->places.resize(2);
    more->places[1].module = input;
    second.racks.push_back(more);
    EXPECT_EQ(told(OneRack({input}, 3), second), "Locked against changes: no / yes; Number of racks: 1 / 2; "
                                                 "Rack 0: number of places: 3 / 4; 111404");
    StationData third = OneRack({input}, 3);
    auto rack = std::make_shared<RackData>(*third.racks[0]);
    rack->state = 0;
    rack->places[2].usability = -1;
    third.racks[0] = rack;
    EXPECT_EQ(told(OneRack({input}, 3), third),
              "Rack 0: present: yes / no; Place 3 of rack 0: usability: active / not usable; 111");
}

TEST(CompareStations, LeavesOutWhatIsIgnored)
{
    const StationData first = OneRack({Positioning()});
    StationData second = OneRack({Positioning([](ModuleData& module) {
        module.name = module.comment = "other";
        module.outputAddress = 8;
        module.parameters["coupled"] = true;
        module.subModules.pop_back();
    })});
    second.name = "other";
    second.readOnly = true;
    auto rack = std::make_shared<RackData>(*second.racks[0]);
    rack->state = 0;
    second.racks[0] = rack;
    const std::pair<CompareOptions, const char*> cases[] = {
        {{},
         "Name of the station;Locked against changes;Rack 0: present;Name;Comment;Outputs;Axes run coupled;"
         "Sub-module 3;"},
        {{.ignoreNames = true},
         "Locked against changes;Rack 0: present;Comment;Outputs;Axes run coupled;Sub-module 3;"},
        {{.ignoreComments = true, .ignoreLock = true},
         "Name of the station;Rack 0: present;Name;Outputs;Axes run coupled;Sub-module 3;"},
        {{.ignoreAddresses = true, .ignoreParameters = true},
         "Name of the station;Locked against changes;Rack 0: present;Name;Comment;Sub-module 3;"},
        {{.ignoreSubModules = true, .ignoreUsability = true},
         "Name of the station;Locked against changes;Name;Comment;Outputs;Axes run coupled;"},
        {{true, true, true, true, true, true, true}, ""},
    };
    for (const auto& [options, expected] : cases) {
        const CompareReport report = ReportOf(first, second, {}, ShippedCatalogue(), options, Language::English);
        std::string told;
        for (const DifferenceText& each : report.station) told += each.name + ";";
        for (const ReportedPlace& place : report.places)
            for (const DifferenceText& each : place.details) told += FullName(each) + ";";
        EXPECT_EQ(told, expected);
        EXPECT_EQ(report.same, told.empty());
    }
}

TEST(CompareStations, HintsAtWhatMoved)
{
    const auto hints = [](std::vector<ModuleDataPtr> first, std::vector<ModuleDataPtr> second) {
        std::vector<std::string> texts;
        for (const auto& moved : CompareStations(OneRack(first), OneRack(second), ShippedCatalogue()).moved)
            texts.push_back(DescribeMoved(moved, Language::English));
        return texts;
    };
    const ModuleDataPtr a = Make("Q3-DI16-A");
    const ModuleDataPtr b = Make("Q3-DO16-A");
    const ModuleDataPtr other = Make("Q3-AI02-A");
    EXPECT_THAT(hints({a, b, a, Positioning()}, {other, a, b, a, Positioning()}),
                ElementsAre("Rack 0: 4 modules from place 1 to 4 stand 1 place further on (+1)"));
    EXPECT_THAT(hints({nullptr, nullptr, a, b}, {a}),
                ElementsAre("Rack 0: 1 module from place 3 stands 2 places further back (-2)"));
    EXPECT_THAT(hints({a, b}, {a, other}), ElementsAre());
}

} // namespace
} // namespace zqbchwcx::reference
