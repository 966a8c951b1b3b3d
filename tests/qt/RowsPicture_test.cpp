#include "tests/qt/ReferencePicture.h"
#include "tests/support/ViewVariant.h"
#include "tests/support/model/FakeModelServices.h"
#include "tests/support/services/TestServices.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/QtToolkit.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <algorithm>
#include <cctype>

namespace zqbchwcx::testing {
namespace {

/// A real overview of a distributed station of five rows, not shown yet.
class RowsPicture : public ::testing::TestWithParam<ViewVariant> {
protected:
    RowsPicture()
    {
        for (const auto& name : qt::PictureCatalog::Names())
            services.host->pictures[name] = toolkit->Pictures().Picture(name);
        widget = std::make_unique<qt::RackOverviewRIOWidget>();
        widget->resize(widget->sizeHint());
        View().StationType(GetParam().eStationType);
        Show(vxStyleHWConfig);
        View().VxHWSelectionHandler(selection);
    }
    ~RowsPicture() override { EXPECT_TRUE(services.host->reports.empty()); }

    VxHWRackOverviewRIO& View() { return *widget->Control(); }
    void Show(VxEnumStyle eStyle)
    {
        View().Style(eStyle);
        View().VxHWDiagService(diag);
        View().VxHWCompareService(compare);
        View().VxHWStation(station);
        selection->VxHWStation(station);
        View().Refresh();
    }
    void Select(std::int32_t lFrom, std::int32_t lTo)
    {
        selection->SelPlaces()->Clear();
        selection->SelectRange(G_PlacePosition(0, lFrom), G_PlacePosition(0, lTo));
        selection->SelChangeComplete();
        selection->FocusPosition(G_PlacePosition(0, lTo));
    }
    ::testing::AssertionResult LooksAsStored(double ratio, const char* what)
    {
        std::string name = std::string(GetParam().name) + "-" + what;
        std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return LooksLikeReference(widget->RenderToImage(ratio), name);
    }

    std::shared_ptr<qt::QtToolkit> toolkit = std::make_shared<qt::QtToolkit>();
    TestServices services{
        std::make_shared<reference::ModelContext>(reference::ModelContext{reference::SharedCatalogue(), nullptr}),
        toolkit};
    std::shared_ptr<reference::Station> station =
        std::make_shared<reference::Station>(services.host->context, GetParam().sample(), reference::StationServices{});
    VxHWSelectionHandlerPtr selection = std::make_shared<VxHWSelectionHandler>();
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(services.log);
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(services.log);
    std::unique_ptr<qt::RackOverviewRIOWidget> widget;
};

INSTANTIATE_TEST_SUITE_P(Distributed, RowsPicture, ::testing::Values(ViewVariants[1], ViewVariants[2]),
                         ::testing::PrintToStringParamName());

TEST_P(RowsPicture, LooksAsStoredAtRatios1And2)
{
    Select(4, 6);
    EXPECT_TRUE(LooksAsStored(1, "1x"));
    selection->FocusPosition(G_GapPosition(0, 38)); // which scrolls to the last row
    EXPECT_TRUE(LooksAsStored(2, "scrolled-2x"));
    const bool bRail = GetParam().eStationType == vxStationTypeDistributed1;
    for (std::int32_t lPlace = 1; lPlace <= 9; ++lPlace) {
        const std::string key = station->PlaceAt({0, lPlace})->Key();
        compare->results[key] = lPlace % 9;
        if (lPlace % 2 == 0) diag->failures[key] = 1;
        diag->cpuStates[key] = lPlace <= 3 ? vxCpuStateRun + lPlace - 1 : 0;
    }
    Show(bRail ? vxStyleHWDiag : vxStyleHWCompare);
    Select(2, 2);
    EXPECT_TRUE(LooksAsStored(2, bRail ? "diag-2x" : "compare-2x"));
}

} // namespace
} // namespace zqbchwcx::testing
