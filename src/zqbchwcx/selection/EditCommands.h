#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <string_view>

namespace zqbchwcx {

/// Which commands are possible now: the one answer for menus, tables and hosts.
struct EditCommands {
    bool bEditModuleParams = false;
    bool bCut = false;
    bool bCopy = false;
    bool bPaste = false;
    bool bDelete = false;

    bool operator==(const EditCommands&) const = default;
};

/// All but pasting, for hosts that ask more often than they may ask for the clipboard. Edit needs a selected module
/// with a parameter dialog; copy a selected module of an offline station; cut and delete also that the station may be
/// changed. An error is reported under the class; what it keeps from being known is not possible.
EditCommands G_PossibleSelectionCommands(std::string_view className, const VxHWStationPtr& oStation,
                                         const VxHWSelectionHandlerPtr& oSelHandler) noexcept;

/// These, and paste: the station may be changed, and the modules on the clipboard can be placed at the focus.
EditCommands G_PossibleEditCommands(std::string_view className, const VxHWStationPtr& oStation,
                                    const VxHWSelectionHandlerPtr& oSelHandler) noexcept;

} // namespace zqbchwcx
