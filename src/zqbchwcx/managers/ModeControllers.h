#pragma once

#include "zqbchwcx/managers/ViewWiring.h"

#include <memory>
#include <utility>

namespace zqbchwcx {

/// The selection handler and the controllers that a manager makes for its mode. The drag-and-drop controller is
/// connected only where a mode has drag and drop.
class ModeControllers {
public:
    void MakeHandler();
    /// Makes the mouse, the key and the drag-and-drop controller, in that order.
    template <class Mouse, class Key, class DragDrop>
    void Make();

    /// Null before they are made.
    const VxHWSelectionHandlerPtr& SelHandler() const { return moSelHandler; }
    const IVxHWKeyInputControllerPtr& KeyInput() const { return moiKeyInput; }
    const IVxHWControllerPtr& DragDrop() const { return moDragDrop; }

    /// Puts them into what the views are given.
    void AddTo(ViewWiring& wiring) const;
    /// Connects the handler, then mouse and keys. Throws VxError when one of them is missing.
    void Connect(const ViewWiring& wiring) const;
    /// Takes away what `Connect` has set; a start that failed may have made none.
    void Disconnect(ModeService eService) const;

private:
    template <class Controller, class Input>
    static void Make(IVxHWControllerPtr& oController, std::shared_ptr<Input>& oiInput);

    VxHWSelectionHandlerPtr moSelHandler;
    // Each controller by its common and by its input interface.
    IVxHWMouseInputControllerPtr moiMouseInput;
    IVxHWControllerPtr moMouse;
    IVxHWKeyInputControllerPtr moiKeyInput;
    IVxHWControllerPtr moKey;
    IVxHWDragDropControllerPtr moiDragDrop;
    IVxHWControllerPtr moDragDrop;
};

template <class Controller, class Input>
void ModeControllers::Make(IVxHWControllerPtr& oController, std::shared_ptr<Input>& oiInput)
{
    auto oMade = std::make_shared<Controller>();
    oController = oMade;
    oiInput = std::move(oMade);
}

template <class Mouse, class Key, class DragDrop>
void ModeControllers::Make()
{
    Make<Mouse>(moMouse, moiMouseInput);
    Make<Key>(moKey, moiKeyInput);
    Make<DragDrop>(moDragDrop, moiDragDrop);
}

/// Sets anchor and focus on the first place of rack 0 that can be used, and returns its number; 0, with both on the
/// rack itself, when there is none.
std::int32_t G_StartFocus(const VxHWStationPtr& oStation, const VxHWSelectionHandlerPtr& oSelHandler);

} // namespace zqbchwcx
