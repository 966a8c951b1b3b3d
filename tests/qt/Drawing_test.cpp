#include "tests/qt/ReferencePicture.h"
#include "zqbchwcx/qt/PersistentPicture.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/UiFont.h"

#include <set>

namespace zqbchwcx::testing {
namespace {

using qt::PersistentPicture;

constexpr OleColor Red = G_Rgb(255, 0, 0);
constexpr OleColor Blue = G_Rgb(0, 0, 255);

std::set<QRgb> ColoursOf(const QImage& picture)
{
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
    }
    return colours;
}

class DrawingAtRatio : public ::testing::TestWithParam<double> {
protected:
    PersistentPicture mPicture{{90, 70}, GetParam()};
};

TEST_P(DrawingAtRatio, neighboursMeetWithoutSeamOrBlur)
{
    for (std::int32_t x = 0; x < 90; x += 3) mPicture.FillBox(MakeRect(x, 0, 3, 70), x % 2 == 0 ? Red : Blue);
    EXPECT_EQ(ColoursOf(mPicture.Pixels()), (std::set<QRgb>{qRgb(255, 0, 0), qRgb(0, 0, 255)}));

    qt::PictureCatalog pictures;
    const auto module = pictures.Picture("IDB_CRX_PLACE_INACTIVE");
    mPicture.BackColor(Red);
    for (std::int32_t x = 0; x < 90; x += 18) mPicture.DrawImage(*module, {x, 5}, DrawStyle::Normal);
    const qt::PixelGrid grid(GetParam());
    const QImage row = mPicture.Pixels().copy(0, grid.Edge(6), mPicture.Pixels().width(), 1);
    EXPECT_FALSE(ColoursOf(row).contains(qRgb(255, 0, 0))) << "the background shows between two images";
}

TEST_P(DrawingAtRatio, anImageDrawnAgainLooksAsDrawnOnce)
{
    qt::PictureCatalog pictures;
    for (const char* name : {"IDB_CRX_MODULE_IM", "IDB_CRX_PLACE_DROP_END", "IDB_CRX_FRAME_TOTAL"}) {
        mPicture.BackColor(vxColorWindowBackground);
        const auto image = pictures.Picture(name);
        mPicture.DrawImage(*image, {25, 3}, DrawStyle::Normal);
        const QImage once = mPicture.Pixels().copy();
        mPicture.DrawImage(*image, {25, 3}, DrawStyle::TransparentBlended);
        if (std::string_view(name) != "IDB_CRX_FRAME_TOTAL") {
            EXPECT_NE(mPicture.Pixels(), once) << name << " does not look selected";
        }
        mPicture.DrawImage(*image, {25, 3}, DrawStyle::Transparent);
        EXPECT_EQ(mPicture.Pixels(), once) << name;
    }
}

TEST_P(DrawingAtRatio, anInvertedRectangleTwiceIsNothing)
{
    mPicture.FillBox(MakeRect(10, 10, 30, 30), Blue);
    const QImage before = mPicture.Pixels().copy();
    for (const Rect& rect : {Rect{5, 7, 50, 41}, Rect{50, 41, 5, 7}, Rect{20, 20, 21, 60}, Rect{70, 60, 120, 90}}) {
        mPicture.DrawFocusRect(rect);
        EXPECT_NE(mPicture.Pixels(), before);
        mPicture.DrawFocusRect(rect);
        EXPECT_EQ(mPicture.Pixels(), before);
    }
    mPicture.DrawFocusRect({5, 5, 5, 30});
    EXPECT_EQ(mPicture.Pixels(), before) << "a rectangle without width";
}

TEST_P(DrawingAtRatio, aTriangleLooksTheSameOverAnotherAndStaysWithinItsRows)
{
    for (const Corner corner : {Corner::TopLeft, Corner::TopRight, Corner::BottomLeft, Corner::BottomRight}) {
        PersistentPicture rows({90, 70}, GetParam());
        mPicture.BackColor(vxColorWindowBackground);
        mPicture.FillTriangle(MakeRect(20, 20, 7, 7), corner, Red);
        const QImage once = mPicture.Pixels().copy();
        mPicture.FillTriangle(MakeRect(20, 20, 7, 7), corner, Blue);
        mPicture.FillTriangle(MakeRect(20, 20, 7, 7), corner, Red);
        EXPECT_EQ(mPicture.Pixels(), once);
        rows.Surface::FillTriangle(MakeRect(20, 20, 7, 7), corner, Red);
        const QRect difference = DifferenceOf(once, rows.Pixels());
        EXPECT_EQ(difference.isEmpty(), GetParam() == 1.0);
        for (int y = 0; y < once.height(); ++y) {
            for (int x = 0; x < once.width(); ++x) {
                if (rows.Pixels().pixel(x, y) == qRgb(255, 255, 255)) {
                    ASSERT_EQ(once.pixel(x, y), qRgb(255, 255, 255)) << x << ',' << y;
                }
            }
        }
    }
}

TEST_P(DrawingAtRatio, anotherWeightOrColourOfATextLeavesNothingOfTheFirst)
{
    mPicture.Font(qt::UiFont("Tahoma", 8.25));
    const Rect box = MakeRect(20, 20, 13, 13);
    for (const char* text : {"1", "3", "10", "11"}) {
        mPicture.BackColor(vxColorWindowBackground);
        mPicture.DrawCenteredText(text, box, FontWeight::Regular, vxColorGrayText);
        const QImage only = mPicture.Pixels().copy();
        EXPECT_GT(ColoursOf(only).size(), 1U);
        mPicture.DrawCenteredText(text, box, FontWeight::Bold, vxColorButtonText);
        EXPECT_NE(mPicture.Pixels(), only);
        mPicture.DrawCenteredText(text, box, FontWeight::Regular, vxColorGrayText);
        EXPECT_EQ(mPicture.Pixels(), only) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(ratios, DrawingAtRatio, ::testing::Values(1.0, 1.5, 2.0));

TEST(Drawing, keepsWhatWasDrawnWhenThePictureGrowsAndErasesWithTheBackground)
{
    PersistentPicture picture({40, 40}, 1);
    picture.BackColor(Blue);
    picture.FillBox(MakeRect(0, 0, 10, 10), Red);
    picture.Resize({80, 20});
    EXPECT_EQ(picture.Pixels().size(), QSize(80, 20));
    EXPECT_EQ(picture.Pixels().pixel(5, 5), qRgb(255, 0, 0));
    EXPECT_EQ(picture.Pixels().pixel(70, 5), qRgb(0, 0, 255));
    picture.BackColor(Blue);
    EXPECT_EQ(picture.Pixels().pixel(5, 5), qRgb(0, 0, 255));
}

} // namespace
} // namespace zqbchwcx::testing
