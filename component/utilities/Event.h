#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace qncal {

/// A source of events. Handlers are called in the order of subscription, on the thread that raises.
///
/// A handler may do anything during its call, subscribe, unsubscribe and end the event included. One that is
/// unsubscribed is not called any more, one that is subscribed is called from the next raise on, and an event
/// that ends calls nobody further: what a handler refers to may go as soon as its subscription has.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;
    using Subscription = std::size_t;

    Event() = default;
    Event(Event&&) noexcept = default;
    Event& operator=(Event&&) = delete;
    ~Event()
    {
        for (const auto& entry : entries_)
            entry->active = false;
    }

    Subscription subscribe(Handler handler)
    {
        entries_.push_back(std::make_shared<Entry>(++lastSubscription_, std::move(handler)));
        return lastSubscription_;
    }

    /// A subscription that is no longer there is passed over.
    void unsubscribe(Subscription subscription)
    {
        const auto found = std::find_if(entries_.begin(), entries_.end(),
                                        [=](const auto& entry) { return entry->subscription == subscription; });
        if (found == entries_.end())
            return;
        (*found)->active = false;
        entries_.erase(found);
    }

    void raise(Arguments... arguments) const
    {
        const auto entries = entries_; // keeps a handler alive that ends its own subscription
        for (const auto& entry : entries)
            if (entry->active)
                entry->handler(arguments...);
    }

private:
    struct Entry {
        Entry(Subscription number, Handler function) : subscription(number), handler(std::move(function)) {}
        Subscription subscription;
        Handler handler;
        bool active = true;
    };

    std::vector<std::shared_ptr<Entry>> entries_;
    Subscription lastSubscription_ = 0;
};

} // namespace qncal
