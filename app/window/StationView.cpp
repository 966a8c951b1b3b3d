#include "app/window/StationView.h"

#include "app/document/Document.h"
#include "app/document/SharedView.h"
#include "app/export/PartShown.h"
#include "app/host/PlainText.h"
#include "app/window/CellMessage.h"
#include "app/window/ModuleList.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/qt/RackTableRIOWidget.h"
#include "zqbchwcx/qt/RackTableWidget.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"
#include "zqbchwcx/views/shared/QuietView.h"

#include <QDragMoveEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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

/// The table stands right of the picture, and as high: the arrow of the picture points at its rows.
QWidget* SideBySide(QWidget* left, QWidget* table)
{
    auto* both = new QWidget;
    both->setBackgroundRole(QPalette::Base);
    both->setAutoFillBackground(true);
    left->setFixedWidth(OverviewWidth);
    auto* line = new QHBoxLayout(both);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    line->addWidget(left);
    // A table that scrolls is as high as the window allows.
    const bool bGrows = table->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    line->addWidget(table, 1, bGrows ? Qt::Alignment() : Qt::AlignTop);
    return both;
}

/// Whether the table shows all racks and places of the station.
bool HasTable(const reference::Station& station)
{
    return !PartShown(station.Data());
}

bool IsCentral(const reference::Station& station)
{
    return station.StationKind() == vxStationKindCentral;
}

} // namespace

/// Keeps the view as it was when a drag came in.
class StationView::DragWatch : public IVxHWDragDropCtrlEvents {
public:
    DragWatch(IVxHWDragDropControllerPtr controller, VxHWSelectionHandlerPtr handler)
        : moController(std::move(controller)), moHandler(std::move(handler))
    {
    }

    bool IsDragging() const { return moController->State() == vxDragDropStateActive; }
    const reference::ViewState& ViewBefore() const { return moBefore; }

    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override
    {
        if (ePreviousValue == vxDragDropStateInactive) moBefore = CaptureView(*moHandler);
    }

private:
    IVxHWDragDropControllerPtr moController;
    VxHWSelectionHandlerPtr moHandler;
    reference::ViewState moBefore;
};

StationView::StationView(Document& document, QWidget* parent)
    : QWidget(parent), moDocument(document), moTable(std::make_shared<zqbchwcx::QuietView>()),
      moManager(std::make_unique<VxHWConfigManager>())
{
    const reference::StationPtr& station = document.Station();
    QWidget* left = MakeLeftSide();
    QWidget* table = HasTable(*station) ? MakeTable() : nullptr;
    CoupleRows();
    moManager->Initialize(static_cast<VxEnumStationType>(station->StationKind()), moOverview, moTable, station);
    moHandler = moManager->VxHWSelectionHandler();
    moDragWatch = std::make_shared<DragWatch>(moTable->VxHWDragDropController(), moHandler);
    if (const auto controller = std::dynamic_pointer_cast<IVxHWController>(moTable->VxHWDragDropController())) {
        controller->AddSubscriber(moDragWatch);
    }
    // The manager wires the views; drawing them is the host's.
    moOverview->Refresh();
    moTable->Refresh();

    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    if (table) {
        // The table has its width; where the window leaves less, both are seen in parts.
        moViews = MakeScrollable(SideBySide(left, table), IsCentral(*station));
        moViews->setObjectName(QStringLiteral("stationViews"));
        moViews->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        line->addWidget(moViews);
    } else {
        QScrollArea* scroll = MakeScrollable(left, true);
        scroll->setFixedWidth(OverviewWidth);
        line->addWidget(scroll);
        line->addWidget(MakeList(), 1);
    }
    moCellMessage = new CellMessage(this);
    mcolConnections.push_back(station->Refused.Connect([this](const reference::Refusal& refusal) {
        msRefusal = PlainText(refusal.text, moDocument.Station()->Context()->CurrentLanguage(), LongestDescription);
    }));

    for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
    mcolConnections.push_back(moHandler->SelChange.Connect([this] { emit selectionChanged(); }));
    mcolConnections.push_back(moHandler->FocusChange.Connect([this](std::int32_t) { emit selectionChanged(); }));
    document.ShownBy(
        {[this] { return View(); },
         [this](const reference::ViewState& state) { ShowView(*moHandler, *moDocument.Station(), state); }});
}

StationView::~StationView()
{
    moDocument.ShownBy({});
    mcolConnections.clear();
    moManager->Terminate();
}

QWidget* StationView::MakeLeftSide()
{
    const reference::Station& station = *moDocument.Station();
    if (!IsCentral(station)) return UseOverview(new qt::RackOverviewRIOWidget(this));
    QWidget* overview = UseOverview(new qt::RackOverviewWidget(this));
    const QString part = PartShownText(station);
    if (part.isEmpty()) return overview;
    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    moPartShown = new QLabel(part, left);
    moPartShown->setWordWrap(true);
    moPartShown->setMargin(6);
    moPartShown->setBackgroundRole(QPalette::Base);
    moPartShown->setForegroundRole(QPalette::Text);
    moPartShown->setAutoFillBackground(true);
    column->addWidget(overview, 1);
    column->addWidget(moPartShown);
    connect(&moDocument, &Document::changed, this, &StationView::TellPartShown);
    return left;
}

void StationView::TellPartShown()
{
    if (moPartShown) moPartShown->setText(PartShownText(*moDocument.Station()));
}

template <class Widget>
QWidget* StationView::UseOverview(Widget* widget)
{
    moOverview = widget->Control();
    moOverviewWidget = widget;
    return widget;
}

bool StationView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter) mlDropTold = vxNoPosition;
    if (event->type() == QEvent::DragMove) {
        const auto& over = static_cast<const QDragMoveEvent&>(*event);
        const auto* source = qobject_cast<const QWidget*>(over.source());
        const bool bMove = source != nullptr && isAncestorOf(source) && !over.modifiers().testFlag(Qt::ControlModifier);
        // The controller knows the position when the event is over.
        QTimer::singleShot(0, this, [this, bMove] { TellDropTarget(bMove); });
    }
    // The controllers of a station that may not be changed are silent, and so are the window's disabled commands.
    const auto objection = moDocument.Station()->AgainstEditing();
    if (objection && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        for (const auto sequence : {QKeySequence::Delete, QKeySequence::Cut, QKeySequence::Paste}) {
            if (!key.matches(sequence)) continue;
            emit refused(*objection);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QWidget* StationView::MakeTable()
{
    if (IsCentral(*moDocument.Station())) return UseTable(new qt::RackTableWidget(this));
    return UseTable(new qt::RackTableRIOWidget(this));
}

template <class Widget>
QWidget* StationView::UseTable(Widget* widget)
{
    moTable = widget->Control();
    connect(widget, &qt::TableWidget::editRefused, this, &StationView::TellRefusedEdit);
    return widget;
}

void StationView::CoupleRows()
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

QWidget* StationView::MakeList()
{
    moList = new ModuleList(moDocument.Station(), moHandler, this);
    connect(moList, &ModuleList::editRequested, this, [this] { moManager->EditModuleParams(); });
    connect(moList, &ModuleList::deleteRequested, this, [this] { moManager->Delete(); });
    connect(moList, &ModuleList::menuRequested, this, &StationView::menuRequested);
    return moList;
}

void StationView::TellDropTarget(bool bMove)
{
    G_Trap("StationView", "TellDropTarget", [&] {
        const auto controller = DragDropController();
        const std::int32_t position = moDragWatch->IsDragging() ? controller->DropPosition() : vxNoPosition;
        if (std::exchange(mlDropTold, position) == position || position == vxNoPosition) return;
        const auto objection = moDocument.Station()->AgainstPlacing(position, controller->DragModules(), bMove,
                                                                    bMove ? moHandler->SelPlaces() : nullptr);
        if (objection) emit refused(*objection);
        else emit dropAllowed();
    });
}

void StationView::TellRefusedEdit(const QString& value, const QRect& cellOnScreen)
{
    moCellMessage->TellAt(cellOnScreen, tr("\"%1\" was not taken: %2").arg(PlainText(value), msRefusal));
}

reference::ViewState StationView::View() const
{
    return moDragWatch->IsDragging() ? moDragWatch->ViewBefore() : CaptureView(*moHandler);
}

void StationView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) TellPartShown();
}

int StationView::LackingWidth() const
{
    return moViews ? std::max(moViews->widget()->minimumSizeHint().width() - moViews->viewport()->width(), 0) : 0;
}

void StationView::FocusStation()
{
    moOverviewWidget->setFocus();
}

} // namespace quillon_ed
