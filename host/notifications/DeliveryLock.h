#pragma once

#include <string>

namespace qncal::host {

/// Keeps a second process of this machine from delivering the same notifications. Ends with its owner, however that
/// one ends.
class DeliveryLock {
public:
    /// Tries to take the lock that the file stands for; the file stays behind, empty.
    explicit DeliveryLock(const std::string& file);
    /// The lock of a database: that of "firm.db" is "firm.db-notify" beside the file itself, whatever link or relative
    /// path names it.
    static DeliveryLock ofDatabase(const std::string& databaseFile);
    ~DeliveryLock();
    DeliveryLock(const DeliveryLock&) = delete;
    DeliveryLock& operator=(const DeliveryLock&) = delete;

    bool isHeld() const { return descriptor_ >= 0; }
    /// Why the lock could not be tried; empty when it is held, by this object or by another.
    const std::string& error() const { return error_; }

private:
    int descriptor_ = -1;
    std::string error_;
};

} // namespace qncal::host
