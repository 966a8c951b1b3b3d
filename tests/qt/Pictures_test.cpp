#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/QtImageList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace zqbchwcx::testing {
namespace {

using qt::PictureCatalog;

class Pictures : public ::testing::Test {
protected:
    QImage Drawn(const std::string& name, double ratio = 1)
    {
        return mCatalog.Picture(name)->At({0, 0}, qt::PixelGrid(ratio), DrawStyle::Normal, Qt::black);
    }

    PictureCatalog mCatalog;
};

/// Whether every pixel is transparent in the areas, and opaque elsewhere.
bool IsOpenOnlyIn(const std::vector<QRect>& areas, const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool bOpen = std::any_of(areas.begin(), areas.end(), [&](auto& area) { return area.contains(x, y); });
            if (qAlpha(image.pixel(x, y)) != (bOpen ? 0 : 255)) return false;
        }
    }
    return true;
}

TEST_F(Pictures, everyPictureOfTheStripsIsThereAndNoTwoModulesLookAlike)
{
    const auto list = mCatalog.Create(0, "IDB_CRX_ALL", 18, 0, vxColorCyan, 1);
    EXPECT_EQ(list->Count(), 28);
    EXPECT_EQ(mCatalog.Create(0, "IDB_CRX_RACK", 218, 0, vxColorCyan, 1)->Count(), 1);
    EXPECT_THROW(mCatalog.Create(0, "IDB_NONE", 18, 0, vxColorCyan, 1), VxError);
    EXPECT_THROW(mCatalog.Create(0, "IDB_CRX_ALL", 20, 0, vxColorCyan, 1), VxError);
    EXPECT_THROW(mCatalog.Picture("IDB_NONE"), VxError);

    std::map<QByteArray, std::string> seen;
    for (const auto& name : PictureCatalog::Names()) {
        const QImage image = Drawn(name);
        const QByteArray bits(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        EXPECT_TRUE(seen.emplace(bits, name).second) << name << " looks like " << seen[bits];
    }
}

TEST_F(Pictures, areOpenWhereTheDrawingBelowHasToShow)
{
    EXPECT_EQ(Drawn("IDB_CRX_RACK").size(), QSize(218, 62));
    EXPECT_TRUE(IsOpenOnlyIn({{14, 1, 198, 60}, {1, 1, 12, 13}}, Drawn("IDB_CRX_RACK"))) << "places and rack number";
    EXPECT_EQ(Drawn("IDB_DIAG_FAILURE").size(), QSize(12, 12));
    EXPECT_EQ(Drawn("IDB_CRX_RACKNR_ACTIVE").size(), QSize(12, 13));
    for (const auto& name : PictureCatalog::Names()) {
        const QImage image = Drawn(name);
        if (name.starts_with("IDB_DIAG_CPU_")) {
            EXPECT_EQ(image.size(), QSize(12, 8));
        } else if (name.starts_with("IDB_CRX_PLACE_") || name.starts_with("IDB_CRX_MODULE_")) {
            EXPECT_EQ(image.size(), QSize(18, 60)) << name;
            EXPECT_TRUE(IsOpenOnlyIn({{2, 34, 14, 11}}, image)) << name << " hides or frames its number wrongly";
        } else if (name.starts_with("IDB_COMP_")) {
            EXPECT_EQ(image.size(), QSize(16, 16));
            EXPECT_TRUE(IsOpenOnlyIn({image.rect()}, image.copy(0, 0, 16, 2))) << name << " reaches into the number";
        }
    }
}

/// A picture directory with files of all kinds.
class PictureFiles : public ::testing::Test {
protected:
    void Write(const QString& name, const QByteArray& content)
    {
        QFile file(mDirectory.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void WritePicture(const QString& name, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(10, 200, 30));
        for (int x = 0; x < size.width() / 2; ++x) image.setPixel(x, 0, qRgb(0, 255, 255));
        ASSERT_TRUE(image.save(mDirectory.filePath(name)));
    }
    bool Add(const char* name)
    {
        const std::string path = QDir::toNativeSeparators(mDirectory.path()).toStdString() + "\\" + name + ".bmp";
        return mList.AddFile(path, name);
    }
    const QImage& Drawn(const char* name, double ratio)
    {
        return mList.Image(name).At({0, 0}, qt::PixelGrid(ratio), DrawStyle::Normal, Qt::black);
    }

    QTemporaryDir mDirectory;
    qt::QtImageList mList{18};
};

TEST_F(PictureFiles, bitmapsLoadWithCyanTransparentAndStayCrisp)
{
    WritePicture("HQ_COUNTER.bmp", {18, 60});
    ASSERT_TRUE(Add("HQ_COUNTER"));
    const QImage& twice = Drawn("HQ_COUNTER", 2);
    EXPECT_EQ(twice.size(), QSize(36, 120));
    EXPECT_EQ(qAlpha(twice.pixel(17, 1)), 0);
    EXPECT_EQ(twice.pixel(18, 1), qRgb(10, 200, 30));
    EXPECT_EQ(twice.pixel(17, 2), qRgb(10, 200, 30));
    EXPECT_EQ(Drawn("HQ_COUNTER", 1.25).size(), QSize(23, 75));
}

TEST_F(PictureFiles, otherKindsAndLetterCasesAreTakenInTheirStead)
{
    WritePicture("FINE.png", {36, 120});
    Write("VECTOR.svg", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 36 120'>"
                        "<rect width='36' height='120' fill='#ff0000'/></svg>");
    WritePicture("lower.bmp", {18, 60});
    EXPECT_TRUE(Add("FINE"));
    EXPECT_EQ(mList.Image("FINE").LogicalSize(), (Size{18, 60})) << "a finer picture of the same cell";
    EXPECT_EQ(Drawn("FINE", 2).pixel(0, 0), qRgb(0, 255, 255)) << "cyan is a colour in a PNG file";
    EXPECT_TRUE(Add("VECTOR"));
    EXPECT_EQ(Drawn("VECTOR", 3).size(), QSize(54, 180));
    EXPECT_TRUE(Add("LOWER"));
    EXPECT_EQ(mList.Count(), 3);
}

TEST_F(PictureFiles, aFileThatIsNoPictureIsRefusedAndTheListUnchanged)
{
    WritePicture("WHOLE.bmp", {18, 60});
    QFile whole(mDirectory.filePath("WHOLE.bmp"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    Write("CUT.bmp", whole.read(20));
    Write("EMPTY.bmp", {});
    Write("TEXT.bmp", "not a picture at all");
    Write("BROKEN.svg", "<svg xmlns='http://www.w3.org/2000/svg'><rect");
    WritePicture("HUGE.bmp", {5000, 2});
    for (const char* name : {"CUT", "EMPTY", "TEXT", "BROKEN", "HUGE", "MISSING", "../"}) {
        EXPECT_FALSE(Add(name)) << name;
        EXPECT_FALSE(mList.Contains(name)) << name;
    }
    EXPECT_EQ(mList.Count(), 0);
    EXPECT_THROW(mList.Image("CUT"), VxError);

    WritePicture("CUT.png", {18, 60});
    EXPECT_TRUE(Add("CUT")) << "a whole picture of the same name beside a broken one";
}

} // namespace
} // namespace zqbchwcx::testing
