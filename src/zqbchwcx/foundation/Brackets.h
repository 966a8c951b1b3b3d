#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <string_view>

namespace zqbchwcx {

/// Shows the wait cursor while it lives.
class WaitCursor {
public:
    WaitCursor() noexcept;
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

/// Runs what happens while it lives as one user action of the host. An end that fails is reported as an error of the
/// given procedure.
class UserAction {
public:
    /// Begins the action; throws what the host's error service throws, and then there is nothing to end.
    UserAction(std::string_view displayText, std::string_view className, std::string_view procedureName);
    ~UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;

private:
    std::string_view msClassName;
    std::string_view msProcedureName;
};

/// Switches the station's drawing off while it lives, so that the views do not redraw half-way through a batch.
class DrawingOff {
public:
    DrawingOff(VxHWStationPtr oStation, std::string_view className, std::string_view procedureName);
    ~DrawingOff();
    DrawingOff(const DrawingOff&) = delete;
    DrawingOff& operator=(const DrawingOff&) = delete;

private:
    VxHWStationPtr moStation;
    std::string_view msClassName;
    std::string_view msProcedureName;
};

} // namespace zqbchwcx
