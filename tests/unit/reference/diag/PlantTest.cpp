#include "tests/unit/reference/diag/DiagStage.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/reference/diag/DiagService.h"

#include <gmock/gmock.h>

namespace zqbchwcx::reference {
namespace {

using namespace std::chrono_literals;

TEST(StateWord, SaysTheSameWhenItIsWrittenAgain)
{
    for (unsigned word = 0; word <= 0xFFFF; ++word) {
        const StateWord state = DecodeStateWord(static_cast<std::uint16_t>(word));
        ASSERT_EQ(EncodeStateWord(state), word);
        const bool inCategory = state.IsInCategory(1) || state.IsInCategory(2) || state.IsInCategory(4);
        ASSERT_EQ(state.HasFailure(), inCategory) << word;
    }
    const StateWord broken{true, true, false, false, OperatingState::Stop, 3, 12};
    EXPECT_EQ(EncodeStateWord(broken), 0x8000 + 0x0800 + 3 * 32 + 12) << "programs of controllers rely on these bits";
}

TEST(TimeText, IsReadAsItIsWrittenAndNothingElse)
{
    const std::string text = "2028-02-29T23:05:59.007Z";
    ASSERT_TRUE(ParseTime(text));
    EXPECT_EQ(TimeText(*ParseTime(text)), text);
    for (const char* wrong : {"", "2028-02-29", "2027-02-29T23:05:59.007Z", "2028-02-29T24:05:59.007Z",
                              "2028-02-29T23:05:59.007Z ", "2028-02-29 23:05:59.007Z", "2028-2-029T23:05:59.007Z"})
        EXPECT_FALSE(ParseTime(wrong)) << wrong;
}

TEST(RegisterMap, GivesEveryPlaceAndSubModuleOfPresentRacksARegister)
{
    const RegisterMap map(DiagStation());
    std::string items;
    for (const PlantItem& item : map.Items()) items += PlantItemText(item) + " ";
    EXPECT_EQ(items, "0/1 0/2 0/3 0/4 0/4.1 0/4.2 0/5 0/6 0/7 ");
    EXPECT_EQ(map.RegisterOf({{0, 4}, 2}), MapHead::FirstItem + 5);
    EXPECT_FALSE(map.RegisterOf({{1, 1}, 0}));
    EXPECT_EQ(ErrorOf([] { RegisterMap(zqbchwcx::testing::EmptyStation(0, 100, 499)); }).reason, "no error");
    StationData large = zqbchwcx::testing::EmptyStation(0, 100, 499);
    large.racks.insert(large.racks.end(), 40, large.racks[0]);
    EXPECT_THAT(ErrorOf([&] { RegisterMap{large}; }).reason, ::testing::HasSubstr("69908 registers"));
}

TEST(RegisterMap, TakesOnlyThePlantOfItsStation)
{
    const RegisterMap map(DiagStation());
    StationData renamed = DiagStation();
    renamed.name = "Another name";
    EXPECT_EQ(RegisterMap(renamed).Fingerprint(), map.Fingerprint());
    StationData other = DiagStation();
    auto rack = std::make_shared<RackData>(*other.racks[0]);
    rack->places[6].module = zqbchwcx::testing::NewModuleData("DI");
    other.racks[0] = rack;
    const auto objection = map.Against(RegisterMap(other).FreshRegisters());
    ASSERT_TRUE(objection);
    EXPECT_TRUE(objection->isOtherStation);

    std::vector<std::uint16_t> head = map.FreshRegisters();
    EXPECT_FALSE(map.Against(head));
    for (const std::size_t address : {MapHead::Magic, MapHead::Version}) {
        std::vector<std::uint16_t> foreign = head;
        foreign[address] = 77;
        ASSERT_TRUE(map.Against(foreign));
        EXPECT_FALSE(map.Against(foreign)->isOtherStation);
        EXPECT_THAT(map.Against(foreign)->reason.en, ::testing::HasSubstr("77"));
    }
}

TEST(Plant, TellsOnceWhatHasChangedAndSinceWhen)
{
    DiagStage stage;
    const PlantItem item{{0, 4}, 1};
    EXPECT_FALSE(stage.plant->At(item));
    stage.Do("all ok");
    EXPECT_EQ(stage.told.back().items.size(), stage.plant->Map().Items().size()) << "all become known";
    EXPECT_EQ(stage.plant->ComponentVersions().at(1).version, "2.11.3");
    stage.now += 5s;
    stage.Do("place 0/4.1 fail code 3");
    EXPECT_EQ(stage.told.back().items, std::vector{item});
    const Time failed = stage.now;
    stage.now += 5s;
    const std::size_t told = stage.told.size();
    stage.plant->Take(0, stage.simulation.Registers());
    EXPECT_EQ(stage.told.size(), told) << "nothing new";

    stage.plant->Lose(ConnectionKind::NotReachable, {"cable", ""});
    const Time lost = stage.now;
    stage.now += 5s;
    stage.plant->Lose(ConnectionKind::NotReachable, {"refused", ""});
    EXPECT_FALSE(stage.plant->At(item));
    EXPECT_EQ(stage.plant->ControllerState(), OperatingState::None);
    EXPECT_TRUE(stage.plant->ComponentVersions().empty());
    EXPECT_EQ(stage.plant->Since(item), lost);
    EXPECT_EQ(ConnectionText(stage.plant->State().connection).en,
              "not reachable since " + TimeText(lost) + ": refused");

    stage.Do("place 0/7 missing");
    EXPECT_EQ(stage.plant->Since(item), failed) << "it was faulty all the time";
    EXPECT_TRUE(stage.plant->At(item)->isFaulty);
}

TEST(DiagService, AnswersAsTheStateWordsSay)
{
    DiagStage stage;
    const auto station = std::make_shared<Station>(zqbchwcx::testing::SampleContext(), stage.station);
    const DiagService service(stage.plant, zqbchwcx::testing::SampleCatalogue());
    struct Case {
        const char* command;
        PlaceRef place;
        const char* answer; ///< failure, its categories, "i" for information; then the controller's state
    };
    const Case cases[] = {
        {"", {0, 4}, "F4i"},
        {"cpu stop", {0, 2}, "11"},
        {"all ok", {0, 4}, ""},
        {"place 0/4 fail channel 2 code 3", {0, 4}, "F1i"},
        {"place 0/4 report", {0, 6}, "F2i"},
        {"place 0/4 lost", {0, 5}, "F4i"},
        {"place 0/4 missing", {0, 4}, "F4i"},
        {"place 0/4 ok", {0, 4}, ""},
        {"place 0/4.2 fail", {0, 4}, "F2i"},
        {"place 0/7 fail", {0, 7}, ""},
        {"cpu hold", {0, 2}, "12"},
        {"place 0/1 fail", {1, 1}, ""},
    };
    for (const Case& one : cases) {
        if (*one.command) stage.Do(one.command);
        const auto place = station->PlaceAt(one.place);
        std::string answer = service.HasFailure(place) ? "F" : "";
        for (const std::int32_t category : {vxDiagCategory1, vxDiagCategory2, vxDiagCategory4})
            if (service.HasDiagState(place, category)) answer += std::to_string(category);
        if (service.HasDiagnosticInfo(place, {})) answer += "i";
        if (const std::int32_t state = service.CpuState(place)) answer += std::to_string(state);
        EXPECT_EQ(answer, one.answer) << one.command;
    }
    const auto counter = station->PlaceAt({0, 4});
    const auto subModules = counter->Module()->SubModules();
    EXPECT_FALSE(service.HasDiagnosticInfo(counter, subModules->Item(0)));
    EXPECT_TRUE(service.HasDiagnosticInfo(counter, subModules->Item(1)));
}

TEST(DiagService, TellsWhatSinceWhenWhereAndWhatToDo)
{
    DiagStage stage(ExampleStation("bottling-filler"));
    stage.Do("place 0/5.2 fail channel 4 code 12");
    const auto station = std::make_shared<Station>(
        std::make_shared<const ModelContext>(ModelContext{SharedCatalogue(), {}}), stage.station);
    const DiagService service(stage.plant, SharedCatalogue());
    const auto findings = service.Findings(station->PlaceAt({0, 7}), {});
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(PlantItemText(findings[0].item), "0/5.2");
    EXPECT_EQ(findings[0].what.de, "Gebersignale fehlen") << "the text of its family";
    EXPECT_THAT(findings[0].remedy.en, ::testing::StartsWith("Check the encoder"));
    EXPECT_EQ(findings[0].channel, 4);
    EXPECT_EQ(findings[0].since, stage.now);
    stage.plant->Lose(ConnectionKind::NotReachable, {"no route", "kein Weg"});
    EXPECT_THAT(service.Findings(station->PlaceAt({0, 7}), {}).at(0).what.de, ::testing::HasSubstr("kein Weg"));
}

} // namespace
} // namespace zqbchwcx::reference
