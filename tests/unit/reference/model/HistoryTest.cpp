#include "zqbchwcx/reference/history/History.h"

#include "tests/support/model/SampleModel.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

class HistoryOfStation : public ::testing::Test {
protected:
    HistoryOfStation()
    {
        PlainStation plain(EmptyStation(0, 1));
        plain.Place(G_PlacePosition(0, 4), Block("DI DO"));
        station = std::make_shared<Station>(SampleContext(), plain.Data());
        history = std::make_unique<History>(
            station, HistoryServices{.editName = [](EditKind) { return "Edit"; },
                                     .captureView = [this] { return view; },
                                     .restoreView = [this](const ViewState& state) { view = state; }});
    }

    void Comment(std::int32_t place, const std::string& comment)
    {
        station->SetModuleAttribute(station->PlaceAt({0, place}), "COMMENT", comment);
    }
    /// Of both modules.
    std::string Comments() const
    {
        const PlainStation plain(station->Data());
        return plain.At({0, 4}).comment + plain.At({0, 5}).comment;
    }

    StationPtr station;
    ViewState view;
    std::unique_ptr<History> history;
};

TEST_F(HistoryOfStation, ActionsAndBatchesAreOneStepEach)
{
    Comment(4, "a");
    EXPECT_EQ(history->UndoName(), "Edit");

    history->BeginUserAction("Outer");
    history->BeginUserAction("Inner");
    Comment(4, "b");
    history->EndUserAction();
    station->IsDrawable(false);
    Comment(5, "c");
    station->IsDrawable(true);
    EXPECT_FALSE(history->Undo()) << "the action is still open";
    history->EndUserAction();
    EXPECT_EQ(history->UndoName(), "Outer");

    station->IsDrawable(false);
    Comment(4, "d");
    Comment(5, "d");
    station->IsDrawable(true);
    EXPECT_EQ(history->UndoName(), "Edit");

    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(Comments(), "bc");
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(Comments(), "a");
    EXPECT_EQ(history->RedoName(), "Outer");
    EXPECT_TRUE(history->Undo());
    EXPECT_FALSE(history->Undo());
}

TEST_F(HistoryOfStation, WhatChangesNothingIsNoStep)
{
    history->BeginUserAction("Copy");
    history->EndUserAction();
    history->EndUserAction();
    Comment(4, "");
    history->BeginUserAction("There and back");
    Comment(4, "x");
    Comment(4, "");
    history->EndUserAction();
    EXPECT_FALSE(history->CanUndo());
    EXPECT_FALSE(history->IsModified());
}

TEST_F(HistoryOfStation, ViewComesBack)
{
    const ViewState before{{G_PlacePosition(0, 4)}, G_PlacePosition(0, 4), 8};
    const ViewState after{{}, G_GapPosition(0, 3), -1};
    view = before;
    history->BeginUserAction("Comment");
    Comment(4, "a");
    view = after;
    history->EndUserAction();
    view = {};
    history->Undo();
    EXPECT_EQ(view, before);
    history->Redo();
    EXPECT_EQ(view, after);
}

TEST_F(HistoryOfStation, ChangeAfterUndoDropsTheRedoBranch)
{
    Comment(4, "a");
    Comment(4, "b");
    history->Undo();
    Comment(5, "c");
    EXPECT_FALSE(history->CanRedo());
    history->Undo();
    EXPECT_EQ(Comments(), "a");
}

TEST_F(HistoryOfStation, ModifiedMeansDifferentFromWhatWasSaved)
{
    Comment(4, "a");
    history->MarkSaved();
    EXPECT_FALSE(history->IsModified());
    Comment(4, "b");
    EXPECT_TRUE(history->IsModified());
    history->Undo();
    EXPECT_FALSE(history->IsModified());
    history->Undo();
    EXPECT_TRUE(history->IsModified());
    Comment(4, "a");
    EXPECT_FALSE(history->IsModified()) << "the same content again, by another way";
    history->ResetModified();
    EXPECT_TRUE(history->IsModified());
    EXPECT_FALSE(history->CanUndo());
}

TEST_F(HistoryOfStation, AStationThatWentOnlineIsNotChangedByUndo)
{
    Comment(4, "a");
    StationData online = station->Data();
    online.displayMode = 1;
    station->Restore(online);
    EXPECT_FALSE(history->CanUndo());
    EXPECT_FALSE(history->Undo());
    EXPECT_EQ(Comments(), "a");
}

} // namespace
} // namespace zqbchwcx::testing
