#include "zqbchwcx/qt/DropTarget.h"

#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/MimeDataObject.h"

#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>

#include <utility>

namespace zqbchwcx::qt {
namespace {

/// A refused position is still accepted as an event: a window that ignores an event gets no further ones.
void Answer(QDropEvent& event, std::int32_t lEffect)
{
    event.setDropAction(ToAction(lEffect & ToEffects(event.possibleActions())));
    event.accept();
}

} // namespace

void DropTarget::Enter(QDragEnterEvent& event, const Handler& over)
{
    DragOverEvent translated = Translate(event, vxDragEnter);
    over(translated);
    Answer(event, translated.lEffect);
}

void DropTarget::Move(QDragMoveEvent& event, const Handler& over)
{
    DragOverEvent translated = Translate(event, vxDragOver);
    over(translated);
    Answer(event, translated.lEffect);
    if (event.dropAction() == Qt::IgnoreAction) event.ignore();
}

void DropTarget::Leave(const Handler& over)
{
    DragOverEvent last = std::exchange(mLast, {});
    if (!last.data) return;
    last.nState = vxDragLeave;
    over(last);
}

void DropTarget::Drop(QDropEvent& event, const Handler& drop)
{
    DragOverEvent translated = Translate(event, vxDragOver);
    mLast = {};
    drop(translated);
    Answer(event, translated.lEffect);
    if (event.dropAction() == Qt::IgnoreAction) event.ignore();
}

void DropTarget::Refuse(QDropEvent& event, const Handler& over)
{
    Leave(over);
    event.setDropAction(Qt::IgnoreAction);
    event.ignore();
}

DragOverEvent DropTarget::Translate(const QDropEvent& event, std::int16_t nState)
{
    const QPointF at = ToPixel(event.position());
    mLast = {DataObjectOf(event.mimeData()),
             ToEffects(event.possibleActions()),
             ToButtons(event.buttons()),
             ToShift(event.modifiers()),
             static_cast<float>(at.x()),
             static_cast<float>(at.y()),
             nState};
    return mLast;
}

} // namespace zqbchwcx::qt
