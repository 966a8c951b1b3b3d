#include "tests/support/StationStage.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SelectionHandler : public StationFixture {
protected:
    SelectionHandler()
    {
        mSelChange = handler->SelChange.Connect([this] { mcolEvents.push_back("SelChange"); });
        mFocusChange = handler->FocusChange.Connect(
            [this](std::int32_t lPrevious) { mcolEvents.push_back("FocusChange " + std::to_string(lPrevious)); });
    }
    Lines TakeEvents() { return std::exchange(mcolEvents, {}); }

private:
    Lines mcolEvents;
    EventConnection mSelChange;
    EventConnection mFocusChange;
};

TEST_F(SelectionHandler, FocusChangeTellsThePreviousFocusOnce)
{
    EXPECT_EQ(handler->FocusPosition(), -1);
    EXPECT_EQ(handler->ShiftSelPosition(), -1);
    handler->FocusPosition(4);
    handler->FocusPosition(4);
    handler->ShiftSelPosition(9);
    handler->FocusPosition(1003);
    EXPECT_THAT(TakeEvents(), ElementsAre("FocusChange -1", "FocusChange 4"));
}

TEST_F(SelectionHandler, SelChangeCompleteFillsTheArrayThatIsGivenAsACopy)
{
    Select({{0, 1}, {1, 11}});
    Array2D<bool> array = handler->SelPlacesArray();
    EXPECT_EQ((std::vector{array.RowFirst(), array.RowLast(), array.ColumnFirst(), array.ColumnLast()}),
              (std::vector{0, 1, 1, 11}));
    EXPECT_TRUE(array.Get(0, 1) && array.Get(1, 11) && !array.Get(1, 1));
    array.Set(0, 2, true);
    handler->SelPlaces()->Add(station->Place(0, 3));
    EXPECT_FALSE(handler->SelPlacesArray().Get(0, 2)) << "a copy";
    EXPECT_FALSE(handler->SelPlacesArray().Get(0, 3)) << "not completed yet";
    Select({{0, 3}});
    EXPECT_TRUE(handler->SelPlacesArray().Get(0, 3) && !handler->SelPlacesArray().Get(0, 1));
    handler->VxHWStation(nullptr);
    EXPECT_TRUE(handler->SelPlacesArray().IsEmpty());
}

TEST_F(SelectionHandler, SelChangeCompleteRaisesTheFocusAgainWhenNothingIsSelectedAndTheFocusIsOnNoPlace)
{
    handler->SelChangeComplete();
    EXPECT_THAT(TakeEvents(), ElementsAre("SelChange", "FocusChange -1"));
    handler->FocusPosition(5);
    TakeEvents();
    handler->SelChangeComplete();
    EXPECT_THAT(TakeEvents(), ElementsAre("SelChange", "FocusChange -1"));
    EXPECT_EQ(handler->FocusPosition(), 5);
    Select({{0, 1}});
    EXPECT_THAT(TakeEvents(), ElementsAre("SelChange")) << "something is selected";
    handler->FocusPosition(4);
    TakeEvents();
    Select({});
    EXPECT_THAT(TakeEvents(), ElementsAre("SelChange")) << "the focus is on a place";
}

TEST_F(SelectionHandler, SelectRangeAddsPlacesInWalkingOrderWithinOneRack)
{
    handler->SelectRange(1008, 1002);
    EXPECT_EQ(Selection(), "1/4 1/3 1/2 1/1");
    Select({{0, 3}});
    handler->SelectRange(3, 9);
    EXPECT_EQ(Selection(), "0/3 0/2 0/4") << "gaps are skipped, selected places stay where they are";
    handler->SelectRange(4, 1004);
    EXPECT_EQ(Selection(), "0/3 0/2 0/4");
    Select({});
    handler->SelectRange(0, 4);
    EXPECT_EQ(Selection(), "0/1 0/2") << "the rack itself is no place";
}

TEST_F(SelectionHandler, UnusablePlacesAreSkippedInDistributedStationsOnly)
{
    station->Usability(0, 2, vxPlaceNotUsable);
    station->Usability(0, 3, vxPlaceInactive);
    for (const std::int32_t lKind : {vxStationKindCentral, vxStationKindDistributed1, vxStationKindDistributed2}) {
        station->Change([&](auto& plain) { plain.kind = lKind; });
        const bool bCentral = lKind == vxStationKindCentral;
        Select({});
        handler->SelectRange(2, 6);
        EXPECT_EQ(Selection(), bCentral ? "0/1 0/2 0/3" : "0/1 0/3");
        handler->SelectRack(station->Rack(0));
        EXPECT_EQ(handler->SelPlaces()->Count(), bCentral ? 11 : 10);
    }
}

TEST_F(SelectionHandler, TellsWhetherModulesAreSelectedOrFocused)
{
    station->Put(0, 2, "DI");
    station->Put(1, 3, "CNT3");
    const auto wide = station->Module(1, 3)->ParentModule();
    Select({{0, 1}});
    EXPECT_FALSE(handler->IsModuleInSelection());
    Select({{0, 1}, {0, 2}});
    EXPECT_TRUE(handler->IsModuleInSelection());
    EXPECT_FALSE(handler->IsParentModuleSelected(wide));
    Select({{1, 5}});
    EXPECT_TRUE(handler->IsParentModuleSelected(wide));
    for (const std::int32_t lFocus : {4, 2, 5, 1000, -1, 1006}) {
        handler->FocusPosition(lFocus);
        EXPECT_EQ(handler->IsModuleInFocus(), lFocus == 4 || lFocus == 1006) << lFocus;
    }
}

TEST_F(SelectionHandler, SelectedModulesAreWidenedToWholeModules)
{
    station->Put(0, 2, "DI");
    station->Put(0, 4, "CNT3");
    EXPECT_EQ(NamesOf(services.log, handler->GetSelectedModules()), "");
    Select({{0, 5}, {0, 1}, {0, 2}, {0, 6}});
    std::string members;
    for (const auto& oModule : handler->GetSelectedModules())
        members += oModule->OrderNumber() + std::to_string(oModule->IndexInParent()) + " ";
    EXPECT_EQ(members, "CNT32 0 DI0 CNT33 CNT31 ");
}

TEST_F(SelectionHandler, PutsModulesOnTheClipboardButNoEmptySelection)
{
    station->Put(0, 2, "DI");
    Select({{0, 1}});
    EXPECT_TRUE(handler->SetSelectionToClipboard());
    EXPECT_THAT(TakeLines(), IsEmpty());
    Select({{0, 1}, {0, 2}});
    EXPECT_TRUE(handler->SetSelectionToClipboard());
    EXPECT_THAT(TakeLines(), ElementsAre("WriteModulesToExchange [- DI]", "PutOnClipboard"));
    // Whoever cuts deletes what the clipboard took: whatever fails, it took nothing.
    auto& faults = services.log->faults;
    bool bFailed = true;
    for (std::int32_t lCall = 1; bFailed; ++lCall) {
        faults.ThrowAt(lCall);
        const bool bTaken = handler->SetSelectionToClipboard();
        bFailed = !faults.Thrown().empty();
        EXPECT_EQ(bTaken, !bFailed) << lCall << ": " << faults.Thrown();
        faults.Restart();
    }
    TakeReports();
}

TEST_F(SelectionHandler, ReportsUseWithoutAStationAndGoesOn)
{
    handler->VxHWStation(nullptr);
    handler->SelChangeComplete();
    handler->SelectRack(station->Rack(0));
    handler->SelectRange(2, 4);
    EXPECT_THAT(TakeEvents(), IsEmpty());
    EXPECT_THAT(TakeReports(),
                ElementsAre("zqbchwcx.VxHWSelectionHandler.SelChangeComplete",
                            "zqbchwcx.VxHWSelectionHandler.SelectRack", "zqbchwcx.VxHWSelectionHandler.SelectRange"));
}

} // namespace
} // namespace zqbchwcx::testing
