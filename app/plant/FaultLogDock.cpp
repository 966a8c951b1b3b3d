#include "app/plant/FaultLogDock.h"

#include "app/host/ScreenRoom.h"
#include "app/plant/FaultLogModel.h"
#include "zqbchwcx/reference/commands/TableText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int LeastLines = 4; ///< with the headings

} // namespace

FaultLogDock::FaultLogDock(FaultLogModel& model, QWidget* parent)
    : QDockWidget(parent), moModel(model), moFiltered(new QSortFilterProxyModel(this)), moFilter(new QLineEdit(this)),
      moList(new QTreeView(this)), moSave(new QPushButton(this)), moClear(new QPushButton(this))
{
    setObjectName(QStringLiteral("faultLogDock"));
    moClear->setObjectName(QStringLiteral("clearLog"));
    moFiltered->setSourceModel(&model);
    moFiltered->setFilterKeyColumn(-1);
    moFiltered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    moList->setModel(moFiltered);
    moList->setRootIsDecorated(false);
    moList->setUniformRowHeights(true);
    moList->setAllColumnsShowFocus(true);
    moList->header()->setStretchLastSection(true);
    const int widths[] = {30, 8, 24};
    for (int column = 0; column < FaultLogModel::What; ++column)
        moList->header()->resizeSection(column, TextSize(*this, widths[column], 1).width());
    moList->setMinimumHeight(TextSize(*this, 0, LeastLines).height());
    moFilter->setClearButtonEnabled(true);
    for (QPushButton* button : {moSave, moClear}) button->setAutoDefault(false);

    auto* content = new QWidget(this);
    auto* line = new QHBoxLayout(content);
    line->setContentsMargins(6, 4, 6, 6);
    auto* column = new QVBoxLayout;
    column->addWidget(moFilter);
    column->addWidget(moList, 1);
    line->addLayout(column, 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(moSave);
    buttons->addWidget(moClear);
    buttons->addStretch();
    line->addLayout(buttons);
    setWidget(content);

    connect(moFilter, &QLineEdit::textChanged, moFiltered, &QSortFilterProxyModel::setFilterFixedString);
    connect(moList, &QTreeView::activated, this, &FaultLogDock::Choose);
    connect(moSave, &QPushButton::clicked, this, &FaultLogDock::saveRequested);
    connect(moClear, &QPushButton::clicked, &model, &FaultLogModel::Clear);
    // The newest entry stays in view unless the user looks at older ones.
    connect(moFiltered, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar* bar = moList->verticalScrollBar();
        if (bar->value() == bar->maximum())
            QMetaObject::invokeMethod(moList, &QTreeView::scrollToBottom, Qt::QueuedConnection);
    });
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(moFiltered, signal, this, &FaultLogDock::UpdateButtons);
    connect(moFiltered, &QAbstractItemModel::modelReset, this, &FaultLogDock::UpdateButtons);
    RetranslateUi();
    UpdateButtons();
}

void FaultLogDock::RetranslateUi()
{
    setWindowTitle(tr("Faults that came and went"));
    toggleViewAction()->setText(tr("&Fault log"));
    moList->setAccessibleName(windowTitle());
    moFilter->setPlaceholderText(tr("Filter by place, module or fault"));
    moFilter->setAccessibleName(moFilter->placeholderText());
    moSave->setText(tr("Save as CSV…"));
    moClear->setText(tr("Clear"));
}

void FaultLogDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void FaultLogDock::UpdateButtons()
{
    const bool hasEntries = moFiltered->rowCount() > 0;
    moSave->setEnabled(hasEntries);
    moClear->setEnabled(hasEntries);
}

void FaultLogDock::Choose(const QModelIndex& shown)
{
    const reference::PlantLogEntry& entry = moModel.EntryAt(moFiltered->mapToSource(shown).row());
    if (entry.item) emit placeChosen(*entry.item);
}

QByteArray FaultLogDock::Csv() const
{
    const auto row = [](auto cell) {
        reference::TextRow cells;
        for (int column = 0; column < FaultLogModel::ColumnCount; ++column)
            cells.push_back(cell(column).toString().toStdString());
        return cells;
    };
    std::vector<reference::TextRow> rows{
        row([this](int column) { return moFiltered->headerData(column, Qt::Horizontal, Qt::DisplayRole); })};
    for (int line = 0; line < moFiltered->rowCount(); ++line)
        rows.push_back(row([&](int column) { return moFiltered->index(line, column).data(); }));
    return QByteArray::fromStdString(reference::WriteCsv(rows));
}

} // namespace quillon_ed
