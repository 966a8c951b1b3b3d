#pragma once

#include "platform/Tooltips.h"
#include "tests/support/services/CallLog.h"

#include <map>

namespace zqbchwcx::testing {

/// Knows who answers for which window.
class RecordingTooltips : public TooltipService, public Logged {
public:
    using Logged::Logged;

    TooltipConnectionPtr Connect(std::intptr_t hWnd, TooltipCallback& callback) override
    {
        Call("TooltipService.Connect");
        return std::make_unique<Connection>(mcolCallbacks, hWnd, callback);
    }

    bool IsConnected(std::intptr_t hWnd) const { return mcolCallbacks->contains(hWnd); }
    Tooltip Hover(std::intptr_t hWnd, Point at) const { return mcolCallbacks->at(hWnd)->GetTooltip(at); }

private:
    using Callbacks = std::map<std::intptr_t, TooltipCallback*>;

    class Connection : public TooltipConnection {
    public:
        Connection(std::shared_ptr<Callbacks> callbacks, std::intptr_t hWnd, TooltipCallback& callback)
            : mcolCallbacks(std::move(callbacks)), mhWnd(hWnd)
        {
            mcolCallbacks->emplace(mhWnd, &callback);
        }
        ~Connection() override { mcolCallbacks->erase(mhWnd); }
        Connection(const Connection&) = delete;
        Connection& operator=(const Connection&) = delete;

    private:
        std::shared_ptr<Callbacks> mcolCallbacks;
        std::intptr_t mhWnd;
    };

    std::shared_ptr<Callbacks> mcolCallbacks = std::make_shared<Callbacks>();
};

} // namespace zqbchwcx::testing
