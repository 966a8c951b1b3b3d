#pragma once

#include "managers/VxHWConfigManager.h"
#include "reference/history/History.h"
#include "selection/VxHWSelectionHandler.h"
#include "tests/property/EditorHost.h"
#include "tests/property/FaultyStation.h"
#include "tests/support/services/TestServices.h"
#include "views/config/VxHWRackOverview.h"

#include <optional>

namespace zqbchwcx::testing {

/// A whole editor without a screen: the reference station with its history, and two overviews of it that
/// `VxHWConfigManager` has connected. The test is the user.
class Editor {
public:
    explicit Editor(reference::StationData data);
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    RecordingPictureBox& Picture() const { return *moPicture; }
    PictureBoxEvents& Mouse() const { return moPicture->User(); }
    UserControlEvents& Keys() const { return moSite->User(); }
    RecordingPopupMenu& Menu() const { return *moMenu; }
    VxHWConfigManager& Manager() const { return *moManager; }
    /// The data object of a drag that begins in this editor.
    std::shared_ptr<FakeDataObject> NewDrag() const { return std::make_shared<DragData>(log, Mouse()); }

    /// The file that saving would write.
    std::string Text() const;
    /// Everything that is wrong between two events: rules that are broken, errors that were reported, brackets that
    /// are open. Empty when all is well.
    std::string WhatIsWrong();
    /// Where the picture differs from that of an overview that is made just now; empty when it does not.
    std::string DifferenceFromAFreshPicture() const;
    /// Forgets what the doubles have recorded.
    void ForgetLines();

    TestServices services;
    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    std::shared_ptr<EditorHost> host;
    /// What the parameter dialog answers.
    std::function<std::optional<reference::ModuleData>(const reference::ModuleData&)> parameters;
    std::shared_ptr<FaultyStation> station;
    std::shared_ptr<reference::History> history;
    std::shared_ptr<VxHWRackOverview> view;
    /// Operations that the model refused, with its reason.
    std::int32_t refusals = 0;

private:
    std::shared_ptr<VxHWRackOverview> MakeView(RecordingControl& site) const;

    std::unique_ptr<RecordingControl> moSite;
    std::unique_ptr<RecordingControl> moOtherSite;
    std::shared_ptr<VxHWRackOverview> moOtherView;
    std::unique_ptr<VxHWConfigManager> moManager;
    EventConnection mRefused;
    std::vector<RecordingPictureBox*> mcolPictures; ///< of both views
    RecordingToolkit::ShapesByName mcolShapes;
    RecordingPictureBox* moPicture = nullptr;
    RecordingPopupMenu* moMenu = nullptr;
};

} // namespace zqbchwcx::testing
