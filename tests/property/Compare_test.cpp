#include "tests/support/Samples.h"
#include "zqbchwcx/reference/commands/ModuleDetails.h"
#include "zqbchwcx/reference/commands/TerminalLine.h"
#include "zqbchwcx/reference/compare/CompareReportHtml.h"
#include "zqbchwcx/reference/compare/CompareReportText.h"
#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <random>
#include <set>

// Laws of comparing, on pairs of stations of which one is made of the other by random edits.

namespace zqbchwcx::reference {
namespace {

/// Edits a station without regard to any rule, so that every edit changes something.
class RandomEdits {
public:
    RandomEdits(StationData station, std::uint32_t seed) : mStation(std::move(station)), mRandom(seed) {}

    StationData Make(int edits)
    {
        while (edits-- > 0) {
            const std::size_t rack = Any(mStation.racks.size());
            auto copy = std::make_shared<RackData>(*mStation.racks[rack]);
            EditRack(*copy);
            mStation.racks[rack] = std::move(copy);
        }
        if (OneIn(4)) mStation.name += Text();
        if (OneIn(8)) mStation.readOnly = !mStation.readOnly;
        return mStation;
    }

private:
    void EditRack(RackData& rack)
    {
        if (OneIn(20)) rack.state = 1 - rack.state;
        PlaceData& place = rack.places[Any(rack.places.size())];
        if (OneIn(20)) place.usability = place.usability == 1 ? 0 : 1;
        if (!place.module || OneIn(8)) {
            const auto& types = ShippedCatalogue().Types();
            place.module = std::make_shared<const ModuleData>(MakeModule(types[Any(types.size())].orderNumber, Text()));
        } else if (OneIn(8)) {
            place.module = nullptr;
        } else if (OneIn(6)) {
            std::swap(place.module, rack.places[Any(rack.places.size())].module);
        } else {
            auto module = std::make_shared<ModuleData>(*place.module);
            EditModule(module->subModules.empty() || OneIn(2) ? *module
                                                              : module->subModules[Any(module->subModules.size())]);
            place.module = std::move(module);
        }
    }

    void EditModule(ModuleData& module)
    {
        const ModuleType* type = ShippedCatalogue().Find(module.orderNumber);
        switch (Any(5)) {
        case 0:
            module.name += Text();
            break;
        case 1:
            module.inputAddress = static_cast<std::int32_t>(Any(1000));
            break;
        case 2:
            if (!module.subModules.empty()) module.subModules.pop_back();
            break;
        case 3:
            module.comment += Text();
            break;
        default:
            if (!type || type->parameters.empty()) break;
            Configure(module, type->parameters[Any(type->parameters.size())]);
        }
    }

    void Configure(ModuleData& module, const ParameterDefinition& definition)
    {
        ParameterValue& value = module.parameters[definition.key];
        if (definition.kind == ParameterKind::Boolean) value = OneIn(2);
        else if (definition.kind == ParameterKind::Choice)
            value = definition.choices[Any(definition.choices.size())].key;
        else if (IsNumber(definition.kind)) value = static_cast<double>(Any(100)) / 4;
        else value = Text();
    }

    std::string Text() { return std::vector<std::string>{"<b>&\"'", "\n|x|", "\u202e\x1b[1m", "Pump 7 "}[Any(4)]; }
    std::size_t Any(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(mRandom); }
    bool OneIn(std::size_t count) { return Any(count) == 0; }

    StationData mStation;
    std::mt19937 mRandom;
};

/// A copy that holds nothing in common.
StationData Unshared(StationData station)
{
    for (RackDataPtr& rack : station.racks) {
        auto copy = std::make_shared<RackData>(*rack);
        for (PlaceData& place : copy->places)
            if (place.module) place.module = std::make_shared<const ModuleData>(*place.module);
        rack = std::move(copy);
    }
    return station;
}

/// The module as it works: with a default where nothing is set.
ModuleData Spelled(ModuleData module)
{
    if (const ModuleType* type = ShippedCatalogue().Find(module.orderNumber))
        for (const ParameterDefinition& definition : type->parameters) {
            const ParameterValue& value = ValueOf(module, definition);
            const auto number = NumberIn(value);
            module.parameters[definition.key] = number ? ParameterValue(*number) : value;
        }
    for (ModuleData& subModule : module.subModules) subModule = Spelled(subModule);
    return module;
}

bool SameContent(const ModuleDataPtr& first, const ModuleDataPtr& second)
{
    if (!first || !second) return first == second;
    return Spelled(*first) == Spelled(*second);
}

ModuleDataPtr BeginningAt(const StationData& station, std::int32_t rack, std::int32_t place)
{
    return station.racks[static_cast<std::size_t>(rack)]->places[static_cast<std::size_t>(place - 1)].module;
}

/// Every place whose module was edited is told, and no place is told without an edited module in it.
void ExpectExactlyTheEdits(const StationData& first, const StationData& second, const StationComparison& comparison)
{
    for (std::size_t r = 0; r < first.racks.size(); ++r)
        for (std::size_t p = 0; p < first.racks[r]->places.size(); ++p) {
            const PlaceRef at{static_cast<std::int32_t>(r), static_cast<std::int32_t>(p + 1)};
            const bool bEdited =
                !SameContent(BeginningAt(first, at.rack, at.place), BeginningAt(second, at.rack, at.place));
            EXPECT_TRUE(!bEdited || comparison.DifferenceAt(at)) << at.rack << "/" << at.place;
            EXPECT_EQ(comparison.DifferenceAt(at) == nullptr, comparison.ResultAt(at) == CompareResult::Equal);
        }
    for (const PlaceDifference& each : comparison.placeDifferences) {
        // A module that was put into another one cuts that short, and so changes what stands behind itself, too.
        std::int32_t begin = each.place.place;
        for (const std::int32_t own : {each.firstBegin, each.secondBegin})
            if (own > 0) begin = std::min(begin, own);
        bool bEdited = false;
        for (; begin <= each.place.place; ++begin)
            bEdited = bEdited || !SameContent(BeginningAt(first, each.place.rack, begin),
                                              BeginningAt(second, each.place.rack, begin));
        EXPECT_TRUE(bEdited) << each.place.rack << "/" << each.place.place;
    }
}

CompareResult Exchanged(CompareResult result)
{
    if (result == CompareResult::OnlyFirst) return CompareResult::OnlySecond;
    return result == CompareResult::OnlySecond ? CompareResult::OnlyFirst : result;
}

void ExpectTheOpposite(const StationComparison& forth, const StationComparison& back)
{
    EXPECT_EQ(forth.stationDifferences.size(), back.stationDifferences.size());
    ASSERT_EQ(forth.results.size(), back.results.size());
    for (std::size_t r = 0; r < forth.results.size(); ++r)
        for (std::size_t p = 0; p < forth.results[r].size(); ++p)
            EXPECT_EQ(forth.results[r][p], Exchanged(back.results[r].at(p))) << r << "/" << p + 1;
    std::set<std::pair<std::int32_t, std::int32_t>> shifts;
    for (const MovedModules& each : forth.moved) shifts.insert({each.shift, each.count});
    for (const MovedModules& each : back.moved) EXPECT_TRUE(shifts.contains({-each.shift, each.count}));
    EXPECT_EQ(forth.moved.size(), back.moved.size());
}

/// What stands between the tags of a page's cells, as a reader sees it.
std::multiset<std::string> CellsOf(std::string html)
{
    std::multiset<std::string> cells;
    for (std::size_t at = 0; (at = html.find("<td", at)) != std::string::npos;) {
        const std::size_t begin = html.find('>', at) + 1;
        at = html.find('<', begin);
        std::string cell = html.substr(begin, at - begin);
        const std::pair<std::string, std::string> entities[] = {
            {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}, {"&amp;", "&"}};
        for (const auto& [entity, character] : entities)
            for (std::size_t found = 0; (found = cell.find(entity, found)) != std::string::npos; ++found)
                cell.replace(found, entity.size(), character);
        if (!cell.empty()) cells.insert(cell);
    }
    return cells;
}

/// The values that JSON tells, text and page tell, too, and the page no others.
void ExpectTheSameInEveryForm(const CompareReport& report)
{
    const auto write = [&](ReportFormat format) { return WriteCompareReport(report, format, Language::English); };
    const auto json = nlohmann::json::parse(write(ReportFormat::Json));
    const std::string text = write(ReportFormat::Text);
    std::multiset<std::string> told;
    const auto tell = [&](const nlohmann::json& entry, const std::string& what) {
        told.insert(TerminalLine(what));
        for (const char* side : {"first", "second"})
            if (const std::string value = TerminalLine(entry.value(side, "")); !value.empty()) {
                told.insert(value);
                EXPECT_NE(text.find(value), std::string::npos) << value;
            }
    };
    const auto tellAll = [&](const nlohmann::json& list) {
        for (const auto& each : list) {
            const std::string group = each.contains("group")
                                          ? std::string(each["group"]) + " " + std::string(each["channel"]) + ": "
                                          : std::string();
            tell(each, group + std::string(each["name"]));
        }
    };
    EXPECT_EQ(json["same"], report.same);
    EXPECT_EQ(json["places"].size(), report.places.size());
    tellAll(json["station"]);
    for (const ReportedPlace& place : report.places) {
        const auto& entry = json["places"][static_cast<std::size_t>(&place - report.places.data())];
        EXPECT_NE(text.find(PlacesText(place, Language::English) + ": "), std::string::npos);
        tell(entry, ResultText(place.result).en);
        tellAll(entry["differences"]);
    }
    EXPECT_EQ(CellsOf(WriteHtmlReport(report, {}, Language::English)), told);
}

TEST(Compare, FindsEveryRandomEditAndNothingElseInEveryForm)
{
    const std::vector<std::string> files = ExampleFiles();
    std::size_t differences = 0;
    for (std::uint32_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + files[seed % files.size()]);
        const StationData first = LoadStation(files[seed % files.size()], ShippedCatalogue()).data;
        const StationData second = RandomEdits(first, seed).Make(static_cast<int>(seed % 12));
        const StationComparison forth = CompareStations(first, second, ShippedCatalogue());
        EXPECT_TRUE(CompareStations(second, second, ShippedCatalogue()).AreSame());
        EXPECT_TRUE(CompareStations(second, Unshared(second), ShippedCatalogue()).AreSame());
        ExpectExactlyTheEdits(first, second, forth);
        ExpectTheOpposite(forth, CompareStations(second, first, ShippedCatalogue()));
        const auto details = [](const StationData& station) {
            return WriteStationDetails(station, ShippedCatalogue(), Language::English);
        };
        EXPECT_TRUE(!forth.AreSame() || details(first) == details(second));
        const CompareReport report = ReportOf(first, second, {"a", "b"}, ShippedCatalogue(), {}, Language::English);
        EXPECT_EQ(report.same, forth.AreSame());
        ExpectTheSameInEveryForm(report);
        differences += forth.placeDifferences.size();
    }
    EXPECT_GT(differences, 300U);
}

} // namespace
} // namespace zqbchwcx::reference
