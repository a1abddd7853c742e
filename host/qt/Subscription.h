#pragma once

#include "utilities/Event.h"

#include <QPointer>

namespace qncal::host {

/// Calls a function at an event of a model for as long as the subscription and the receiver live. `forget` is for
/// an event that itself goes away.
class Subscription {
public:
    Subscription() = default;

    /// The receiver may go away in the middle of a raise, which then passes it over.
    template <class Function>
    Subscription(Event<>& event, QObject* receiver, Function function)
        : event_(&event), number_(event.subscribe([guard = QPointer<QObject>(receiver), function] {
              if (guard)
                  function();
          }))
    {
    }
    ~Subscription()
    {
        if (event_)
            event_->unsubscribe(number_);
    }
    Subscription(Subscription&& other) noexcept : event_(std::exchange(other.event_, nullptr)), number_(other.number_)
    {
    }
    Subscription& operator=(Subscription&& other) noexcept
    {
        std::swap(event_, other.event_);
        std::swap(number_, other.number_);
        return *this;
    }

    void forget() { event_ = nullptr; }

private:
    Event<>* event_ = nullptr;
    Event<>::Subscription number_ = 0;
};

} // namespace qncal::host
