#include "app/window/StationViews.h"

#include "app/document/Document.h"
#include "app/export/PartShown.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/qt/RackTableRIOWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"
#include "zqbchwcx/views/shared/QuietView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int OverviewWidth = 256; // the racks, and room for the arrow to the list

/// On a low screen the picture is seen in parts; what lies beside it for its arrow moves with it.
QScrollArea* MakeScrollable(QWidget* content, bool bFromBelow)
{
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    if (!bFromBelow) return scroll;
    // The first rack is the lowest one.
    QScrollBar* bar = scroll->verticalScrollBar();
    QObject::connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int last) { bar->setValue(last); });
    return scroll;
}

QBoxLayout* WithoutGaps(QBoxLayout* layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// The table stands right of the picture, and as high: the arrow of the picture points at its rows.
QWidget* SideBySide(QWidget* left, QWidget* table, QWidget* below)
{
    auto* both = new QWidget;
    both->setBackgroundRole(QPalette::Base);
    both->setAutoFillBackground(true);
    left->setFixedWidth(OverviewWidth);
    QBoxLayout* line = WithoutGaps(new QHBoxLayout(both));
    line->addWidget(left);
    // A table that scrolls is as high as the window allows.
    const bool bGrows = table->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    QBoxLayout* column = WithoutGaps(new QVBoxLayout);
    column->addWidget(table, bGrows ? 1 : 0);
    if (below) column->addWidget(below, bGrows ? 0 : 1);
    else if (!bGrows) column->addStretch(1);
    line->addLayout(column, 1);
    return both;
}

bool IsCentral(const reference::Station& station)
{
    return station.StationKind() == vxStationKindCentral;
}

} // namespace

StationViews::StationViews(Document& document, QWidget* parent)
    : QWidget(parent), moDocument(document), mbHasTable(!PartShown(document.Station()->Data())),
      moTable(std::make_shared<QuietView>())
{
    moLeft = MakeLeftSide();
    if (mbHasTable) moTableWidget = MakeTable();
    CoupleRows();
}

void StationViews::LayOut(QWidget* instead, QWidget* below)
{
    QBoxLayout* line = WithoutGaps(new QHBoxLayout(this));
    if (mbHasTable) {
        // The table has its width; where the window leaves less, both are seen in parts.
        moScroll = MakeScrollable(SideBySide(moLeft, moTableWidget, below), IsCentral(*moDocument.Station()));
        moScroll->setObjectName(QStringLiteral("stationViews"));
        moScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        line->addWidget(moScroll);
        return;
    }
    QScrollArea* scroll = MakeScrollable(moLeft, true);
    scroll->setFixedWidth(OverviewWidth);
    line->addWidget(scroll);
    QBoxLayout* column = WithoutGaps(new QVBoxLayout);
    column->addWidget(instead, 1);
    if (below) column->addWidget(below);
    line->addLayout(column, 1);
}

QWidget* StationViews::MakeLeftSide()
{
    const reference::Station& station = *moDocument.Station();
    if (!IsCentral(station)) return UseOverview(new qt::RackOverviewRIOWidget(this));
    QWidget* overview = UseOverview(new qt::RackOverviewWidget(this));
    const QString part = PartShownText(station);
    if (part.isEmpty()) return overview;
    auto* left = new QWidget(this);
    QBoxLayout* column = WithoutGaps(new QVBoxLayout(left));
    moPartShown = new QLabel(part, left);
    moPartShown->setWordWrap(true);
    moPartShown->setMargin(6);
    moPartShown->setBackgroundRole(QPalette::Base);
    moPartShown->setForegroundRole(QPalette::Text);
    moPartShown->setAutoFillBackground(true);
    column->addWidget(overview, 1);
    column->addWidget(moPartShown);
    connect(&moDocument, &Document::changed, this, &StationViews::TellPartShown);
    return left;
}

void StationViews::TellPartShown()
{
    if (moPartShown) moPartShown->setText(PartShownText(*moDocument.Station()));
}

void StationViews::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) TellPartShown();
}

template <class Widget>
QWidget* StationViews::UseOverview(Widget* widget)
{
    moOverview = widget->Control();
    moOverviewWidget = widget;
    return widget;
}

QWidget* StationViews::MakeTable()
{
    if (IsCentral(*moDocument.Station())) return UseTable(new qt::RackTableWidget(this));
    return UseTable(new qt::RackTableRIOWidget(this));
}

template <class Widget>
QWidget* StationViews::UseTable(Widget* widget)
{
    moTable = widget->Control();
    connect(widget, &qt::TableWidget::editRefused, this, &StationViews::editRefused);
    return widget;
}

void StationViews::CoupleRows()
{
    const auto overview = std::dynamic_pointer_cast<VxHWRackOverviewRIO>(moOverview);
    const auto table = std::dynamic_pointer_cast<VxHWRackTableRIO>(moTable);
    if (!overview || !table) return;
    const auto couple = [&overview = *overview, &table = *table] {
        overview.RackTableTopRow(table.TopRow());
        overview.RackTableRowsInView(table.RowsInView());
    };
    couple();
    mcolConnections.push_back(table->TopRowChange.Connect(couple));
    mcolConnections.push_back(table->RowsInViewChange.Connect(couple));
}

void StationViews::FocusOverview()
{
    moOverviewWidget->setFocus();
}

int StationViews::LackingWidth() const
{
    return moScroll ? std::max(moScroll->widget()->minimumSizeHint().width() - moScroll->viewport()->width(), 0) : 0;
}

std::vector<QScrollBar*> StationViews::Bars() const
{
    // Other modes show other things beside the views.
    std::vector<QScrollBar*> bars;
    for (const QWidget* view : {moOverviewWidget, moTableWidget})
        if (view)
            for (auto* bar : view->findChildren<QScrollBar*>()) bars.push_back(bar);
    if (moScroll) bars.insert(bars.end(), {moScroll->horizontalScrollBar(), moScroll->verticalScrollBar()});
    return bars;
}

std::vector<int> StationViews::Scrolled() const
{
    std::vector<int> values;
    for (const auto* bar : Bars()) values.push_back(bar->value());
    return values;
}

void StationViews::ScrollTo(const std::vector<int>& values)
{
    const auto bars = Bars();
    for (std::size_t i = 0; i < bars.size() && i < values.size(); ++i) bars[i]->setValue(values[i]);
}

} // namespace quillon_ed
