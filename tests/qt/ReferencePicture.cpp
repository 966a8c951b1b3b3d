#include "tests/qt/ReferencePicture.h"

#include "tests/support/SourceFile.h"

#include <QDir>

#include <algorithm>
#include <cstdlib>

namespace zqbchwcx::testing {

::testing::AssertionResult LooksLikeReference(const QImage& picture, const std::string& name)
{
    // Fonts are smoothed a little differently from one version of the font library to the next.
    constexpr int smoothing = 48;
    const QString stored = QString::fromStdString(SourceFile("tests/qt/references/" + name + ".png"));
    if (!qEnvironmentVariableIsEmpty("QUILLON_WRITE_REFERENCES")) {
        if (picture.save(stored)) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "cannot write " << stored.toStdString();
    }
    const QRect difference = DifferenceOf(picture, QImage(stored), smoothing);
    if (difference.isEmpty()) return ::testing::AssertionSuccess();
    const std::string actual = QUILLON_REPORT_DIR "/actual-" + name + ".png";
    QDir().mkpath(QStringLiteral(QUILLON_REPORT_DIR));
    picture.save(QString::fromStdString(actual));
    return ::testing::AssertionFailure() << name << " differs at " << TextOf(difference) << "; see " << actual;
}

QRect DifferenceOf(const QImage& a, const QImage& b, int smallestDifference)
{
    if (a.size() != b.size()) return a.rect().united(b.rect());
    QRect different;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            const int largest =
                std::max({std::abs(p.red() - q.red()), std::abs(p.green() - q.green()), std::abs(p.blue() - q.blue())});
            if (largest > smallestDifference) different |= QRect(x, y, 1, 1);
        }
    }
    return different;
}

std::string TextOf(const QRect& area)
{
    return std::to_string(area.x()) + "," + std::to_string(area.y()) + " " + std::to_string(area.width()) + "x" +
           std::to_string(area.height());
}

} // namespace zqbchwcx::testing
