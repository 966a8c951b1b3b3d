#include "zqbchwcx/reference/files/StationWriter.h"

#include "tests/support/Samples.h"
#include "tests/unit/reference/files/TemporaryDirectory.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace zqbchwcx::reference {
namespace {

using ::testing::HasSubstr;

TEST(StationWriter, WritesEveryExampleAsItStands)
{
    for (const std::string& file : ExampleFiles()) {
        SCOPED_TRACE(file);
        const LoadedStation loaded = LoadStation(file, ShippedCatalogue());
        EXPECT_EQ(WriteStation(loaded.data), ReadFile(SystemFiles(), file, LargestStationFile));
        EXPECT_EQ(ChangeSince(loaded.stamp, file), FileChange::Unchanged);
    }
    EXPECT_GE(ExampleFiles().size(), 8U);
}

TEST(StationWriter, KeepsEveryValueExactly)
{
    StationData station = FullStation(2, 3);
    ModuleData odd = MakeModule("Q3-AI08-A", "Größe \"1\"\n\t\x01 \xF0\x9F\x94\xA7", "/~");
    odd.parameters = {{"least", std::numeric_limits<std::int64_t>::min()},
                      {"most", std::numeric_limits<std::int64_t>::max()},
                      {"tenth", 0.1},
                      {"tiny", std::numeric_limits<double>::denorm_min()},
                      {"whole", 5.0},
                      {"off", false},
                      {"text", std::string()}};
    odd.subModules = {MakeModule("Q3-CG04-SP")};
    odd.subModules[0].outputAddress = MaxAddress;
    auto rack = std::make_shared<RackData>(*station.racks[1]);
    rack->state = 0;
    rack->places[0].usability = -1;
    rack->places[1].module = std::make_shared<const ModuleData>(odd);
    rack->places[2].module = nullptr;
    station.racks[1] = rack;
    station.kind = station.displayMode = 2;
    station.readOnly = true;

    const std::string text = WriteStation(station);
    const StationData read = ParseStation(text, "read back", ShippedCatalogue());
    EXPECT_TRUE(SameStation(read, station));
    EXPECT_EQ(WriteStation(read), text);
}

TEST(StationWriter, RefusesWhatCouldNotBeReadAgain)
{
    const auto errorWith = [](const ModuleData& module) {
        StationData station = FullStation(1, 2);
        auto rack = std::make_shared<RackData>(*station.racks[0]);
        rack->places[1].module = std::make_shared<const ModuleData>(module);
        station.racks[0] = rack;
        return ErrorOf([&] { WriteStation(station, "plant.json"); });
    };
    EXPECT_EQ(errorWith(MakeModule("A", "", "\xC3(")).pointer, "/racks/0/places/1/module/comment");
    EXPECT_EQ(errorWith(MakeModule("A", std::string(MaxTextBytes + 1, 'x'))).pointer, "/racks/0/places/1/module/name");
    EXPECT_EQ(errorWith(MakeModule("")).pointer, "/racks/0/places/1/module/orderNumber");
    ModuleData endless = MakeModule("A");
    endless.parameters["p"] = std::nan("");
    EXPECT_EQ(errorWith(endless).pointer, "/racks/0/places/1/module/parameters/p");
    EXPECT_EQ(ErrorOf([] { WriteStation(FullStation(1, 500)); }).pointer, "/racks/0/placeCount");

    const TemporaryDirectory directory;
    directory.Write("plant.json", "old");
    EXPECT_EQ(ErrorOf([&] { SaveStation(FullStation(101, 1), directory.File("plant.json")); }).pointer, "/racks");
    EXPECT_EQ(directory.Read("plant.json"), "old");
}

TEST(FileStamp, TellsChangesOfOtherPrograms)
{
    const TemporaryDirectory directory;
    const std::string file = directory.File("plant.json");
    const FileStamp stamp = SaveStation(FullStation(1, 1), file);
    const std::string content = directory.Read("plant.json");
    const auto touch = [&] {
        std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::seconds(5));
    };
    EXPECT_EQ(ChangeSince(stamp, file), FileChange::Unchanged);
    touch();
    EXPECT_EQ(ChangeSince(stamp, file), FileChange::Unchanged);
    std::string other = content;
    other[other.find("Full")] = 'B';
    directory.Write("plant.json", other);
    touch();
    EXPECT_EQ(ChangeSince(stamp, file), FileChange::Changed);
    directory.Write("plant.json", content + " ");
    EXPECT_EQ(ChangeSince(stamp, file), FileChange::Changed);
    std::filesystem::remove(file);
    EXPECT_EQ(ChangeSince(stamp, file), FileChange::Missing);
}

} // namespace
} // namespace zqbchwcx::reference
