#pragma once

#include <string>

namespace qncal::host {

/// Keeps a second process from delivering the same notifications. Ends with its owner, however that one ends.
class DeliveryLock {
public:
    /// Tries to take the lock that the file stands for; the file stays behind, empty.
    explicit DeliveryLock(const std::string& file);
    ~DeliveryLock();
    DeliveryLock(const DeliveryLock&) = delete;
    DeliveryLock& operator=(const DeliveryLock&) = delete;

    /// False while another has it, or when the file cannot be made.
    bool isHeld() const { return descriptor_ >= 0; }

private:
    int descriptor_ = -1;
};

} // namespace qncal::host
