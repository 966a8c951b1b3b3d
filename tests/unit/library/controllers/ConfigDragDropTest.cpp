#include "controllers/compare/VxHWCompCtrlDD.h"
#include "controllers/config/VxHWConfigCtrlDD.h"
#include "controllers/config/VxHWConfigROCtrlDD.h"
#include "controllers/diag/VxHWDiagCtrlDD.h"
#include "foundation/ConfigTextCodec.h"
#include "foundation/mdl_VarConst.h"
#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {
namespace {

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
    std::shared_ptr<FakeDataObject> ForeignData(std::string_view text)
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
    for (const auto& [lPosition, bValid] : std::vector<std::pair<std::int32_t, bool>>{
             {4, true}, {5, true}, {1, true}, {2, true}, {6, false}, {7, false}, {0, true}, {-1, false}})
        EXPECT_EQ(dragDrop->IsValidDragPosition(lPosition), bValid) << lPosition;
    handler->FocusPosition(2);
    EXPECT_FALSE(dragDrop->IsValidDragPosition(4)) << "the focused place is empty";
}

TEST_F(ConfigDragDrop, TheSourceOffersTextAtOnceAndItsOwnFormatOnDemand)
{
    StartDrag();
    EXPECT_EQ(data->formats.at(TextFormat()), G_EncodeConfigText("A;Name A;0;0\n"));
    ASSERT_TRUE(data->formats.contains(FakeExchangeData::Format));
    EXPECT_THAT(data->formats.at(FakeExchangeData::Format), IsEmpty()) << "announced only";
    dragDrop->OLESetData(data, 99);
    EXPECT_THAT(TakeLines(), IsEmpty());
    dragDrop->OLESetData(data, FakeExchangeData::Format);
    EXPECT_THAT(TakeLines(), ElementsAre("WriteModulesToExchange [A]"));
    EXPECT_EQ(data->formats.at(FakeExchangeData::Format).size(), std::string("A;Name A;0;0\n").size());
}

TEST_F(ConfigDragDrop, TheStateFollowsTheDragIntoOutOfAndBetweenViews)
{
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
    services.toolkit->clock.Advance(9);
    Over(8, vxDragEnter);
    services.toolkit->clock.Advance(100);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateActive) << "the next view was entered in time";
    TakeLines();

    Over(8, vxDragLeave);
    services.toolkit->clock.Advance(9);
    EXPECT_THAT(TakeLines(), IsEmpty());
    services.toolkit->clock.Advance(1);
    EXPECT_THAT(TakeLines(), ElementsAre("overview.StateChange from 1", "table.StateChange from 1"));
    EXPECT_EQ(dragDrop->State(), vxDragDropStateInactive);
    EXPECT_EQ(services.toolkit->clock.EnabledCount(), 0);
}

TEST_F(ConfigDragDrop, TheStationIsAskedOncePerPositionAndDrag)
{
    StartDrag();
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectMove);
    EXPECT_EQ(Over(8), vxDropEffectMove);
    EXPECT_EQ(Over(8, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(9, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(8), vxDropEffectMove);
    EXPECT_EQ(Over(9), vxDropEffectMove);
    EXPECT_THAT(TakeLines(),
                ElementsAre("ModulesFromConfigText alone", "overview.StateChange from 0", "table.StateChange from 0",
                            "CanBePlaced 8 [A] move from [0/2]", "CanBePlaced 9 [A] copy nothing"));
    Over(9, vxDragLeave);
    Over(8, vxDragEnter);
    EXPECT_THAT(TakeLines(), ::testing::Contains("CanBePlaced 8 [A] move from [0/2]"));
    Over(8, vxDragLeave);
    EXPECT_EQ(Over(-1, vxDragEnter), vxDropEffectNone) << "the last decision belongs to the place";
}

TEST_F(ConfigDragDrop, EffectsDependOnTheSourceAndOnWhatItAllows)
{
    data = ForeignData("X;Foreign;0;0\n");
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectCopy);
    EXPECT_EQ(Over(8, vxDragOver, vxShiftMask), vxDropEffectMove);
    EXPECT_EQ(Over(8, vxDragOver, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(Over(8, vxDragOver, 0, vxDropEffectMove), vxDropEffectMove) << "the only one allowed";
    EXPECT_EQ(Over(4), vxDropEffectNone) << "an occupied place";
    EXPECT_EQ(handler->FocusPosition(), 4);
    EXPECT_EQ(dragDrop->DropPosition(), 4);
    EXPECT_EQ(Over(8, vxDragOver), vxDropEffectCopy);
    for (const std::int32_t lPosition : {-1, 0, 1000}) {
        EXPECT_EQ(Over(lPosition), vxDropEffectNone) << lPosition;
        EXPECT_EQ(dragDrop->DropPosition(), -1);
        EXPECT_EQ(handler->FocusPosition(), 8) << "stays where the last place put it";
    }
    station->Rack(1)->state = vxRackNotPresent;
    EXPECT_EQ(Over(1004), vxDropEffectNone);
}

TEST_F(ConfigDragDrop, DataWithoutModulesIsRefusedEverywhere)
{
    FocusAndAnchor(4, 4);
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectNone);
    EXPECT_EQ(Over(8), vxDropEffectNone);
    EXPECT_EQ(Over(8, vxDragLeave), vxDropEffectNone);
    EXPECT_EQ(Drop(8), vxDropEffectNone);
    EXPECT_EQ(dragDrop->State(), vxDragDropStateInactive);
    EXPECT_EQ(Marks(), " | 4 | 4") << "a drag that never entered takes the focus away from nobody";
    EXPECT_THAT(TakeLines(), ElementsAre("IsDrawable False", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/2=A");
}

TEST_F(ConfigDragDrop, ADropWithinTheModeMovesAndSelects)
{
    StartDrag();
    Over(12, vxDragEnter);
    TakeLines();
    EXPECT_EQ(Drop(12), vxDropEffectMove);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText with exchange", "IsDrawable False", "DoWaitCursor 1",
                                         "MoveModules 12 [A] from [0/2]", "DoWaitCursor -1",
                                         "overview.StateChange from 1", "table.StateChange from 1", "IsDrawable True"));
    EXPECT_EQ(station->Content(), "0/6=A");
    EXPECT_EQ(Marks(), "0/6 | 12 | 12");
    EXPECT_EQ(dragDrop->DropPosition(), -1);
    Complete(vxDropEffectMove);
    EXPECT_EQ(station->Content(), "0/6=A") << "the move is complete already";
}

TEST_F(ConfigDragDrop, ADropWithCtrlCopies)
{
    StartDrag();
    Over(12, vxDragEnter, vxCtrlMask);
    EXPECT_EQ(Drop(12, vxCtrlMask), vxDropEffectCopy);
    EXPECT_EQ(station->Content(), "0/2=A 0/6=A");
    EXPECT_EQ(Marks(), "0/6 | 12 | 12");
}

TEST_F(ConfigDragDrop, ADropFromElsewhereCopiesAndTellsTheSourceWhetherToDelete)
{
    for (const auto& [nShift, lEffect] : std::vector<std::pair<std::int16_t, std::int32_t>>{
             {std::int16_t{0}, vxDropEffectCopy}, {std::int16_t{vxShiftMask}, vxDropEffectMove}}) {
        data = ForeignData("X;Foreign;0;0\n");
        const std::int32_t lPosition = lEffect == vxDropEffectCopy ? 8 : 1008;
        Over(lPosition, vxDragEnter, nShift);
        TakeLines();
        EXPECT_EQ(Drop(lPosition, nShift), lEffect);
        EXPECT_THAT(TakeLines(), ::testing::Contains("ModulesFromConfigText alone")) << "no exchange format offered";
    }
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
    EXPECT_EQ(station->Content(), "");
}

TEST_F(ConfigDragDrop, SubscribersAreToldAsOftenAsTheySubscribedUntilTheyEnd)
{
    dragDrop->AddSubscriber(table);
    overview.reset();
    StartDrag();
    Over(8, vxDragEnter);
    EXPECT_THAT(TakeLines(), ElementsAre("ModulesFromConfigText alone", "table.StateChange from 0",
                                         "table.StateChange from 0", "CanBePlaced 8 [A] move from [0/2]"));
    dragDrop->RemoveAllSubscribers();
    dragDrop->RemoveAllSubscribers();
    Drop(8);
    EXPECT_THAT(TakeLines(), ::testing::Not(::testing::Contains("table.StateChange from 1")));
}

TEST_F(ConfigDragDrop, HostileTextIsReportedAndRefused)
{
    data = ForeignData("no configuration text\n");
    EXPECT_EQ(Over(8, vxDragEnter), vxDropEffectNone);
    EXPECT_EQ(Drop(8), vxDropEffectNone);
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules",
                                           "zqbchwcx.VxHWConfigCtrlDD.P_FillDragModules"));
    EXPECT_EQ(station->Content(), "0/2=A");
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
    TakeLines();
    std::int32_t lEffect = vxDropEffectCopyOrMove;
    inert.OLEStartDrag(data, lEffect);
    inert.OLEDragOver(8, ForeignData("X;Foreign;0;0\n"), lEffect, vxButtonLeft, 0, vxDragEnter);
    inert.OLEDragDrop(8, ForeignData("X;Foreign;0;0\n"), lEffect, vxButtonLeft, 0);
    inert.OLECompleteDrag(lEffect);
    EXPECT_EQ(lEffect, vxDropEffectCopyOrMove);
    EXPECT_EQ(inert.VxHWStation(), nullptr);
    EXPECT_EQ(inert.VxHWSelectionHandler(), nullptr);
    EXPECT_EQ(inert.DropPosition(), 0);
    EXPECT_FALSE(inert.IsValidDragPosition(4));
    EXPECT_THAT(TakeLines(), IsEmpty());
}

} // namespace
} // namespace zqbchwcx::testing
