#include "tests/support/services/TestServices.h"
#include "views/config/HWCArrow.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

/// Holds the one property of the arrow.
class IndentationBag : public PropertyBag {
public:
    std::int32_t ReadProperty(std::string_view name, std::int32_t lDefault) const override
    {
        return name == "Indentation" ? mlValue.value_or(lDefault) : lDefault;
    }
    void WriteProperty(std::string_view name, std::int32_t lValue, std::int32_t /*lDefault*/) override
    {
        if (name == "Indentation") mlValue = lValue;
    }

private:
    std::optional<std::int32_t> mlValue;
};

class HWCArrowTest : public ::testing::Test {
protected:
    Rect Shaft(std::size_t index) const { return toolkit->shapes.at("shp_Arrow").at(index)->Bounds(); }
    Rect Head(std::size_t index) const { return toolkit->shapes.at("shp_End").at(index)->Bounds(); }
    int VisibleCount() const
    {
        int count = 0;
        for (const auto& [name, shapes] : toolkit->shapes)
            for (const auto* shape : shapes) count += shape->Visible() ? 1 : 0;
        return count;
    }
    /// Whether the pixel belongs to a piece of the shaft.
    bool IsInked(Point at) const
    {
        for (std::size_t i = 0; i < 4; ++i) {
            const Rect r = Shaft(i);
            if (at.x >= r.left && at.x < r.right && at.y >= r.top && at.y < r.bottom) return true;
        }
        return false;
    }

    TestServices services;
    CallLogPtr log = services.log;
    std::shared_ptr<RecordingToolkit> toolkit = services.toolkit;
    RecordingControl site{log, MakeRect(0, 0, 260, 400)};
    HWCArrow arrow{site};
};

TEST_F(HWCArrowTest, KeepsItsIndentationInThePropertyBag)
{
    EXPECT_EQ(arrow.Indentation(), 100);
    IndentationBag bag;
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
        EXPECT_EQ(VisibleCount(), 8);
        EXPECT_EQ(Shaft(0), MakeRect(36, 203, 3, 10));
        EXPECT_EQ(Shaft(1).left, 36);
        EXPECT_EQ(Shaft(2).left, 238);
        EXPECT_EQ(Shaft(3).right, 252);
        // The line is closed along its middle, and three pixels thick around both corners.
        for (std::int32_t x = 36; x < 238; ++x) EXPECT_TRUE(IsInked({x, 203})) << x;
        for (std::int32_t y = std::min(203, rowY); y <= std::max(203, rowY); ++y) EXPECT_TRUE(IsInked({239, y})) << y;
        for (std::int32_t x = 238; x < 252; ++x) EXPECT_TRUE(IsInked({x, rowY})) << x;
        for (std::int32_t x = 238; x < 241; ++x)
            for (std::int32_t d = -1; d <= 1; ++d)
                EXPECT_TRUE(IsInked({x, 203 + d}) && IsInked({x, rowY + d})) << x << " " << d;
        for (std::size_t i = 0; i < 4; ++i) {
            const auto height = 7 - 2 * static_cast<std::int32_t>(i);
            EXPECT_EQ(Head(i), MakeRect(252 + 2 * static_cast<std::int32_t>(i), rowY - height / 2, 2, height));
        }
    }
    site.Resize(300 * vxTwipsPerPixel, 400 * vxTwipsPerPixel);
    arrow.Show(36, 213, 48);
    EXPECT_EQ(Head(3).right, 300);
}

TEST_F(HWCArrowTest, IsHiddenUntilShownAndOnlyMovesWhileShown)
{
    EXPECT_EQ(VisibleCount(), 0);
    arrow.Show(36, 213, 48);
    arrow.Hide();
    EXPECT_EQ(VisibleCount(), 0);
    arrow.Show(36, 213, 48);
    const auto writes = toolkit->shapes.at("shp_Arrow").front()->visibleWrites;
    arrow.Show(54, 213, 63);
    EXPECT_EQ(toolkit->shapes.at("shp_Arrow").front()->visibleWrites, writes);
}

TEST_F(HWCArrowTest, ReportsAFailureAndGoesOn)
{
    log->faults.ThrowAt(3);
    arrow.Show(36, 213, 48);
    EXPECT_TRUE(services.host->TakeReports() == std::vector<std::string>{"zqbchwcx.HWCArrow.P_PositionArrow"});
    arrow.Show(36, 213, 48);
    EXPECT_EQ(VisibleCount(), 8);
    {
        log->faults.ThrowAt(4); // the second shape cannot be made
        HWCArrow broken(site);
        EXPECT_TRUE(services.host->TakeReports() ==
                    std::vector<std::string>{"zqbchwcx.HWCArrow.UserControl_Initialize"});
        broken.Show(36, 213, 48);
        broken.Hide();
    }
    EXPECT_EQ(services.host->live.size(), 1U);
}

} // namespace
} // namespace zqbchwcx::testing
