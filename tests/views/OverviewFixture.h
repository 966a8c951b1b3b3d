#pragma once

#include "tests/support/StationStage.h"
#include "tests/support/model/FakeModelServices.h"
#include "tests/views/RecordingController.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

namespace zqbchwcx::testing {

/// An overview with a station of four racks, wired as its manager would, its controllers recorded.
class OverviewFixture : public StationFixture {
protected:
    OverviewFixture() : StationFixture(4)
    {
        for (const auto* name : {"IDB_CRX_RACKNR_ACTIVE", "IDB_CRX_RACKNR_INACTIVE", "IDB_DIAG_CPU_RUN",
                                 "IDB_DIAG_CPU_STOP", "IDB_DIAG_CPU_HOLD", "IDB_DIAG_FAILURE", "IDB_COMP_EQUAL",
                                 "IDB_COMP_POTEQUAL", "IDB_COMP_NOMODULE", "IDB_COMP_MODULEDIFF", "IDB_COMP_PARAMDIFF"})
            services.host->pictures[name] = std::make_shared<FakeImage>(name);
        view = MakeView(site);
    }
    void TearDown() override
    {
        StationFixture::TearDown();
        view.reset();
        EXPECT_FALSE(site.IsConnected());
    }

    std::shared_ptr<VxHWRackOverview> MakeView(RecordingControl& control) const
    {
        auto made = std::make_shared<VxHWRackOverview>(control);
        Connect(*made);
        return made;
    }
    void Connect(VxHWRackOverview& made) const
    {
        made.Style(vxStyleHWConfig);
        made.VxHWStation(station);
        made.VxHWCompareService(compare);
        made.VxHWDiagService(diag);
        made.VxHWSelectionHandler(handler);
        made.VxHWMouseInputController(controller);
        made.VxHWKeyInputController(controller);
        made.VxHWDragDropController(controller);
    }

    RecordingPictureBox& Pic() const { return *toolkit->pictureBoxes.at("pic_Main"); }
    RecordingPictureBox& DragPic() const { return *toolkit->pictureBoxes.at("pic_Drag"); }
    RecordingPopupMenu& Menu() const { return *toolkit->menus.at("pmnu_Main"); }
    PictureBoxEvents& Mouse() const { return Pic().User(); }
    Point CenterOf(std::int32_t lPosition) const
    {
        Point at;
        view->CoordinatesByPosition(lPosition, at.x, at.y);
        return {at.x - Pic().Left(), at.y - Pic().Top()};
    }

    void Key(std::int16_t nKeyCode, std::int16_t nShift = 0)
    {
        site.User().KeyDown(nKeyCode, nShift);
        site.User().KeyUp(nKeyCode, nShift);
    }
    /// What one place event draws.
    Lines DrawingOf(std::int32_t lRack, std::int32_t lPlace)
    {
        Pic().TakeLines();
        station->RackPlaceChange.Raise(station->Place(lRack, lPlace));
        return Pic().TakeLines();
    }

    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    std::shared_ptr<RecordingController> controller = std::make_shared<RecordingController>();
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(log);
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(log);
    RecordingControl site{log};
    std::shared_ptr<VxHWRackOverview> view;
};

} // namespace zqbchwcx::testing
