// How long the overview of a full four-rack station takes to draw, against a bare loop that puts the same pictures and
// numbers into a picture of the same size. Ends with the ratios; fails when a limit is exceeded.

#include "bench/Ratios.h"
#include "bench/Stage.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/UiFont.h"

#include <QApplication>
#include <QPainter>

using namespace zqbchwcx;
using quillon_ed::bench::Stage;

namespace {

constexpr std::int32_t RackCount = 4;
constexpr std::int32_t PlaceCount = 11;

/// Only QPainter: pictures that are ready, and numbers.
class BareLoop {
public:
    explicit BareLoop(Stage& stage) : mFont(qt::UiFont("Tahoma", 8.25))
    {
        qt::PictureCatalog catalog;
        const auto ready = [&](const std::string& name) {
            return catalog.Picture(name)->At({0, 0}, qt::PixelGrid(1), DrawStyle::Normal, Qt::black);
        };
        mNumberPlate = ready("IDB_CRX_RACKNR_ACTIVE");
        for (std::int32_t lRack = 0; lRack < RackCount; ++lRack) {
            for (std::int32_t lPlace = 1; lPlace <= PlaceCount; ++lPlace)
                mPlaces.push_back(
                    {QRect(25 + (lPlace - 1) * 18, (3 - lRack) * 92 + 30, 18, 60),
                     ready(stage.PictureOf(lRack, lPlace, "IDB_CRX_PLACE_ACTIVE", "IDB_CRX_MODULE_DEFAULT")),
                     QString::number(lPlace)});
        }
        mPicture.fill(Qt::white);
    }

    void Draw()
    {
        QPainter painter(&mPicture);
        painter.setFont(mFont);
        for (std::int32_t lRack = 0; lRack < RackCount; ++lRack) {
            const int top = (3 - lRack) * 92 + 30;
            painter.drawImage(12, top, mNumberPlate);
            painter.drawText(QRect(12, top, 13, 13), Qt::AlignCenter, QString::number(lRack));
        }
        for (const Place& place : mPlaces) {
            painter.drawText(QRect(place.cell.left() + 3, place.cell.top() + 33, 13, 13), Qt::AlignCenter,
                             place.number);
            painter.drawImage(place.cell.topLeft(), place.picture);
        }
    }

private:
    struct Place {
        QRect cell;
        QImage picture;
        QString number;
    };

    QFont mFont;
    QImage mNumberPlate;
    std::vector<Place> mPlaces;
    QImage mPicture{238, 392, QImage::Format_RGB32};
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Stage stage;
    BareLoop bareLoop(stage);

    benchmark::RegisterBenchmark("BareLoop", [&](benchmark::State& state) {
        for (auto step : state) bareLoop.Draw();
    });
    benchmark::RegisterBenchmark("Refresh", [&](benchmark::State& state) {
        for (auto step : state) stage.View().Refresh();
    });
    benchmark::RegisterBenchmark("FocusMove", [&](benchmark::State& state) {
        bool bLeft = true;
        for (auto step : state) stage.Focus(G_PlacePosition(0, (bLeft = !bLeft) ? 4 : 5));
    });
    benchmark::RegisterBenchmark("PlaceEvent", [&](benchmark::State& state) {
        for (auto step : state) stage.ChangePlace();
    });
    benchmark::Initialize(&argc, argv);
    quillon_ed::bench::TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = times.Check("Refresh", "BareLoop", 1.5);
    bKept = times.Check("FocusMove", "Refresh", 0.15) && bKept;
    bKept = times.Check("PlaceEvent", "Refresh", 0.06) && bKept;
    return bKept ? 0 : 1;
}
