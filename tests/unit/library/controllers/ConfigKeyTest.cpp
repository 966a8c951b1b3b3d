#include "controllers/config/VxHWConfigCtrlKey.h"
#include "controllers/config/VxHWConfigROCtrlKey.h"
#include "controllers/config/VxHWConfigROOfflineCtrlKey.h"
#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigKey : public StationFixture {
protected:
    std::string Cursor(IVxHWKeyInputController& controller, std::int32_t lPosition, std::int16_t nShift = 0)
    {
        controller.CursorKeyDown(lPosition, nShift);
        return Marks();
    }
    std::string Space(IVxHWKeyInputController& controller, std::int16_t nShift = 0)
    {
        controller.SpaceKeyDown(nShift);
        return Marks();
    }

    std::shared_ptr<VxHWConfigCtrlKey> key = MakeController<VxHWConfigCtrlKey>();
};

TEST_F(ConfigKey, CursorKeysMoveFocusAndSelection)
{
    const auto offline = MakeController<VxHWConfigROOfflineCtrlKey>();
    for (IVxHWKeyInputController* each : std::initializer_list<IVxHWKeyInputController*>{key.get(), offline.get()}) {
        EXPECT_EQ(Cursor(*each, 8), "0/4 | 8 | 8");
        EXPECT_EQ(Cursor(*each, 12, vxShiftMask), "0/4 0/5 0/6 | 12 | 8");
        EXPECT_EQ(Cursor(*each, 5, vxShiftMask | vxCtrlMask), "0/4 0/3 | 5 | 8");
        EXPECT_EQ(Cursor(*each, 14, vxCtrlMask), "0/4 0/3 | 14 | 8") << "the focus moves alone";
        EXPECT_EQ(Cursor(*each, 16, vxAltMask), "0/4 0/3 | 16 | 8");
        EXPECT_EQ(Cursor(*each, 9), " | 9 | 9");
        EXPECT_EQ(Cursor(*each, 1000), " | 1000 | 1000");
        EXPECT_EQ(Cursor(*each, 4, vxShiftMask), " | 4 | 1000") << "no range across racks";
    }
}

TEST_F(ConfigKey, TheOnlineReadOnlyOneSelectsTheFocusedPlaceAlone)
{
    const auto online = MakeController<VxHWConfigROCtrlKey>();
    EXPECT_EQ(Cursor(*online, 8), "0/4 | 8 | 8");
    EXPECT_EQ(Cursor(*online, 12, vxShiftMask), "0/6 | 12 | 12");
    EXPECT_EQ(Cursor(*online, 14, vxCtrlMask), "0/7 | 14 | 14");
    EXPECT_EQ(Space(*online, vxCtrlMask), "0/7 | 14 | 14");
    EXPECT_EQ(Cursor(*online, 9, vxShiftMask), " | 9 | 9");
}

TEST_F(ConfigKey, SpaceSelectsAtTheFocus)
{
    int announcements = 0;
    const EventConnection connection = handler->SelChange.Connect([&] { ++announcements; });
    FocusAndAnchor(8, 4);
    EXPECT_EQ(Space(*key), "0/4 | 8 | 4");
    EXPECT_EQ(Space(*key), "0/4 | 8 | 4");
    EXPECT_EQ(announcements, 2) << "announced even when nothing changes";
    EXPECT_EQ(Space(*key, vxShiftMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(Space(*key, vxCtrlMask), "0/2 0/3 | 8 | 4");
    EXPECT_EQ(Space(*key, vxCtrlMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(Space(*key, vxAltMask), "0/2 0/3 0/4 | 8 | 4");
    EXPECT_EQ(announcements, 6);
    for (const std::int32_t lFocus : {9, 1000, -1}) {
        handler->FocusPosition(lFocus);
        Space(*key, vxCtrlMask);
    }
    EXPECT_EQ(Selection(), "0/2 0/3 0/4");
    EXPECT_EQ(announcements, 6);
}

TEST_F(ConfigKey, DeleteRunsAsOneActionWithDrawingOff)
{
    station->Put(0, 2, "A");
    station->Put(0, 3, "B");
    Select({{0, 1}, {0, 2}});
    key->Delete();
    EXPECT_THAT(TakeLines(),
                ElementsAre("BeginUserAction T4002", "DoWaitCursor 1", "IsDrawable False", "DeleteModules [0/1 0/2]",
                            "IsDrawable True", "DoWaitCursor -1", "EndUserAction"));
    EXPECT_EQ(station->Content(), "0/3=B");
    key->Delete();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4002", "DoWaitCursor 1", "DoWaitCursor -1", "EndUserAction"))
        << "a selection of empty places deletes nothing";
}

TEST_F(ConfigKey, CutCopyAndPasteGoThroughTheClipboard)
{
    station->Put(0, 2, "A");
    station->Put(0, 3, "B");
    Select({{0, 2}});
    key->Copy();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4004", "DoWaitCursor 1", "WriteModulesToExchange [A]",
                                         "PutOnClipboard", "DoWaitCursor -1", "EndUserAction"));
    Select({{0, 2}, {0, 3}});
    key->Cut();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4003", "DoWaitCursor 1", "WriteModulesToExchange [A B]",
                                         "PutOnClipboard", "IsDrawable False", "DeleteModules [0/2 0/3]",
                                         "IsDrawable True", "DoWaitCursor -1", "EndUserAction"));
    EXPECT_EQ(station->Content(), "");
    FocusAndAnchor(1008, 4);
    key->Paste();
    EXPECT_THAT(TakeLines(),
                ElementsAre("BeginUserAction T4005", "DoWaitCursor 1", "CanBePlaced 1008 [A B] copy nothing",
                            "IsDrawable False", "PlaceModules 1008 [A B]", "IsDrawable True", "DoWaitCursor -1",
                            "EndUserAction"));
    EXPECT_EQ(station->Content(), "1/4=A 1/5=B");
    EXPECT_EQ(Marks(), "1/4 1/5 | 1008 | 4");
}

TEST_F(ConfigKey, PasteChangesNothingWithoutModulesOrRoom)
{
    key->Paste();
    EXPECT_THAT(TakeLines(),
                ElementsAre("BeginUserAction T4005", "DoWaitCursor 1", "DoWaitCursor -1", "EndUserAction"));
    station->Put(0, 2, "A");
    Select({{0, 2}});
    key->Copy();
    handler->FocusPosition(4);
    TakeLines();
    key->Paste();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4005", "DoWaitCursor 1", "CanBePlaced 4 [A] copy nothing",
                                         "DoWaitCursor -1", "EndUserAction"));
    EXPECT_EQ(station->Content(), "0/2=A");
}

TEST_F(ConfigKey, ReturnOpensTheFirstParameterDialogOfTheSelection)
{
    station->Put(0, 2, "A");
    station->Put(0, 3, "B")->hasParamDialog = true;
    station->Put(0, 4, "C")->hasParamDialog = true;
    Select({{0, 1}, {0, 2}, {0, 4}, {0, 3}});
    const auto offline = MakeController<VxHWConfigROOfflineCtrlKey>();
    const auto online = MakeController<VxHWConfigROCtrlKey>();
    for (IVxHWKeyInputController* each :
         std::initializer_list<IVxHWKeyInputController*>{key.get(), offline.get(), online.get()}) {
        each->KeyReturn();
        EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4006", "OpenModuleParamDialog 0/4", "EndUserAction"));
    }
    Select({{0, 2}});
    key->KeyReturn();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4006", "EndUserAction"));
}

TEST_F(ConfigKey, TheReadOnlyOnesChangeNothingInTheStation)
{
    station->Put(0, 2, "A");
    Select({{0, 2}});
    const auto offline = MakeController<VxHWConfigROOfflineCtrlKey>();
    const auto online = MakeController<VxHWConfigROCtrlKey>();
    for (IVxHWKeyInputController* each : std::initializer_list<IVxHWKeyInputController*>{offline.get(), online.get()}) {
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
    station->Put(0, 2, "A");
    Select({{0, 2}});
    key->Delete();
    EXPECT_THAT(TakeLines(), ElementsAre("BeginUserAction T4002", "DoWaitCursor 1",
                                         "LogError zqbchwcx.VxHWConfigCtrlKey.IVxHWKeyInputController_Delete",
                                         "DoWaitCursor -1", "EndUserAction"));
    station->Module(0, 2)->hasParamDialog = true;
    key->KeyReturn();
    EXPECT_THAT(TakeLines(),
                ElementsAre("BeginUserAction T4006",
                            "LogError zqbchwcx.VxHWConfigCtrlKey.IVxHWKeyInputController_KeyReturn", "EndUserAction"));
    TakeReports();
}

} // namespace
} // namespace zqbchwcx::testing
