// How long the overview of a distributed station of 64 places takes to draw, against a bare loop that puts the same
// pictures and numbers into a picture of the same size; what scrolling adds; and whether a focus move of the overview
// and its table costs more in the largest station. Ends with the ratios; fails when a limit is exceeded.

#include "bench/Ratios.h"
#include "bench/Stage.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/qt/PictureCatalog.h"
#include "zqbchwcx/qt/UiFont.h"
#include "zqbchwcx/views/overview/RowsLayout.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>

#include <vector>

using namespace zqbchwcx;
using quillon_ed::bench::DistributedStage;

namespace {

using Stage = quillon_ed::bench::StageOf<DistributedStage>;

constexpr std::int32_t PlaceCount = 64;
constexpr std::int32_t PlacesInRow = RowsLayout::PlacesInRow;
constexpr std::int32_t RowCount = PlaceCount / PlacesInRow;

/// Only QPainter: pictures that are ready, and numbers.
class BareLoop {
public:
    explicit BareLoop(Stage& stage) : mFont(qt::UiFont("Tahoma", 8.25))
    {
        for (std::int32_t lRow = 0; lRow < RowCount; ++lRow) {
            const std::int32_t lTop = RowsLayout::PlaceTop(lRow);
            Add(lRow == 0 ? "IDB_RIOA_RACK_START" : "IDB_RIOA_RACK_MIDLEFT", 3, lTop);
            Add("IDB_RIOA_PLACESTART_ACTIVE", RowsLayout::FirstPlaceLeft - 1, lTop);
            Add(lRow + 1 == RowCount ? "IDB_RIOA_RACK_END" : "IDB_RIOA_RACK_MIDRIGHT",
                RowsLayout::ColumnLeft(PlacesInRow), lTop);
        }
        for (std::int32_t lPlace = 1; lPlace <= PlaceCount; ++lPlace) {
            const std::int32_t lLeft = RowsLayout::ColumnLeft((lPlace - 1) % PlacesInRow);
            const std::int32_t lTop = RowsLayout::PlaceTop((lPlace - 1) / PlacesInRow);
            Add("IDB_RIOA_PLACEFRAME_ACTIVE", lLeft, lTop);
            Add(stage.PictureOf(0, lPlace, "IDB_RIOA_PLACE_ACTIVE", "IDB_RIOA_MODULE_SMTYPE1"), lLeft, lTop);
            mNumbers.push_back({QRect(lLeft + 4, lTop + 72, 13, 13), QString::number(lPlace)});
        }
        mPicture.fill(Qt::white);
    }

    void Draw()
    {
        QPainter painter(&mPicture);
        painter.setFont(mFont);
        for (const Piece& piece : mPieces) painter.drawImage(piece.at, piece.picture);
        for (const Number& number : mNumbers) painter.drawText(number.box, Qt::AlignCenter, number.text);
    }

private:
    struct Piece {
        QPoint at;
        QImage picture;
    };
    struct Number {
        QRect box;
        QString text;
    };

    void Add(const std::string& name, std::int32_t lLeft, std::int32_t lTop)
    {
        const QImage picture =
            mCatalog.Picture(name)->At({0, 0}, qt::PixelGrid(1), DrawStyle::Transparent, QColor(Qt::black));
        mPieces.push_back({QPoint(lLeft, lTop), picture});
    }

    QFont mFont;
    qt::PictureCatalog mCatalog;
    std::vector<Piece> mPieces;
    std::vector<Number> mNumbers;
    QImage mPicture{217, RowCount* RowsLayout::RowHeight + 2, QImage::Format_RGB32};
};

/// As many places as a station can have; those behind the example's last one hold modules like its third.
void Enlarge(reference::StationData& data)
{
    auto rack = std::make_shared<reference::RackData>(*data.racks.front());
    const reference::PlaceData filled = rack->places[2];
    rack->places.resize(reference::MaxPlaces, filled);
    data.racks.front() = std::move(rack);
}

/// A stage of its own for each benchmark: the services are there once at a time.
template <class Step>
void Run(benchmark::State& state, Stage& stage, Step step)
{
    bool bOdd = false;
    for (auto round : state) step(stage, bOdd = !bOdd);
}

/// The overview alone, drawn and not painted.
template <class Step>
void Register(const char* name, Step step)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        Stage stage;
        Run(state, stage, step);
    });
}

/// Both views on the screen, painting included.
template <class Step>
void RegisterShown(const char* name, const Stage::Change& change, Step step)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        Stage stage(Stage::Views::Both, change);
        stage.Show();
        Run(state, stage, [&](Stage& shown, bool bOdd) {
            step(shown, bOdd);
            QCoreApplication::processEvents();
        });
    });
}

void MoveFocus(Stage& stage, std::int32_t lPlace)
{
    stage.Focus(G_PlacePosition(0, lPlace));
}

void ScrollTo(Stage& stage, int row)
{
    stage.InOverview<QScrollBar>("scb_Main").setValue(row);
}

void MoveFocusInRow(Stage& stage, bool bOdd)
{
    MoveFocus(stage, bOdd ? 4 : 5);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    benchmark::RegisterBenchmark("BareLoop", [](benchmark::State& state) {
        Stage stage;
        BareLoop bareLoop(stage);
        for (auto step : state) bareLoop.Draw();
    });
    Register("Refresh", [](Stage& stage, bool) { stage.View().Refresh(); });
    Register("ScrollStep", [](Stage& stage, bool bOdd) { ScrollTo(stage, bOdd ? 1 : 0); });
    // From the first row to the fifth, which is below the viewport, and back.
    Register("ScrollingFocusMove", [](Stage& stage, bool bOdd) { MoveFocus(stage, bOdd ? 36 : 4); });
    Register("PlaceEvent", [](Stage& stage, bool) { stage.ChangePlace(); });
    RegisterShown("RefreshShown", {}, [](Stage& stage, bool) { stage.View().Refresh(); });
    // In the middle, and at the top, where a button becomes another and the arrow comes and goes.
    RegisterShown("ScrollStepShown", {}, [](Stage& stage, bool bOdd) { ScrollTo(stage, bOdd ? 1 : 2); });
    RegisterShown("ScrollStepAtTopShown", {}, [](Stage& stage, bool bOdd) { ScrollTo(stage, bOdd ? 1 : 0); });
    RegisterShown("FocusMove", {}, MoveFocusInRow);
    RegisterShown("FocusMoveIn499", Enlarge, MoveFocusInRow);
    benchmark::Initialize(&argc, argv);
    quillon_ed::bench::TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = times.Check("Refresh", "BareLoop", 1.0);
    bKept = times.Check("ScrollStep", "Refresh", 0.2) && bKept;
    bKept = times.Check("ScrollingFocusMove", "Refresh", 0.3) && bKept;
    bKept = times.Check("PlaceEvent", "Refresh", 0.05) && bKept;
    bKept = times.Check("ScrollStepShown", "RefreshShown", 3.0) && bKept;
    bKept = times.Check("ScrollStepAtTopShown", "RefreshShown", 5.0) && bKept;
    bKept = times.Check("FocusMoveIn499", "FocusMove", 1.3) && bKept;
    return bKept ? 0 : 1;
}
