#include "app/window/ConfigurationView.h"

#include "app/document/Document.h"
#include "app/document/SharedView.h"
#include "app/host/PlainText.h"
#include "app/window/CellMessage.h"
#include "app/window/ModuleList.h"
#include "app/window/StationViews.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QTimer>

#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;

/// Keeps the view as it was when a drag came in.
class ConfigurationView::DragWatch : public IVxHWDragDropCtrlEvents {
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

ConfigurationView::ConfigurationView(Document& document, QWidget* parent)
    : StationView(document, parent), moManager(std::make_unique<VxHWConfigManager>())
{
    const reference::StationPtr& station = document.Station();
    moManager->Initialize(static_cast<VxEnumStationType>(station->StationKind()), Views().Overview(), Views().Table(),
                          station);
    // The manager wires the views; drawing them is the host's.
    Views().Overview()->Refresh();
    Views().Table()->Refresh();
    Show(moManager->VxHWSelectionHandler(), nullptr);
    WatchDrags();
    if (ModuleList* list = List()) {
        connect(list, &ModuleList::editRequested, this, [this] { moManager->EditModuleParams(); });
        connect(list, &ModuleList::deleteRequested, this, [this] { moManager->Delete(); });
    }
    moCellMessage = new CellMessage(this);
    connect(&Views(), &StationViews::editRefused, this, &ConfigurationView::TellRefusedEdit);
    moRefused = station->Refused.Connect([this](const reference::Refusal& refusal) {
        msRefusal =
            PlainText(refusal.text, CurrentDocument().Station()->Context()->CurrentLanguage(), LongestDescription);
    });
    for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
}

ConfigurationView::~ConfigurationView()
{
    moManager->Terminate();
}

void ConfigurationView::WatchDrags()
{
    moDragDropController = Views().Table()->VxHWDragDropController();
    moDragWatch = std::make_shared<DragWatch>(moDragDropController, Handler());
    if (const auto controller = std::dynamic_pointer_cast<IVxHWController>(moDragDropController))
        controller->AddSubscriber(moDragWatch);
}

bool ConfigurationView::eventFilter(QObject* watched, QEvent* event)
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
    const auto objection = CurrentDocument().Station()->AgainstEditing();
    if (objection && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        for (const auto sequence : {QKeySequence::Delete, QKeySequence::Cut, QKeySequence::Paste}) {
            if (!key.matches(sequence)) continue;
            emit refused(*objection);
            return true;
        }
    }
    return StationView::eventFilter(watched, event);
}

void ConfigurationView::TellDropTarget(bool bMove)
{
    G_Trap("ConfigurationView", "TellDropTarget", [&] {
        const std::int32_t position = moDragWatch->IsDragging() ? moDragDropController->DropPosition() : vxNoPosition;
        if (std::exchange(mlDropTold, position) == position || position == vxNoPosition) return;
        const auto objection = CurrentDocument().Station()->AgainstPlacing(
            position, moDragDropController->DragModules(), bMove, bMove ? Handler()->SelPlaces() : nullptr);
        if (objection) emit refused(*objection);
        else emit dropAllowed();
    });
}

void ConfigurationView::TellRefusedEdit(const QString& value, const QRect& cellOnScreen)
{
    moCellMessage->TellAt(cellOnScreen, tr("\"%1\" was not taken: %2").arg(PlainText(value), msRefusal));
}

reference::ViewState ConfigurationView::View() const
{
    return moDragWatch->IsDragging() ? moDragWatch->ViewBefore() : StationView::View();
}

} // namespace quillon_ed
