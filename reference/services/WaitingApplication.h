#pragma once

#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace zqbchwcx::reference {

/// The host application as the library knows it. Waits nest: the wait cursor is shown from the first begin to the
/// last end.
class WaitingApplication : public HostApplication {
public:
    /// Shows (true) or takes away (false) the wait cursor.
    explicit WaitingApplication(std::function<void(bool)> showWaitCursor) : mShowWaitCursor(std::move(showWaitCursor))
    {
    }

    /// An end without a begin and any other code do nothing.
    void DoWaitCursor(std::int32_t lCode) override;
    std::int32_t OpenWaits() const { return mlOpenWaits; }

private:
    std::function<void(bool)> mShowWaitCursor;
    std::int32_t mlOpenWaits = 0;
};

} // namespace zqbchwcx::reference
