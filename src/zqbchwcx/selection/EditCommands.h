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

/// Edit needs a selected module with a parameter dialog; copy a selected module of an offline station; cut and delete
/// also that the station may be changed; paste that, and modules on the clipboard that can be placed at the focus.
/// An error is reported under the class; what it keeps from being known is not possible.
EditCommands G_PossibleEditCommands(std::string_view className, const VxHWStationPtr& oStation,
                                    const VxHWSelectionHandlerPtr& oSelHandler) noexcept;

} // namespace zqbchwcx
