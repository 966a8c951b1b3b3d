#include "zqbchwcx/foundation/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace zqbchwcx {
namespace {

TEST(Event, CallsHandlersInConnectionOrderUntilTheyDisconnect)
{
    Event<int> event;
    std::string calls;
    EventConnection a = event.Connect([&](int value) { calls += "a" + std::to_string(value); });
    EventConnection b = event.Connect([&](int) { calls += "b"; });
    event.Raise(1);
    b = std::move(a);
    event.Raise(2);
    b.Disconnect();
    event.Raise(3);
    EXPECT_EQ(calls, "a1ba2");
}

TEST(Event, AHandlerMayDisconnectOthersAndConnectNewOnesWhileItIsRaised)
{
    Event<> event;
    std::string calls;
    EventConnection second;
    EventConnection third;
    const EventConnection first = event.Connect([&] {
        calls += "1";
        second.Disconnect();
        if (calls == "1") third = event.Connect([&] { calls += "3"; });
    });
    second = event.Connect([&] { calls += "2"; });
    event.Raise();
    EXPECT_EQ(calls, "1") << "the disconnected one is not called any more, the new one not yet";
    event.Raise();
    EXPECT_EQ(calls, "113");
}

TEST(Event, AHandlerMayDestroyTheEventOrItself)
{
    auto event = std::make_unique<Event<>>();
    std::string calls;
    EventConnection own;
    own = event->Connect([&] {
        own.Disconnect();
        event.reset();
        calls += "1";
    });
    EventConnection other = event->Connect([&] { calls += "2"; });
    event->Raise();
    EXPECT_EQ(calls, "12") << "a handler that is still connected is told of what happened before the end";
    other.Disconnect();
}

TEST(Event, AHandlerMayRaiseAgain)
{
    Event<int> event;
    std::string calls;
    const EventConnection a = event.Connect([&](int depth) {
        calls += "a" + std::to_string(depth);
        if (depth == 0) event.Raise(1);
    });
    const EventConnection b = event.Connect([&](int depth) { calls += "b" + std::to_string(depth); });
    event.Raise(0);
    EXPECT_EQ(calls, "a0a1b1b0");
}

} // namespace
} // namespace zqbchwcx
