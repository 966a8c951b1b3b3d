#pragma once

#include "tests/support/StationStage.h"
#include "tests/support/ViewVariant.h"
#include "tests/support/model/FakeModelServices.h"
#include "tests/views/RecordingController.h"

#include <regex>

namespace zqbchwcx::testing {

/// An overview with the largest station that it shows whole, wired as its manager would, its controllers recorded.
class OverviewFixture : public StationFixture {
protected:
    explicit OverviewFixture(const ViewVariant& kind)
        : StationFixture(EmptyStation(kind.eStationType, kind.racks, kind.places)), variant(kind)
    {
        for (const auto* name : {"IDB_CRX_RACKNR_ACTIVE", "IDB_CRX_RACKNR_INACTIVE", "IDB_DIAG_CPU_RUN",
                                 "IDB_DIAG_CPU_STOP", "IDB_DIAG_CPU_HOLD", "IDB_DIAG_FAILURE", "IDB_COMP_EQUAL",
                                 "IDB_COMP_POTEQUAL", "IDB_COMP_NOMODULE", "IDB_COMP_MODULEDIFF", "IDB_COMP_PARAMDIFF"})
            services.host->pictures[name] = std::make_shared<FakeImage>(name);
        for (const std::string& name : variant.RowPictures())
            services.host->pictures[name] = std::make_shared<FakeImage>(name);
        view = MakeView(site);
    }
    void TearDown() override
    {
        StationFixture::TearDown();
        view.reset();
        EXPECT_FALSE(site.IsConnected());
    }

    IVxHWControlPtr MakeView(RecordingControl& control) const
    {
        auto made = variant.makeOverview(control);
        made->StationType(variant.eStationType);
        made->Style(vxStyleHWConfig);
        made->VxHWStation(station);
        made->VxHWCompareService(compare);
        made->VxHWDiagService(diag);
        made->VxHWSelectionHandler(handler);
        made->VxHWMouseInputController(controller);
        made->VxHWKeyInputController(controller);
        made->VxHWDragDropController(controller);
        return made;
    }

    RecordingPictureBox& Pic() const { return *toolkit->pictureBoxes.at(variant.picture); }
    RecordingPictureBox& DragPic() const { return *toolkit->pictureBoxes.at("pic_Drag"); }
    RecordingPopupMenu& Menu() const { return *toolkit->menus.at("pmnu_Main"); }
    PictureBoxEvents& Mouse() const { return Pic().User(); }
    Point CenterOf(std::int32_t lPosition) const { return variant.pointOf(*view, lPosition); }
    /// Of the picture, in the control.
    Point PictureOrigin() const
    {
        const auto viewport = toolkit->controls.find("pic_Back");
        const Rect outer = viewport != toolkit->controls.end() ? viewport->second->bounds : Rect{};
        return {outer.left + Pic().Left(), outer.top + Pic().Top()};
    }
    Rect RectOf(std::int32_t lRack, std::int32_t lPlace) const { return variant.placeRect(*view, lRack, lPlace); }

    /// What the event draws, in words: "Image PLACE_ACTIVE 0/4 style 0", "Text 4 0/4 number text". What lies beside
    /// places keeps its pixels.
    template <class Event>
    Lines DrawnBy(Event event)
    {
        Pic().TakeLines();
        event();
        return InWords(Pic().TakeLines());
    }
    /// What one place event draws.
    Lines DrawingOf(std::int32_t lRack, std::int32_t lPlace)
    {
        return DrawnBy([&] { station->RackPlaceChange.Raise(station->Place(lRack, lPlace)); });
    }
    Lines InWords(Lines lines) const
    {
        for (std::string& line : lines) {
            std::smatch found;
            static const std::regex point(R"((.*? )(-?\d+),(-?\d+)( \d+x\d+)?((?: style| window| text| gray).*))");
            if (std::regex_match(line, found, point))
                if (const auto spot = SpotAt({std::stoi(found[2]), std::stoi(found[3])}); !spot.empty())
                    line = found.str(1) + spot + found.str(5);
            static const std::regex kind("IDB_(CRX|RIOA|RIOB)_");
            line = std::regex_replace(line, kind, "");
        }
        return lines;
    }

    const ViewVariant& variant;
    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    std::shared_ptr<RecordingController> controller = std::make_shared<RecordingController>();
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(log);
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(log);
    RecordingControl site{log};
    IVxHWControlPtr view;

private:
    /// As in "0/4" or "0/4 number"; empty for a point that is no spot of a place.
    std::string SpotAt(Point at) const
    {
        const PlaceStyle& style = variant.style;
        for (std::int32_t lRack = 0; lRack < static_cast<std::int32_t>(variant.racks); ++lRack)
            for (std::int32_t lPlace = 1; lPlace <= static_cast<std::int32_t>(variant.places); ++lPlace) {
                const Rect rect = RectOf(lRack, lPlace);
                const Point inPlace{at.x - rect.left, at.y - rect.top};
                for (const auto& [spot, name] : {std::pair<Point, const char*>{{0, 0}, ""},
                                                 {style.number, " number"},
                                                 {style.cpuState, " cpu"},
                                                 {style.failure, " failure"},
                                                 {style.compare, " compare"}})
                    if (inPlace == spot) return std::to_string(lRack) + "/" + std::to_string(lPlace) + name;
            }
        return {};
    }
};

/// A suite that runs on the overview of every kind of station.
class AnyOverview : public OverviewFixture, public ::testing::WithParamInterface<ViewVariant> {
protected:
    AnyOverview() : OverviewFixture(GetParam()) {}
};

class CentralOverview : public OverviewFixture {
protected:
    CentralOverview() : OverviewFixture(CentralViews) {}
};

} // namespace zqbchwcx::testing
