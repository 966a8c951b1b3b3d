#include "zqbchwcx/foundation/mdl_Main.h"

#include "tests/support/services/TestServices.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <tuple>

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;

TEST(PlacePosition, IsTakenApartAndANegativeOneLeavesTheSubPositionAsItWas)
{
    VxEnumPositionType eType = vxPositionNone;
    std::int32_t lRack = 0;
    std::int32_t lNumber = 0;
    std::int32_t lSub = 0;
    using Parts = std::tuple<int, std::int32_t, std::int32_t, std::int32_t>;
    const std::pair<std::int32_t, Parts> cases[] = {{3000, {vxPositionRack, 3, 0, 0}},
                                                    {2023, {vxPositionGap, 2, 11, 0}},
                                                    {8, {vxPositionPlace, 0, 4, 0}},
                                                    {1, {vxPositionGap, 0, 0, 0}},
                                                    {201010, {vxPositionPlace, 1, 5, 2}},
                                                    {-1, {vxPositionNone, 0, 0, 2}},
                                                    {2147483647, {vxPositionGap, 83, 323, 21474}}};
    for (const auto& [lPosition, parts] : cases) {
        G_PositionInfo(lPosition, eType, lRack, lNumber, lSub);
        EXPECT_EQ(Parts(eType, lRack, lNumber, lSub), parts) << lPosition;
    }
}

TEST(Main, PictureDirectoryEndsInOneBackslash)
{
    const TestServices services;
    auto& stored = services.host->settings[{"Software\\Halvar\\Quillon_Ed\\General\\Paths", "DataDirectory"}];
    stored = "C:\\Data";
    EXPECT_EQ(G_HWPicDir(), "C:\\Data\\HWPics\\");
    stored = "C:\\Data\\";
    EXPECT_EQ(G_HWPicDir(), "C:\\Data\\HWPics\\");
    services.host->settings.clear();
    EXPECT_EQ(G_HWPicDir(), "C:\\Library\\HWPics\\");
}

TEST(Main, DisabledBackgroundFallsBackToAMixWhenTheLightColorIsTheButtonFace)
{
    const TestServices services;
    auto& colors = services.toolkit->desktop.systemColors;
    EXPECT_EQ(G_ColorDisabledBackground(), vxColorLight3D);
    colors[vxColorLight3D] = colors[vxColorButtonFace] = G_Rgb(10, 200, 3);
    colors[vxColorButtonHighlight] = G_Rgb(13, 100, 3);
    EXPECT_EQ(G_ColorDisabledBackground(), G_Rgb(12, 150, 3)) << "rounded towards the larger channel";
    EXPECT_EQ(G_TranslateColor(G_SystemColor(99), 0), -1);
}

TEST(Main, WaitCursorGoesToTheApplicationOrElseToTheScreen)
{
    TestServices services;
    for (const std::int32_t lCode : {1, 0, -1, 2}) G_DoWaitCursor(lCode);
    EXPECT_THAT(services.Lines(), ElementsAre("DoWaitCursor 1", "DoWaitCursor 0", "DoWaitCursor -1", "DoWaitCursor 2"));
    services.Lines().clear();
    services.host->isRunning = false;
    for (const std::int32_t lCode : {1, 0, -1, 2}) G_DoWaitCursor(lCode);
    EXPECT_THAT(services.Lines(), ElementsAre("Pointer hourglass", "Pointer hourglass", "Pointer default"));
}

TEST(ErrorReport, NamesLibraryModuleAndProcedureAndKeepsTheRest)
{
    const TestServices services;
    EXPECT_FALSE(G_Trap("mdl_Main", "G_PositionInfo", [] { throw VxError(12, "text", "elsewhere", "a.hlp", 34); }));
    EXPECT_FALSE(G_Trap("A", "B", [] { throw std::runtime_error("other"); }));
    EXPECT_FALSE(G_Trap("A", "C", [] { throw 5; }));
    EXPECT_FALSE(G_IgnoreErrors([] { throw std::bad_alloc(); }));
    const auto& reports = services.host->reports;
    ASSERT_EQ(reports.size(), 3U);
    using Report = std::tuple<std::string, int, std::string, std::string, int>;
    const auto reported = [&](std::size_t i) {
        const VxError& r = reports[i];
        return Report(r.source, r.number, r.description, r.helpFile, r.helpContext);
    };
    EXPECT_EQ(reported(0), Report("zqbchwcx.mdl_Main.G_PositionInfo", 12, "text", "a.hlp", 34));
    EXPECT_EQ(reported(1), Report("zqbchwcx.A.B", vxErrorUnexpected, "other", "", 0));
    EXPECT_EQ(reports[2].source, "zqbchwcx.A.C");
}

TEST(ErrorReport, AFailingErrorLogLosesTheReportOnly)
{
    const TestServices services;
    services.Faults().ThrowAt(1);
    EXPECT_FALSE(G_Trap("A", "B", [] { throw VxError(1, "first"); }));
    EXPECT_EQ(services.Faults().Thrown(), "LogError zqbchwcx.A.B");
    G_InstallServiceRoot(nullptr);
    EXPECT_FALSE(G_Trap("A", "B", [] { throw VxError(2, "without any host"); }));
}

} // namespace
} // namespace zqbchwcx::testing
