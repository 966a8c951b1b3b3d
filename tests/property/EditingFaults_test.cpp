#include "tests/property/Editor.h"
#include "tests/support/Samples.h"
#include "zqbchwcx/platform/Input.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

constexpr std::int32_t Filled = G_PlacePosition(0, 7);
constexpr std::int32_t Neighbour = G_PlacePosition(0, 8);
constexpr std::int32_t Empty = G_PlacePosition(0, 11);

struct Scenario {
    std::string name;
    /// The places that are selected before.
    std::int32_t lFrom;
    std::int32_t lTo;
    /// In which every call of a service, of the clipboard and of the model fails in turn.
    std::function<void(Editor&)> act;
    /// An error in it leaves the drawing to the host.
    bool leavesDrawingOff = false;
};

void PrintTo(const Scenario& scenario, std::ostream* stream)
{
    *stream << scenario.name;
}

void Select(Editor& editor, std::int32_t lFrom, std::int32_t lTo)
{
    auto& handler = *editor.view->VxHWSelectionHandler();
    handler.SelPlaces()->Clear();
    handler.SelectRange(lFrom, lTo);
    handler.SelChangeComplete();
    handler.FocusPosition(lTo);
}

/// Null when the editor offers nothing.
DataObjectPtr StartDrag(Editor& editor)
{
    const auto data = editor.NewDrag();
    std::int32_t lEffect = vxDropEffectNone;
    editor.Mouse().OLEStartDrag(data, lEffect);
    return lEffect == vxDropEffectNone ? nullptr : data;
}

void CompleteDrag(Editor& editor, std::int32_t lEffect)
{
    editor.Mouse().OLECompleteDrag(lEffect);
}

void Drop(Editor& editor, const DataObjectPtr& data, std::int16_t nShift)
{
    std::int32_t lX = 0;
    std::int32_t lY = 0;
    editor.view->CoordinatesByPosition(Empty, lX, lY);
    const auto x = static_cast<float>(lX - editor.Picture().Left());
    const auto y = static_cast<float>(lY - editor.Picture().Top());
    std::int32_t lEffect = vxDropEffectCopyOrMove;
    editor.Mouse().OLEDragOver(data, lEffect, vxButtonLeft, nShift, x, y, vxDragEnter);
    lEffect = vxDropEffectCopyOrMove;
    editor.Mouse().OLEDragDrop(data, lEffect, 0, nShift, x, y);
    CompleteDrag(editor, lEffect);
    editor.toolkit->clock.Advance(20);
}

std::vector<Scenario> Scenarios()
{
    return {
        {"Move", Filled, Filled,
         [](Editor& editor) {
             if (const auto data = StartDrag(editor)) Drop(editor, data, 0);
         }},
        {"Copy", Filled, Filled,
         [](Editor& editor) {
             if (const auto data = StartDrag(editor)) Drop(editor, data, vxCtrlMask);
         }},
        {"DropFromOutside", Filled, Filled,
         [](Editor& editor) {
             const auto data = StartDrag(editor);
             if (!data) return;
             CompleteDrag(editor, vxDropEffectNone);
             Drop(editor, data, 0);
         }},
        {"GiveAway", Filled, Neighbour,
         [](Editor& editor) {
             if (StartDrag(editor)) CompleteDrag(editor, vxDropEffectMove);
         }},
        {"Delete", Filled, Neighbour, [](Editor& editor) { editor.Keys().KeyDown(vxKeyDelete, 0); }},
        {"Cut", Filled, Neighbour, [](Editor& editor) { editor.Manager().Cut(); }},
        {"Paste", Empty, Empty, [](Editor& editor) { editor.Manager().Paste(); }},
        {"Insert", Empty, Empty,
         [](Editor& editor) { editor.Manager().SetSingleModuleToCurPos(editor.station->CreateModule("Q3-DI16-A")); },
         true},
        {"Configure", Filled, Filled, [](Editor& editor) { editor.Manager().EditModuleParams(); }},
    };
}

class EditingFaults : public ::testing::TestWithParam<Scenario> {
protected:
    struct Result {
        std::string text;
        std::string thrown;
        std::int32_t calls = 0;
    };

    /// Acts with that call failing (0: none).
    Result Act(Editor& editor, std::int32_t lFailingCall)
    {
        editor.parameters = [](reference::ModuleData module) {
            module.comment = "Configured";
            return std::optional(module);
        };
        Select(editor, Filled, Filled);
        editor.Manager().Copy();
        Select(editor, GetParam().lFrom, GetParam().lTo);
        EXPECT_EQ(editor.WhatIsWrong(), "");
        editor.log->faults.ThrowAt(lFailingCall);
        GetParam().act(editor);
        Result result{editor.Text(), editor.log->faults.Thrown(), editor.log->faults.Count()};
        editor.log->faults.Restart();
        return result;
    }
};

TEST_P(EditingFaults, LeaveTheStationUnchangedOrChanged)
{
    const auto data = reference::ExampleStation("waterworks");
    std::string before;
    Result good;
    {
        Editor editor(data);
        before = editor.Text();
        good = Act(editor, 0);
        EXPECT_NE(good.text, before) << "the scenario changes nothing";
        EXPECT_EQ(editor.WhatIsWrong(), "");
    }
    for (std::int32_t call = 1; call <= good.calls; ++call) {
        Editor editor(data);
        const Result result = Act(editor, call);
        SCOPED_TRACE("call " + std::to_string(call) + ", " + result.thrown);
        EXPECT_NE(result.thrown, "");
        EXPECT_TRUE(result.text == before || result.text == good.text) << "half a change";
        if (GetParam().leavesDrawingOff) editor.station->IsDrawable(true);
        // A report that the error log itself refuses is lost. Without the host application there is no wait cursor,
        // which is nobody's error.
        const bool isLookup = result.thrown.starts_with("ObjectLookup.");
        if (isLookup) editor.host->waitBalance = 0;
        EXPECT_TRUE(isLookup || result.thrown.starts_with("LogError") || !editor.host->reports.empty() ||
                    editor.refusals > 0);
        editor.host->reports.clear();
        EXPECT_EQ(editor.WhatIsWrong(), "");

        // The next things that the user does work.
        while (editor.history->Undo()) {
        }
        EXPECT_EQ(editor.Text(), before);
        Select(editor, Filled, Filled);
        editor.Keys().KeyDown(vxKeyDelete, 0);
        EXPECT_NE(editor.Text(), before);
        EXPECT_EQ(editor.WhatIsWrong(), "");
        if (HasFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, EditingFaults, ::testing::ValuesIn(Scenarios()),
                         [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace zqbchwcx::testing
