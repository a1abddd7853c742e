#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace qncal {

/// A source of events. Handlers are called in the order of subscription, on the thread that raises.
/// A handler may subscribe and unsubscribe during a call; a change takes effect at the next raise.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;
    using Subscription = std::size_t;

    Subscription subscribe(Handler handler)
    {
        handlers_.emplace_back(++lastSubscription_, std::move(handler));
        return lastSubscription_;
    }

    void unsubscribe(Subscription subscription)
    {
        std::erase_if(handlers_, [=](const auto& entry) { return entry.first == subscription; });
    }

    void raise(Arguments... arguments) const
    {
        const auto handlers = handlers_;
        for (const auto& [subscription, handler] : handlers)
            handler(arguments...);
    }

private:
    std::vector<std::pair<Subscription, Handler>> handlers_;
    Subscription lastSubscription_ = 0;
};

} // namespace qncal
