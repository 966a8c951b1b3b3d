#include "app/window/ModuleList.h"

#include "app/document/SharedView.h"
#include "app/window/ModuleListModel.h"
#include "app/window/RangeTable.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

// Tabs and column headings together, and each row, as the overview's arrow takes them to be; more only where the font
// needs it.
constexpr int TabHeight = 20;
constexpr int HeaderHeight = 21;
constexpr int RowHeight = 15;

} // namespace

ModuleList::ModuleList(VxHWStationPtr station, VxHWSelectionHandlerPtr handler, QWidget* parent)
    : QWidget(parent), moStation(std::move(station)), moHandler(std::move(handler)), moModel(new ModuleListModel(this)),
      moTabs(new QTabBar(this)),
      moTable(new RangeTable([this] { return moModel->RowOf(moHandler->ShiftSelPosition()); }, this)),
      moRefresh(new QTimer(this))
{
    moTabs->setDrawBase(false);
    moTabs->setExpanding(false);
    moTable->setModel(moModel);
    moTable->setFrameShape(QFrame::NoFrame);
    moTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    moTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    moTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    moTable->setTabKeyNavigation(false);
    moTable->setAlternatingRowColors(true);
    moTable->setShowGrid(false);
    moTable->setWordWrap(false);
    moTable->setContextMenuPolicy(Qt::CustomContextMenu);
    moTable->verticalHeader()->hide();
    moTable->horizontalHeader()->setStretchLastSection(true);
    moTable->horizontalHeader()->setHighlightSections(false);
    moTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    moTable->installEventFilter(this);
    FitToFont();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(moTabs);
    column->addWidget(moTable, 1);
    setFocusProxy(moTable);

    // Many places may change in one go; the list follows when they are done.
    moRefresh->setSingleShot(true);
    moRefresh->setInterval(0);
    connect(moRefresh, &QTimer::timeout, this, [this] {
        FillTabs();
        moModel->Refresh();
        ShowSelection();
    });
    FillTabs();
    ShowRack(0);
    connect(moTabs, &QTabBar::currentChanged, this, &ModuleList::GoToRack);
    connect(moTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ModuleList::TakeSelection);
    connect(moTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid() && moModel->PositionOf(current.row()) != moHandler->FocusPosition())
                    TakeSelection();
            });
    connect(moTable, &QTableView::doubleClicked, this, &ModuleList::editRequested);
    connect(moTable, &QTableView::customContextMenuRequested, this,
            [this](const QPoint& point) { emit menuRequested(moTable->viewport()->mapToGlobal(point)); });
    mcolConnections.push_back(
        moStation->RackPlaceChange.Connect([this](const VxHWRackPlacePtr&) { moRefresh->start(); }));
    mcolConnections.push_back(moStation->RackChange.Connect([this](const VxHWRackPtr&) { moRefresh->start(); }));
    mcolConnections.push_back(moStation->TotalRefresh.Connect([this] { moRefresh->start(); }));
    mcolConnections.push_back(moHandler->SelChange.Connect([this] { ShowSelection(); }));
    mcolConnections.push_back(moHandler->FocusChange.Connect([this](std::int32_t) { ShowSelection(); }));
    RetranslateUi();
    ShowSelection();
}

ModuleList::~ModuleList() = default;

void ModuleList::RetranslateUi()
{
    moTable->setAccessibleName(tr("Modules of the rack"));
    moTabs->setAccessibleName(tr("Racks"));
    for (int tab = 0; tab < moTabs->count(); ++tab) moTabs->setTabText(tab, tr("Rack %1").arg(tab));
}

void ModuleList::FitToFont()
{
    const QFontMetrics metrics = fontMetrics();
    moTabs->setFixedHeight(std::max(TabHeight, metrics.height() + 4));
    moTable->horizontalHeader()->setFixedHeight(std::max(HeaderHeight, metrics.height() + 4));
    const int row = std::max(RowHeight, metrics.height());
    moTable->verticalHeader()->setMinimumSectionSize(row);
    moTable->verticalHeader()->setDefaultSectionSize(row);
    const int characters[] = {7, 26, 15, 11, 11};
    for (int column = 0; column < ModuleListModel::Comment; ++column)
        moTable->setColumnWidth(column, characters[column] * metrics.averageCharWidth());
}

void ModuleList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitToFont();
    if (event->type() != QEvent::LanguageChange) return;
    RetranslateUi();
    emit moModel->headerDataChanged(Qt::Horizontal, 0, ModuleListModel::ColumnCount - 1);
    moModel->Refresh();
}

bool ModuleList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == moTable && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        switch (key.key()) {
        case Qt::Key_F10: {
            if (!key.modifiers().testFlag(Qt::ShiftModifier)) break;
            const QRect row = moTable->visualRect(moTable->currentIndex());
            emit menuRequested(moTable->viewport()->mapToGlobal(row.center()));
            return true;
        }
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit editRequested();
            return true;
        case Qt::Key_Delete:
            emit deleteRequested();
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ModuleList::FillTabs()
{
    std::int32_t count = 0;
    G_Trap("ModuleList", "FillTabs", [&] { count = moStation->Racks()->Count(); });
    const QScopedValueRollback<bool> guard(mbSynchronizing, true);
    while (moTabs->count() > count) moTabs->removeTab(moTabs->count() - 1);
    while (moTabs->count() < count) moTabs->addTab(tr("Rack %1").arg(moTabs->count()));
}

void ModuleList::ShowRack(std::int32_t lRack)
{
    moModel->Show(moStation, lRack);
    moTabs->setCurrentIndex(lRack);
}

void ModuleList::GoToRack(std::int32_t lRack)
{
    if (mbSynchronizing || lRack < 0) return;
    const std::int32_t position =
        G_PlacePosition(lRack, moTable->currentIndex().isValid() ? moTable->currentIndex().row() + 1 : 1);
    ShowView(*moHandler, *moStation, {{position}, position, position});
}

void ModuleList::ShowSelection()
{
    if (mbSynchronizing) return;
    const QScopedValueRollback<bool> guard(mbSynchronizing, true);
    const reference::ViewState state = CaptureView(*moHandler);
    const PositionInfo focus = G_PositionInfo(state.focus);
    if (focus.eType != vxPositionNone && focus.lRack != moModel->Rack()) ShowRack(focus.lRack);

    QItemSelection selection;
    for (const std::int32_t position : state.selection) {
        const int row = moModel->RowOf(position);
        if (row >= 0) selection.select(moModel->index(row, 0), moModel->index(row, ModuleListModel::ColumnCount - 1));
    }
    moTable->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    const QModelIndex current = moModel->index(moModel->RowOf(state.focus), 0);
    moTable->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (current.isValid()) moTable->scrollTo(current);
}

void ModuleList::TakeSelection()
{
    if (mbSynchronizing) return;
    const QScopedValueRollback<bool> guard(mbSynchronizing, true);
    const reference::ViewState before = CaptureView(*moHandler);
    const Qt::KeyboardModifiers keys = QGuiApplication::keyboardModifiers();
    reference::ViewState state;
    // Ctrl adds to what is selected in other racks, too.
    if (keys.testFlag(Qt::ControlModifier)) {
        for (const std::int32_t position : before.selection)
            if (moModel->RowOf(position) < 0) state.selection.push_back(position);
    }
    for (const QModelIndex& index : moTable->selectionModel()->selectedRows()) {
        state.selection.push_back(moModel->PositionOf(index.row()));
    }
    state.focus = moModel->PositionOf(moTable->currentIndex().row());
    state.anchor = keys.testFlag(Qt::ShiftModifier) ? before.anchor : state.focus;
    ShowView(*moHandler, *moStation, state);
}

} // namespace quillon_ed
