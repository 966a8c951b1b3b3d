#include "tests/property/Editor.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"
#include "zqbchwcx/views/overview/OverviewControl.h"
#include "zqbchwcx/views/shared/QuietView.h"
#include "zqbchwcx/views/table/TableControl.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

/// Views in diagnostics mode, where model events wait for a refresh.
class RefreshPlace : public ::testing::TestWithParam<ViewVariant> {
protected:
    RefreshPlace()
    {
        for (const char* picture : {"IDB_DIAG_FAILURE", "IDB_DIAG_CPU_STOP"})
            editor.host->pictures[picture] = std::make_shared<FakeImage>(picture);
        editor.Manager().Terminate();
        manager.Initialize(GetParam().eStationType, editor.view, editor.table, std::make_shared<QuietView>(),
                           editor.watched, editor.diag);
    }
    ~RefreshPlace() override { manager.Terminate(); }

    void RefreshThePlace()
    {
        dynamic_cast<OverviewControl&>(*editor.view).RefreshPlace(oPlace);
        dynamic_cast<TableControl&>(*editor.table).RefreshPlace(oPlace);
    }
    /// What overview and table do not show yet.
    std::array<bool, 2> Outdated() const
    {
        return {!editor.DifferenceFromAFreshPicture().empty(), !editor.DifferenceFromAFreshTable().empty()};
    }
    std::int32_t CallsOf(const std::function<void()>& operation) const
    {
        editor.log->faults.Restart();
        operation();
        return editor.log->faults.Count();
    }

    Editor editor{reference::ExampleStation(GetParam().examples.front()), GetParam()};
    VxHWDiagManager manager;
    VxHWRackPlacePtr oPlace = Watch(editor.log, editor.watched->Place(0, 4));
};

constexpr std::array Both{true, true};
constexpr std::array Neither{false, false};

TEST_P(RefreshPlace, ShowsWhatChangedForTheCostOfOnePlace)
{
    EXPECT_EQ(Outdated(), Neither);
    editor.diag->failures[oPlace->Key()] = 1;
    editor.diag->cpuStates[oPlace->Key()] = vxCpuStateStop;
    editor.watched->RackPlaceChange.Raise(oPlace);
    EXPECT_EQ(Outdated(), Both);
    const std::int32_t lOne = CallsOf([&] { RefreshThePlace(); });
    EXPECT_EQ(Outdated(), Neither);
    EXPECT_LT(lOne * 10, CallsOf([&] { manager.Refresh(); }));
}

TEST_P(RefreshPlace, WaitsUntilDrawingIsOnAgain)
{
    editor.watched->IsDrawable(false);
    editor.diag->failures[oPlace->Key()] = 1;
    RefreshThePlace();
    editor.watched->IsDrawable(true);
    manager.VxHWSelectionHandler()->FocusPosition(G_PlacePosition(0, 6));
    EXPECT_EQ(Outdated(), Neither);
}

INSTANTIATE_TEST_SUITE_P(Every, RefreshPlace, ::testing::ValuesIn(ViewVariants), ::testing::PrintToStringParamName());

} // namespace
} // namespace zqbchwcx::testing
