#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Tooltips.h"

#include <map>

namespace zqbchwcx::testing {

/// Knows who connected last to each window, and whether the last one of all still is.
class RecordingTooltips : public TooltipService, public Logged {
public:
    using Logged::Logged;

    TooltipConnectionPtr Connect(std::intptr_t hWnd, TooltipCallback& callback) override
    {
        Call("TooltipService.Connect");
        auto connection = std::make_unique<Connection>();
        connection->callback = std::make_shared<TooltipCallback*>(&callback);
        mpCallback = mcolCallbacks[hWnd] = connection->callback;
        return connection;
    }

    bool IsConnected() const { return !mpCallback.expired(); }
    Tooltip Hover(std::intptr_t hWnd, Point at) const
    {
        const auto found = mcolCallbacks.find(hWnd);
        const auto callback = found == mcolCallbacks.end() ? nullptr : found->second.lock();
        return callback ? (*callback)->GetTooltip(at) : Tooltip{"nobody's window", {}};
    }

private:
    struct Connection : TooltipConnection {
        std::shared_ptr<TooltipCallback*> callback;
    };

    std::weak_ptr<TooltipCallback*> mpCallback;
    std::map<std::intptr_t, std::weak_ptr<TooltipCallback*>> mcolCallbacks;
};

} // namespace zqbchwcx::testing
