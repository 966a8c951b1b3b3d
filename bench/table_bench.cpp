// How long the table of a full four-rack station takes to fill and to paint, against a QTableWidget that is filled with
// the same cells, and what it adds to the overview beside it. Ends with the ratios; fails when a limit is exceeded.

#include "bench/Ratios.h"
#include "bench/Stage.h"
#include "zqbchwcx/foundation/PlacePosition.h"

#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>

using namespace zqbchwcx;
using quillon_ed::bench::Stage;

namespace {

/// The cells of a table of the program.
struct Cells {
    QStringList captions;
    std::vector<int> widths;
    std::vector<QStringList> rows;
};

Cells CellsOf(const qt::GridContent& content)
{
    Cells cells;
    for (std::int32_t lColumn = 1; lColumn <= content.ColumnCount(); ++lColumn) {
        cells.captions << content.Column(lColumn).caption;
        cells.widths.push_back(content.Column(lColumn).lWidth);
    }
    for (std::int32_t lRow = 1; lRow <= content.RowCount(); ++lRow) {
        QStringList row;
        for (std::int32_t lColumn = 1; lColumn <= content.ColumnCount(); ++lColumn)
            row << content.Cell({lRow, lColumn}).text;
        cells.rows.push_back(row);
    }
    return cells;
}

/// A table as the toolkit has it.
class PlainTable {
public:
    explicit PlainTable(Cells cells)
        : mCells(std::move(cells)), mWidget(int(mCells.rows.size()), int(mCells.captions.size()))
    {
        mWidget.setHorizontalHeaderLabels(mCells.captions);
        mWidget.verticalHeader()->hide();
        mWidget.verticalHeader()->setMinimumSectionSize(1);
        mWidget.verticalHeader()->setDefaultSectionSize(15);
        mWidget.horizontalHeader()->setStretchLastSection(true);
        for (std::size_t column = 0; column < mCells.widths.size(); ++column)
            mWidget.setColumnWidth(int(column), mCells.widths[column]);
        mWidget.resize(Stage::TableSize);
        mWidget.show();
    }

    void Refill()
    {
        mWidget.clearContents();
        for (int row = 0; row < mWidget.rowCount(); ++row)
            for (int column = 0; column < mWidget.columnCount(); ++column)
                mWidget.setItem(row, column, new QTableWidgetItem(mCells.rows[std::size_t(row)][column]));
        QCoreApplication::processEvents();
    }

private:
    Cells mCells;
    QTableWidget mWidget;
};

/// A benchmark with a stage of its own: the services are there once at a time.
template <class Step>
void Register(const char* name, Stage::Views views, Step step)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        Stage stage(views);
        stage.Show();
        bool bOdd = false;
        for (auto round : state) {
            step(stage, bOdd = !bOdd);
            QCoreApplication::processEvents();
        }
    });
}

void MoveFocus(Stage& stage, bool bOdd)
{
    stage.Focus(G_PlacePosition(0, bOdd ? 4 : 5));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto cells = [] {
        Stage stage(Stage::Views::Both);
        return CellsOf(stage.Grid().Model().Content());
    }();

    benchmark::RegisterBenchmark("PlainRefill", [&](benchmark::State& state) {
        PlainTable plain(cells);
        for (auto round : state) plain.Refill();
    });
    Register("Refill", Stage::Views::Both, [](Stage& stage, bool) { stage.Table().Refresh(); });
    Register("OneRow", Stage::Views::Both, [](Stage& stage, bool) { stage.ChangePlace(); });
    Register("ChangeRack", Stage::Views::Both, [](Stage& stage, bool bOdd) { stage.Table().ActiveRack(bOdd ? 1 : 0); });
    Register("FocusMoveAlone", Stage::Views::Overview, MoveFocus);
    Register("FocusMoveBoth", Stage::Views::Both, MoveFocus);
    benchmark::Initialize(&argc, argv);
    quillon_ed::bench::TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = times.Check("Refill", "PlainRefill", 0.5);
    bKept = times.Check("OneRow", "PlainRefill", 0.15) && bKept;
    bKept = times.Check("ChangeRack", "PlainRefill", 1) && bKept;
    bKept = times.Check("FocusMoveBoth", "FocusMoveAlone", 1.5) && bKept;
    return bKept ? 0 : 1;
}
