#include "controllers/config/VxHWConfigCtrlDD.h"
#include "controllers/config/VxHWConfigCtrlKey.h"
#include "controllers/config/VxHWConfigCtrlMouse.h"
#include "tests/views/OverviewFixture.h"

#include <random>

namespace zqbchwcx::testing {
namespace {

/// What a user sees of an overview.
struct Appearance {
    Raster raster;
    Lines shapes;
};

/// An editor that is wired with the real controllers and used at random. Whatever happened, the overview must look as
/// a new one does that is drawn from scratch.
class OverviewPictureTest : public OverviewFixture, public ::testing::WithParamInterface<unsigned> {
protected:
    OverviewPictureTest()
    {
        for (const auto& oController : std::vector<IVxHWControllerPtr>{mouse, key, dragDrop}) {
            oController->VxHWStation(station);
            oController->VxHWSelectionHandler(handler);
        }
        handler->ShiftSelPosition(2);
        handler->FocusPosition(2);
        dragDrop->AddSubscriber(view);
        Wire(*view);
        view->Refresh();
    }

    void Wire(VxHWRackOverview& wired)
    {
        wired.VxHWMouseInputController(mouse);
        wired.VxHWKeyInputController(key);
        wired.VxHWDragDropController(dragDrop);
    }

    Lines ShapesFrom(std::size_t set) const
    {
        Lines lines;
        for (const auto& [name, shapes] : toolkit->shapes) {
            const std::size_t count = name == "fra_IMLink" ? 3 : 4;
            for (std::size_t i = set * count; i < (set + 1) * count; ++i) {
                const Rect bounds = shapes.at(i)->Bounds();
                lines.push_back(shapes[i]->Visible()
                                    ? name + " " + std::to_string(bounds.left) + "," + std::to_string(bounds.top)
                                    : name + " hidden");
            }
        }
        return lines;
    }

    void ExpectTheLookOfAFreshOne(const std::string& after)
    {
        const Appearance shown{Pic().raster, ShapesFrom(0)};
        const auto pictureBoxes = toolkit->pictureBoxes;
        const auto controls = toolkit->controls;
        const auto menus = toolkit->menus;
        const auto shapes = toolkit->shapes;
        RecordingControl otherSite(log, site.bounds);
        auto fresh = MakeView(otherSite);
        Wire(*fresh);
        fresh->Locked(view->Locked());
        Pic().Focus(pictureBoxes.at("pic_Main")->HasFocus());
        fresh->Refresh();
        EXPECT_EQ(Raster::FirstDifference(shown.raster, Pic().raster), "") << "after " << after;
        EXPECT_EQ(shown.shapes, ShapesFrom(1)) << "after " << after;
        fresh.reset();
        toolkit->pictureBoxes = pictureBoxes;
        toolkit->controls = controls;
        toolkit->menus = menus;
        toolkit->shapes = shapes;
    }

    int Any(int first, int last) { return std::uniform_int_distribution(first, last)(random); }
    bool Perhaps() { return Any(0, 1) == 1; }
    std::int16_t AnyShift()
    {
        return std::array<std::int16_t, 4>{0, 0, vxShiftMask, vxCtrlMask}[static_cast<std::size_t>(Any(0, 3))];
    }
    std::pair<float, float> AnyPoint() { return {static_cast<float>(Any(-5, 245)), static_cast<float>(Any(-5, 400))}; }

    std::string Click()
    {
        const auto [x, y] = AnyPoint();
        const std::int16_t nButton = Perhaps() ? vxButtonLeft : vxButtonRight;
        const std::int16_t nShift = AnyShift();
        Mouse().MouseDown(nButton, nShift, x, y);
        if (Perhaps()) {
            const auto [x2, y2] = AnyPoint();
            Mouse().MouseMove(nButton, nShift, x2, y2);
            if (Perhaps()) ChangeAPlace();
        }
        const auto [x3, y3] = AnyPoint();
        Mouse().MouseUp(nButton, nShift, x3, y3);
        return "a click";
    }
    void Drag()
    {
        std::int32_t lEffect = 0;
        Mouse().OLEStartDrag(data, lEffect);
        std::int16_t nState = vxDragEnter;
        for (int i = Any(1, 4); i > 0; --i, nState = vxDragOver) {
            const auto [x, y] = AnyPoint();
            lEffect = 3;
            Mouse().OLEDragOver(data, lEffect, vxButtonLeft, AnyShift(), x, y, nState);
        }
        const auto [x, y] = AnyPoint();
        if (Perhaps()) Mouse().OLEDragDrop(data, lEffect, 0, AnyShift(), x, y);
        else Mouse().OLEDragOver(data, lEffect, 0, 0, x, y, vxDragLeave);
        if (Perhaps()) lEffect = vxDropEffectNone;
        Mouse().OLECompleteDrag(lEffect);
        toolkit->clock.Advance(20);
    }
    std::string PressAKey()
    {
        const std::array<std::int16_t, 8> keys{vxKeyLeft, vxKeyUp,    vxKeyRight, vxKeyDown,
                                               vxKeyLeft, vxKeyRight, vxKeySpace, vxKeyDelete};
        const std::int16_t nKey = keys[static_cast<std::size_t>(Any(0, 7))];
        Key(nKey, AnyShift());
        return "key " + std::to_string(nKey);
    }
    std::string Clipboard()
    {
        if (Perhaps()) key->Copy();
        else key->Cut();
        if (Perhaps()) key->Paste();
        return "a clipboard command";
    }
    /// A change by somebody else: a new module in empty places, a place's usability, a rack's state.
    std::string ChangeAPlace()
    {
        const std::int32_t lRack = Any(0, 3);
        const std::int32_t lPlace = Any(1, 11);
        const std::int32_t lSpan = Any(1, 3);
        bool bFree = lPlace + lSpan <= 12;
        for (std::int32_t i = 0; bFree && i < lSpan; ++i)
            bFree = station->Module(lRack, lPlace + i)->orderNumber.empty();
        if (bFree) {
            Put(lRack, lPlace, Perhaps() ? "IDB_CRX_MODULE_IO_ANALOG" : "Pump", lSpan > 1 ? lSpan : 0);
            for (std::int32_t i = 0; i < lSpan; ++i) station->RackPlaceChange.Raise(station->Place(lRack, lPlace + i));
        } else {
            station->Place(lRack, lPlace)->usability = Any(-1, 1);
            station->RackPlaceChange.Raise(station->Place(lRack, lPlace));
            station->Rack(lRack)->state = Any(0, 3) == 0 ? 0 : 1;
            station->RackChange.Raise(station->Rack(lRack));
        }
        return "a change of place " + std::to_string(lRack) + "/" + std::to_string(lPlace);
    }
    std::string ChangeWhileDrawingIsOff()
    {
        station->IsDrawable(false);
        Select({{Any(0, 3), Any(1, 11)}, {Any(0, 3), Any(1, 11)}});
        handler->FocusPosition(Any(0, 3) * 1000 + Any(0, 23));
        station->IsDrawable(true);
        station->RackPlaceChange.Raise(station->Place(0, Any(1, 11)));
        return "a batch";
    }
    std::string Step()
    {
        switch (Any(0, 8)) {
        case 0:
            return ChangeAPlace();
        case 1:
            Drag();
            return "a drag";
        case 2:
            return Clipboard();
        case 3:
            return ChangeWhileDrawingIsOff();
        case 4:
            Pic().Focus(Perhaps());
            return "a change of the keyboard focus";
        case 5:
            if (Any(0, 9) == 0) view->Locked(!view->Locked());
            return "locking";
        case 6:
            return PressAKey();
        default:
            return Click();
        }
    }

    std::shared_ptr<VxHWConfigCtrlMouse> mouse = std::make_shared<VxHWConfigCtrlMouse>();
    std::shared_ptr<VxHWConfigCtrlKey> key = std::make_shared<VxHWConfigCtrlKey>();
    std::shared_ptr<VxHWConfigCtrlDD> dragDrop = std::make_shared<VxHWConfigCtrlDD>();
    std::mt19937 random{GetParam()};
};

TEST_P(OverviewPictureTest, LooksAsDrawnFromScratchWhateverHappened)
{
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    for (int i = 0; i < 400 && !HasFailure(); ++i) {
        const std::string step = Step();
        if (i % 3 == 0) ExpectTheLookOfAFreshOne("step " + std::to_string(i) + ": " + step);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, OverviewPictureTest, ::testing::Values(1U, 121U, 228U));

} // namespace
} // namespace zqbchwcx::testing
