#include "tests/support/StationStage.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlMouse.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int16_t Plain = 0;

class ConfigMouse : public StationFixture {
protected:
    /// What a click does is written as "selection | focus | anchor" after the press and after the release.
    std::string Press(std::int32_t lPosition, std::int16_t nShift, std::int16_t nButton = vxButtonLeft)
    {
        mouse->MouseDown(lPosition, nButton, nShift);
        return Marks();
    }
    std::string Release(std::int16_t nShift, std::int16_t nButton = vxButtonLeft)
    {
        mouse->MouseUp(1020, nButton, nShift);
        return Marks();
    }

    std::shared_ptr<VxHWConfigCtrlMouse> mouse = MakeController<VxHWConfigCtrlMouse>();
};

TEST_F(ConfigMouse, AClickOnAPlaceSelectsItAndEndsAMultipleSelectionOnlyOnRelease)
{
    EXPECT_EQ(Press(8, Plain), "0/4 | 8 | 8");
    Select({{0, 5}, {0, 6}});
    EXPECT_EQ(Press(10, Plain), "0/5 0/6 | 10 | 10");
    EXPECT_EQ(Release(Plain), "0/5 | 10 | 10") << "the release acts on what was pressed";
    EXPECT_EQ(Press(12, Plain, vxButtonRight), "0/6 | 12 | 12");
    Select({{0, 5}, {0, 6}});
    EXPECT_EQ(Release(Plain, vxButtonRight), "0/5 0/6 | 12 | 12");
    EXPECT_EQ(Press(4, Plain, vxButtonMiddle), "0/5 0/6 | 12 | 12");
    EXPECT_EQ(Press(4, Plain, vxButtonLeft | vxButtonRight), "0/5 0/6 | 12 | 12");
}

TEST_F(ConfigMouse, AClickOnAGapEndsWithAnEmptySelectionAndTheFocusOnTheGap)
{
    Select({{0, 4}, {0, 5}});
    EXPECT_EQ(Press(9, Plain), "0/4 0/5 | 9 | 9") << "beside a selected place, which may be dragged by the gap";
    EXPECT_EQ(Release(Plain), " | 9 | 9");
    Select({{0, 4}});
    EXPECT_EQ(Press(11, Plain), " | 11 | 11");
    Select({{0, 1}});
    EXPECT_EQ(Press(1, Plain), " | 1 | 1") << "before the first place";
    Release(Plain);
}

TEST_F(ConfigMouse, AClickOnARackSelectsItAndCarriesTheFocusOver)
{
    FocusAndAnchor(6, 6);
    for (const std::int16_t nShift : {Plain, std::int16_t{vxShiftMask}, std::int16_t{vxCtrlMask}}) {
        Select({});
        EXPECT_EQ(Press(1000, nShift), "1/1 1/2 1/3 1/4 1/5 1/6 1/7 1/8 1/9 1/10 1/11 | 1006 | 1006");
        EXPECT_EQ(Release(nShift), Marks());
    }
    EXPECT_EQ(Press(0, vxAltMask).substr(0, 3), "1/1") << "Alt alone does nothing";
}

TEST_F(ConfigMouse, ShiftSelectsFromTheAnchor)
{
    FocusAndAnchor(4, 4);
    EXPECT_EQ(Press(10, vxShiftMask), "0/2 0/3 0/4 0/5 | 10 | 4");
    EXPECT_EQ(Press(7, vxShiftMask | vxCtrlMask), "0/2 0/3 | 7 | 4");
    EXPECT_EQ(Press(1008, vxShiftMask | vxAltMask), "1/2 1/3 1/4 | 1008 | 1004") << "the anchor follows to the rack";
    std::int32_t lCall = 0;
    do {
        FocusAndAnchor(1008, 1004);
        services.Faults().ThrowAt(++lCall);
        Press(8, vxShiftMask);
        ASSERT_FALSE(services.Faults().Thrown().empty());
    } while (services.Faults().Thrown() != "Places.Clear");
    EXPECT_EQ(handler->ShiftSelPosition(), 1004) << "the selection goes first";
    TakeReports();
}

TEST_F(ConfigMouse, CtrlTogglesOnReleaseWithinOneRack)
{
    EXPECT_EQ(Press(8, vxCtrlMask), " | -1 | -1");
    EXPECT_EQ(Release(vxCtrlMask), "0/4 | 8 | 8");
    Press(12, vxCtrlMask);
    EXPECT_EQ(Release(vxCtrlMask), "0/4 0/6 | 12 | 12");
    Press(8, vxCtrlMask);
    EXPECT_EQ(Release(vxCtrlMask | vxAltMask), "0/6 | 8 | 8");
    Press(13, vxCtrlMask);
    EXPECT_EQ(Release(vxCtrlMask), "0/6 | 13 | 13") << "a gap only takes the focus";
    Press(1008, vxCtrlMask);
    EXPECT_EQ(Release(vxCtrlMask), "1/4 | 1008 | 1008") << "a selection stays within one rack";
    Press(5, vxCtrlMask);
    EXPECT_EQ(Release(vxCtrlMask), " | 5 | 5");
}

TEST_F(ConfigMouse, AClickOutsideOrInAnAbsentRackLeavesTheFocus)
{
    Select({{0, 4}});
    FocusAndAnchor(8, 8);
    EXPECT_EQ(Press(-1, vxCtrlMask), "0/4 | 8 | 8");
    EXPECT_EQ(Press(-1, Plain), " | 8 | 8");
    EXPECT_EQ(Release(Plain), " | 8 | 8");
    station->State(1, vxRackNotPresent);
    Select({{0, 4}, {0, 5}});
    EXPECT_EQ(Press(1004, Plain), "0/4 0/5 | 8 | 8");
    station->State(1, vxRackPresent);
    EXPECT_EQ(Release(vxCtrlMask), "1/2 | 1004 | 1004") << "the press was remembered all the same";
}

TEST_F(ConfigMouse, EveryClickIsAnnouncedAtMostOnce)
{
    int announcements = 0;
    const EventConnection connection = handler->SelChange.Connect([&] { ++announcements; });
    Select({{1, 1}, {1, 2}});
    for (const std::int16_t nShift : {Plain, std::int16_t{vxShiftMask}, std::int16_t{vxCtrlMask}})
        for (const std::int32_t lPosition : {8, 1002, 9, 1003, 0, 1000}) {
            announcements = 0;
            Press(lPosition, nShift);
            EXPECT_LE(std::exchange(announcements, 0), 1) << lPosition;
            Release(nShift);
            EXPECT_LE(announcements, 1) << lPosition;
        }
}

TEST_F(ConfigMouse, ADoubleClickOpensTheParameterDialogOfAModuleThatHasOne)
{
    station->Put(0, 1, "DI");
    station->Put(0, 2, "DO");
    station->Put(0, 3, "DI");
    for (const std::int32_t lPosition : {1, 2, 4, 5, 7, 8, 9, 0, -1}) mouse->DblClick(lPosition);
    EXPECT_THAT(TakeLines(),
                ElementsAre("OpenModuleParamDialog 0/1", "OpenModuleParamDialog 0/1", "OpenModuleParamDialog 0/3"));
    EXPECT_EQ(Marks(), " | -1 | -1");
}

TEST_F(ConfigMouse, TheReadOnlyOneBehavesAlikeUnderItsOwnName)
{
    station->Put(0, 1, "DI");
    mouse = MakeController<VxHWConfigROCtrlMouse>();
    TakeLines();
    EXPECT_TRUE(mouse->CanSelectByRubberBand());
    EXPECT_EQ(Press(8, Plain), "0/4 | 8 | 8");
    mouse->DblClick(2);
    EXPECT_THAT(TakeLines(), ElementsAre("OpenModuleParamDialog 0/1"));
    mouse->VxHWSelectionHandler(nullptr);
    mouse->MouseDown(2, vxButtonLeft, Plain);
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWConfigROCtrlMouse.P_MouseDownOnPlace"));
}

TEST_F(ConfigMouse, WhatTheStationDoesNotHaveTakesNoPart)
{
    Press(8, Plain);
    for (const std::int32_t lPosition : {40, 41, 9 * 1000, 9 * 1000 + 2, 9 * 1000 + 3}) {
        EXPECT_EQ(Press(lPosition, Plain), "0/4 | 8 | 8") << lPosition;
        EXPECT_EQ(Press(lPosition, vxCtrlMask), "0/4 | 8 | 8") << lPosition;
        mouse->DblClick(lPosition);
    }
}

} // namespace
} // namespace zqbchwcx::testing
