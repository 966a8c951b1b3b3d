#include "tests/qt/ReferencePicture.h"
#include "tests/support/SourceFile.h"

#include <QDir>
#include <QFile>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace zqbchwcx::testing {
namespace {

/// Fonts are smoothed a little differently from one version of the font library to the next.
constexpr int LargestChannelDifference = 48;

bool Differs(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))}) >
           LargestChannelDifference;
}

QImage DifferencePicture(const QImage& picture, const QImage& reference, int& count)
{
    QImage difference = picture.convertToFormat(QImage::Format_RGB32);
    count = 0;
    for (int y = 0; y < difference.height(); ++y) {
        for (int x = 0; x < difference.width(); ++x) {
            const bool bDiffers = Differs(picture.pixel(x, y), reference.pixel(x, y));
            count += bDiffers ? 1 : 0;
            const int gray = 160 + qGray(picture.pixel(x, y)) * 95 / 255;
            difference.setPixel(x, y, bDiffers ? qRgb(255, 0, 160) : qRgb(gray, gray, gray));
        }
    }
    return difference;
}

} // namespace

::testing::AssertionResult LooksLikeReference(const QImage& picture, const std::string& name)
{
    const QString file = QString::fromStdString(name) + ".png";
    const QString stored =
        QDir(QString::fromStdString(zqbchwcx::testing::SourceFile("tests/qt/references"))).filePath(file);
    if (!qEnvironmentVariableIsEmpty("QUILLON_WRITE_REFERENCES")) {
        if (picture.save(stored)) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "cannot write " << stored.toStdString();
    }

    const QDir reports(QStringLiteral(QUILLON_REPORT_DIR));
    reports.mkpath(QStringLiteral("."));
    const auto failure = [&](const std::string& what) {
        picture.save(reports.filePath("actual-" + file));
        return ::testing::AssertionFailure() << name << ": " << what << "; see " << reports.path().toStdString();
    };
    const QImage reference(stored);
    if (reference.isNull()) return failure("there is no reference picture");
    if (reference.size() != picture.size()) return failure("the size differs");
    int count = 0;
    const QImage difference = DifferencePicture(picture, reference, count);
    if (count == 0) return ::testing::AssertionSuccess();
    difference.save(reports.filePath("difference-" + file));
    return failure(std::to_string(count) + " pixels differ");
}

QRect DifferenceOf(const QImage& a, const QImage& b)
{
    if (a.size() != b.size()) return a.rect().united(b.rect());
    QRect different;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) different |= QRect(x, y, 1, 1);
        }
    }
    return different;
}

} // namespace zqbchwcx::testing
