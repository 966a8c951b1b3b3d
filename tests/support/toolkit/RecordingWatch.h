#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/WindowWatch.h"

#include <algorithm>

namespace zqbchwcx::testing {

/// Makes window spies and mouse hooks, and lets things happen that the living ones see.
class RecordingWatch : public Logged {
public:
    using Logged::Logged;

    WindowSpyPtr CreateSpy(std::intptr_t hWnd, WindowSpyHandler handler)
    {
        Call("Toolkit.CreateWindowSpy");
        auto spy = std::make_unique<Watching<WindowSpy>>();
        mcolSpies.push_back({hWnd, std::move(handler), spy->alive});
        return spy;
    }
    MouseHookPtr CreateHook(MouseHookHandler handler)
    {
        Call("Toolkit.CreateMouseHook");
        auto hook = std::make_unique<Watching<MouseHook>>();
        mcolHooks.push_back({0, std::move(handler), hook->alive});
        return hook;
    }

    /// The window gets the message.
    void Message(std::intptr_t hWnd, std::int32_t lMessage, std::intptr_t hOther = 0)
    {
        for (const auto& [hWatched, handler, alive] : std::vector(mcolSpies))
            if (hWatched == hWnd && !alive.expired()) handler(lMessage, hOther);
    }
    /// The mouse does something over the window.
    void Mouse(std::int32_t lMessage, std::intptr_t hWnd)
    {
        for (const auto& hook : std::vector(mcolHooks))
            if (!hook.alive.expired()) hook.handler(lMessage, hWnd);
    }
    bool IsWatching() const
    {
        const auto lives = [](const auto& watch) { return !watch.alive.expired(); };
        return std::any_of(mcolSpies.begin(), mcolSpies.end(), lives) ||
               std::any_of(mcolHooks.begin(), mcolHooks.end(), lives);
    }

private:
    template <class Interface>
    struct Watching : Interface {
        std::shared_ptr<bool> alive = std::make_shared<bool>();
    };
    template <class Handler>
    struct Watch {
        std::intptr_t hWnd = 0;
        Handler handler;
        std::weak_ptr<bool> alive;
    };

    std::vector<Watch<WindowSpyHandler>> mcolSpies;
    std::vector<Watch<MouseHookHandler>> mcolHooks;
};

} // namespace zqbchwcx::testing
