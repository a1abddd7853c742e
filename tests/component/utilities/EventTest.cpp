#include "utilities/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

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

TEST(EventTest, HandlerSubscribedDuringARaiseWaitsForTheNext)
{
    Event<> event;
    std::string calls;
    bool subscribed = false;
    event.subscribe([&] {
        calls += 'a';
        if (!std::exchange(subscribed, true))
            event.subscribe([&] { calls += 'b'; });
    });
    event.raise();
    EXPECT_EQ(calls, "a");
    event.raise();
    EXPECT_EQ(calls, "aab");
}

TEST(EventTest, HandlerUnsubscribedDuringARaiseIsNotCalled)
{
    Event<> event;
    std::string calls;
    auto owner = std::make_unique<std::string>("owned");
    Event<>::Subscription second = 0;
    event.subscribe([&] {
        event.unsubscribe(second);
        owner.reset();
    });
    second = event.subscribe([&] { calls += *owner; });
    event.subscribe([&] { calls += 'c'; });
    event.raise();
    EXPECT_EQ(calls, "c");
}

TEST(EventTest, HandlerMayUnsubscribeItself)
{
    Event<> event;
    std::string calls;
    Event<>::Subscription once = 0;
    once = event.subscribe([&, text = std::string(100, 'x')] {
        event.unsubscribe(once);
        calls += text.front();
    });
    event.raise();
    event.raise();
    EXPECT_EQ(calls, "x");
}

TEST(EventTest, EventThatEndsCallsNobodyFurther)
{
    auto event = std::make_unique<Event<>>();
    std::string calls;
    event->subscribe([&, text = std::string(100, 'x')] {
        event.reset();
        calls += text.front();
    });
    event->subscribe([&] { calls += 'b'; });
    event->raise();
    EXPECT_EQ(calls, "x");
}

TEST(EventTest, KeepsItsHandlersWhenItMoves)
{
    Event<> event;
    std::string calls;
    event.subscribe([&] { calls += 'a'; });
    const Event<> moved(std::move(event));
    moved.raise();
    EXPECT_EQ(calls, "a");
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
