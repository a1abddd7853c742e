#pragma once

#include "core/ServiceRegistry.h"

#include <memory>
#include <string>

namespace qncal::test {

/// Makes one service call fail. While it lives, the services in the registry are wrapped: database, error control
/// (only `enterRoutine`), messages, locale, client lists with the registry of windows, notifications, utility and
/// date-time service. A call that fails throws run-time error 5 and does nothing else.
///
/// To be made after the objects under test, since creating one of those replaces the component's own services.
class FaultInjector {
public:
    FaultInjector();
    ~FaultInjector();
    FaultInjector(const FaultInjector&) = delete;
    FaultInjector& operator=(const FaultInjector&) = delete;

    /// From now on calls are counted anew, and the n-th one fails, once; 0 for none.
    void failCall(int n);
    /// The same, and every call after the n-th fails as well, as with a connection that is lost.
    void failFromCall(int n);
    /// The calls so far.
    int calls() const;
    /// The operation that failed first, empty while none has.
    const std::string& failedOperation() const;

    /// How the calls are counted; the wrappers share it.
    struct Count {
        int calls = 0;
        int failing = 0;
        bool lasting = false;
        std::string failed;
        void step(std::string_view operation);
    };

private:
    ServiceRegistry original_;
    std::shared_ptr<Count> count_ = std::make_shared<Count>();
};

} // namespace qncal::test
