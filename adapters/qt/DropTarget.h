#pragma once

#include "zqbchwcx/platform/DataObject.h"

#include <QPointF>

#include <cstdint>
#include <functional>

class QDragEnterEvent;
class QDragLeaveEvent;
class QDragMoveEvent;
class QDropEvent;

namespace zqbchwcx::qt {

/// What a drag does over a window, in the words of the views.
struct DragOverEvent {
    DataObjectPtr data;
    std::int32_t lEffect = 0; ///< in: what the source allows; out: what a drop would do
    std::int16_t nButton = 0;
    std::int16_t nShift = 0;
    float x = 0;
    float y = 0;
    std::int16_t nState = 0;
};

/// Translates the desktop's drag events of one window. It keeps what the last event told, because a leave tells
/// nothing.
class DropTarget {
public:
    using Handler = std::function<void(DragOverEvent&)>;

    void Enter(QDragEnterEvent& event, const Handler& over);
    void Move(QDragMoveEvent& event, const Handler& over);
    void Leave(const Handler& over);
    void Drop(QDropEvent& event, const Handler& drop);
    /// Nothing can be dropped there: for the views the drag leaves.
    void Refuse(QDropEvent& event, const Handler& over);

private:
    DragOverEvent Translate(const QDropEvent& event, std::int16_t nState);

    DragOverEvent mLast;
};

} // namespace zqbchwcx::qt
