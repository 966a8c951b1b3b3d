#include "tests/unit/reference/diag/DiagStage.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"

#include <gmock/gmock.h>

namespace zqbchwcx::reference {
namespace {

using namespace std::chrono_literals;

std::string StateText(const Plant& plant)
{
    std::string text = ConnectionText(plant.State().connection).en;
    if (plant.IsKnown())
        for (const PlantItem& item : plant.Map().Items())
            text += "\n" + std::to_string(EncodeStateWord(*plant.At(item))) + " " + TimeText(plant.Since(item));
    return text;
}

/// A recorded afternoon with faults and lost connections, and what the plant said after each change.
struct Afternoon {
    Afternoon()
    {
        text = WriteRecordingHead({"Plant", stage.plant->Map().Fingerprint(), stage.plant->Map().RegisterCount()});
        const auto recording = stage.plant->Changed.Connect([this](const PlantChange& change) {
            for (const RecordedChange& line : ToRecord(*stage.plant, change)) text += WriteRecordedChange(line);
            said.emplace_back(change.at, StateText(*stage.plant));
        });
        stage.simulation.PlayRandomly(5);
        for (int i = 0; i < 60; ++i) {
            stage.now += 900ms;
            stage.simulation.Advance(900ms);
            if (i % 20 == 13) stage.plant->Lose(ConnectionKind::NotReachable, {"cable \"7\"", "Kabel"});
            else stage.plant->Take(0, stage.simulation.Registers());
        }
    }

    DiagStage stage;
    std::string text;
    std::vector<std::pair<Time, std::string>> said;
};

/// Plays a text; the plant that hears it lives as long.
struct Playing {
    explicit Playing(const std::string& text, const StationData& station = DiagStation())
        : recording(ParseRecording(text, "a.jsonl")),
          plant(std::make_shared<Plant>(RegisterMap(station), [time = time] { return time->Now(); })),
          source(recording, plant, time)
    {
        source.Open();
    }

    Recording recording;
    std::shared_ptr<RecordedTime> time = std::make_shared<RecordedTime>();
    PlantPtr plant;
    RecordedSource source;
};

TEST(Recording, PlaysWhatThePlantSaid)
{
    const Afternoon afternoon;
    ASSERT_GT(afternoon.said.size(), 20U);
    Playing steps(afternoon.text);
    EXPECT_TRUE(steps.recording.damages.empty());
    for (const auto& [at, said] : afternoon.said) {
        EXPECT_EQ(StateText(*steps.plant), said);
        EXPECT_EQ(steps.source.Now(), at);
        steps.source.Step();
    }
    EXPECT_TRUE(steps.source.IsAtEnd());
    for (const auto speed : {1ms, 950ms, 100'000ms}) {
        Playing playing(afternoon.text);
        while (!playing.source.IsAtEnd()) playing.source.Advance(speed);
        EXPECT_EQ(StateText(*playing.plant), afternoon.said.back().second);
    }
    EXPECT_EQ(Playing(afternoon.text, ExampleStation("waterworks")).plant->State().connection.kind,
              ConnectionKind::OtherStation);
}

TEST(Recording, NamesADamagedLineAndLeavesItOut)
{
    const Afternoon afternoon;
    const Recording whole = ParseRecording(afternoon.text, "a.jsonl");
    const std::string at = "{\"at\": \"" + TimeText(whole.changes.back().at) + "\", ";
    const std::pair<std::string, const char*> lines[] = {
        {"{", "parse error"},
        {at + "\"first\": 48, \"values\": [65536]}", "65535"},
        {at + "\"first\": 56, \"values\": [1, 2]}", "2 elements"},
        {at + "\"first\": 57, \"values\": [1]}", "from 0 to 56"},
        {at + "\"first\": 1, \"values\": []}", "must not be empty"},
        {at + "\"lost\": \"found\"}", "must be one of"},
        {at + "\"values\": [1]}", "\"first\" is missing"},
        {"{\"at\": \"1970-01-01T00:00:00.000Z\", \"first\": 1, \"values\": [1]}", "before the time"},
        {"{\"at\": \"now\", \"first\": 1, \"values\": [1]}", "must be a time"},
    };
    std::string text = afternoon.text;
    for (const auto& [line, reason] : lines) text += line + "\n";
    const Recording recording = ParseRecording(text + WriteRecordedChange(whole.changes.back()), "a.jsonl");
    EXPECT_EQ(recording.changes.size(), whole.changes.size() + 1) << "what follows a damaged line is read";
    ASSERT_EQ(recording.damages.size(), std::size(lines));
    for (std::size_t i = 0; i < std::size(lines); ++i) {
        EXPECT_THAT(recording.damages[i].reason, ::testing::HasSubstr(lines[i].second));
        EXPECT_EQ(recording.damages[i].fileName, "a.jsonl:" + std::to_string(whole.changes.size() + 2 + i));
    }
    for (const char* head : {"", "{}", R"({"format": "quillon-station", "version": 1})"})
        EXPECT_NE(ErrorOf([&] { ParseRecording(head, "a.jsonl"); }).reason, "no error") << head;
}

TEST(Script, DoesWhatItSaysWhenItSaysIt)
{
    Simulation simulation(DiagStation());
    const std::size_t place = *simulation.Map().RegisterOf({{0, 4}, 0});
    simulation.Play(ParseScript("# a fault each second\ncpu stop\n+0.5s place 0/4 fail channel 3 code 12 # breaks\n"
                                "+0.25s place 0/4 ok\r\n\n+.25s repeat\n",
                                "s", simulation.Map()));
    std::string words;
    for (int i = 0; i < 16; ++i) {
        simulation.Advance(125ms);
        words += simulation.Registers()[place] ? '1' : '0';
    }
    EXPECT_EQ(words, "0001100000011000");
    EXPECT_EQ(simulation.Registers()[MapHead::ControllerState], 2);
    EXPECT_EQ(simulation.Registers()[MapHead::ChangeCounter], 5) << "one for the controller, four for the place";
    EXPECT_TRUE(simulation.Advance(24h * 365).size() < 10) << "rounds that were slept through are not made up for";
}

TEST(Script, RefusesALineAndSaysWhy)
{
    const RegisterMap map(DiagStation());
    const std::pair<const char*, const char*> lines[] = {
        {"jump", "must be"},
        {"cpu walk", "must be"},
        {"place 0/4", "must be"},
        {"place 0/8 ok", "no place '0/8'"},
        {"place 0/4.3 ok", "no place"},
        {"place 0/4.0 ok", "no place"},
        {"place 4 ok", "no place"},
        {"place 0/4 broken", "none of ok"},
        {"place 0/4 ok code 3", "nothing follows 'ok'"},
        {"place 0/4 fail code 31", "from 1 to 30"},
        {"place 0/4 fail channel", "needs a number"},
        {"place 0/4 fail volume 3", "neither channel nor code"},
        {"+2 cpu run", "no time"},
        {"+infs cpu run", "no time"},
        {"+2s", "must be"},
        {"repeat", "needs times"},
        {"+1s repeat\ncpu run", "nothing follows 'repeat'"},
    };
    for (const auto& [line, reason] : lines) {
        const std::string text = std::string("cpu run\n") + line;
        const FileError error = ErrorOf([&] { ParseScript(text, "s.txt", map); });
        EXPECT_THAT(error.reason, ::testing::HasSubstr(reason)) << line;
        EXPECT_THAT(error.fileName, ::testing::StartsWith("s.txt:")) << line;
    }
}

TEST(Simulation, IsTheSameForTheSameSeed)
{
    Simulation a(DiagStation());
    Simulation b(DiagStation());
    Simulation other(DiagStation());
    a.PlayRandomly(1), b.PlayRandomly(1), other.PlayRandomly(2);
    std::size_t faults = 0;
    for (int i = 0; i < 1000; ++i) {
        a.Advance(100ms), b.Advance(100ms), other.Advance(100ms);
        ASSERT_EQ(a.Registers(), b.Registers());
        for (const PlantItem& item : a.Map().Items())
            faults += DecodeStateWord(a.Registers()[*a.Map().RegisterOf(item)]).HasFailure() ? 1 : 0;
    }
    EXPECT_NE(a.Registers(), other.Registers());
    EXPECT_GT(faults, 100U);
}

} // namespace
} // namespace zqbchwcx::reference
