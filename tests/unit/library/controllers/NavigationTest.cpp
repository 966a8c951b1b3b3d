#include "tests/support/StationStage.h"
#include "tests/support/model/FakeModelServices.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlKey.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlMouse.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlKey.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlMouse.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Diagnostics and compare mode.
class Navigation : public StationFixture {
protected:
    Navigation()
    {
        for (const auto& o : {std::shared_ptr<IVxHWController>(diagMouse), std::shared_ptr<IVxHWController>(diagKey)})
            o->VxHWDiagService(diag);
        for (const auto& o : {std::shared_ptr<IVxHWController>(compMouse), std::shared_ptr<IVxHWController>(compKey)})
            o->VxHWCompareService(compare);
        station->ChangePlace(0, 4, [](auto& place) {
            reference::ModuleData module = *NewModuleData("CNT3");
            module.subModules.assign(2, *NewModuleData("SUB"));
            place.module = std::make_shared<const reference::ModuleData>(std::move(module));
        });
    }

    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(services.log);
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(services.log);
    std::shared_ptr<VxHWDiagCtrlMouse> diagMouse = MakeController<VxHWDiagCtrlMouse>();
    std::shared_ptr<VxHWDiagCtrlKey> diagKey = MakeController<VxHWDiagCtrlKey>();
    std::shared_ptr<VxHWCompCtrlMouse> compMouse = MakeController<VxHWCompCtrlMouse>();
    std::shared_ptr<VxHWCompCtrlKey> compKey = MakeController<VxHWCompCtrlKey>();
};

TEST_F(Navigation, EveryPressAndCursorKeyMovesFocusAndAnchorAndNothingElse)
{
    struct Case {
        std::int32_t lPressed;
        const char* marks;
    };
    station->State(1, vxRackNotPresent);
    for (IVxHWMouseInputController* mouse : {static_cast<IVxHWMouseInputController*>(diagMouse.get()),
                                             static_cast<IVxHWMouseInputController*>(compMouse.get())}) {
        EXPECT_FALSE(mouse->CanSelectByRubberBand());
        Select({{0, 2}});
        for (const Case& c : {Case{8, "8 | 8"},
                              {9, "8 | 8"},
                              {1, "2 | 2"},
                              {23, "22 | 22"},
                              {200008, "200008 | 200008"},
                              {0, "0 | 0"},
                              {vxNoPosition, "6 | 2"},
                              {1004, "6 | 2"},
                              {1000, "6 | 2"},
                              {40, "6 | 2"},
                              {9002, "6 | 2"},
                              {9000, "6 | 2"}})
            for (const std::int16_t nButton : {vxButtonLeft, vxButtonRight, vxButtonMiddle})
                for (const std::int16_t nShift : std::initializer_list<std::int16_t>{0, vxShiftMask, vxAltMask}) {
                    FocusAndAnchor(6, 2);
                    mouse->MouseDown(c.lPressed, nButton, nShift);
                    mouse->MouseUp(4, nButton, nShift);
                    EXPECT_EQ(Marks(), std::string("0/2 | ") + c.marks) << c.lPressed;
                }
    }
    for (IVxHWKeyInputController* key :
         {static_cast<IVxHWKeyInputController*>(diagKey.get()), static_cast<IVxHWKeyInputController*>(compKey.get())}) {
        FocusAndAnchor(6, 2);
        for (const auto command : {&IVxHWKeyInputController::Delete, &IVxHWKeyInputController::Cut,
                                   &IVxHWKeyInputController::Copy, &IVxHWKeyInputController::Paste})
            (key->*command)();
        key->SpaceKeyDown(vxShiftMask);
        EXPECT_EQ(Marks(), "0/2 | 6 | 2");
        key->CursorKeyDown(1010, vxShiftMask);
        EXPECT_EQ(Marks(), "0/2 | 1010 | 1010");
    }
    EXPECT_THAT(TakeLines(), IsEmpty()) << "the station was left alone";
}

TEST_F(Navigation, DiagnosticsOpenForWhatHasThem)
{
    const auto opened = [&](std::int32_t lPosition) {
        handler->FocusPosition(lPosition);
        return LinesOf([&] {
            diagMouse->DblClick(lPosition);
            services.Lines().push_back("Return");
            diagKey->KeyReturn();
        });
    };
    EXPECT_THAT(opened(8), ElementsAre("Return"));
    diag->infos = {"0/4", "0/4 SUB"};
    EXPECT_THAT(opened(8), ElementsAre("ShowModuleDiagnostics 0/4", "Return", "ShowModuleDiagnostics 0/4"));
    EXPECT_THAT(opened(200008), ElementsAre("ShowModuleDiagnostics 0/4 SUB", "Return", "ShowModuleDiagnostics 0/4"))
        << "the keyboard reaches no sub-module";
    for (const std::int32_t lPosition : {9, 0, vxNoPosition}) EXPECT_THAT(opened(lPosition), ElementsAre("Return"));
    diagMouse->DblClick(9002);
    diagMouse->DblClick(300008);
    diagMouse->VxHWDiagService(nullptr);
    diagMouse->DblClick(8);
    EXPECT_THAT(TakeReports(), ::testing::SizeIs(2)) << "of the sub-module that is not there, and of the service";
}

TEST_F(Navigation, ParameterComparisonsOpenWhereParametersDiffer)
{
    const std::string shown = "ShowParameterDifferences 0/4";
    for (const std::int32_t lType : {0, 1, 2})
        for (std::int32_t lResult = 0; lResult <= 9; ++lResult) {
            compare->compareType = lType;
            compare->results = {{"0/4", lResult}};
            const bool bDiffers = lResult == vxCompareParametersDiffer;
            handler->FocusPosition(8);
            EXPECT_EQ(LinesOf([&] { compMouse->DblClick(8); }), bDiffers && lType == 0 ? Lines{shown} : Lines{});
            EXPECT_EQ(LinesOf([&] { compKey->KeyReturn(); }), bDiffers ? Lines{shown} : Lines{});
        }
    compare->results = {{"0/4", vxCompareParametersDiffer}};
    handler->FocusPosition(9);
    EXPECT_THAT(LinesOf([&] { compMouse->DblClick(9), compKey->KeyReturn(); }), IsEmpty());
}

} // namespace
} // namespace zqbchwcx::testing
