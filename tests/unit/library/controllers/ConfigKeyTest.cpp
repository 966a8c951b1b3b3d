#include "tests/support/StationStage.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlKey.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlKey.h"
#include "zqbchwcx/controllers/config/VxHWConfigROOfflineCtrlKey.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigKey : public StationFixture {
protected:
    using Controller = IVxHWKeyInputController;

    std::string Cursor(Controller& controller, std::int32_t lPosition, std::int16_t nShift = 0)
    {
        controller.CursorKeyDown(lPosition, nShift);
        return Marks();
    }
    std::string Space(std::int16_t nShift = 0)
    {
        key->SpaceKeyDown(nShift);
        return Marks();
    }
    /// What the command does within the brackets of its user action.
    Lines ActionOf(void (Controller::*command)() noexcept, const std::string& text)
    {
        TakeLines();
        (key.get()->*command)();
        Lines lines = TakeLines();
        EXPECT_GE(lines.size(), 4U);
        EXPECT_EQ((Lines{lines[0], lines[1], lines.end()[-2], lines.back()}),
                  (Lines{"BeginUserAction " + text, "DoWaitCursor 1", "DoWaitCursor -1", "EndUserAction"}));
        return {lines.begin() + 2, lines.end() - 2};
    }

    std::shared_ptr<VxHWConfigCtrlKey> key = MakeController<VxHWConfigCtrlKey>();
    std::shared_ptr<VxHWConfigROOfflineCtrlKey> offline = MakeController<VxHWConfigROOfflineCtrlKey>();
    std::shared_ptr<VxHWConfigROCtrlKey> online = MakeController<VxHWConfigROCtrlKey>();
};

TEST_F(ConfigKey, CursorKeysMoveFocusAndSelection)
{
    for (Controller* each : std::initializer_list<Controller*>{key.get(), offline.get()}) {
        EXPECT_EQ(Cursor(*each, 8), "0/4 | 8 | 8");
        EXPECT_EQ(Cursor(*each, 12, vxShiftMask), "0/4 0/5 0/6 | 12 | 8");
        EXPECT_EQ(Cursor(*each, 5, vxShiftMask | vxCtrlMask), "0/4 0/3 | 5 | 8");
        EXPECT_EQ(Cursor(*each, 14, vxCtrlMask), "0/4 0/3 | 14 | 8") << "the focus moves alone";
        EXPECT_EQ(Cursor(*each, 9), " | 9 | 9");
        EXPECT_EQ(Cursor(*each, 1000), " | 1000 | 1000");
        EXPECT_EQ(Cursor(*each, 4, vxShiftMask), " | 4 | 1000") << "no range across racks";
    }
}

TEST_F(ConfigKey, TheOnlineReadOnlyOneSelectsTheFocusedPlaceAlone)
{
    EXPECT_EQ(Cursor(*online, 8), "0/4 | 8 | 8");
    EXPECT_EQ(Cursor(*online, 12, vxShiftMask), "0/6 | 12 | 12");
    online->SpaceKeyDown(vxCtrlMask);
    EXPECT_EQ(Cursor(*online, 14, vxCtrlMask), "0/7 | 14 | 14");
    EXPECT_EQ(Cursor(*online, 9, vxShiftMask), " | 9 | 9");
}

TEST_F(ConfigKey, SpaceSelectsAtTheFocus)
{
    int announcements = 0;
    const EventConnection connection = handler->SelChange.Connect([&] { ++announcements; });
    FocusAndAnchor(8, 4);
    EXPECT_EQ(Space(), "0/4 | 8 | 4");
    EXPECT_EQ(Space(), "0/4 | 8 | 4");
    EXPECT_EQ(announcements, 2) << "announced even when nothing changes";
    EXPECT_EQ(Space(vxShiftMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(Space(vxCtrlMask), "0/2 0/3 | 8 | 4");
    EXPECT_EQ(Space(vxCtrlMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(Space(vxAltMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(announcements, 6);
    for (const std::int32_t lFocus : {9, 1000, -1}) {
        handler->FocusPosition(lFocus);
        Space(vxCtrlMask);
    }
    EXPECT_EQ(Selection(), "0/2 0/3 0/4");
    EXPECT_EQ(announcements, 6);
}

TEST_F(ConfigKey, DeleteCutCopyAndPasteRunAsActions)
{
    station->Put(0, 4, "DI");
    station->Put(0, 5, "DO");
    station->Put(1, 3, "IM");
    Select({{0, 4}});
    EXPECT_THAT(ActionOf(&Controller::Paste, "T4005"), IsEmpty()) << "nothing on the clipboard";
    EXPECT_THAT(ActionOf(&Controller::Copy, "T4004"), ElementsAre("WriteModulesToExchange [DI]", "PutOnClipboard"));
    handler->FocusPosition(8);
    EXPECT_THAT(ActionOf(&Controller::Paste, "T4005"), ElementsAre("CanBePlaced 8 [DI] copy")) << "no room";
    Select({{0, 4}, {0, 5}});
    EXPECT_THAT(ActionOf(&Controller::Cut, "T4003"),
                ElementsAre("WriteModulesToExchange [DI DO]", "PutOnClipboard", "IsDrawable False",
                            "DeleteModules [0/4 0/5]", "IsDrawable True"));
    FocusAndAnchor(1010, 8);
    EXPECT_THAT(ActionOf(&Controller::Paste, "T4005"), ElementsAre("CanBePlaced 1010 [DI DO] copy", "IsDrawable False",
                                                                   "PlaceModules 1010 [DI DO]", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "1/3=IM 1/5=DI 1/6=DO");
    EXPECT_EQ(Marks(), "1/5 1/6 | 1010 | 8");
    Select({{1, 4}, {1, 5}});
    EXPECT_THAT(ActionOf(&Controller::Delete, "T4002"),
                ElementsAre("IsDrawable False", "DeleteModules [1/4 1/5]", "IsDrawable True"));
    EXPECT_THAT(ActionOf(&Controller::Delete, "T4002"), IsEmpty()) << "a selection of empty places";
}

TEST_F(ConfigKey, ReturnOpensTheFirstParameterDialogOfTheSelection)
{
    station->Put(0, 2, "DO");
    station->Put(0, 3, "DI");
    station->Put(0, 4, "DI");
    Select({{0, 1}, {0, 2}, {0, 4}, {0, 3}});
    TakeLines();
    for (Controller* each : std::initializer_list<Controller*>{key.get(), offline.get(), online.get()}) {
        each->KeyReturn();
        EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4006", "OpenModuleParamDialog 0/4", "EndUserAction"));
    }
}

TEST_F(ConfigKey, TheReadOnlyOnesChangeNothingInTheStation)
{
    station->Put(0, 2, "DO");
    Select({{0, 2}});
    TakeLines();
    for (Controller* each : std::initializer_list<Controller*>{offline.get(), online.get()}) {
        each->Delete();
        each->Cut();
        each->Paste();
    }
    online->Copy();
    EXPECT_THAT(TakeLines(), IsEmpty());
    offline->Copy();
    EXPECT_THAT(TakeLines(), ::testing::Contains("PutOnClipboard"));
}

TEST_F(ConfigKey, AnErrorIsReportedBeforeTheActionIsClosed)
{
    key->VxHWStation(nullptr);
    station->Put(0, 2, "DI");
    Select({{0, 2}});
    EXPECT_THAT(ActionOf(&Controller::Delete, "T4002"),
                ElementsAre("LogError zqbchwcx.VxHWConfigCtrlKey.IVxHWKeyInputController_Delete"));
    key->KeyReturn();
    EXPECT_THAT(TakeLines(),
                ElementsAre("BeginUserAction T4006",
                            "LogError zqbchwcx.VxHWConfigCtrlKey.IVxHWKeyInputController_KeyReturn", "EndUserAction"));
    TakeReports();
}

} // namespace
} // namespace zqbchwcx::testing
