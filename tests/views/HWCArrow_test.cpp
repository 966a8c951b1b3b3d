#include "tests/support/services/TestServices.h"
#include "zqbchwcx/views/overview/HWCArrow.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;

struct MemoryBag : PropertyBag {
    std::int32_t ReadProperty(std::string_view name, std::int32_t lDefault) const override
    {
        const auto found = values.find(name);
        return found == values.end() ? lDefault : found->second;
    }
    void WriteProperty(std::string_view name, std::int32_t lValue, std::int32_t /*lDefault*/) override
    {
        values[std::string(name)] = lValue;
    }

    std::map<std::string, std::int32_t, std::less<>> values;
};

class HWCArrowTest : public ::testing::Test {
protected:
    /// The bounds of the pieces of that name that are visible.
    std::vector<Rect> Visible(const std::string& name) const
    {
        std::vector<Rect> bounds;
        for (const auto* shape : services.toolkit->shapes.at(name))
            if (shape->Visible()) bounds.push_back(shape->Bounds());
        return bounds;
    }
    std::size_t VisibleCount() const { return Visible("shp_Arrow").size() + Visible("shp_End").size(); }

    TestServices services;
    RecordingControl site{services.log, MakeRect(0, 0, 260, 400)};
    HWCArrow arrow{site};
};

TEST_F(HWCArrowTest, KeepsItsIndentationInThePropertyBag)
{
    MemoryBag bag;
    arrow.ReadProperties(bag);
    EXPECT_EQ(arrow.Indentation(), 100);
    arrow.Indentation(238);
    arrow.WriteProperties(bag);
    HWCArrow loaded(site);
    loaded.ReadProperties(bag);
    EXPECT_EQ(loaded.Indentation(), 238);
}

TEST_F(HWCArrowTest, LeadsFromThePlaceToTheRightEdge)
{
    arrow.Indentation(238);
    for (const std::int32_t rowY : {48, 203, 371}) { // above, level with and below the run over the place
        arrow.Show(36, 213, rowY);
        // Three pixels thick all the way, around both corners, too.
        const Rect turn{238, std::min(203, rowY) - 1, 241, std::max(203, rowY) + 2};
        EXPECT_THAT(Visible("shp_Arrow"), ElementsAre(MakeRect(36, 203, 3, 10), Rect{36, 202, 238, 205}, turn,
                                                      Rect{238, rowY - 1, 252, rowY + 2}));
        EXPECT_THAT(Visible("shp_End"), ElementsAre(MakeRect(252, rowY - 3, 2, 7), MakeRect(254, rowY - 2, 2, 5),
                                                    MakeRect(256, rowY - 1, 2, 3), MakeRect(258, rowY, 2, 1)));
    }
    site.Resize(300 * vxTwipsPerPixel, 400 * vxTwipsPerPixel);
    arrow.Show(36, 213, 48);
    EXPECT_EQ(Visible("shp_End").back().right, 300);
}

TEST_F(HWCArrowTest, IsHiddenUntilShownAndOnlyMovesWhileShown)
{
    EXPECT_EQ(VisibleCount(), 0U);
    // Until then the pieces lie as they were designed.
    std::vector<Rect> designed;
    for (const auto* shape : services.toolkit->shapes.at("shp_Arrow")) designed.push_back(shape->Bounds());
    EXPECT_THAT(designed, ElementsAre(MakeRect(0, 0, 3, 10), MakeRect(0, 0, 200, 3), MakeRect(0, 0, 3, 39),
                                      MakeRect(0, 0, 24, 3)));
    arrow.Show(36, 213, 48);
    arrow.Hide();
    EXPECT_EQ(VisibleCount(), 0U);
    arrow.Show(36, 213, 48);
    const auto writes = services.toolkit->shapes.at("shp_Arrow").front()->visibleWrites;
    arrow.Show(54, 213, 63);
    EXPECT_EQ(services.toolkit->shapes.at("shp_Arrow").front()->visibleWrites, writes);
}

} // namespace
} // namespace zqbchwcx::testing
