#include "reference/history/History.h"

#include "foundation/model/VxHWRackPlace.h"
#include "reference/model/contract/RackPlaces.h"
#include "tests/unit/reference/model/SampleModel.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HistoryOfStation : public ::testing::Test {
protected:
    HistoryOfStation()
    {
        PlainStation plain(EmptyStation(0, 1));
        plain.Place(G_PlacePosition(0, 4), Block({"DI", "DO"}));
        station = std::make_shared<Station>(SampleContext(), plain.Data());
        HistoryServices services;
        services.editName = [](EditKind kind) { return kind == EditKind::Attribute ? "Edit" : "Other"; };
        services.captureView = [this] { return view; };
        services.restoreView = [this](const ViewState& state) { view = state; };
        history = std::make_unique<History>(station, services);
        events = station->RackPlaceChange.Connect([this](const auto& place) { changed.push_back(place->Key()); });
    }

    void Comment(std::int32_t place, const std::string& comment)
    {
        station->SetModuleAttribute(station->PlaceAt({0, place}), "COMMENT", comment);
    }
    std::string CommentOf(std::int32_t place) const { return PlainStation(station->Data()).At({0, place}).comment; }
    void Delete(std::int32_t place)
    {
        const auto places = std::make_shared<RackPlaces>();
        places->Add(station->PlaceAt({0, place}));
        station->DeleteModules(places);
    }

    StationPtr station;
    ViewState view;
    std::unique_ptr<History> history;
    std::vector<std::string> changed;
    EventConnection events;
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
    EXPECT_FALSE(history->CanUndo()) << "the action is still open";
    EXPECT_FALSE(history->Undo());
    history->EndUserAction();
    EXPECT_EQ(history->UndoName(), "Outer");

    station->IsDrawable(false);
    Comment(4, "d");
    Comment(5, "d");
    station->IsDrawable(true);
    EXPECT_EQ(history->UndoName(), "Edit");

    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(CommentOf(4) + CommentOf(5), "bc");
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(CommentOf(4) + CommentOf(5), "a");
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
    Delete(9);
    history->BeginUserAction("There and back");
    Comment(4, "x");
    Comment(4, "");
    history->EndUserAction();
    EXPECT_FALSE(history->CanUndo());
    EXPECT_FALSE(history->IsModified());
}

TEST_F(HistoryOfStation, ViewComesBackAndOnlyDifferingPlacesAreTold)
{
    view = {{G_PlacePosition(0, 4)}, G_PlacePosition(0, 4), 8};
    const ViewState before = view;
    history->BeginUserAction("Delete");
    Delete(4);
    view = {{}, G_GapPosition(0, 3), -1};
    const ViewState after = view;
    history->EndUserAction();
    view = {};
    changed.clear();
    history->Undo();
    EXPECT_EQ(view, before);
    EXPECT_THAT(changed, ElementsAre("0/4"));
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
    EXPECT_EQ(CommentOf(4) + CommentOf(5), "a");
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

} // namespace
} // namespace zqbchwcx::testing
