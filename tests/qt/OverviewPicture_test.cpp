#include "tests/qt/OverviewStage.h"
#include "tests/qt/Palettes.h"
#include "tests/qt/ReferencePicture.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/qt/ControlWidget.h"

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

namespace zqbchwcx::testing {
namespace {

TEST(OverviewPicture, looksAsStoredAtRatios1And2InLightAndDark)
{
    OverviewStage stage;
    stage.SelectPlace(0, 5);
    EXPECT_TRUE(LooksLikeReference(stage.widget->RenderToImage(1), "configuration-1x"));
    EXPECT_TRUE(LooksLikeReference(stage.widget->RenderToImage(2), "configuration-2x"));
    const PaletteChange dark(DarkPalette());
    EXPECT_TRUE(LooksLikeReference(stage.widget->RenderToImage(2), "configuration-dark-2x"));
    stage.station->Change([](auto& data) { data.displayMode = vxDisplayModeOnline1; });
    stage.View().VxHWStation(stage.station);
    stage.View().Refresh();
    EXPECT_TRUE(LooksLikeReference(stage.widget->RenderToImage(2), "online-dark-2x"));
    EXPECT_TRUE(stage.services.host->reports.empty());
}

/// How much of each line of the area is not the background: of its columns, or of its rows.
std::vector<int> InkOf(const QImage& picture, const QRect& area, Qt::Orientation lines)
{
    std::vector<int> ink;
    const bool bRows = lines == Qt::Horizontal;
    for (int line = 0; line < (bRows ? area.height() : area.width()); ++line) {
        ink.push_back(0);
        for (int i = 0; i < (bRows ? area.width() : area.height()); ++i) {
            const QPoint at = area.topLeft() + (bRows ? QPoint(i, line) : QPoint(line, i));
            ink.back() += 255 - qGray(picture.pixel(at));
        }
    }
    return ink;
}

TEST(OverviewPicture, slopesHaveNoStepsWhereADeviceHasMorePixels)
{
    OverviewStage stage;
    stage.SelectPlace(0, 5);
    for (const int ratio : {2, 3}) {
        const QImage picture = stage.widget->RenderToImage(ratio);
        const auto scaled = [&](int x, int y, int width, int height) {
            return QRect(x * ratio, y * ratio, width * ratio, height * ratio);
        };
        // The mark above the place's left corner, and the head of the arrow to its row.
        const auto mark = InkOf(picture, scaled(97, 300, 5, 5), Qt::Horizontal);
        const auto head = InkOf(picture, scaled(stage.widget->width() - 8, 101, 8, 14), Qt::Vertical);
        EXPECT_TRUE(std::ranges::is_sorted(mark, std::less_equal<>()) && mark.back() > 0) << ratio;
        EXPECT_TRUE(std::ranges::is_sorted(head, std::greater_equal<>()) && head.front() > 0) << ratio;
    }
}

/// Random changes of everything that the overview shows.
class RandomChanges {
public:
    RandomChanges(OverviewStage& stage, std::uint32_t seed) : mStage(stage), mRandom(seed) {}

    void Change()
    {
        const std::int32_t lRack = Number(0, 3);
        const std::int32_t lPlace = Number(1, 11);
        auto& station = *mStage.station;
        switch (Number(0, 5)) {
        case 0:
            return mStage.Selection().FocusPosition(G_PlacePosition(lRack, lPlace));
        case 1:
            return mStage.Selection().FocusPosition(G_GapPosition(lRack, Number(0, 11)));
        case 2:
            return mStage.SelectPlace(lRack, lPlace);
        case 3:
            return station.State(lRack, Number(0, 1));
        case 4:
            return station.Usability(lRack, lPlace, Number(-1, 1));
        default:
            // Members of modules that span places stay together.
            if (station.Module(lRack, lPlace)->IndexInParent() != 0) return;
            if (Number(0, 1) == 0) return station.Empty(lRack, lPlace);
            return station.Put(lRack, lPlace, "IO_ANALOG");
        }
    }

private:
    std::int32_t Number(std::int32_t lFrom, std::int32_t lTo)
    {
        return std::uniform_int_distribution<std::int32_t>(lFrom, lTo)(mRandom);
    }

    OverviewStage& mStage;
    std::mt19937 mRandom;
};

class OverviewAtRatio : public ::testing::TestWithParam<double> {};

TEST_P(OverviewAtRatio, showsAfterAnyChangesWhatItShowsDrawnAfresh)
{
    OverviewStage stage;
    stage.widget->findChild<qt::ControlWidget*>()->OverrideRatio(GetParam());
    RandomChanges changes(stage, 20);
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 15; ++i) changes.Change();
        const QImage incremental = stage.Main().Picture().Pixels().copy();
        stage.View().VxHWStation(stage.station);
        stage.View().Refresh();
        ASSERT_EQ(TextOf(DifferenceOf(incremental, stage.Main().Picture().Pixels())), "0,0 0x0") << "round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(ratios, OverviewAtRatio, ::testing::Values(1.0, 2.0));

TEST(OverviewWidget, isInvitingAndKeepsItsSmallestSize)
{
    OverviewStage stage;
    EXPECT_EQ(stage.widget->minimumSizeHint(), QSize(235, 392));
    EXPECT_GE(stage.widget->sizeHint().width(), 242);
    EXPECT_FALSE(stage.widget->accessibleName().isEmpty());
    EXPECT_EQ(stage.widget->RenderToImage(1.5).size(), QSize(405, 588));

    int events = 0;
    QObject::connect(stage.widget.get(), &qt::RackOverviewWidget::focusChanged, [&] { ++events; });
    QObject::connect(stage.widget.get(), &qt::RackOverviewWidget::contentChanged, [&] { ++events; });
    stage.widget->RenderToImage(2);
    EXPECT_EQ(events, 0) << "a picture of the widget is no change of it";
    stage.Selection().FocusPosition(G_PlacePosition(0, 7));
    EXPECT_EQ(events, 1);
}

TEST(OverviewWidget, followsTheSystemColoursWhileItIsShown)
{
    OverviewStage stage;
    stage.widget->show();
    const QRgb light = stage.widget->RenderToImage(1).pixel(260, 390);
    const PaletteChange dark(DarkPalette());
    QCoreApplication::processEvents();
    const QImage shown = stage.widget->grab().toImage();
    EXPECT_EQ(light, qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(260, 390), DarkPalette().color(QPalette::Base).rgb()) << "surplus space";
    EXPECT_EQ(shown.pixel(8, 380), DarkPalette().color(QPalette::Base).rgb()) << "picture";
}

TEST(OverviewWidget, mayEndBeforeItsView)
{
    OverviewStage stage;
    const auto view = stage.widget->Control();
    stage.widget.reset();
    view->Refresh();
    stage.Selection().FocusPosition(G_PlacePosition(0, 3));
    stage.station->TotalRefresh.Raise();
    SUCCEED();
    stage.manager.Terminate();
}

} // namespace
} // namespace zqbchwcx::testing
