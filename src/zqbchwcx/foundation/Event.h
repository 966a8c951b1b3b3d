#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zqbchwcx {

/// Keeps a handler connected to an event; disconnects it when destroyed. It may outlive the event.
class [[nodiscard]] EventConnection {
public:
    EventConnection() = default;
    explicit EventConnection(std::function<void()> disconnect) : mDisconnect(std::move(disconnect)) {}
    EventConnection(EventConnection&& other) noexcept : mDisconnect(std::exchange(other.mDisconnect, nullptr)) {}
    EventConnection& operator=(EventConnection&& other) noexcept
    {
        if (this != &other) {
            Disconnect();
            mDisconnect = std::exchange(other.mDisconnect, nullptr);
        }
        return *this;
    }
    EventConnection(const EventConnection&) = delete;
    EventConnection& operator=(const EventConnection&) = delete;
    ~EventConnection() { Disconnect(); }

    void Disconnect() noexcept
    {
        if (auto disconnect = std::exchange(mDisconnect, nullptr)) disconnect();
    }

private:
    std::function<void()> mDisconnect;
};

/// Something that happens to an object, told to its connected handlers: synchronously and in connection order.
///
/// While it is raised, a handler may connect others (they hear the next raise), disconnect any (one not yet called
/// is not called any more), destroy the object that owns the event, or raise it again.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() = default;

    EventConnection Connect(Handler handler)
    {
        auto entry = std::make_shared<Handler>(std::move(handler));
        moHandlers->push_back(entry);
        return EventConnection([handlers = std::weak_ptr(moHandlers), weakEntry = std::weak_ptr(entry)] {
            const auto list = handlers.lock();
            const auto connected = weakEntry.lock();
            if (!list || !connected) return;
            list->erase(std::remove(list->begin(), list->end(), connected), list->end());
        });
    }

    void Raise(Args... args) const
    {
        const auto handlers = moHandlers;
        const HandlerList connectedNow = *handlers;
        for (const auto& handler : connectedNow) {
            if (std::find(handlers->begin(), handlers->end(), handler) != handlers->end()) (*handler)(args...);
        }
    }

private:
    using HandlerList = std::vector<std::shared_ptr<Handler>>;

    std::shared_ptr<HandlerList> moHandlers = std::make_shared<HandlerList>();
};

} // namespace zqbchwcx
