#include "tests/support/StationStage.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlDD.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigDragDrop : public StationFixture {
protected:
    ConfigDragDrop()
    {
        station->Put(0, 4, "DO");
        station->Put(1, 3, "IM");
        dragDrop->AddSubscriber(overview);
        dragDrop->AddSubscriber(table);
        data->onWanted = [this](std::int16_t nFormat) { dragDrop->OLESetData(data, nFormat); };
    }

    std::int16_t TextFormat() { return services.toolkit->desktop.Format(G_ConfigTextFormatName); }
    std::shared_ptr<FakeDataObject> ForeignData(const std::string& text = reference::WriteConfigText(Block("DI")))
    {
        auto oData = std::make_shared<FakeDataObject>(services.log);
        oData->formats[TextFormat()] = G_EncodeConfigText(text);
        return oData;
    }
    /// Starts a drag of place 4, which holds a module.
    void StartDrag()
    {
        Select({{0, 4}});
        FocusAndAnchor(8, 8);
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
    Select({{0, 1}, {0, 4}});
    handler->FocusPosition(8);
    for (const std::int32_t lPosition : {0, 1, 2, 8, 9}) EXPECT_TRUE(dragDrop->IsValidDragPosition(lPosition));
    for (const std::int32_t lPosition : {-1, 10, 11}) EXPECT_FALSE(dragDrop->IsValidDragPosition(lPosition));
    handler->FocusPosition(2);
    EXPECT_FALSE(dragDrop->IsValidDragPosition(8)) << "the focused place is empty";
}

TEST_F(ConfigDragDrop, TheSourceOffersTextAtOnceAndItsOwnFormatOnDemand)
{
    StartDrag();
    const ByteArray text = G_EncodeConfigText(reference::WriteConfigText(Block("DO")));
    EXPECT_EQ(data->formats.at(TextFormat()), text);
    EXPECT_THAT(data->formats.at(WatchedExchange::Format), IsEmpty()) << "announced only";
    dragDrop->OLESetData(data, 99);
    EXPECT_THAT(TakeLines(), IsEmpty());
    dragDrop->OLESetData(data, WatchedExchange::Format);
    EXPECT_THAT(TakeLines(), ElementsAre("WriteModulesToExchange [DO]"));
    EXPECT_EQ(data->formats.at(WatchedExchange::Format), text);
}

TEST_F(ConfigDragDrop, TheStateFollowsTheDragIntoOutOfAndBetweenViews)
{
    auto& clock = services.toolkit->clock;
    StartDrag();
    Over(12, vxDragEnter);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateActive);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText alone", "overview.StateChange from 0",
                                         "table.StateChange from 0", "CanBePlaced 12 [DO] move from [0/4]"));
    EXPECT_EQ(handler->FocusPosition(), 12);
    EXPECT_EQ(dragDrop->DropPosition(), 12);
    EXPECT_TRUE(dragDrop->IsDropPlace(station->Place(0, 5)));
    EXPECT_FALSE(dragDrop->IsDropPlace(station->Place(0, 4)));

    EXPECT_EQ(Over(12, vxDragLeave), vxDropEffectCopyOrMove) << "left as passed";
    EXPECT_EQ(handler->FocusPosition(), 8);
    EXPECT_EQ(dragDrop->DropPosition(), -1);
    EXPECT_TRUE(dragDrop->PossibleDropPlaces().IsEmpty());
    EXPECT_FALSE(dragDrop->IsDropPlace(station->Place(0, 5)));
    clock.Advance(9);
    Over(12, vxDragEnter);
    clock.Advance(100);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateActive) << "the next view was entered in time";
    TakeLines();

    Over(12, vxDragLeave);
    clock.Advance(9);
    EXPECT_THAT(TakeLines(), IsEmpty());
    clock.Advance(1);
    EXPECT_THAT(TakeLines(), ElementsAre("overview.StateChange from 1", "table.StateChange from 1"));
    EXPECT_FALSE(clock.IsRunning());
}

TEST_F(ConfigDragDrop, TheStationIsAskedOncePerPositionAndDrag)
{
    StartDrag();
    EXPECT_EQ(Over(12, vxDragEnter), vxDropEffectMove);
    EXPECT_EQ(Over(12), vxDropEffectMove);
    EXPECT_EQ(Over(13, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(12), vxDropEffectMove);
    EXPECT_EQ(Over(13), vxDropEffectMove);
    EXPECT_THAT(TakeLines(),
                ElementsAre("ModulesFromConfigText alone", "overview.StateChange from 0", "table.StateChange from 0",
                            "CanBePlaced 12 [DO] move from [0/4]", "CanBePlaced 13 [DO] copy"));
    Over(13, vxDragLeave);
    Over(12, vxDragEnter);
    EXPECT_THAT(TakeLines(), Contains("CanBePlaced 12 [DO] move from [0/4]"));
    Over(12, vxDragLeave);
    EXPECT_EQ(Over(-1, vxDragEnter), vxDropEffectNone) << "the last decision belongs to the place";
}

TEST_F(ConfigDragDrop, EffectsDependOnTheSourceAndOnWhatItAllows)
{
    data = ForeignData();
    EXPECT_EQ(Over(12, vxDragEnter), vxDropEffectCopy);
    EXPECT_EQ(Over(12, vxDragOver, vxShiftMask), vxDropEffectMove);
    EXPECT_EQ(Over(12, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(12, vxDragOver, 0, vxDropEffectMove), vxDropEffectMove) << "the only one allowed";
    EXPECT_EQ(Over(8), vxDropEffectNone) << "an occupied place";
    EXPECT_EQ(handler->FocusPosition(), 8);
    EXPECT_EQ(dragDrop->DropPosition(), 8);
    EXPECT_EQ(Over(12), vxDropEffectCopy);
    station->State(1, vxRackNotPresent);
    for (const std::int32_t lPosition : {-1, 0, 1000, 1004}) {
        EXPECT_EQ(Over(lPosition), vxDropEffectNone) << lPosition;
        EXPECT_EQ(dragDrop->DropPosition(), -1);
        EXPECT_EQ(handler->FocusPosition(), 12) << "stays where the last place put it";
    }
}

TEST_F(ConfigDragDrop, DataWithoutModulesIsRefusedEverywhere)
{
    FocusAndAnchor(4, 4);
    for (const std::int16_t nState : {vxDragEnter, vxDragOver, vxDragLeave})
        EXPECT_EQ(Over(12, nState), vxDropEffectNone);
    EXPECT_EQ(Drop(12), vxDropEffectNone);
    EXPECT_EQ(Marks(), " | 4 | 4") << "a drag that never entered takes the focus away from nobody";
    EXPECT_THAT(TakeLines(), ElementsAre("IsDrawable False", "IsDrawable True"));
}

TEST_F(ConfigDragDrop, ADropWithinTheModeMovesAndSelectsOrCopiesWithCtrl)
{
    StartDrag();
    Over(16, vxDragEnter);
    TakeLines();
    EXPECT_EQ(Drop(16), vxDropEffectMove);
    EXPECT_THAT(TakeLines(),
                ElementsAre("WriteModulesToExchange [DO]", "ModulesFromConfigText with exchange", "IsDrawable False",
                            "DoWaitCursor 1", "MoveModules 16 [DO] from [0/4]", "DoWaitCursor -1",
                            "overview.StateChange from 1", "table.StateChange from 1", "IsDrawable True"));
    EXPECT_EQ(Marks(), "0/8 | 16 | 16");
    EXPECT_EQ(dragDrop->DropPosition(), -1);
    Complete(vxDropEffectMove);
    EXPECT_EQ(station->Content(), "0/8=DO 1/3=IM") << "the move is complete already";

    station->Put(0, 4, "DI");
    StartDrag();
    Over(1012, vxDragEnter, vxCtrlMask);
    EXPECT_EQ(Drop(1012, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(station->Content(), "0/4=DI 0/8=DO 1/3=IM 1/6=DI");
    EXPECT_EQ(Marks(), "1/6 | 1012 | 1012");
}

TEST_F(ConfigDragDrop, ADropFromElsewhereCopiesAndTellsTheSourceWhetherToDelete)
{
    data = ForeignData();
    Over(12, vxDragEnter);
    EXPECT_EQ(Drop(12), vxDropEffectCopy);
    Over(1012, vxDragEnter, vxShiftMask);
    TakeLines();
    EXPECT_EQ(Drop(1012, vxShiftMask), vxDropEffectMove);
    EXPECT_THAT(TakeLines(), Contains("ModulesFromConfigText alone")) << "no exchange format offered";
    EXPECT_EQ(station->Content(), "0/4=DO 0/6=DI 1/3=IM 1/6=DI");
}

TEST_F(ConfigDragDrop, ARefusedDropPutsTheFocusBack)
{
    station->Put(0, 6, "DI");
    for (const std::int32_t lPosition : {12, 0, -1}) {
        StartDrag();
        Over(lPosition, vxDragEnter);
        EXPECT_EQ(Drop(lPosition), vxDropEffectNone);
        EXPECT_EQ(Marks(), "0/4 | 8 | 8");
        EXPECT_EQ(dragDrop->State(), vxDragDropStateInactive);
        Complete(vxDropEffectNone);
    }
    EXPECT_EQ(station->Content(), "0/4=DO 0/6=DI 1/3=IM");
}

TEST_F(ConfigDragDrop, AMoveToElsewhereDeletesTheSource)
{
    StartDrag();
    Over(12, vxDragEnter);
    Over(12, vxDragLeave);
    Complete(vxDropEffectCopy);
    EXPECT_EQ(station->Content(), "0/4=DO 1/3=IM");
    Complete(vxDropEffectMove);
    EXPECT_EQ(station->Content(), "0/4=DO 1/3=IM") << "the drag was over";
    StartDrag();
    Complete(vxDropEffectMove);
    EXPECT_THAT(TakeLines(), ElementsAre("IsDrawable False", "DoWaitCursor 1", "DeleteModules [0/4]", "DoWaitCursor -1",
                                         "IsDrawable True"));
}

TEST_F(ConfigDragDrop, HostileTextIsReportedAndRefused)
{
    data = ForeignData("no configuration text\n");
    EXPECT_EQ(Over(12, vxDragEnter), vxDropEffectNone);
    EXPECT_EQ(Drop(12), vxDropEffectNone);
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules",
                                           "zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules"));
}

TEST_F(ConfigDragDrop, SubscribersAreToldAsOftenAsTheySubscribedUntilTheyEnd)
{
    dragDrop->AddSubscriber(table);
    overview.reset();
    StartDrag();
    Over(12, vxDragEnter);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText alone", "table.StateChange from 0",
                                         "table.StateChange from 0", "CanBePlaced 12 [DO] move from [0/4]"));
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
    Select({{0, 4}});
    handler->FocusPosition(8);
    std::int32_t lEffect = vxDropEffectCopyOrMove;
    inert.OLEStartDrag(data, lEffect);
    inert.OLEDragOver(8, ForeignData(), lEffect, vxButtonLeft, 0, vxDragEnter);
    inert.OLEDragDrop(8, ForeignData(), lEffect, vxButtonLeft, 0);
    inert.OLECompleteDrag(lEffect);
    EXPECT_EQ(lEffect, vxDropEffectCopyOrMove);
    EXPECT_FALSE(inert.IsValidDragPosition(8));
    EXPECT_EQ(inert.VxHWStation(), nullptr);
    EXPECT_THAT(TakeLines(), IsEmpty());
}

} // namespace
} // namespace zqbchwcx::testing
