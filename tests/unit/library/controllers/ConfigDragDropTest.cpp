#include "tests/support/StationStage.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlDD.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigDragDrop : public StationFixture {
protected:
    ConfigDragDrop()
    {
        station->Put(0, 2, "A");
        dragDrop->AddSubscriber(overview);
        dragDrop->AddSubscriber(table);
    }

    std::int16_t TextFormat() { return services.toolkit->desktop.Format(G_ConfigTextFormatName); }
    std::shared_ptr<FakeDataObject> ForeignData(std::string_view text = "X 0 0\n")
    {
        auto oData = std::make_shared<FakeDataObject>(services.log);
        oData->formats[TextFormat()] = G_EncodeConfigText(text);
        return oData;
    }
    /// Starts a drag of place 2, which holds module A.
    void StartDrag()
    {
        Select({{0, 2}});
        FocusAndAnchor(4, 4);
        std::int32_t lAllowedEffects = vxDropEffectNone;
        dragDrop->OLEStartDrag(data, lAllowedEffects);
        EXPECT_EQ(lAllowedEffects, vxDropEffectCopyOrMove);
        TakeLines();
    }
    /// The effect at the position.
    std::int32_t Over(std::int32_t lPosition, std::int16_t nState = vxDragOver, std::int16_t nShift = 0,
                      std::int32_t lEffect = vxDropEffectCopyOrMove)
    {
        dragDrop->OLEDragOver(lPosition, data, lEffect, vxButtonLeft, nShift, nState);
        return lEffect;
    }
    std::int32_t Drop(std::int32_t lPosition, std::int16_t nShift = 0)
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        dragDrop->OLEDragDrop(lPosition, data, lEffect, vxButtonLeft, nShift);
        return lEffect;
    }
    void Complete(std::int32_t lEffect) { dragDrop->OLECompleteDrag(lEffect); }

    std::shared_ptr<VxHWConfigCtrlDD> dragDrop = MakeController<VxHWConfigCtrlDD>();
};

TEST_F(ConfigDragDrop, ADragMayStartWhereASelectedModuleIs)
{
    Select({{0, 1}, {0, 2}});
    handler->FocusPosition(4);
    for (const std::int32_t lPosition : {0, 1, 2, 4, 5}) EXPECT_TRUE(dragDrop->IsValidDragPosition(lPosition));
    for (const std::int32_t lPosition : {-1, 6, 7}) EXPECT_FALSE(dragDrop->IsValidDragPosition(lPosition));
    handler->FocusPosition(2);
    EXPECT_FALSE(dragDrop->IsValidDragPosition(4)) << "the focused place is empty";
}

TEST_F(ConfigDragDrop, TheSourceOffersTextAtOnceAndItsOwnFormatOnDemand)
{
    StartDrag();
    EXPECT_EQ(data->formats.at(TextFormat()), G_EncodeConfigText("A 0 0\n"));
    EXPECT_THAT(data->formats.at(FakeExchangeData::Format), IsEmpty()) << "announced only";
    dragDrop->OLESetData(data, 99);
    EXPECT_THAT(TakeLines(), IsEmpty());
    dragDrop->OLESetData(data, FakeExchangeData::Format);
    EXPECT_THAT(TakeLines(), ElementsAre("WriteModulesToExchange [A]"));
    EXPECT_EQ(data->formats.at(FakeExchangeData::Format).size(), std::string("A 0 0\n").size());
}

TEST_F(ConfigDragDrop, TheStateFollowsTheDragIntoOutOfAndBetweenViews)
{
    auto& clock = services.toolkit->clock;
    StartDrag();
    Over(8, vxDragEnter);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateActive);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText alone", "overview.StateChange from 0",
                                         "table.StateChange from 0", "CanBePlaced 8 [A] move from [0/2]"));
    EXPECT_EQ(handler->FocusPosition(), 8);
    EXPECT_EQ(dragDrop->DropPosition(), 8);
    EXPECT_TRUE(dragDrop->IsDropPlace(station->Place(0, 3)));
    EXPECT_FALSE(dragDrop->IsDropPlace(station->Place(0, 2)));

    EXPECT_EQ(Over(8, vxDragLeave), vxDropEffectCopyOrMove) << "left as passed";
    EXPECT_EQ(handler->FocusPosition(), 4);
    EXPECT_EQ(dragDrop->DropPosition(), -1);
    EXPECT_TRUE(dragDrop->PossibleDropPlaces().IsEmpty());
    EXPECT_FALSE(dragDrop->IsDropPlace(station->Place(0, 3)));
    clock.Advance(9);
    Over(8, vxDragEnter);
    clock.Advance(100);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateActive) << "the next view was entered in time";
    TakeLines();

    Over(8, vxDragLeave);
    clock.Advance(9);
    EXPECT_THAT(TakeLines(), IsEmpty());
    clock.Advance(1);
    EXPECT_THAT(TakeLines(), ElementsAre("overview.StateChange from 1", "table.StateChange from 1"));
    EXPECT_FALSE(clock.IsRunning());
}

TEST_F(ConfigDragDrop, TheStationIsAskedOncePerPositionAndDrag)
{
    StartDrag();
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectMove);
    EXPECT_EQ(Over(8), vxDropEffectMove);
    EXPECT_EQ(Over(9, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(8), vxDropEffectMove);
    EXPECT_EQ(Over(9), vxDropEffectMove);
    EXPECT_THAT(TakeLines(),
                ElementsAre("ModulesFromConfigText alone", "overview.StateChange from 0", "table.StateChange from 0",
                            "CanBePlaced 8 [A] move from [0/2]", "CanBePlaced 9 [A] copy nothing"));
    Over(9, vxDragLeave);
    Over(8, vxDragEnter);
    EXPECT_THAT(TakeLines(), Contains("CanBePlaced 8 [A] move from [0/2]"));
    Over(8, vxDragLeave);
    EXPECT_EQ(Over(-1, vxDragEnter), vxDropEffectNone) << "the last decision belongs to the place";
}

TEST_F(ConfigDragDrop, EffectsDependOnTheSourceAndOnWhatItAllows)
{
    data = ForeignData();
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectCopy);
    EXPECT_EQ(Over(8, vxDragOver, vxShiftMask), vxDropEffectMove);
    EXPECT_EQ(Over(8, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(8, vxDragOver, 0, vxDropEffectMove), vxDropEffectMove) << "the only one allowed";
    EXPECT_EQ(Over(4), vxDropEffectNone) << "an occupied place";
    EXPECT_EQ(handler->FocusPosition(), 4);
    EXPECT_EQ(dragDrop->DropPosition(), 4);
    EXPECT_EQ(Over(8), vxDropEffectCopy);
    station->Rack(1)->state = vxRackNotPresent;
    for (const std::int32_t lPosition : {-1, 0, 1000, 1004}) {
        EXPECT_EQ(Over(lPosition), vxDropEffectNone) << lPosition;
        EXPECT_EQ(dragDrop->DropPosition(), -1);
        EXPECT_EQ(handler->FocusPosition(), 8) << "stays where the last place put it";
    }
}

TEST_F(ConfigDragDrop, DataWithoutModulesIsRefusedEverywhere)
{
    FocusAndAnchor(4, 4);
    for (const std::int16_t nState : {vxDragEnter, vxDragOver, vxDragLeave})
        EXPECT_EQ(Over(8, nState), vxDropEffectNone);
    EXPECT_EQ(Drop(8), vxDropEffectNone);
    EXPECT_EQ(Marks(), " | 4 | 4") << "a drag that never entered takes the focus away from nobody";
    EXPECT_THAT(TakeLines(), ElementsAre("IsDrawable False", "IsDrawable True"));
}

TEST_F(ConfigDragDrop, ADropWithinTheModeMovesAndSelectsOrCopiesWithCtrl)
{
    StartDrag();
    Over(12, vxDragEnter);
    TakeLines();
    EXPECT_EQ(Drop(12), vxDropEffectMove);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText with exchange", "IsDrawable False", "DoWaitCursor 1",
                                         "MoveModules 12 [A] from [0/2]", "DoWaitCursor -1",
                                         "overview.StateChange from 1", "table.StateChange from 1", "IsDrawable True"));
    EXPECT_EQ(Marks(), "0/6 | 12 | 12");
    EXPECT_EQ(dragDrop->DropPosition(), -1);
    Complete(vxDropEffectMove);
    EXPECT_EQ(station->Content(), "0/6=A") << "the move is complete already";

    station->Put(0, 2, "B");
    StartDrag();
    Over(1008, vxDragEnter, vxCtrlMask);
    EXPECT_EQ(Drop(1008, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(station->Content(), "0/2=B 0/6=A 1/4=B");
    EXPECT_EQ(Marks(), "1/4 | 1008 | 1008");
}

TEST_F(ConfigDragDrop, ADropFromElsewhereCopiesAndTellsTheSourceWhetherToDelete)
{
    data = ForeignData();
    Over(8, vxDragEnter);
    EXPECT_EQ(Drop(8), vxDropEffectCopy);
    Over(1008, vxDragEnter, vxShiftMask);
    TakeLines();
    EXPECT_EQ(Drop(1008, vxShiftMask), vxDropEffectMove);
    EXPECT_THAT(TakeLines(), Contains("ModulesFromConfigText alone")) << "no exchange format offered";
    EXPECT_EQ(station->Content(), "0/2=A 0/4=X 1/4=X");
}

TEST_F(ConfigDragDrop, ARefusedDropPutsTheFocusBack)
{
    station->Put(0, 4, "B");
    for (const std::int32_t lPosition : {8, 0, -1}) {
        StartDrag();
        Over(lPosition, vxDragEnter);
        EXPECT_EQ(Drop(lPosition), vxDropEffectNone);
        EXPECT_EQ(Marks(), "0/2 | 4 | 4");
        EXPECT_EQ(dragDrop->State(), vxDragDropStateInactive);
        Complete(vxDropEffectNone);
    }
    EXPECT_EQ(station->Content(), "0/2=A 0/4=B");
}

TEST_F(ConfigDragDrop, AMoveToElsewhereDeletesTheSource)
{
    StartDrag();
    Over(8, vxDragEnter);
    Over(8, vxDragLeave);
    Complete(vxDropEffectCopy);
    EXPECT_EQ(station->Content(), "0/2=A");
    Complete(vxDropEffectMove);
    EXPECT_EQ(station->Content(), "0/2=A") << "the drag was over";
    StartDrag();
    Complete(vxDropEffectMove);
    EXPECT_THAT(TakeLines(), ElementsAre("IsDrawable False", "DoWaitCursor 1", "DeleteModules [0/2]", "DoWaitCursor -1",
                                         "IsDrawable True"));
}

TEST_F(ConfigDragDrop, HostileTextIsReportedAndRefused)
{
    data = ForeignData("no configuration text\n");
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectNone);
    EXPECT_EQ(Drop(8), vxDropEffectNone);
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules",
                                           "zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules"));
}

TEST_F(ConfigDragDrop, SubscribersAreToldAsOftenAsTheySubscribedUntilTheyEnd)
{
    dragDrop->AddSubscriber(table);
    overview.reset();
    StartDrag();
    Over(8, vxDragEnter);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText alone", "table.StateChange from 0",
                                         "table.StateChange from 0", "CanBePlaced 8 [A] move from [0/2]"));
}

TEST_F(ConfigDragDrop, TheInertOnesKeepNothingAndTakeNothing)
{
    const VxHWDiagCtrlDD diag;
    const VxHWCompCtrlDD compare;
    VxHWConfigROCtrlDD inert;
    EXPECT_THAT(TakeLines(),
                ElementsAre("Register VxHWDiagCtrlDD", "Register VxHWCompCtrlDD", "Register VxHWConfigROCtrlDD"));
    inert.VxHWStation(station);
    inert.VxHWSelectionHandler(handler);
    inert.AddSubscriber(overview);
    Select({{0, 2}});
    handler->FocusPosition(4);
    std::int32_t lEffect = vxDropEffectCopyOrMove;
    inert.OLEStartDrag(data, lEffect);
    inert.OLEDragOver(8, ForeignData(), lEffect, vxButtonLeft, 0, vxDragEnter);
    inert.OLEDragDrop(8, ForeignData(), lEffect, vxButtonLeft, 0);
    inert.OLECompleteDrag(lEffect);
    EXPECT_EQ(lEffect, vxDropEffectCopyOrMove);
    EXPECT_FALSE(inert.IsValidDragPosition(4));
    EXPECT_EQ(inert.VxHWStation(), nullptr);
    EXPECT_THAT(TakeLines(), IsEmpty());
}

} // namespace
} // namespace zqbchwcx::testing
