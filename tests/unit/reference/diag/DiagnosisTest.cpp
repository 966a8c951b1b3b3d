#include "zqbchwcx/reference/commands/Diagnosis.h"
#include "tests/unit/reference/diag/DiagStage.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace zqbchwcx::reference {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;

TEST(Diagnosis, ShowsWhatIsNotSoundInEveryForm)
{
    DiagStage stage(ExampleStation("bottling-filler"));
    auto rack = std::make_shared<RackData>(*stage.station.racks[0]);
    auto hostile = std::make_shared<ModuleData>(*rack->places[3].module);
    hostile->name = "\x1b[2J,\"x\"";
    rack->places[3].module = hostile;
    stage.station.racks[0] = rack;
    stage.Do("place 0/4 report channel 7 code 29");
    const Diagnosis diagnosis = Diagnose(*stage.plant, stage.station, ShippedCatalogue(), Language::German);
    EXPECT_TRUE(diagnosis.HasFailure());
    const std::string lines = WriteDiagnosis(diagnosis, ListFormat::Plain, Language::German);
    EXPECT_THAT(lines, HasSubstr("verbunden seit 1970-01-01T01:00:00.000Z\nSteuerung: RUN\nHardware: 3.0.0\n"));
    EXPECT_THAT(lines, HasSubstr("\n0/4     [2J,\"x\"   Q3-DI32-A      Fehler mit dem Code 29  7      29    1970"));
    EXPECT_THAT(WriteDiagnosis(diagnosis, ListFormat::Csv, Language::English),
                HasSubstr("\n0/4,\"\x1b[2J,\"\"x\"\"\","));
    const auto json = nlohmann::json::parse(WriteDiagnosis(diagnosis, ListFormat::Json, Language::English));
    EXPECT_EQ(json["modules"].size(), ModuleItems(stage.station).size());
    EXPECT_EQ(json["modules"][3]["code"], 29);
    EXPECT_EQ(json["modules"][2]["faulty"], false);
}

TEST(PlantLog, TellsWhatCameAndWent)
{
    DiagStage stage;
    PlantLog log(stage.station, *zqbchwcx::testing::SampleCatalogue());
    std::string lines;
    const auto logging = stage.plant->Changed.Connect([&](const PlantChange& change) {
        for (const PlantLogEntry& entry : log.Read(*stage.plant, change))
            lines += WriteLogLine(entry, ListFormat::Plain, Language::English).substr(17);
    });
    stage.Do("place 0/4.1 fail channel 2 code 29");
    stage.now += 1s;
    stage.Do("place 0/4.1 lost");
    stage.Do("place 0/7 fail"); // an empty place
    stage.now += 1s;
    stage.plant->Lose(ConnectionKind::NotReachable);
    stage.Do("all ok");
    stage.Do("cpu stop");
    EXPECT_EQ(lines, "00.000Z  connected since 1970-01-01T01:00:00.000Z\n"
                     "00.000Z  Controller: RUN\n"
                     "00.000Z  0/4.1  SUB module  came  Fault with the code 29, channel 2\n"
                     "01.000Z  0/4.1  SUB module  went  Fault with the code 29, channel 2\n"
                     "01.000Z  0/4.1  SUB module  came  Module not accessible\n"
                     "02.000Z  not reachable since 1970-01-01T01:00:02.000Z\n"
                     "02.000Z  connected since 1970-01-01T01:00:02.000Z\n"
                     "02.000Z  0/4.1  SUB module  went  Module not accessible\n"
                     "02.000Z  Controller: STOP\n");
}

} // namespace
} // namespace zqbchwcx::reference
