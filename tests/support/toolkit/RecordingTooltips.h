#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Tooltips.h"

namespace zqbchwcx::testing {

/// Knows who connected last, and whether that is still so.
class RecordingTooltips : public TooltipService, public Logged {
public:
    using Logged::Logged;

    TooltipConnectionPtr Connect(std::intptr_t hWnd, TooltipCallback& callback) override
    {
        Call("TooltipService.Connect");
        auto connection = std::make_unique<Connection>();
        connection->callback = std::make_shared<TooltipCallback*>(&callback);
        mpCallback = connection->callback;
        mhWnd = hWnd;
        return connection;
    }

    bool IsConnected() const { return !mpCallback.expired(); }
    Tooltip Hover(std::intptr_t hWnd, Point at) const
    {
        return hWnd == mhWnd ? (*mpCallback.lock())->GetTooltip(at) : Tooltip{"another window", {}};
    }

private:
    struct Connection : TooltipConnection {
        std::shared_ptr<TooltipCallback*> callback;
    };

    std::weak_ptr<TooltipCallback*> mpCallback;
    std::intptr_t mhWnd = 0;
};

} // namespace zqbchwcx::testing
