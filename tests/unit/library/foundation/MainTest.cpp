#include "foundation/mdl_Main.h"

#include "foundation/Registration.h"
#include "foundation/mdl_ErrorHandler.h"
#include "tests/support/services/TestServices.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;

TEST(PlacePosition, IsTakenApart)
{
    struct Case {
        std::int32_t lPosition;
        VxEnumPositionType eType;
        std::int32_t lRack, lNumber, lSubPosition;
    };
    for (const Case& c : {Case{3000, vxPositionRack, 3, 0, 0}, Case{2023, vxPositionGap, 2, 11, 0},
                          Case{8, vxPositionPlace, 0, 4, 0}, Case{1, vxPositionGap, 0, 0, 0},
                          Case{201010, vxPositionPlace, 1, 5, 2}, Case{2147483647, vxPositionGap, 83, 323, 21474}}) {
        const PositionInfo info = G_PositionInfo(c.lPosition);
        EXPECT_EQ(info.eType, c.eType) << c.lPosition;
        EXPECT_EQ(info.lRack, c.lRack) << c.lPosition;
        EXPECT_EQ(info.lNumber, c.lNumber) << c.lPosition;
        EXPECT_EQ(info.lSubPosition, c.lSubPosition) << c.lPosition;
    }
}

TEST(PlacePosition, ANegativeOneLeavesTheSubPositionAsItWas)
{
    VxEnumPositionType eType = vxPositionPlace;
    std::int32_t lRack = 7;
    std::int32_t lNumber = 7;
    std::int32_t lSubPosition = 7;
    G_PositionInfo(-1, eType, lRack, lNumber, lSubPosition);
    EXPECT_EQ(eType, vxPositionNone);
    EXPECT_EQ(lRack, 0);
    EXPECT_EQ(lNumber, 0);
    EXPECT_EQ(lSubPosition, 7);
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

TEST(Main, MiddleColorRoundsTowardsTheLargerChannel)
{
    const TestServices services;
    EXPECT_EQ(G_GetMiddleColor(G_Rgb(0, 0, 0), G_Rgb(255, 255, 255)), G_Rgb(128, 128, 128));
    EXPECT_EQ(G_GetMiddleColor(G_Rgb(10, 200, 3), G_Rgb(13, 100, 3)), G_Rgb(12, 150, 3));
}

TEST(Main, DisabledBackgroundFallsBackToAMixWhenTheLightColorIsTheButtonFace)
{
    const TestServices services;
    auto& colors = services.toolkit->desktop.systemColors;
    EXPECT_EQ(G_ColorDisabledBackground(), vxColorLight3D);
    colors[vxColorLight3D] = colors[vxColorButtonFace] = G_Rgb(200, 200, 200);
    colors[vxColorButtonHighlight] = G_Rgb(255, 255, 255);
    EXPECT_EQ(G_ColorDisabledBackground(), G_Rgb(228, 228, 228));
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
    EXPECT_EQ(reports[0].source, "zqbchwcx.mdl_Main.G_PositionInfo");
    EXPECT_EQ(reports[0].number, 12);
    EXPECT_EQ(reports[0].description, "text");
    EXPECT_EQ(reports[0].helpFile, "a.hlp");
    EXPECT_EQ(reports[0].helpContext, 34);
    EXPECT_EQ(reports[1].number, vxErrorUnexpected);
    EXPECT_EQ(reports[1].description, "other");
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
