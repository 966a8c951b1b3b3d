#include "foundation/PlacePosition.h"
#include "foundation/model/VxHWRackPlaces.h"
#include "tests/qt/OverviewStage.h"
#include "tests/qt/Palettes.h"
#include "tests/qt/ReferencePicture.h"

#include <gtest/gtest.h>

#include <random>

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
    stage.station->displayMode = 1;
    stage.View().VxHWStation(stage.station);
    stage.View().Refresh();
    EXPECT_TRUE(LooksLikeReference(stage.widget->RenderToImage(2), "online-dark-2x"));
    EXPECT_TRUE(stage.services.errors->reports.empty());
}

} // namespace
} // namespace zqbchwcx::testing
