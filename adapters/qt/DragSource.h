#pragma once

#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/SourceDataObject.h"

#include <QDrag>
#include <QPixmap>
#include <QPointer>

#include <memory>

namespace zqbchwcx::qt {

/// Drags what the receiver of the window's events offers; returns when the drag is over and told as complete. The
/// window has a `Receiver()`, which may become null meanwhile.
template <class Window>
void RunDrag(Window& window)
{
    if (window.Receiver() == nullptr) return;
    const QPointer<Window> self(&window);
    auto offered = std::make_shared<SourceDataObject>();
    // The desktop may ask for announced data as long as it keeps the drag's data, even after this window.
    offered->OnWanted([self, weakData = std::weak_ptr(offered)](std::int16_t nFormat) {
        if (self && self->Receiver() != nullptr) self->Receiver()->OLESetData(weakData.lock(), nFormat);
    });

    std::int32_t lAllowed = vxDropEffectNone;
    window.Receiver()->OLEStartDrag(offered, lAllowed);

    std::int32_t lEffect = vxDropEffectNone;
    if (self && lAllowed != vxDropEffectNone && !offered->MimeTypes().isEmpty()) {
        auto* drag = new QDrag(&window); // the desktop deletes it when the drag is over
        drag->setMimeData(new SourceMimeData(offered));
        // The views draw what is dragged themselves.
        QPixmap nothing(1, 1);
        nothing.fill(Qt::transparent);
        drag->setPixmap(nothing);
        lEffect = ToEffects(drag->exec(ToActions(lAllowed), Qt::CopyAction));
    }
    if (self && self->Receiver() != nullptr) self->Receiver()->OLECompleteDrag(lEffect);
}

} // namespace zqbchwcx::qt
