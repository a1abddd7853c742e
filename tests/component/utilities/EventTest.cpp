#include "utilities/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace qncal {
namespace {

TEST(EventTest, CallsHandlersInTheOrderOfSubscription)
{
    Event<int> event;
    std::string calls;
    event.subscribe([&](int value) { calls += "a" + std::to_string(value); });
    event.subscribe([&](int value) { calls += "b" + std::to_string(value); });
    event.raise(7);
    EXPECT_EQ(calls, "a7b7");
}

TEST(EventTest, WithoutHandlersNothingHappens)
{
    const Event<> event;
    event.raise();
}

TEST(EventTest, UnsubscribedHandlerIsNotCalled)
{
    Event<> event;
    std::string calls;
    event.subscribe([&] { calls += 'a'; });
    const auto second = event.subscribe([&] { calls += 'b'; });
    event.subscribe([&] { calls += 'c'; });
    event.unsubscribe(second);
    event.unsubscribe(second);
    event.raise();
    EXPECT_EQ(calls, "ac");
}

TEST(EventTest, SubscriptionsAreNeverGivenTwice)
{
    Event<> event;
    const auto first = event.subscribe([] {});
    event.unsubscribe(first);
    EXPECT_NE(event.subscribe([] {}), first);
}

TEST(EventTest, ChangesDuringARaiseTakeEffectAtTheNext)
{
    Event<> event;
    std::string calls;
    Event<>::Subscription second = 0;
    bool changed = false;
    event.subscribe([&] {
        calls += 'a';
        if (changed)
            return;
        changed = true;
        event.unsubscribe(second);
        event.subscribe([&] { calls += 'c'; });
    });
    second = event.subscribe([&] { calls += 'b'; });
    event.raise();
    EXPECT_EQ(calls, "ab");
    event.raise();
    EXPECT_EQ(calls, "abac");
}

TEST(EventTest, HandlerMayEndTheEvent)
{
    auto event = std::make_unique<Event<>>();
    std::string calls;
    event->subscribe([&] {
        event.reset();
        calls += 'a';
    });
    event->subscribe([&] { calls += 'b'; });
    event->raise();
    EXPECT_EQ(calls, "ab");
}

TEST(EventTest, ReferenceArgumentsReachTheRaiser)
{
    Event<int&> keyPress;
    keyPress.subscribe([](int& key) { key = 0; });
    int key = 'x';
    keyPress.raise(key);
    EXPECT_EQ(key, 0);
}

TEST(EventTest, RaisesNest)
{
    Event<int> event;
    std::string calls;
    event.subscribe([&](int depth) {
        calls += std::to_string(depth);
        if (depth < 2)
            event.raise(depth + 1);
    });
    event.raise(0);
    EXPECT_EQ(calls, "012");
}

} // namespace
} // namespace qncal
